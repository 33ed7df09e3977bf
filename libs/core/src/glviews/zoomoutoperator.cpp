#include "glviews/zoomoutoperator.h"

namespace TVX::CORE {

ZoomOutOperator::ZoomOutOperator() = default;
ZoomOutOperator::~ZoomOutOperator() = default;

} // namespace TVX::CORE
