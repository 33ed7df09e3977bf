#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// The operators during which Shift shows the lens at the cell under the cursor.
class LensEnabledOperator : public ScanViewOperator
{
public:
    LensEnabledOperator();
    ~LensEnabledOperator() override;
};

} // namespace TVX::CORE
