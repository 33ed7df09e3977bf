#pragma once

#include "glviews/modifyitemoperator.h"

namespace TVX::CORE {

// Moves the vertices of the polygons of a spherical view.
class ModifyPolygonOperator : public ModifyItemOperator
{
public:
    ModifyPolygonOperator();
    ~ModifyPolygonOperator() override;

protected:
    std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const override;
};

} // namespace TVX::CORE
