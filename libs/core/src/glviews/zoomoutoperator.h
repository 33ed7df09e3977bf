#pragma once

#include "glviews/scanviewoperator.h"

namespace TVX::CORE {

// Zooms the active spherical view out by one step per left click.
class ZoomOutOperator : public ScanViewOperator
{
public:
    ZoomOutOperator();
    ~ZoomOutOperator() override;

    bool mousePress(const ScanViewEvent& event) override;
};

} // namespace TVX::CORE
