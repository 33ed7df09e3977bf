#include "planarview/interactivesymbol.h"

#include <QPainter>

#include <utility>

namespace TVX::CORE {

InteractiveSymbol::InteractiveSymbol(QGraphicsItem* parent) : InteractiveMarkItem(QPointF(), false, 20, QString(), parent)
{
    setFlags(flags() | ItemIsSelectable | ItemIsMovable);
}

void InteractiveSymbol::paintSymbol(QPainter* painter, const QRectF& box) const
{
    painter->setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair{QColor(0, 0, 0), 4.0}, std::pair{QColor(255, 220, 40), 2.0}}) {
        painter->setPen(QPen(colour, width));
        painter->drawEllipse(box.adjusted(3, 3, -3, -3));
        painter->drawLine(QPointF(box.left(), 0), QPointF(box.right(), 0));
        painter->drawLine(QPointF(0, box.top()), QPointF(0, box.bottom()));
    }
}

} // namespace TVX::CORE
