#pragma once

#include "glviews/createitemoperator.h"

namespace TVX::CORE {

// Draws a polygon: each left press adds a vertex, the last vertex follows the cursor, a double
// click finishes it and the right button abandons it.
class CreatePolygonOperator : public CreateItemOperator
{
public:
    CreatePolygonOperator();
    ~CreatePolygonOperator() override;

    bool mousePress(const ScanViewEvent& event) override;
    // Removes the vertex that the double click's own press added and finishes the polygon; one
    // with fewer than three vertices is abandoned, since it has no area.
    bool mouseDoubleClick(const ScanViewEvent& event) override;

protected:
    std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first) override;
    void followCursor(const Vector3d& direction) override;
};

} // namespace TVX::CORE
