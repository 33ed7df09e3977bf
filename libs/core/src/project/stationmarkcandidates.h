#pragma once

#include <QtGlobal>

#include <vector>

namespace TVX::CORE {

class BasicProject;

// Another station as seen from a viewing scan.
struct StationCandidate {
    quint32 scanId{0};
    double distance{0.0}; // between the stations in the project frame, metres
    double x{0.0};        // the station relative to the viewing station, in the viewing scan's frame
    double y{0.0};
    double z{0.0};
};

// The stations of the enabled scans that a scan's views mark, farthest first.
class StationMarkCandidates final
{
public:
    StationMarkCandidates() = delete;

    // Every enabled scan other than `scanId`, in tree order, whose station lies within
    // [minDistance, maxDistance] (both inclusive), sorted by distance, farthest first.
    static std::vector<StationCandidate> collect(const BasicProject& project, quint32 scanId, double minDistance,
                                                 double maxDistance);
    // The mark size of a candidate of a sorted list: 32 pixels for the nearest down to 16 for the
    // farthest; 24 for all when their distances differ by 0.1 m or less.
    static int markSize(const std::vector<StationCandidate>& sorted, double distance);
};

} // namespace TVX::CORE
