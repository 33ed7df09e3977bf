#pragma once

#include "scene/vector3d.h"

#include <QtGlobal>

#include <vector>

namespace TVX::CORE {

// Base of the items drawn over a spherical view. Points are directions from the scanner's station
// in the scan's frame (unit vectors as the views make them; items read from files keep the values
// as read). Every change of the points increments the change counter, so that cached meshes know
// when they are stale.
class ScanViewItem
{
public:
    virtual ~ScanViewItem();

    // True when the ray from the station along `direction` meets the item.
    virtual bool hitTest(const Vector3d& direction) const = 0;

    quint32 changeCounter() const { return m_changeCounter; }
    const std::vector<Vector3d>& points() const { return m_points; }

    void setPoints(std::vector<Vector3d> points);
    void setPoint(std::size_t index, const Vector3d& point); // ignored when index is out of range
    void appendPoint(const Vector3d& point);
    void removeLastPoint(); // ignored when there is none

protected:
    explicit ScanViewItem(std::vector<Vector3d> points = {});
    ScanViewItem(const ScanViewItem&) = default;
    ScanViewItem& operator=(const ScanViewItem&) = default;

private:
    quint32 m_changeCounter{0};
    std::vector<Vector3d> m_points;
};

} // namespace TVX::CORE
