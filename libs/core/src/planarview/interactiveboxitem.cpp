#include "planarview/interactiveboxitem.h"

#include "planarview/handlegeometry.h"

#include <QPainter>

namespace TVX::CORE {

struct InteractiveBoxItem::Private {
    int state{-1}; // -1 nothing placed, 0 first corner placed, 1 finished
    int handle{-1};
    QPointF fixedCorner; // the corner that stays while a handle is dragged (item coordinates)
};

InteractiveBoxItem::InteractiveBoxItem(bool finished, QGraphicsItem* parent)
    : InteractiveGraphicsItem(parent), d(std::make_unique<Private>())
{
    d->state = finished ? 1 : -1;
    setFlags(ItemIsSelectable | ItemIsMovable);
}

InteractiveBoxItem::~InteractiveBoxItem() = default;

void InteractiveBoxItem::setRectangle(const QRectF& rectangle)
{
    prepareGeometryChange();
    storeRectangle(rectangle);
    update();
}

QRectF InteractiveBoxItem::boundingRect() const
{
    const double margin = handleMargin();
    return rectangle().normalized().adjusted(-margin, -margin, margin, margin);
}

QPainterPath InteractiveBoxItem::shape() const
{
    return outline(rectangle().normalized());
}

void InteractiveBoxItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QRectF r = rectangle().normalized();
    const QPainterPath path = outline(r);
    painter->fillPath(path, highlightBrush(isSelected()));
    strokeOutline(painter, path);
    paintHandles(painter, {r.topLeft(), r.bottomRight()});
}

bool InteractiveBoxItem::isUnderConstruction() const
{
    return d->state < 1;
}

void InteractiveBoxItem::constructionMousePress(const QPointF& scenePos)
{
    if (d->state != -1)
        return;
    setRectangle(QRectF(scenePos, QSizeF(0, 0)));
    d->state = 0;
}

void InteractiveBoxItem::constructionMouseRelease(const QPointF& scenePos)
{
    if (d->state != 0)
        return;
    const QRectF r(rectangle().topLeft(), scenePos);
    // A click without size keeps constructing, so click, move, click works as well as a drag.
    if (r.width() == 0.0 || r.height() == 0.0)
        return;
    setRectangle(r.normalized());
    d->state = 1;
}

void InteractiveBoxItem::constructionMouseMove(const QPointF& scenePos)
{
    if (d->state == 0) {
        setRectangle(QRectF(rectangle().topLeft(), scenePos));
    } else if (d->state == 1 && d->handle >= 0) {
        // Dragged across the fixed corner the rectangle flips round it, so the handles exchange
        // their meaning instead of losing the corner.
        setRectangle(QRectF(d->fixedCorner, scenePos - this->scenePos()).normalized());
    }
}

bool InteractiveBoxItem::grabHandle(const QPointF& scenePos, const QTransform& viewTransform)
{
    const QRectF r = rectangle().normalized();
    d->handle = firstPointInSquare({r.topLeft() + this->scenePos(), r.bottomRight() + this->scenePos()}, scenePos,
                                   handleSizeInScene(viewTransform));
    d->fixedCorner = d->handle == 0 ? r.bottomRight() : r.topLeft();
    return d->handle >= 0;
}

void InteractiveBoxItem::releaseHandle(const QPointF& scenePos)
{
    if (d->handle >= 0)
        setRectangle(QRectF(d->fixedCorner, scenePos - this->scenePos()).normalized());
    d->handle = -1;
}

void InteractiveBoxItem::moveItemBy(const QPoint&, const QPointF& sceneDelta)
{
    setRectangle(rectangle().translated(sceneDelta));
}

bool InteractiveBoxItem::takeBackLastPoint()
{
    if (d->state != 0)
        return false;
    setRectangle(QRectF());
    d->state = -1;
    return true;
}

bool InteractiveBoxItem::lastPoint(QPointF& scenePos) const
{
    if (d->state != 0)
        return false;
    scenePos = rectangle().topLeft() + this->scenePos();
    return true;
}

} // namespace TVX::CORE
