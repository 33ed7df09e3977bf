#include "glviews/modifymeasurementtemoperator.h"

#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ModifyMeasurementtemOperator::ModifyMeasurementtemOperator() = default;
ModifyMeasurementtemOperator::~ModifyMeasurementtemOperator() = default;

std::vector<std::shared_ptr<ScanViewItem>> ModifyMeasurementtemOperator::items(const ScanViewSceneGraph& graph) const
{
    return {graph.measurementItems().begin(), graph.measurementItems().end()};
}

} // namespace TVX::CORE
