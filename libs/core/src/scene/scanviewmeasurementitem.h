#pragma once

#include "scene/scanviewitem.h"

namespace TVX::CORE {

// A measured distance between two points: type 0 "3D", 1 "DZ", 2 "XY".
// Hit within a small angle of the arc between its two directions.
class ScanViewMeasurementItem final : public ScanViewItem
{
public:
    ScanViewMeasurementItem(qint32 type = 0, const Vector3d& first = Vector3d(), const Vector3d& second = Vector3d());

    bool hitTest(const Vector3d& direction) const override;

    qint32 type() const { return m_type; }
    void setType(qint32 type) { m_type = type; }
    Vector3d first() const;
    Vector3d second() const;

private:
    qint32 m_type{0};
};

} // namespace TVX::CORE
