#pragma once

#include "scene/scanpose.h"
#include "scene/vector3d.h"

namespace TVX::CORE {

// The differences between two points of possibly different scans, in the common project frame.
struct PointDistance {
    double dx{0.0}; // absolute differences, metres
    double dy{0.0};
    double dz{0.0};
    double distance3D{0.0};
    double distanceXY{0.0};
};

// Takes each point (in its scan's frame) into the project frame with its scan's pose. The two
// translations are first reduced by their mean, so that large project coordinates cost no
// precision; the differences are the same as with the full translations.
PointDistance pointDistance(const Vector3d& first, const ScanPose& firstPose, const Vector3d& second,
                            const ScanPose& secondPose);

} // namespace TVX::CORE
