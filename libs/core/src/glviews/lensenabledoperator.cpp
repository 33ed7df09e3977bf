#include "glviews/lensenabledoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/sphericalviewcontrol.h"

namespace TVX::CORE {

LensEnabledOperator::LensEnabledOperator() = default;
LensEnabledOperator::~LensEnabledOperator() = default;

void LensEnabledOperator::deactivate()
{
    // Leaving the mode with Shift still held must not leave the lens on.
    if (m_lens && host())
        host()->showLens(false);
    m_lens = false;
}

bool LensEnabledOperator::keyPress(const ScanViewEvent& event)
{
    if (event.code != ScanViewEvent::ShiftKey || !activeSphericalView())
        return false;
    if (host())
        host()->showLens(true);
    m_lens = true;
    return true;
}

bool LensEnabledOperator::keyRelease(const ScanViewEvent& event)
{
    if (event.code != ScanViewEvent::ShiftKey || !m_lens)
        return false;
    if (host())
        host()->showLens(false);
    m_lens = false;
    return true;
}

bool LensEnabledOperator::mouseMove(const ScanViewEvent& event)
{
    SphericalViewControl* view = m_lens ? activeSphericalView() : nullptr;
    if (!view || !host())
        return false;
    const QPoint cell = view->directionToCell(view->screenToDirection(event.x, event.y));
    host()->showLensAt(view->scanId(), cell.x(), cell.y());
    return false;
}

} // namespace TVX::CORE
