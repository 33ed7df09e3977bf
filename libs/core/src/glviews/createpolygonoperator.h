#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Draws a polygon vertex by vertex; a double click finishes it.
class CreatePolygonOperator : public LensEnabledOperator
{
public:
    CreatePolygonOperator();
    ~CreatePolygonOperator() override;
};

} // namespace TVX::CORE
