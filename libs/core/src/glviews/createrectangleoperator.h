#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Draws a rectangle aligned with the camera: click, move, click.
class CreateRectangleOperator : public LensEnabledOperator
{
public:
    CreateRectangleOperator();
    ~CreateRectangleOperator() override;
};

} // namespace TVX::CORE
