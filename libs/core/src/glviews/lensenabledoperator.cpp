#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

LensEnabledOperator::LensEnabledOperator() = default;
LensEnabledOperator::~LensEnabledOperator() = default;

} // namespace TVX::CORE
