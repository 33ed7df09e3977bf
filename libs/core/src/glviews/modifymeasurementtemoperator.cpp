#include "glviews/modifymeasurementtemoperator.h"

namespace TVX::CORE {

ModifyMeasurementtemOperator::ModifyMeasurementtemOperator() = default;
ModifyMeasurementtemOperator::~ModifyMeasurementtemOperator() = default;

} // namespace TVX::CORE
