#include "planarview/interactiveellipse.h"

namespace TVX::CORE {

InteractiveEllipse::InteractiveEllipse(std::shared_ptr<TVXSEllipse> record, QGraphicsItem* parent)
    : InteractiveBoxItemOf<TVXSEllipse>(std::move(record), parent)
{
}

InteractiveEllipse::~InteractiveEllipse() = default;

QPainterPath InteractiveEllipse::outline(const QRectF& rectangle) const
{
    QPainterPath path;
    path.addEllipse(rectangle);
    return path;
}

} // namespace TVX::CORE
