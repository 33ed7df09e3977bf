#include "glviews/createtextitemoperator.h"

namespace TVX::CORE {

CreateTextItemOperator::CreateTextItemOperator() = default;
CreateTextItemOperator::~CreateTextItemOperator() = default;

} // namespace TVX::CORE
