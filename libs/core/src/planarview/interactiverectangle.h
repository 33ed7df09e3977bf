#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactiveboxitem.h"
#include "scene/tvxsrectangle.h"

namespace TVX::CORE {

class InteractiveRectangle final : public InteractiveBoxItemOf<TVXSRectangle>
{
    Q_OBJECT

public:
    // Without a record the item makes an empty one and starts under construction; an item made
    // from a record (read from a file) is finished.
    explicit InteractiveRectangle(std::shared_ptr<TVXSRectangle> record = {}, QGraphicsItem* parent = nullptr);
    ~InteractiveRectangle() override;

    int type() const override { return GraphicsView::RectangleType; }

protected:
    QPainterPath outline(const QRectF& rectangle) const override;
};

} // namespace TVX::CORE
