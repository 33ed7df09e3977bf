#include "glviews/createrectangleoperator.h"

namespace TVX::CORE {

CreateRectangleOperator::CreateRectangleOperator() = default;
CreateRectangleOperator::~CreateRectangleOperator() = default;

} // namespace TVX::CORE
