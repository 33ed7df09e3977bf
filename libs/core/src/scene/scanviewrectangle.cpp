#include "scene/scanviewrectangle.h"

#include "scene/spheregeometry.h"

namespace TVX::CORE {

ScanViewRectangle::ScanViewRectangle() = default;

ScanViewRectangle::ScanViewRectangle(const Vector3d& p0, const Vector3d& p1, const Vector3d& p2)
    : ScanViewItem({p0, p1, p2})
{
}

std::vector<Vector3d> ScanViewRectangle::corners() const
{
    const std::vector<Vector3d>& p = points();
    if (p.size() < 3)
        return {};
    return {p[0], p[1], p[2], p[0] + p[2] - p[1]};
}

bool ScanViewRectangle::hitTest(const Vector3d& direction) const
{
    const std::vector<Vector3d> c = corners();
    if (c.empty())
        return false;
    return rayHitsTriangle(direction, c[0], c[1], c[2]) || rayHitsTriangle(direction, c[0], c[2], c[3]);
}

} // namespace TVX::CORE
