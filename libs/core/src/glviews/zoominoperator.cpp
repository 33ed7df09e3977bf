#include "glviews/zoominoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/sphericalviewcontrol.h"

namespace TVX::CORE {

ZoomInOperator::ZoomInOperator() = default;
ZoomInOperator::~ZoomInOperator() = default;

bool ZoomInOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (view)
        view->zoomIn();
    reset();
    return view != nullptr;
}

} // namespace TVX::CORE
