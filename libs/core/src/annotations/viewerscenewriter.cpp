#include "annotations/viewerscenewriter.h"

#include "annotations/dimensioningtypename.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxssimpletext.h"
#include "scene/scanviewscenegraph.h"

#include <QIODevice>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace TVX::CORE {

namespace {

Q_LOGGING_CATEGORY(lcSceneWriter, "tvx.annotations")

// Layout of the document: items at three blanks, their children at six, the point lines of a
// three-point element at nine.
const char* const itemIndent = "   ";
const char* const childIndent = "      ";
const char* const pointIndent = "         ";

// A text anchor is stored as whole grid cells. Values beyond the int range (never a real cell)
// are clamped, so that every record stays writable.
int truncatedCell(double value)
{
    if (std::isnan(value))
        return 0;
    const double cell = std::trunc(value);
    return int(std::clamp(cell, double(std::numeric_limits<int>::min()), double(std::numeric_limits<int>::max())));
}

} // namespace

QString escapeViewerSceneText(const QString& text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    escaped.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    escaped.replace(QLatin1Char('>'), QLatin1String("&gt;"));
    return escaped;
}

QString escapeViewerSceneAttribute(const QString& value)
{
    return escapeViewerSceneText(value).replace(QLatin1Char('"'), QLatin1String("&quot;"));
}

struct ViewerSceneWriter::Private {
    QTextStream out;

    explicit Private(QIODevice* device) : out(device) { out.setEncoding(QStringConverter::Utf8); }

    void openItem(const char* name, const QString& type = QString())
    {
        out << itemIndent << '<' << name;
        if (!type.isNull())
            out << " type=\"" << escapeViewerSceneAttribute(type) << '"';
        out << ">\n";
    }

    void closeItem(const char* name) { out << itemIndent << "</" << name << ">\n"; }

    void beginChild(const char* name) { out << childIndent << '<' << name << '>'; }
    void endChild(const char* name) { out << "</" << name << ">\n"; }

    // One child holding its numbers on one line. The caller picks the type that is written:
    // float for most numbers, double for the 2D dimensioning points, int for the text anchor.
    template <typename Number>
    void writeNumbers(const char* name, std::initializer_list<Number> numbers)
    {
        beginChild(name);
        writeList(numbers);
        endChild(name);
    }

    template <typename Number>
    void writeList(std::initializer_list<Number> numbers)
    {
        const char* separator = "";
        for (const Number number : numbers) {
            out << separator << number;
            separator = ", ";
        }
    }

    void writeVector(const Vector3d& v) { writeList<float>({float(v.x), float(v.y), float(v.z)}); }

    void writePoint(const char* name, const QPointF& point) { writeNumbers<float>(name, {float(point.x()), float(point.y())}); }

    void writePoint(const char* name, const Vector3d& point)
    {
        beginChild(name);
        writeVector(point);
        endChild(name);
    }

    void writeText(const QString& text)
    {
        beginChild("text");
        out << escapeViewerSceneText(text);
        endChild("text");
    }

    // The three points of an ellipse or rectangle over the panorama, one per line.
    void writeThreePoints(const char* name, const std::vector<Vector3d>& points)
    {
        beginChild(name);
        out << '\n';
        for (std::size_t i = 0; i < 3; ++i) {
            out << pointIndent;
            writeVector(points[i]);
            out << (i < 2 ? ",\n" : "\n");
        }
        out << childIndent;
        endChild(name);
    }

    void writeRecord(const TVXSceneItem& record);
    void writeSphericalItems(const ScanViewSceneGraph& graph);
    void writeThreePointItem(const char* name, const char* childName, const ScanViewItem& item);
};

