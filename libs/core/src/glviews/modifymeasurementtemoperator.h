#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Changes an existing measurement (the class name's spelling is kept).
class ModifyMeasurementtemOperator : public LensEnabledOperator
{
public:
    ModifyMeasurementtemOperator();
    ~ModifyMeasurementtemOperator() override;
};

} // namespace TVX::CORE
