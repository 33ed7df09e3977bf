#include "glviews/areaselectionoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"
#include "scene/scanviewscenegraph.h"

#include <QRect>
#include <QRubberBand>
#include <QWidget>

namespace TVX::CORE {

AreaSelectionOperator::AreaSelectionOperator() = default;

AreaSelectionOperator::~AreaSelectionOperator()
{
    delete m_band;
}

void AreaSelectionOperator::cancel()
{
    if (const auto graph = m_selectedIn.lock())
        graph->setCurrentItem(nullptr);
    if (SphericalViewControl* view = gestureView())
        view->update();
    m_selected.clear();
    m_selectedIn.reset();
    reset();
}

void AreaSelectionOperator::reset()
{
    m_dragging = false;
    if (m_band)
        m_band->hide();
}

bool AreaSelectionOperator::mousePress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::LeftPress ? activeSphericalView() : nullptr;
    if (!view)
        return false;
    beginGesture();
    m_start = QPoint(event.x, event.y);
    m_dragging = true;
    // The band lies over the GL widget itself, whose pixels the events count in.
    if (auto* widget = dynamic_cast<QWidget*>(view)) {
        if (!m_band || m_band->parentWidget() != widget) {
            delete m_band;
            m_band = new QRubberBand(QRubberBand::Rectangle, widget);
        }
        m_band->setGeometry(QRect(m_start, QSize()));
        m_band->show();
    }
    return true;
}

bool AreaSelectionOperator::mouseMove(const ScanViewEvent& event)
{
    if (!m_dragging || !gestureView())
        return false;
    if (m_band)
        m_band->setGeometry(QRect(m_start, QPoint(event.x, event.y)).normalized());
    return true;
}

bool AreaSelectionOperator::mouseRelease(const ScanViewEvent& event)
{
    if (event.code != ScanViewEvent::LeftRelease || !m_dragging)
        return false;
    SphericalViewControl* view = gestureView();
    if (!view) {
        reset();
        return false;
    }
    const QRectF area = QRectF(QRect(m_start, QPoint(event.x, event.y)).normalized());
    const auto graph = view->sceneGraph();
    m_selected.clear();
    std::shared_ptr<ScanViewItem> first;
    const auto collect = [&](const auto& list) {
        for (const auto& item : list) {
            bool inside = !item->points().empty();
            for (const Vector3d& point : item->points()) {
                double x = 0, y = 0;
                inside = inside && view->directionToScreen(point, x, y) && area.contains(x, y);
            }
            if (!inside)
                continue;
            m_selected.push_back(item);
            if (!first)
                first = item;
        }
    };
    collect(graph->textItems());
    collect(graph->measurementItems());
    collect(graph->ellipses());
    collect(graph->rectangles());
    collect(graph->polygons());
    graph->setCurrentItem(first);
    m_selectedIn = graph;
    view->update();
    reset();
    return true;
}

bool AreaSelectionOperator::keyPress(const ScanViewEvent& event)
{
    SphericalViewControl* view = event.code == ScanViewEvent::DeleteKey ? activeSphericalView() : nullptr;
    const auto graph = m_selectedIn.lock();
    if (!view || !graph || graph != view->sceneGraph() || m_selected.empty())
        return false;
    for (const auto& selected : m_selected) {
        if (const auto item = selected.lock())
            graph->removeItem(item.get());
    }
    m_selected.clear();
    graph->setCurrentItem(nullptr);
    view->update();
    if (host())
        host()->annotationsModified(view->scanId());
    return true;
}

} // namespace TVX::CORE
