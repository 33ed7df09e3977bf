#pragma once

#include "glviews/scanviewoperator.h"

#include <QPoint>

namespace TVX::CORE {

// Turns the active spherical view while the middle button is dragged and zooms it with the wheel.
// It is second in every mode's list, so the middle button turns the view in every mode. Right
// presses and releases are never consumed, so that the view's context menu still opens.
class CameraMoveOperator : public ScanViewOperator
{
public:
    CameraMoveOperator();
    ~CameraMoveOperator() override;

    // Left press consumed (though the left drag does not turn); middle and right presses not.
    bool mousePress(const ScanViewEvent& event) override;
    // Only the left release is consumed.
    bool mouseRelease(const ScanViewEvent& event) override;
    // With the middle button down over a spherical view: turns by (-0.25·dy, 0, -0.25·dx) degrees.
    bool mouseMove(const ScanViewEvent& event) override;
    // One zoom step per event, whatever the delta's size; delta 0 is not consumed.
    bool wheel(const ScanViewEvent& event) override;

private:
    bool m_leftDown{false};
    bool m_middleDown{false};
    bool m_rightDown{false};
    QPoint m_previous; // the press position, then the position of the last turn
    QPoint m_current;
};

} // namespace TVX::CORE
