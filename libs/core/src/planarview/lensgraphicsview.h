#pragma once

#include <QGraphicsView>

namespace TVX::CORE {

// The view of the lens: owns its scene, whose units are lens image pixels (one per grid cell)
// with the centre cell at the origin, and draws the cross-hair over the image.
class LensGraphicsView final : public QGraphicsView
{
    Q_OBJECT

public:
    explicit LensGraphicsView(QWidget* parent = nullptr);

protected:
    void drawForeground(QPainter* painter, const QRectF& rect) override;
};

} // namespace TVX::CORE
