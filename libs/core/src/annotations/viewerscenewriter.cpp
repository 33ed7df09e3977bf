#include "annotations/viewerscenewriter.h"

#include "annotations/dimensioningtypename.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/scanviewscenegraph.h"
#include "scene/visit2drecord.h"

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
    // What XML cannot carry as it is: a parser turns a raw carriage return into a line feed, so it
    // goes as a character reference; the other control characters would make the whole file
    // unreadable, so each becomes U+FFFD.
    if (std::any_of(escaped.cbegin(), escaped.cend(), [](QChar c) { return c.unicode() < 0x20; })) {
        QString safe;
        safe.reserve(escaped.size());
        for (const QChar c : std::as_const(escaped)) {
            if (c == QLatin1Char('\r'))
                safe += QLatin1String("&#13;");
            else if (c.unicode() < 0x20 && c != QLatin1Char('\n') && c != QLatin1Char('\t'))
                safe += QChar(QChar::ReplacementCharacter);
            else
                safe += c;
        }
        escaped = safe;
    }
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

    // Items that the file cannot carry are left out and named here.
    void skip(const QString& what)
    {
        qCWarning(lcSceneWriter) << what << "not written";
        skipped << what;
    }

    QStringList skipped;

    void writeRecord(const TVXSceneItem& record);
    void writeSphericalItems(const ScanViewSceneGraph& graph);
    void writeThreePointItem(const char* name, const char* childName, const ScanViewItem& item);
};

void ViewerSceneWriter::Private::writeRecord(const TVXSceneItem& record)
{
    const auto rectangleItem = [this](const char* name, const QRectF& r) {
        openItem(name);
        writeNumbers<float>("rectangle", {float(r.x()), float(r.y()), float(r.width()), float(r.height())});
        closeItem(name);
    };
    const bool known = visit2DRecord(
        record, Overloaded{
                    [this](const TVXSPolygon& polygon) {
                        openItem("polygonitem");
                        for (const QPointF& point : polygon.polygon())
                            writePoint("point", point);
                        closeItem("polygonitem");
                    },
                    [&](const TVXSEllipse& ellipse) { rectangleItem("ellipseitem", ellipse.rectangle()); },
                    [&](const TVXSRectangle& rectangle) { rectangleItem("rectangleitem", rectangle.rectangle()); },
                    [this](const TVXSSimpleText& text) {
                        // The offset is not stored: readers take (0, 0).
                        openItem("textitem");
                        writeNumbers<int>("position",
                                          {truncatedCell(text.position().x()), truncatedCell(text.position().y())});
                        writeText(text.text());
                        closeItem("textitem");
                    },
                    [this](const TVXSDimensioning& dimensioning) {
                        const QString type = dimensioningTypeName(dimensioning.type());
                        if (type.isNull())
                            return skip(QStringLiteral("planar dimensioning of unknown type %1").arg(dimensioning.type()));
                        // Grid positions of dimensionings keep double precision.
                        openItem("dimensioningitem", type);
                        writeNumbers<double>("point", {dimensioning.first().x(), dimensioning.first().y()});
                        writeNumbers<double>("point", {dimensioning.second().x(), dimensioning.second().y()});
                        closeItem("dimensioningitem");
                    },
                });
    if (!known)
        skip(QStringLiteral("planar record of category %1 that is no annotation").arg(record.category()));
}

void ViewerSceneWriter::Private::writeThreePointItem(const char* name, const char* childName, const ScanViewItem& item)
{
    if (item.points().size() < 3)
        return skip(QStringLiteral("%1 with %2 points").arg(QLatin1String(name)).arg(item.points().size()));
    openItem(name);
    writeThreePoints(childName, item.points());
    closeItem(name);
}

void ViewerSceneWriter::Private::writeSphericalItems(const ScanViewSceneGraph& graph)
{
    graph.forEachItem(Overloaded{
        [this](const ScanViewEllipse& ellipse) { writeThreePointItem("ellipseitem_spherical", "ellipse_3d", ellipse); },
        [this](const ScanViewPolygon& polygon) {
            openItem("polygonitem_spherical");
            for (const Vector3d& point : polygon.points())
                writePoint("point_3d", point);
            closeItem("polygonitem_spherical");
        },
        [this](const ScanViewRectangle& rectangle) {
            writeThreePointItem("rectangleitem_spherical", "rectangle_3d", rectangle);
        },
        [this](const ScanViewTextItem& text) {
            if (text.points().empty())
                return skip(QStringLiteral("spherical text item \"%1\" without position").arg(text.text()));
            openItem("textitem_spherical");
            writePoint("position", text.points().front());
            writeText(text.text());
            closeItem("textitem_spherical");
        },
        [this](const ScanViewMeasurementItem& measurement) {
            const QString type = dimensioningTypeName(measurement.type());
            if (type.isNull() || measurement.points().size() < 2)
                return skip(QStringLiteral("spherical measurement of type %1 with %2 points")
                                .arg(measurement.type())
                                .arg(measurement.points().size()));
            openItem("dimensioningitem_spherical", type);
            writePoint("point_3d", measurement.points()[0]);
            writePoint("point_3d", measurement.points()[1]);
            closeItem("dimensioningitem_spherical");
        },
    });
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
    return out.status() == QTextStream::Ok && d->skipped.isEmpty();
}

QStringList ViewerSceneWriter::skippedItems() const
{
    return d->skipped;
}

} // namespace TVX::CORE
