#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Places a text where the left button is pressed on a spherical view; the text is asked for.
class CreateTextItemOperator : public LensEnabledOperator
{
public:
    CreateTextItemOperator();
    ~CreateTextItemOperator() override;

    bool mousePress(const ScanViewEvent& event) override;
};

} // namespace TVX::CORE
