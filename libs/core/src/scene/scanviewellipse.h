#pragma once

#include "scene/scanviewitem.h"

namespace TVX::CORE {

// An ellipse over the panorama, given by three points in order: the centre, the end of the first
// semi-axis and the end of the second semi-axis. Hit through its area.
class ScanViewEllipse final : public ScanViewItem
{
public:
    ScanViewEllipse();
    ScanViewEllipse(const Vector3d& centre, const Vector3d& axisEnd1, const Vector3d& axisEnd2);

    bool hitTest(const Vector3d& direction) const override;

    // `segments` directions around the outline; empty while fewer than three points are set.
    std::vector<Vector3d> outline(int segments = 72) const;
};

} // namespace TVX::CORE
