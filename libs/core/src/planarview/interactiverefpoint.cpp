#include "planarview/interactiverefpoint.h"

#include <QPainter>

namespace TVX::CORE {

InteractiveRefPoint::InteractiveRefPoint(const QString& referenceName, const QPointF& scenePos, QGraphicsItem* parent)
    : InteractiveMarkItem(scenePos, true, 16, referenceName, parent)
{
}

QString InteractiveRefPoint::referenceName() const
{
    return text();
}

void InteractiveRefPoint::paintSymbol(QPainter* painter, const QRectF& box) const
{
    const QPolygonF triangle{QPointF(0, box.top()), box.bottomRight(), box.bottomLeft()};
    painter->setPen(QPen(Qt::black, 1.5));
    painter->setBrush(QColor(40, 220, 255, 200));
    painter->drawPolygon(triangle);
    painter->setBrush(Qt::black);
    painter->drawEllipse(QPointF(), 1.5, 1.5);
}

} // namespace TVX::CORE
