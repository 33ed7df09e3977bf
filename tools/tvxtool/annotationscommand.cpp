// tvxtool annotations SCAN.tvx [--rewrite OUT.xml]: the annotations stored beside a scan, as JSON.
#include "jsonoutput.h"
#include "toolcommand.h"

#include "annotations/annotationfile.h"
#include "annotations/dimensioningtypename.h"
#include "annotations/sceneitemstablemodel.h"
#include "annotations/viewerscenereader.h"
#include "scene/scanviewscenegraph.h"
#include "scene/visit2drecord.h"

#include <QFile>

using namespace TVX::CORE;

namespace TVX::TOOL {

namespace {

struct AnnotationsArguments {
    QString scanPath;
    QString rewritePath; // empty: no rewrite
};

AnnotationsArguments parseArguments(const QStringList& arguments)
{
    AnnotationsArguments parsed;
    bool rewrite = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == QLatin1String("--rewrite")) {
            if (rewrite || i + 1 >= arguments.size())
                throw UsageError("annotations: --rewrite needs one output file");
            rewrite = true;
            parsed.rewritePath = arguments[++i];
        } else if (argument.startsWith(QLatin1Char('-')) || !parsed.scanPath.isEmpty()) {
            throw UsageError("annotations: unexpected argument");
        } else {
            parsed.scanPath = argument;
        }
    }
    if (parsed.scanPath.isEmpty())
        throw UsageError("annotations: missing scan file");
    return parsed;
}

QJsonArray jsonPoint(const QPointF& point)
{
    return {point.x(), point.y()};
}

QJsonArray jsonPoint(const Vector3d& point)
{
    return {point.x, point.y, point.z};
}

template <typename Point>
QJsonArray jsonPoints(const Point* begin, const Point* end)
{
    QJsonArray points;
    for (const Point* p = begin; p != end; ++p)
        points.append(jsonPoint(*p));
    return points;
}

QJsonArray jsonRect(const QRectF& rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonObject planarEntry(const TVXSceneItem& record)
{
    QJsonObject entry; // the reader makes no other records
    visit2DRecord(record, Overloaded{
                              [&](const TVXSPolygon& polygon) {
                                  const QPolygonF points = polygon.polygon();
                                  entry = {{"kind", "polygon"},
                                           {"points", jsonPoints(points.constData(), points.constData() + points.size())}};
                              },
                              [&](const TVXSEllipse& ellipse) {
                                  entry = {{"kind", "ellipse"}, {"rect", jsonRect(ellipse.rectangle())}};
                              },
                              [&](const TVXSRectangle& rectangle) {
                                  entry = {{"kind", "rectangle"}, {"rect", jsonRect(rectangle.rectangle())}};
                              },
                              [&](const TVXSSimpleText& text) {
                                  entry = {{"kind", "text"},
                                           {"text", text.text()},
                                           {"position", jsonPoint(text.position())},
                                           {"offset", jsonPoint(text.offset())}};
                              },
                              [&](const TVXSDimensioning& dimensioning) {
                                  entry = {{"kind", "dimensioning"},
                                           {"type", dimensioningTypeName(dimensioning.type())},
                                           {"points", QJsonArray{jsonPoint(dimensioning.first()),
                                                                 jsonPoint(dimensioning.second())}}};
                              },
                          });
    return entry;
}

QJsonArray planarEntries(const SceneItemsTableModel& model)
{
    QJsonArray entries;
    for (int row = 0; row < model.rowCount(); ++row)
        entries.append(planarEntry(*model.item(row)));
    return entries;
}

QJsonObject sphericalEntry(const char* kind, const ScanViewItem& item)
{
    const std::vector<Vector3d>& points = item.points();
    return {{"kind", kind}, {"points", jsonPoints(points.data(), points.data() + points.size())}};
}

QJsonArray sphericalEntries(const ScanViewSceneGraph& graph)
{
    QJsonArray entries;
    graph.forEachItem(Overloaded{
        [&](const ScanViewEllipse& ellipse) { entries.append(sphericalEntry("ellipse", ellipse)); },
        [&](const ScanViewPolygon& polygon) { entries.append(sphericalEntry("polygon", polygon)); },
        [&](const ScanViewRectangle& rectangle) { entries.append(sphericalEntry("rectangle", rectangle)); },
        [&](const ScanViewTextItem& text) {
            entries.append(QJsonObject{{"kind", "text"}, {"text", text.text()}, {"position", jsonPoint(text.position())}});
        },
        [&](const ScanViewMeasurementItem& measurement) {
            QJsonObject entry = sphericalEntry("measurement", measurement);
            entry.insert(QLatin1String("type"), dimensioningTypeName(measurement.type()));
            entries.append(entry);
        },
    });
    return entries;
}

} // namespace

int runAnnotations(const QStringList& arguments)
{
    const AnnotationsArguments parsed = parseArguments(arguments);
    const QString path = AnnotationFile::path(parsed.scanPath);

    SceneItemsTableModel model;
    ScanViewSceneGraph graph;
    QString parseError;
    QFile file(path);
    // No annotation file means no annotations.
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly))
            throw CommandError(QStringLiteral("Cannot open %1: %2").arg(path, file.errorString()).toStdString());
        ViewerSceneReader reader(&file);
        if (!reader.read(model, &graph))
            parseError = reader.errorString();
    }

    // What was read before a parse error is printed all the same.
    printJson({{"planar", planarEntries(model)}, {"spherical", sphericalEntries(graph)}});
    if (!parseError.isNull())
        throw CommandError(QStringLiteral("Parse error in file %1:\n\n%2").arg(path, parseError).toStdString());

    if (!parsed.rewritePath.isEmpty()) {
        QString error;
        if (!AnnotationFile::write(parsed.rewritePath, model, &graph, &error))
            throw CommandError(QStringLiteral("Cannot write %1: %2").arg(parsed.rewritePath, error).toStdString());
    }
    return 0;
}

} // namespace TVX::TOOL
