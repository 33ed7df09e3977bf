#pragma once

namespace TVX::CORE {

class BasicProject;
class GraphicsView;

// Fills a planar view with what the project holds for its scan besides the panorama: the marks of
// the other stations, the scan's reference points and its annotation items.
class PlanarViewContent final
{
public:
    PlanarViewContent() = delete;

    // Marks the stations of the enabled scans within the distance limits of the settings
    // "global/stationMarksMinDist" and "global/stationMarksMaxDist" whose direction falls inside
    // the scan's grid. Returns the number of marks placed.
    static int addStationMarks(const BasicProject& project, GraphicsView& view);
    // A mark with its name at the cell of each reference point or sphere of the scan.
    static int addReferencePoints(const BasicProject& project, GraphicsView& view);
    // One item per planar record of the scan's annotation set, sharing the record.
    static int addAnnotationItems(const BasicProject& project, GraphicsView& view);
};

} // namespace TVX::CORE
