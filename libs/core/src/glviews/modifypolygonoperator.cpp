#include "glviews/modifypolygonoperator.h"

#include "scene/scanviewscenegraph.h"

namespace TVX::CORE {

ModifyPolygonOperator::ModifyPolygonOperator() = default;
ModifyPolygonOperator::~ModifyPolygonOperator() = default;

std::vector<std::shared_ptr<ScanViewItem>> ModifyPolygonOperator::items(const ScanViewSceneGraph& graph) const
{
    return {graph.polygons().begin(), graph.polygons().end()};
}

} // namespace TVX::CORE
