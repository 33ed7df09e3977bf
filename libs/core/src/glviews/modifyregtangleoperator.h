#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Changes an existing rectangle (the class name's spelling is kept).
class ModifyRegtangleOperator : public LensEnabledOperator
{
public:
    ModifyRegtangleOperator();
    ~ModifyRegtangleOperator() override;
};

} // namespace TVX::CORE
