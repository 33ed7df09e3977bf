#include "glviews/createitemoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

CreateItemOperator::CreateItemOperator() = default;
CreateItemOperator::~CreateItemOperator() = default;

void CreateItemOperator::cancel()
{
    if (!m_item)
        return;
    if (m_graph) {
        m_graph->removeItem(m_item.get());
        if (m_graph->currentItem() == m_item)
            m_graph->setCurrentItem(nullptr);
    }
    if (SphericalViewControl* view = gestureView())
        view->update();
    m_item.reset();
    m_graph.reset();
}

void CreateItemOperator::reset()
{
    m_item.reset();
    m_graph.reset();
}

std::shared_ptr<ScanViewItem> CreateItemOperator::startItem(ScanViewSceneGraph&, const Vector3d&)
{
    return nullptr;
}

void CreateItemOperator::followCursor(const Vector3d&) {}

bool CreateItemOperator::mousePress(const ScanViewEvent& event)
{
    if (event.code == ScanViewEvent::RightPress)
        return rightPress();
    if (event.code != ScanViewEvent::LeftPress)
        return false;
    if (!isCreating()) {
        SphericalViewControl* view = activeSphericalView();
        if (!view)
            return false;
        beginGesture();
        m_first = view->screenToDirection(event.x, event.y);
        if (m_first == Vector3d())
            return true;
        m_axes = view->cameraRotation();
        if (const auto item = startItem(*view->sceneGraph(), m_first))
            begin(*view, item);
        return true;
    }
    SphericalViewControl* view = gestureView();
    if (!view)
        return false;
    Vector3d second;
    if (directionAt(event, second))
        followCursor(second);
    finish(*view);
    return true;
}

bool CreateItemOperator::mouseMove(const ScanViewEvent& event)
{
    LensEnabledOperator::mouseMove(event);
    SphericalViewControl* view = isCreating() ? gestureView() : nullptr;
    Vector3d direction;
    if (!view || !directionAt(event, direction))
        return false;
    followCursor(direction);
    m_graph->notifyItemChanged(m_item.get());
    view->update();
    // Not consumed: the middle button still turns the view while an item is made.
    return false;
}

void CreateItemOperator::begin(SphericalViewControl& view, const std::shared_ptr<ScanViewItem>& item)
{
    m_item = item;
    m_graph = view.sceneGraph();
    m_graph->setCurrentItem(item);
    view.update();
}

void CreateItemOperator::finish(SphericalViewControl& view)
{
    const quint32 scanId = view.scanId();
    m_graph->notifyItemChanged(m_item.get());
    m_graph->setCurrentItem(nullptr);
    view.update();
    if (host())
        host()->annotationsModified(scanId);
    reset();
}

void CreateItemOperator::abandon(SphericalViewControl& view)
{
    m_graph->removeItem(m_item.get());
    m_graph->setCurrentItem(nullptr);
    view.update();
    reset();
}

bool CreateItemOperator::rightPress()
{
    if (!isCreating())
        return activeSphericalView() != nullptr;
    SphericalViewControl* view = gestureView();
    if (!view)
        return false;
    abandon(*view);
    return true;
}

bool CreateItemOperator::directionAt(const ScanViewEvent& event, Vector3d& direction) const
{
    SphericalViewControl* view = gestureView();
    if (!view)
        return false;
    direction = view->screenToDirection(event.x, event.y);
    return direction != Vector3d();
}

} // namespace TVX::CORE
