#include "glviews/modifyellipseoperator.h"

#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ModifyEllipseOperator::ModifyEllipseOperator() = default;
ModifyEllipseOperator::~ModifyEllipseOperator() = default;

std::vector<std::shared_ptr<ScanViewItem>> ModifyEllipseOperator::items(const ScanViewSceneGraph& graph) const
{
    return {graph.ellipses().begin(), graph.ellipses().end()};
}

void ModifyEllipseOperator::moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const
{
    if (index != 0) {
        item.setPoint(index, direction);
        return;
    }
    // The whole ellipse turns with its centre, so that its shape stays.
    const Matrix3d turn = rotationBetween(item.points().front(), direction);
    std::vector<Vector3d> points = item.points();
    for (Vector3d& point : points)
        point = turn * point;
    item.setPoints(points);
}

} // namespace TVX::CORE
