#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// The operators during which Shift shows the lens at the cell under the cursor. Derived operators
// call these first from their own key and move handlers.
class LensEnabledOperator : public ScanViewOperator
{
public:
    LensEnabledOperator();
    ~LensEnabledOperator() override;

    void deactivate() override;
    // Shift over a spherical view shows the lens; consumed.
    bool keyPress(const ScanViewEvent& event) override;
    // The Shift release that matches hides it; consumed.
    bool keyRelease(const ScanViewEvent& event) override;
    // With the lens shown, the cell under the cursor goes to the lens; never consumed, so that the
    // camera still turns.
    bool mouseMove(const ScanViewEvent& event) override;

    bool isLensShown() const { return m_lens; }

private:
    bool m_lens{false};
};

} // namespace TVX::CORE
