#include "glviews/areaselectionoperator.h"

namespace TVX::CORE {

AreaSelectionOperator::AreaSelectionOperator() = default;
AreaSelectionOperator::~AreaSelectionOperator() = default;

} // namespace TVX::CORE
