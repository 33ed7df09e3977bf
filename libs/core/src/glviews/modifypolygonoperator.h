#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Changes an existing polygon.
class ModifyPolygonOperator : public LensEnabledOperator
{
public:
    ModifyPolygonOperator();
    ~ModifyPolygonOperator() override;
};

} // namespace TVX::CORE
