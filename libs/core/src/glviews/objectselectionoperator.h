#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// Selects the annotation items of the active spherical view.
class ObjectSelectionOperator : public ScanViewOperator
{
public:
    ObjectSelectionOperator();
    ~ObjectSelectionOperator() override;
};

} // namespace TVX::CORE
