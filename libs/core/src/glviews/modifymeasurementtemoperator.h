#pragma once

#include "glviews/modifyitemoperator.h"

namespace TVX::CORE {

// Moves the ends of the measurements of a spherical view (the class name's spelling is kept).
class ModifyMeasurementtemOperator : public ModifyItemOperator
{
public:
    ModifyMeasurementtemOperator();
    ~ModifyMeasurementtemOperator() override;

protected:
    std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const override;
};

} // namespace TVX::CORE
