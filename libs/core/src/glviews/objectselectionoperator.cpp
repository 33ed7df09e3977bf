#include "glviews/objectselectionoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ObjectSelectionOperator::ObjectSelectionOperator() = default;
ObjectSelectionOperator::~ObjectSelectionOperator() = default;

void ObjectSelectionOperator::cancel()
{
    if (host())
        host()->clearItemSelection();
    if (const auto graph = m_selectedIn.lock())
        graph->setCurrentItem(nullptr);
    if (SphericalViewControl* view = gestureView())
        view->update();
    m_selectedIn.reset();
    reset();
}

bool ObjectSelectionOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    beginGesture();
    const auto graph = view->sceneGraph();
    if (const auto previous = m_selectedIn.lock(); previous && previous != graph)
        previous->setCurrentItem(nullptr);
    graph->setCurrentItem(view->itemAt(event.x, event.y));
    m_selectedIn = graph;
    view->update();
    reset();
    return true;
}

bool ObjectSelectionOperator::keyPress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::DeleteKey ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    const auto graph = view->sceneGraph();
    const auto selected = graph->currentItem();
    if (!selected || m_selectedIn.lock() != graph)
        return false;
    graph->setCurrentItem(nullptr);
    graph->removeItem(selected.get());
    view->update();
    if (host())
        host()->annotationsModified(view->scanId());
    return true;
}

} // namespace TVX::CORE
