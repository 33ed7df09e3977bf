#pragma once

#include "glviews/createitemoperator.h"

namespace TVX::CORE {

// Draws a rectangle aligned with the camera: click, move, click; the right button abandons it.
class CreateRectangleOperator : public CreateItemOperator
{
public:
    CreateRectangleOperator();
    ~CreateRectangleOperator() override;

protected:
    std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first) override;
    void followCursor(const Vector3d& direction) override;
};

} // namespace TVX::CORE
