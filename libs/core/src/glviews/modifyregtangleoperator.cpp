#include "glviews/modifyregtangleoperator.h"

#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ModifyRegtangleOperator::ModifyRegtangleOperator() = default;
ModifyRegtangleOperator::~ModifyRegtangleOperator() = default;

std::vector<std::shared_ptr<ScanViewItem>> ModifyRegtangleOperator::items(const ScanViewSceneGraph& graph) const
{
    return {graph.rectangles().begin(), graph.rectangles().end()};
}

std::vector<Vector3d> ModifyRegtangleOperator::handles(const ScanViewItem& item) const
{
    return static_cast<const ScanViewRectangle&>(item).corners();
}

void ModifyRegtangleOperator::moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const
{
    const std::vector<Vector3d> corners = static_cast<const ScanViewRectangle&>(item).corners();
    if (corners.size() != 4 || index >= 4)
        return;
    // In the plane that touches the sphere at the rectangle's middle, with x along its first
    // edge, corners 0 and 1 (and 2 and 3) share v and corners 1 and 2 (and 3 and 0) share u.
    const Matrix3d axes = planeAxes(corners[0] + corners[1] + corners[2] + corners[3], corners[1] - corners[0]);
    const std::size_t opposite = (index + 2) % 4;
    PlanePoint moved, fixed;
    if (!toPlane(axes, direction, moved) || !toPlane(axes, corners[opposite], fixed))
        return;
    PlanePoint flat[4];
    flat[index] = moved;
    flat[opposite] = fixed;
    const std::size_t alongU = index % 2 == 0 ? index + 1 : index - 1; // shares v with the moved corner
    flat[alongU] = {fixed.u, moved.v};
    flat[6 - index - opposite - alongU] = {moved.u, fixed.v}; // shares u with the moved corner
    item.setPoints({fromPlane(axes, flat[0]), fromPlane(axes, flat[1]), fromPlane(axes, flat[2])});
}

} // namespace TVX::CORE
