#include "scene/scanviewmeasurementitem.h"

#include "scene/spheregeometry.h"

namespace TVX::CORE {

ScanViewMeasurementItem::ScanViewMeasurementItem(qint32 type, const Vector3d& first, const Vector3d& second)
    : ScanViewItem({first, second}), m_type(type)
{
}

Vector3d ScanViewMeasurementItem::first() const
{
    return points().empty() ? Vector3d() : points()[0];
}

Vector3d ScanViewMeasurementItem::second() const
{
    return points().size() < 2 ? Vector3d() : points()[1];
}

bool ScanViewMeasurementItem::hitTest(const Vector3d& direction) const
{
    if (points().size() < 2)
        return false;
    return angleToArc(direction, points()[0], points()[1]) <= itemPickAngle;
}

} // namespace TVX::CORE
