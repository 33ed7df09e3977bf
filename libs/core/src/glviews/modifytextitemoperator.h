#pragma once

#include "glviews/modifyitemoperator.h"

namespace TVX::CORE {

// Moves the texts of a spherical view by their anchors.
class ModifyTextItemOperator : public ModifyItemOperator
{
public:
    ModifyTextItemOperator();
    ~ModifyTextItemOperator() override;

protected:
    std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const override;
};

} // namespace TVX::CORE
