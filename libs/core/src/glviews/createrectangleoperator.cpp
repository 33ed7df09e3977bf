#include "glviews/createrectangleoperator.h"

#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreateRectangleOperator::CreateRectangleOperator() = default;
CreateRectangleOperator::~CreateRectangleOperator() = default;

std::shared_ptr<ScanViewItem> CreateRectangleOperator::startItem(ScanViewSceneGraph& graph, const Vector3d& first,
                                                                 const Matrix3d& axes)
{
    m_first = first;
    m_axes = axes;
    const auto rectangle = std::make_shared<ScanViewRectangle>(first, first, first);
    graph.addItem(rectangle);
    return rectangle;
}

void CreateRectangleOperator::followCursor(const Vector3d& direction)
{
    // The edges stay parallel to the camera's axes at the first press.
    PlanePoint a, b;
    if (!toPlane(m_axes, m_first, a) || !toPlane(m_axes, direction, b))
        return;
    item()->setPoints({m_first, fromPlane(m_axes, {b.u, a.v}), fromPlane(m_axes, b)});
}

} // namespace TVX::CORE
