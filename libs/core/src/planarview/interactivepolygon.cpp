#include "planarview/interactivepolygon.h"

#include "planarview/handlegeometry.h"

#include <QPainter>

namespace TVX::CORE {

struct InteractivePolygon::Private {
    std::shared_ptr<TVXSPolygon> record;
    bool constructing{true};
    int handle{-1};
};

InteractivePolygon::InteractivePolygon(std::shared_ptr<TVXSPolygon> record, QGraphicsItem* parent)
    : InteractiveGraphicsItem(parent), d(std::make_unique<Private>())
{
    d->record = record ? std::move(record) : std::make_shared<TVXSPolygon>(QPolygonF());
    d->constructing = d->record->polygon().isEmpty();
    setRecord(d->record);
    setFlags(ItemIsSelectable | ItemIsMovable);
}

InteractivePolygon::~InteractivePolygon() = default;

QPolygonF InteractivePolygon::polygon() const
{
    return d->record->polygon();
}

void InteractivePolygon::setPolygon(const QPolygonF& polygon)
{
    prepareGeometryChange();
    d->record->setPolygon(polygon);
    update();
}

QRectF InteractivePolygon::boundingRect() const
{
    const double margin = handleMargin();
    return polygon().boundingRect().adjusted(-margin, -margin, margin, margin);
}

QPainterPath InteractivePolygon::shape() const
{
    QPainterPath path;
    path.addPolygon(polygon());
    path.closeSubpath();
    return path;
}

void InteractivePolygon::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QPolygonF points = polygon();
    painter->setPen(Qt::NoPen);
    painter->setBrush(highlightBrush(isSelected()));
    painter->drawPolygon(points);
    QPainterPath outline;
    outline.addPolygon(points);
    if (!d->constructing)
        outline.closeSubpath();
    strokeOutline(painter, outline);
    paintHandles(painter, points);
}

bool InteractivePolygon::isUnderConstruction() const
{
    return d->constructing;
}

void InteractivePolygon::constructionMousePress(const QPointF& scenePos)
{
    if (!d->constructing)
        return;
    QPolygonF points = polygon();
    // The first press fixes a vertex and starts the floating one; later presses fix the floating
    // vertex where it is and start the next.
    if (points.isEmpty())
        points << scenePos;
    points << scenePos;
    setPolygon(points);
}

void InteractivePolygon::constructionMouseRelease(const QPointF&) {}

void InteractivePolygon::constructionMouseMove(const QPointF& scenePos)
{
    QPolygonF points = polygon();
    if (d->constructing && !points.isEmpty())
        points.last() = scenePos;
    else if (d->handle >= 0 && d->handle < points.size())
        points[d->handle] = scenePos - this->scenePos();
    else
        return;
    setPolygon(points);
}

void InteractivePolygon::constructionMouseDoubleClick(const QPointF&)
{
    if (!d->constructing)
        return;
    QPolygonF points = polygon();
    if (points.size() > 1)
        points.removeLast();
    d->constructing = false;
    setPolygon(points);
}

bool InteractivePolygon::grabHandle(const QPointF& scenePos, const QTransform& viewTransform)
{
    d->handle = firstPointInSquare(polygon().translated(this->scenePos()), scenePos, handleSizeInScene(viewTransform));
    return d->handle >= 0;
}

void InteractivePolygon::releaseHandle(const QPointF& scenePos)
{
    QPolygonF points = polygon();
    if (d->handle >= 0 && d->handle < points.size()) {
        points[d->handle] = scenePos - this->scenePos();
        setPolygon(points);
    }
    d->handle = -1;
}

void InteractivePolygon::moveItemBy(const QPoint&, const QPointF& sceneDelta)
{
    setPolygon(polygon().translated(sceneDelta));
}

bool InteractivePolygon::takeBackLastPoint()
{
    QPolygonF points = polygon();
    if (points.isEmpty())
        return false;
    points.removeLast();
    setPolygon(points);
    return true;
}

bool InteractivePolygon::lastPoint(QPointF& scenePos) const
{
    const QPolygonF points = polygon();
    if (points.isEmpty())
        return false;
    scenePos = points.last() + this->scenePos();
    return true;
}

} // namespace TVX::CORE