void ViewerSceneWriter::Private::writeRecord(const TVXSceneItem& record)
{
    if (const auto* polygon = dynamic_cast<const TVXSPolygon*>(&record)) {
        openItem("polygonitem");
        for (const QPointF& point : polygon->polygon())
            writePoint("point", point);
        closeItem("polygonitem");
    } else if (const auto* ellipse = dynamic_cast<const TVXSEllipse*>(&record)) {
        const QRectF r = ellipse->rectangle();
        openItem("ellipseitem");
        writeNumbers<float>("rectangle", {float(r.x()), float(r.y()), float(r.width()), float(r.height())});
        closeItem("ellipseitem");
    } else if (const auto* rectangle = dynamic_cast<const TVXSRectangle*>(&record)) {
        const QRectF r = rectangle->rectangle();
        openItem("rectangleitem");
        writeNumbers<float>("rectangle", {float(r.x()), float(r.y()), float(r.width()), float(r.height())});
        closeItem("rectangleitem");
    } else if (const auto* text = dynamic_cast<const TVXSSimpleText*>(&record)) {
        // The offset is not stored: readers take (0, 0).
        openItem("textitem");
        writeNumbers<int>("position", {truncatedCell(text->position().x()), truncatedCell(text->position().y())});
        writeText(text->text());
        closeItem("textitem");
    } else if (const auto* dimensioning = dynamic_cast<const TVXSDimensioning*>(&record)) {
        const QString type = dimensioningTypeName(dimensioning->type());
        if (type.isNull()) {
            qCWarning(lcSceneWriter) << "dimensioning of unknown type" << dimensioning->type() << "not written";
            return;
        }
        // Grid positions of dimensionings keep double precision.
        openItem("dimensioningitem", type);
        writeNumbers<double>("point", {dimensioning->first().x(), dimensioning->first().y()});
        writeNumbers<double>("point", {dimensioning->second().x(), dimensioning->second().y()});
        closeItem("dimensioningitem");
    }
}

void ViewerSceneWriter::Private::writeThreePointItem(const char* name, const char* childName, const ScanViewItem& item)
{
    if (item.points().size() < 3) {
        qCWarning(lcSceneWriter) << name << "with" << item.points().size() << "points not written";
        return;
    }
    openItem(name);
    writeThreePoints(childName, item.points());
    closeItem(name);
}

void ViewerSceneWriter::Private::writeSphericalItems(const ScanViewSceneGraph& graph)
{
    for (const auto& ellipse : graph.ellipses())
        writeThreePointItem("ellipseitem_spherical", "ellipse_3d", *ellipse);
    for (const auto& polygon : graph.polygons()) {
        openItem("polygonitem_spherical");
        for (const Vector3d& point : polygon->points())
            writePoint("point_3d", point);
        closeItem("polygonitem_spherical");
    }
    for (const auto& rectangle : graph.rectangles())
        writeThreePointItem("rectangleitem_spherical", "rectangle_3d", *rectangle);
    for (const auto& text : graph.textItems()) {
        if (text->points().empty()) {
            qCWarning(lcSceneWriter) << "text item without position not written";
            continue;
        }
        openItem("textitem_spherical");
        writePoint("position", text->points().front());
        writeText(text->text());
        closeItem("textitem_spherical");
    }
    for (const auto& measurement : graph.measurementItems()) {
        const QString type = dimensioningTypeName(measurement->type());
        if (type.isNull() || measurement->points().size() < 2) {
            qCWarning(lcSceneWriter) << "measurement of type" << measurement->type() << "with"
                                     << measurement->points().size() << "points not written";
            continue;
        }
        openItem("dimensioningitem_spherical", type);
        writePoint("point_3d", measurement->points()[0]);
        writePoint("point_3d", measurement->points()[1]);
        closeItem("dimensioningitem_spherical");
    }
}

ViewerSceneWriter::ViewerSceneWriter(QIODevice* device) : d(std::make_unique<Private>(device)) {}

ViewerSceneWriter::~ViewerSceneWriter() = default;

bool ViewerSceneWriter::write(const SceneItemsTableModel& model, const ScanViewSceneGraph* graph)
{
    QTextStream& out = d->out;
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<!DOCTYPE tvxscanviewer>\n"
        << "<tvxviewerscene version=\"2.0\">\n";
    for (int row = 0; row < model.rowCount(); ++row) {
        if (const TVXSceneItemPtr record = model.item(row))
            d->writeRecord(*record);
    }
    if (graph)
        d->writeSphericalItems(*graph);
    out << "</tvxviewerscene>\n";
    out.flush();
    return out.status() == QTextStream::Ok;
}

} // namespace TVX::CORE
