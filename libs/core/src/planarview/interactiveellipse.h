#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactiveboxitem.h"
#include "scene/tvxsellipse.h"

namespace TVX::CORE {

class InteractiveEllipse final : public InteractiveBoxItemOf<TVXSEllipse>
{
    Q_OBJECT

public:
    // Without a record the item makes an empty one and starts under construction; an item made
    // from a record (read from a file) is finished.
    explicit InteractiveEllipse(std::shared_ptr<TVXSEllipse> record = {}, QGraphicsItem* parent = nullptr);
    ~InteractiveEllipse() override;

    int type() const override { return GraphicsView::EllipseType; }

protected:
    QPainterPath outline(const QRectF& rectangle) const override;
};

} // namespace TVX::CORE
