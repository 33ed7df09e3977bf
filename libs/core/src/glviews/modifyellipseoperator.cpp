#include "glviews/modifyellipseoperator.h"

namespace TVX::CORE {

ModifyEllipseOperator::ModifyEllipseOperator() = default;
ModifyEllipseOperator::~ModifyEllipseOperator() = default;

} // namespace TVX::CORE
