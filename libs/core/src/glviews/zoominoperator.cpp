#include "glviews/zoominoperator.h"

namespace TVX::CORE {

ZoomInOperator::ZoomInOperator() = default;
ZoomInOperator::~ZoomInOperator() = default;

} // namespace TVX::CORE
