#include "glviews/cameramoveoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/sphericalviewcontrol.h"

namespace TVX::CORE {

namespace {

// Degrees of turn per pixel of middle drag.
constexpr double turnPerPixel = 0.25;

} // namespace

CameraMoveOperator::CameraMoveOperator() = default;
CameraMoveOperator::~CameraMoveOperator() = default;

bool CameraMoveOperator::mousePress(const ScanViewEvent& event)
{
    beginGesture();
    const QPoint position(event.x, event.y);
    switch (event.code) {
    case ScanViewEvent::LeftPress:
        m_leftDown = true;
        m_previous = position;
        return true;
    case ScanViewEvent::MiddlePress:
        m_middleDown = true;
        m_previous = position;
        return false;
    case ScanViewEvent::RightPress:
        m_rightDown = true;
        m_previous = position;
        return false;
    default:
        return false;
    }
}

bool CameraMoveOperator::mouseRelease(const ScanViewEvent& event)
{
    switch (event.code) {
    case ScanViewEvent::LeftRelease:
        m_leftDown = false;
        break;
    case ScanViewEvent::MiddleRelease:
        m_middleDown = false;
        break;
    case ScanViewEvent::RightRelease:
        m_rightDown = false;
        break;
    default:
        break;
    }
    reset();
    return event.code == ScanViewEvent::LeftRelease;
}

bool CameraMoveOperator::mouseMove(const ScanViewEvent& event)
{
    m_current = QPoint(event.x, event.y);
    if (!m_middleDown)
        return false;
    const ActiveView view = activeView();
    if (!view.isSpherical())
        return false;
    // Moves over other views do not advance the previous position, so their offset is kept.
    const QPoint offset = m_current - m_previous;
    view.spherical->rotate(-turnPerPixel * offset.y(), 0.0, -turnPerPixel * offset.x());
    m_previous = m_current;
    return true;
}

bool CameraMoveOperator::wheel(const ScanViewEvent& event)
{
    const qint32 delta = event.wheelDelta();
    if (delta == 0)
        return false;
    const ActiveView view = activeView();
    if (!view.isSpherical())
        return false;
    if (delta > 0)
        view.spherical->zoomIn();
    else
        view.spherical->zoomOut();
    return true;
}

} // namespace TVX::CORE
