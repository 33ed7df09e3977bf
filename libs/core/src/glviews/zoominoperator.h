#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// Zooms the active spherical view in by one step per left click.
class ZoomInOperator : public ScanViewOperator
{
public:
    ZoomInOperator();
    ~ZoomInOperator() override;

    bool mousePress(const ScanViewEvent& event) override;
};

} // namespace TVX::CORE
