#include "glviews/createtextitemoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreateTextItemOperator::CreateTextItemOperator() = default;
CreateTextItemOperator::~CreateTextItemOperator() = default;

bool CreateTextItemOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    beginGesture();
    const Vector3d anchor = view->screenToDirection(event.x, event.y);
    QString text;
    if (anchor != Vector3d() && host() && host()->askItemText(text) && !text.trimmed().isEmpty()) {
        // The dialog may have closed the view: ask for it again.
        if (SphericalViewControl* still = gestureView()) {
            still->sceneGraph()->addItem(std::make_shared<ScanViewTextItem>(text, anchor));
            still->update();
            host()->annotationsModified(still->scanId());
        }
    }
    reset();
    return true;
}

} // namespace TVX::CORE
