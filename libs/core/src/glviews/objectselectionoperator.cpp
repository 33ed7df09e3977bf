#include "glviews/objectselectionoperator.h"

namespace TVX::CORE {

ObjectSelectionOperator::ObjectSelectionOperator() = default;
ObjectSelectionOperator::~ObjectSelectionOperator() = default;

} // namespace TVX::CORE
