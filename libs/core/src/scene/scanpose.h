#pragma once

#include "scene/matrix3d.h"
#include "scene/vector3d.h"

#include <array>

namespace TVX::CORE {

// Where a scan's station stands in the project frame: p_project = rotation · p_scan + translation.
struct ScanPose {
    Matrix3d rotation;
    Vector3d translation; // the station, metres
};

// The pose of a scan information's sixteen transformation numbers, read row by row: the rotation
// is rows 0 to 2 by columns 0 to 2, the translation (m[3], m[7], m[11]).
ScanPose poseFromTransformation(const std::array<double, 16>& m);

// The sixteen numbers of a pose, row by row, with a last row of (0, 0, 0, 1).
std::array<double, 16> transformationFromPose(const ScanPose& pose);

// A point of the scan frame in the project frame.
Vector3d toProjectFrame(const ScanPose& pose, const Vector3d& point);

} // namespace TVX::CORE
