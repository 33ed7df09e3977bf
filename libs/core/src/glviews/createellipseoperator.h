#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Draws an ellipse in the active spherical view.
class CreateEllipseOperator : public LensEnabledOperator
{
public:
    CreateEllipseOperator();
    ~CreateEllipseOperator() override;
};

} // namespace TVX::CORE
