#include "scene/scanpose.h"

namespace TVX::CORE {

ScanPose poseFromTransformation(const std::array<double, 16>& m)
{
    ScanPose pose;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            pose.rotation(row, column) = m[std::size_t(row * 4 + column)];
    }
    pose.translation = {m[3], m[7], m[11]};
    return pose;
}

std::array<double, 16> transformationFromPose(const ScanPose& pose)
{
    const Matrix3d& r = pose.rotation;
    const Vector3d& t = pose.translation;
    return {r(0, 0), r(0, 1), r(0, 2), t.x, r(1, 0), r(1, 1), r(1, 2), t.y, r(2, 0), r(2, 1), r(2, 2), t.z, 0, 0, 0, 1};
}

Vector3d toProjectFrame(const ScanPose& pose, const Vector3d& point)
{
    return pose.rotation * point + pose.translation;
}

} // namespace TVX::CORE
