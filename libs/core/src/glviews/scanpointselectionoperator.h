#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Picks the cell under a left click on the active spherical view: a row in the point table and a
// selected point drawn on the sphere.
class ScanPointSelectionOperator : public LensEnabledOperator
{
public:
    ScanPointSelectionOperator();
    ~ScanPointSelectionOperator() override;

    bool mousePress(const ScanViewEvent& event) override;
};

} // namespace TVX::CORE
