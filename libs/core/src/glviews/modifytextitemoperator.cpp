#include "glviews/modifytextitemoperator.h"

namespace TVX::CORE {

ModifyTextItemOperator::ModifyTextItemOperator() = default;
ModifyTextItemOperator::~ModifyTextItemOperator() = default;

} // namespace TVX::CORE
