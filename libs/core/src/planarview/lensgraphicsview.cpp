#include "planarview/lensgraphicsview.h"

#include <QGraphicsScene>
#include <QPainter>

namespace TVX::CORE {

LensGraphicsView::LensGraphicsView(QWidget* parent) : QGraphicsView(parent)
{
    setScene(new QGraphicsScene(this));
}

void LensGraphicsView::drawForeground(QPainter* painter, const QRectF& rect)
{
    QGraphicsView::drawForeground(painter, rect);
    painter->save();
    // Cosmetic: one screen pixel wide whatever the magnification.
    QPen pen(Qt::blue);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRect(QPoint(-7, -7), QPoint(6, 6)));
    pen.setStyle(Qt::DotLine);
    painter->setPen(pen);
    painter->drawLine(QPointF(-4, 0), QPointF(4, 0));
    painter->drawLine(QPointF(0, -4), QPointF(0, 4));
    painter->restore();
}

} // namespace TVX::CORE
