#include "scene/scanviewtextitem.h"

#include "scene/spheregeometry.h"

namespace TVX::CORE {

ScanViewTextItem::ScanViewTextItem(const QString& text, const Vector3d& position)
    : ScanViewItem({position}), m_text(text)
{
}

Vector3d ScanViewTextItem::position() const
{
    return points().empty() ? Vector3d() : points().front();
}

bool ScanViewTextItem::hitTest(const Vector3d& direction) const
{
    if (points().empty())
        return false;
    return angleBetween(direction, points().front()) <= itemPickAngle;
}

} // namespace TVX::CORE
