#include "glviews/createellipseoperator.h"

#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreateEllipseOperator::CreateEllipseOperator() = default;
CreateEllipseOperator::~CreateEllipseOperator() = default;

std::shared_ptr<ScanViewItem> CreateEllipseOperator::startItem(ScanViewSceneGraph& graph, const Vector3d& first)
{
    const auto ellipse = std::make_shared<ScanViewEllipse>(first, first, first);
    graph.addItem(ellipse);
    return ellipse;
}

void CreateEllipseOperator::followCursor(const Vector3d& direction)
{
    // The cursor is a corner of the box around the ellipse: one semi-axis ends level with the
    // centre, the other straight above or below it.
    PlanePoint c, e;
    if (!toPlane(axes(), first(), c) || !toPlane(axes(), direction, e))
        return;
    item()->setPoints({first(), fromPlane(axes(), {e.u, c.v}), fromPlane(axes(), {c.u, e.v})});
}

} // namespace TVX::CORE
