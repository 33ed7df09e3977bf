#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Places a text item with a left click.
class CreateTextItemOperator : public LensEnabledOperator
{
public:
    CreateTextItemOperator();
    ~CreateTextItemOperator() override;
};

} // namespace TVX::CORE
