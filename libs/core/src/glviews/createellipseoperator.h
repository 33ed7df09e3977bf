#pragma once

#include "glviews/createitemoperator.h"

namespace TVX::CORE {

// Draws an ellipse around the first click with its axes along the camera's: click the centre,
// move, click; the right button abandons it.
class CreateEllipseOperator : public CreateItemOperator
{
public:
    CreateEllipseOperator();
    ~CreateEllipseOperator() override;

protected:
    std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first) override;
    void followCursor(const Vector3d& direction) override;
};

} // namespace TVX::CORE
