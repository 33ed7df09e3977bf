#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivemarkitem.h"

namespace TVX::CORE {

// The mark of one of the scan's reference points or spheres, with its name, at its cell.
class InteractiveRefPoint final : public InteractiveMarkItem
{
    Q_OBJECT

public:
    InteractiveRefPoint(const QString& referenceName, const QPointF& scenePos, QGraphicsItem* parent = nullptr);

    int type() const override { return GraphicsView::RefPointType; }
    QString referenceName() const;

protected:
    void paintSymbol(QPainter* painter, const QRectF& box) const override;
};

} // namespace TVX::CORE
