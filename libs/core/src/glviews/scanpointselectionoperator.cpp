#include "glviews/scanpointselectionoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ScanPointSelectionOperator::ScanPointSelectionOperator() = default;
ScanPointSelectionOperator::~ScanPointSelectionOperator() = default;

bool ScanPointSelectionOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    beginGesture();
    const Vector3d direction = view->screenToDirection(event.x, event.y);
    const QPoint cell = view->directionToCell(direction);
    if (host())
        host()->pickCell(view->scanId(), cell.x(), cell.y());
    if (direction != Vector3d())
        view->sceneGraph()->appendSelectedPoint(direction);
    view->repaintNow();
    reset();
    return true;
}

} // namespace TVX::CORE
