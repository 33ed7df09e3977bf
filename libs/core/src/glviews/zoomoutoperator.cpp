#include "glviews/zoomoutoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/sphericalviewcontrol.h"

namespace TVX::CORE {

ZoomOutOperator::ZoomOutOperator() = default;
ZoomOutOperator::~ZoomOutOperator() = default;

bool ZoomOutOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (view)
        view->zoomOut();
    reset();
    return view != nullptr;
}

} // namespace TVX::CORE
