#include "glviews/createellipseoperator.h"

namespace TVX::CORE {

CreateEllipseOperator::CreateEllipseOperator() = default;
CreateEllipseOperator::~CreateEllipseOperator() = default;

} // namespace TVX::CORE
