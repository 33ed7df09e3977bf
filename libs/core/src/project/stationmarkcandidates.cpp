#include "project/stationmarkcandidates.h"

#include "project/basicproject.h"
#include "scene/stationmarkgeometry.h"

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

std::vector<StationCandidate> StationMarkCandidates::collect(const BasicProject& project, quint32 scanId,
                                                             double minDistance, double maxDistance)
{
    std::vector<StationCandidate> candidates;
    ScanPose viewing;
    if (!project.scanPose(scanId, viewing))
        return candidates;
    const Matrix3d toViewingFrame = inverseByAdjugate(viewing.rotation);
    for (const quint32 other : project.enabledScans()) {
        ScanPose pose;
        if (other == scanId || !project.scanPose(other, pose))
            continue;
        const Vector3d d = pose.translation - viewing.translation;
        const double squares = d.dot(d);
        const double distance = squares >= 0.0 ? std::sqrt(squares) : 0.0;
        if (distance < minDistance || distance > maxDistance)
            continue;
        const Vector3d local = toViewingFrame * d;
        candidates.push_back({other, distance, local.x, local.y, local.z});
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const StationCandidate& a, const StationCandidate& b) { return a.distance > b.distance; });
    return candidates;
}

int StationMarkCandidates::markSize(const std::vector<StationCandidate>& sorted, double distance)
{
    if (sorted.empty())
        return 24;
    return stationMarkSize(sorted.back().distance, sorted.front().distance, distance);
}

} // namespace TVX::CORE
