#include "fileio/tvxfilesceneitems.h"

#include "scene/visit2drecord.h"
#include "fileio/scanfilelog.h"
#include "fileio/sectionstream.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

namespace {

constexpr quint64 pointBytes2D = 2 * sizeof(double);
constexpr quint64 pointBytes3D = 3 * sizeof(double);
constexpr quint64 minItemBytes = sizeof(quint32); // the kind

QPointF readPoint2D(QDataStream& stream)
{
    double x = 0.0;
    double y = 0.0;
    stream >> x >> y;
    return {x, y};
}

void writePoint2D(QDataStream& stream, const QPointF& point)
{
    stream << point.x() << point.y();
}

Vector3d readPoint3D(QDataStream& stream)
{
    Vector3d p;
    stream >> p.x >> p.y >> p.z;
    return p;
}

void writePoint3D(QDataStream& stream, const Vector3d& p)
{
    stream << p.x << p.y << p.z;
}

// x, y, width, height in file order.
QRectF readRect(QDataStream& stream)
{
    const QPointF topLeft = readPoint2D(stream);
    const QPointF size = readPoint2D(stream);
    return {topLeft.x(), topLeft.y(), size.x(), size.y()};
}

void writeRect(QDataStream& stream, const QRectF& rect)
{
    stream << rect.x() << rect.y() << rect.width() << rect.height();
}

// A 2D record's payload (after its kind); empty for a kind that is not a 2D record.
TVXSceneItemPtr read2DPayload(QDataStream& stream, quint32 kind)
{
    using Kind = TVXFileSceneItems::ItemKind;
    switch (kind) {
    case Kind::Polygon2D: {
        quint32 count = 0;
        stream >> count;
        if (!streamOk(stream) || !fitsCount(stream, count, pointBytes2D))
            return nullptr;
        QPolygonF polygon;
        polygon.reserve(qsizetype(count));
        for (quint32 i = 0; i < count; ++i)
            polygon.append(readPoint2D(stream));
        return std::make_shared<TVXSPolygon>(polygon);
    }
    case Kind::Rectangle2D:
        return std::make_shared<TVXSRectangle>(readRect(stream));
    case Kind::Ellipse2D:
        return std::make_shared<TVXSEllipse>(readRect(stream));
    case Kind::Text2D: {
        QString text;
        readString(stream, text);
        const QPointF position = readPoint2D(stream);
        const QPointF offset = readPoint2D(stream);
        return std::make_shared<TVXSSimpleText>(text, position, offset);
    }
    case Kind::Dimensioning2D: {
        qint32 type = 0;
        stream >> type;
        const QPointF first = readPoint2D(stream);
        const QPointF second = readPoint2D(stream);
        return std::make_shared<TVXSDimensioning>(quint32(type), first, second);
    }
    default:
        return nullptr;
    }
}

// A 3D item's payload (after its kind), added to `graph` when there is one. False for a kind that
// is no 3D item or a vertex count that cannot fit.
bool read3DItem(QDataStream& stream, quint32 kind, ScanViewSceneGraph* graph)
{
    using Kind = TVXFileSceneItems::ItemKind;
    switch (kind) {
    case Kind::Polygon3D: {
        quint32 count = 0;
        stream >> count;
        if (!streamOk(stream) || !fitsCount(stream, count, pointBytes3D))
            return false;
        std::vector<Vector3d> vertices(count);
        for (Vector3d& vertex : vertices)
            vertex = readPoint3D(stream);
        if (graph)
            graph->addItem(std::make_shared<ScanViewPolygon>(std::move(vertices)));
        return true;
    }
    case Kind::Rectangle3D:
    case Kind::Ellipse3D: {
        const Vector3d p0 = readPoint3D(stream);
        const Vector3d p1 = readPoint3D(stream);
        const Vector3d p2 = readPoint3D(stream);
        if (graph && kind == Kind::Rectangle3D)
            graph->addItem(std::make_shared<ScanViewRectangle>(p0, p1, p2));
        else if (graph)
            graph->addItem(std::make_shared<ScanViewEllipse>(p0, p1, p2));
        return true;
    }
    case Kind::Text3D: {
        QString text;
        readString(stream, text);
        const Vector3d position = readPoint3D(stream);
        if (graph)
            graph->addItem(std::make_shared<ScanViewTextItem>(text, position));
        return true;
    }
    case Kind::Measurement3D: {
        qint32 type = 0;
        stream >> type;
        const Vector3d second = readPoint3D(stream); // the second point comes first in the file
        const Vector3d first = readPoint3D(stream);
        if (graph)
            graph->addItem(std::make_shared<ScanViewMeasurementItem>(type, first, second));
        return true;
    }
    default:
        return false;
    }
}

bool readItem(QDataStream& stream, ScanViewSceneGraph* graph, std::vector<TVXSceneItemPtr>& items)
{
    quint32 kind = 0;
    stream >> kind;
    if (!streamOk(stream))
        return false;
    if (TVXSceneItemPtr item = read2DPayload(stream, kind)) {
        readItemTrailer(stream, item->data());
        items.push_back(item);
        return streamOk(stream);
    }
    return streamOk(stream) && read3DItem(stream, kind, graph) && streamOk(stream);
}

void failWrite(QDataStream& stream, const char* what)
{
    qCWarning(lcScanFile) << "a scan file cannot store" << what;
    stream.setStatus(QDataStream::WriteFailed);
}

bool write2DItem(QDataStream& stream, const TVXSceneItem& item)
{
    using Kind = TVXFileSceneItems::ItemKind;
    const bool known = visit2DRecord(
        item, Overloaded{
                  [&](const TVXSPolygon& polygon) {
                      const QPolygonF points = polygon.polygon();
                      stream << quint32(Kind::Polygon2D) << quint32(points.size());
                      for (const QPointF& point : points)
                          writePoint2D(stream, point);
                  },
                  [&](const TVXSRectangle& rectangle) {
                      stream << quint32(Kind::Rectangle2D);
                      writeRect(stream, rectangle.rectangle());
                  },
                  [&](const TVXSEllipse& ellipse) {
                      stream << quint32(Kind::Ellipse2D);
                      writeRect(stream, ellipse.rectangle());
                  },
                  [&](const TVXSSimpleText& text) {
                      stream << quint32(Kind::Text2D) << text.text();
                      writePoint2D(stream, text.position());
                      writePoint2D(stream, text.offset());
                  },
                  [&](const TVXSDimensioning& dimensioning) {
                      stream << quint32(Kind::Dimensioning2D) << qint32(dimensioning.type());
                      writePoint2D(stream, dimensioning.first());
                      writePoint2D(stream, dimensioning.second());
                  },
              });
    if (!known) {
        failWrite(stream, "a scene record that is no 2D record");
        return false;
    }
    writeItemTrailer(stream, item.data());
    return true;
}

bool writeThreePoints(QDataStream& stream, quint32 kind, const ScanViewItem& item)
{
    if (item.points().size() != 3) {
        failWrite(stream, "a 3D rectangle or ellipse without exactly three points");
        return false;
    }
    stream << kind;
    for (const Vector3d& point : item.points())
        writePoint3D(stream, point);
    return true;
}

void write3DItems(QDataStream& stream, const ScanViewSceneGraph& graph)
{
    using Kind = TVXFileSceneItems::ItemKind;
    for (const auto& polygon : graph.polygons()) {
        stream << quint32(Kind::Polygon3D) << quint32(polygon->points().size());
        for (const Vector3d& point : polygon->points())
            writePoint3D(stream, point);
    }
    for (const auto& rectangle : graph.rectangles())
        if (!writeThreePoints(stream, Kind::Rectangle3D, *rectangle))
            return;
    for (const auto& ellipse : graph.ellipses())
        if (!writeThreePoints(stream, Kind::Ellipse3D, *ellipse))
            return;
    for (const auto& text : graph.textItems()) {
        stream << quint32(Kind::Text3D) << text->text();
        writePoint3D(stream, text->position());
    }
    for (const auto& measurement : graph.measurementItems()) {
        stream << quint32(Kind::Measurement3D) << measurement->type();
        writePoint3D(stream, measurement->second());
        writePoint3D(stream, measurement->first());
    }
}

} // namespace

TVXFileSceneItems::TVXFileSceneItems() = default;
TVXFileSceneItems::~TVXFileSceneItems() = default;

void TVXFileSceneItems::reset()
{
    items.clear();
}

bool TVXFileSceneItems::read(QDataStream& stream, ScanViewSceneGraph* graph)
{
    reset();
    if (!readBeginTag(stream, beginTag))
        return false;
    quint32 count = 0;
    stream >> count;
    if (!streamOk(stream) || !fitsCount(stream, count, minItemBytes))
        return false;
    for (quint32 i = 0; i < count; ++i)
        if (!readItem(stream, graph, items))
            return false;
    return readTag(stream, endTag) && streamOk(stream);
}

void TVXFileSceneItems::write(QDataStream& stream, const ScanViewSceneGraph* graph) const
{
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << beginTag << quint32(items.size() + (graph ? graph->itemCount() : 0));
    for (const TVXSceneItemPtr& item : items)
        if (!write2DItem(stream, *item))
            return;
    if (graph)
        write3DItems(stream, *graph);
    stream << endTag;
}

} // namespace TVX::CORE
