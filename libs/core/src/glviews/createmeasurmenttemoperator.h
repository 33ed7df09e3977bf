#pragma once

#include "glviews/lensenabledoperator.h"

namespace TVX::CORE {

// Draws a measurement between two picked points (the class name's spelling is kept). The main
// window sets the kind before it switches to the operator's mode.
class CreateMeasurmenttemOperator : public LensEnabledOperator
{
public:
    enum MeasurementKind { Distance3D = 0, DeltaZ = 1, DistanceXY = 2 };

    CreateMeasurmenttemOperator();
    ~CreateMeasurmenttemOperator() override;

    // 0 3D, 1 DZ, 2 XY; any other value is ignored and the kind stays.
    void setMeasurementKind(int kind);
    int measurementKind() const { return m_kind; }

private:
    int m_kind{Distance3D};
};

} // namespace TVX::CORE
