#pragma once

#include <QGraphicsItem>
#include <QPointer>

namespace TVX::CORE {

class GraphicsView;

// The mark of a picked point: a small cross in a circle drawn at its scene position, the same
// size on screen at every zoom.
class PickedPointGFXItem final : public QGraphicsItem
{
public:
    enum { Type = UserType + 101 };

    PickedPointGFXItem(const QPointF& scenePos, GraphicsView* view);

    int type() const override { return Type; }
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QPointer<GraphicsView> m_view;
};

} // namespace TVX::CORE
