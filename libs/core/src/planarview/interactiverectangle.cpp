#include "planarview/interactiverectangle.h"

namespace TVX::CORE {

InteractiveRectangle::InteractiveRectangle(std::shared_ptr<TVXSRectangle> record, QGraphicsItem* parent)
    : InteractiveBoxItemOf<TVXSRectangle>(std::move(record), parent)
{
}

InteractiveRectangle::~InteractiveRectangle() = default;

QPainterPath InteractiveRectangle::outline(const QRectF& rectangle) const
{
    QPainterPath path;
    path.addRect(rectangle);
    return path;
}

} // namespace TVX::CORE
