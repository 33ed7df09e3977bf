#include "glviews/modifytextitemoperator.h"

#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ModifyTextItemOperator::ModifyTextItemOperator() = default;
ModifyTextItemOperator::~ModifyTextItemOperator() = default;

std::vector<std::shared_ptr<ScanViewItem>> ModifyTextItemOperator::items(const ScanViewSceneGraph& graph) const
{
    return {graph.textItems().begin(), graph.textItems().end()};
}

} // namespace TVX::CORE
