#pragma once

#include "scene/scanviewitem.h"

namespace TVX::CORE {

// A rectangle over the panorama, given by three corners in order: p0, p1 (the corner between the
// two edges) and p2. The fourth corner is p0 + p2 − p1. Hit through its area.
class ScanViewRectangle final : public ScanViewItem
{
public:
    ScanViewRectangle();
    ScanViewRectangle(const Vector3d& p0, const Vector3d& p1, const Vector3d& p2);

    bool hitTest(const Vector3d& direction) const override;

    // The four corners p0, p1, p2, p0 + p2 − p1; empty while fewer than three points are set.
    std::vector<Vector3d> corners() const;
};

} // namespace TVX::CORE
