#include "glviews/modifyitemoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

ModifyItemOperator::ModifyItemOperator() = default;
ModifyItemOperator::~ModifyItemOperator() = default;

std::vector<Vector3d> ModifyItemOperator::handles(const ScanViewItem& item) const
{
    return item.points();
}

void ModifyItemOperator::moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const
{
    item.setPoint(index, direction);
}

void ModifyItemOperator::cancel()
{
    putBack();
    if (const auto graph = m_selectedIn.lock()) {
        graph->setCurrentItem(nullptr);
        if (SphericalViewControl* view = gestureView())
            view->update();
    }
    m_selectedIn.reset();
    reset();
}

void ModifyItemOperator::reset()
{
    m_item.reset();
    m_graph.reset();
    m_original.clear();
    m_moved = false;
}

void ModifyItemOperator::putBack()
{
    if (!m_item)
        return;
    m_item->setPoints(m_original);
    m_graph->notifyItemChanged(m_item.get());
    if (SphericalViewControl* view = gestureView())
        view->update();
}

bool ModifyItemOperator::mousePress(const ScanViewEvent& event)
{
    if (event.code == ScanViewEvent::RightPress && isDragging()) {
        if (!gestureView())
            return false;
        putBack();
        reset();
        return true;
    }
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    beginGesture();
    const auto graph = view->sceneGraph();
    const auto candidates = items(*graph);
    // The item drawn last lies on top: it is grabbed first.
    double nearest = grabRadius;
    for (auto item = candidates.rbegin(); item != candidates.rend(); ++item) {
        const auto points = handles(**item);
        for (std::size_t i = 0; i < points.size(); ++i) {
            double x = 0, y = 0;
            if (!view->directionToScreen(points[i], x, y))
                continue;
            const double distance = std::hypot(x - event.x, y - event.y);
            if (distance <= nearest) {
                nearest = distance;
                m_item = *item;
                m_handle = i;
            }
        }
    }
    if (!m_item) {
        // Away from every handle: the item under the cursor, if of this kind, shows its handles.
        const auto hit = view->itemAt(event.x, event.y);
        const bool ofKind = std::find(candidates.begin(), candidates.end(), hit) != candidates.end();
        graph->setCurrentItem(ofKind ? hit : nullptr);
        m_selectedIn = graph;
        view->update();
        return true;
    }
    m_graph = graph;
    m_original = m_item->points();
    graph->setCurrentItem(m_item);
    m_selectedIn = graph;
    view->update();
    return true;
}

bool ModifyItemOperator::mouseMove(const ScanViewEvent& event)
{
    LensEnabledOperator::mouseMove(event);
    SphericalViewControl* view = isDragging() ? gestureView() : nullptr;
    if (!view)
        return false;
    const Vector3d direction = view->screenToDirection(event.x, event.y);
    if (direction == Vector3d())
        return true;
    moveHandle(*m_item, m_handle, direction);
    m_moved = true;
    m_graph->notifyItemChanged(m_item.get());
    view->update();
    return true;
}

bool ModifyItemOperator::mouseRelease(const ScanViewEvent& event)
{
    if (event.code != ScanViewEvent::LeftRelease || !isDragging())
        return false;
    SphericalViewControl* view = gestureView();
    if (m_moved && host())
        host()->annotationsModified(gestureScanId());
    if (view)
        view->update();
    reset();
    return true;
}

} // namespace TVX::CORE
