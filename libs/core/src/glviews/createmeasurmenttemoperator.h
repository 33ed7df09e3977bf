#pragma once

#include "glviews/createitemoperator.h"

namespace TVX::CORE {

// Draws a measurement between two picked points (the class name's spelling is kept): click,
// move, click; the right button abandons it. The main window sets the kind before it switches to
// the operator's mode.
class CreateMeasurmenttemOperator : public CreateItemOperator
{
public:
    enum MeasurementKind { Distance3D = 0, DeltaZ = 1, DistanceXY = 2 };

    CreateMeasurmenttemOperator();
    ~CreateMeasurmenttemOperator() override;

    // 0 3D, 1 DZ, 2 XY; any other value is ignored and the kind stays.
    void setMeasurementKind(int kind);
    int measurementKind() const { return m_kind; }

protected:
    std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first) override;
    void followCursor(const Vector3d& direction) override;

private:
    int m_kind{Distance3D};
};

} // namespace TVX::CORE
