#include "planarview/interactivestationmark.h"

#include <QPainter>

namespace TVX::CORE {

InteractiveStationMark::InteractiveStationMark(quint32 scanId, const QPointF& scenePos, int size, const QString& text,
                                               QGraphicsItem* parent)
    : InteractiveMarkItem(scenePos, true, size, text, parent), m_scanId(scanId)
{
    setZValue(6);
}

quint32 InteractiveStationMark::scanId() const
{
    return m_scanId;
}

void InteractiveStationMark::paintSymbol(QPainter* painter, const QRectF& box) const
{
    // A station seen from above: a ring round the instrument's centre.
    painter->setPen(QPen(Qt::black, 2.0));
    painter->setBrush(QColor(255, 80, 40, 210));
    painter->drawEllipse(box);
    painter->setBrush(Qt::white);
    const double inner = box.width() / 5;
    painter->drawEllipse(QPointF(), inner, inner);
}

} // namespace TVX::CORE
