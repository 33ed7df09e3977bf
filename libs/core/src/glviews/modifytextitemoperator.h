#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Changes an existing text item.
class ModifyTextItemOperator : public LensEnabledOperator
{
public:
    ModifyTextItemOperator();
    ~ModifyTextItemOperator() override;
};

} // namespace TVX::CORE
