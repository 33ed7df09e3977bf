#pragma once

#include "glviews/modifyitemoperator.h"

namespace TVX::CORE {

// Changes the ellipses of a spherical view: the centre handle moves the whole ellipse, the two axis ends change its axes.
class ModifyEllipseOperator : public ModifyItemOperator
{
public:
    ModifyEllipseOperator();
    ~ModifyEllipseOperator() override;

protected:
    std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const override;
    void moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const override;
};

} // namespace TVX::CORE
