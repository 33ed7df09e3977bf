#include "planarview/pickedpointgfxitem.h"

#include "planarview/graphicsview.h"

#include <QPainter>

namespace TVX::CORE {

namespace {
constexpr double radius = 7.0; // screen pixels
}

PickedPointGFXItem::PickedPointGFXItem(const QPointF& scenePos, GraphicsView* view) : m_view(view)
{
    setPos(scenePos);
    setFlag(ItemIgnoresTransformations);
    setZValue(10);
}

QRectF PickedPointGFXItem::boundingRect() const
{
    return QRectF(-radius - 1, -radius - 1, 2 * radius + 2, 2 * radius + 2);
}

void PickedPointGFXItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(Qt::black, 3));
    painter->drawEllipse(QPointF(), radius, radius);
    painter->setPen(QPen(QColor(255, 40, 40), 1.5));
    painter->drawEllipse(QPointF(), radius, radius);
    painter->drawLine(QPointF(-radius, 0), QPointF(radius, 0));
    painter->drawLine(QPointF(0, -radius), QPointF(0, radius));
}

} // namespace TVX::CORE
