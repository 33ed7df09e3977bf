#include "glviews/modifyregtangleoperator.h"

namespace TVX::CORE {

ModifyRegtangleOperator::ModifyRegtangleOperator() = default;
ModifyRegtangleOperator::~ModifyRegtangleOperator() = default;

} // namespace TVX::CORE
