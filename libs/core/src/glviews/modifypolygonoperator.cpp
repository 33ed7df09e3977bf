#include "glviews/modifypolygonoperator.h"

namespace TVX::CORE {

ModifyPolygonOperator::ModifyPolygonOperator() = default;
ModifyPolygonOperator::~ModifyPolygonOperator() = default;

} // namespace TVX::CORE
