#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Changes an existing ellipse.
class ModifyEllipseOperator : public LensEnabledOperator
{
public:
    ModifyEllipseOperator();
    ~ModifyEllipseOperator() override;
};

} // namespace TVX::CORE
