#include "glviews/createpolygonoperator.h"

namespace TVX::CORE {

CreatePolygonOperator::CreatePolygonOperator() = default;
CreatePolygonOperator::~CreatePolygonOperator() = default;

} // namespace TVX::CORE
