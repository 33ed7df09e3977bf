#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// Selects an area of the active spherical view.
class AreaSelectionOperator : public ScanViewOperator
{
public:
    AreaSelectionOperator();
    ~AreaSelectionOperator() override;
};

} // namespace TVX::CORE
