#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Picks the cell under a left click on the active spherical view.
class ScanPointSelectionOperator : public LensEnabledOperator
{
public:
    ScanPointSelectionOperator();
    ~ScanPointSelectionOperator() override;
};

} // namespace TVX::CORE
