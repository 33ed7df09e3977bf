#include "glviews/createrectangleoperator.h"

#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreateRectangleOperator::CreateRectangleOperator() = default;
CreateRectangleOperator::~CreateRectangleOperator() = default;

std::shared_ptr<ScanViewItem> CreateRectangleOperator::startItem(ScanViewSceneGraph& graph, const Vector3d& first)
{
    const auto rectangle = std::make_shared<ScanViewRectangle>(first, first, first);
    graph.addItem(rectangle);
    return rectangle;
}

void CreateRectangleOperator::followCursor(const Vector3d& direction)
{
    // The edges stay parallel to the camera's axes at the first press.
    PlanePoint a, b;
    if (!toPlane(axes(), first(), a) || !toPlane(axes(), direction, b))
        return;
    item()->setPoints({first(), fromPlane(axes(), {b.u, a.v}), fromPlane(axes(), b)});
}

} // namespace TVX::CORE
