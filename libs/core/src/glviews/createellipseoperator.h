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
    std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first,
                                            const Matrix3d& axes) override;
    void followCursor(const Vector3d& direction) override;

private:
    Vector3d m_centre;
    Matrix3d m_axes;
};

} // namespace TVX::CORE
