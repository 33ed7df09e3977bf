#include "project/scanpose.h"

namespace TVX::CORE {

ScanPose poseFromTransformation(const std::array<double, 16>& m)
{
    ScanPose pose;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            pose.rotation[std::size_t(row * 3 + column)] = m[std::size_t(row * 4 + column)];
    }
    pose.translation = {m[3], m[7], m[11]};
    return pose;
}

std::array<double, 16> transformationFromPose(const ScanPose& pose)
{
    const auto& r = pose.rotation;
    const Vector3d& t = pose.translation;
    return {r[0], r[1], r[2], t.x, r[3], r[4], r[5], t.y, r[6], r[7], r[8], t.z, 0, 0, 0, 1};
}

Vector3d toProjectFrame(const ScanPose& pose, const Vector3d& p)
{
    const auto& r = pose.rotation;
    return Vector3d(r[0] * p.x + r[1] * p.y + r[2] * p.z, r[3] * p.x + r[4] * p.y + r[5] * p.z,
                    r[6] * p.x + r[7] * p.y + r[8] * p.z)
           + pose.translation;
}

} // namespace TVX::CORE
