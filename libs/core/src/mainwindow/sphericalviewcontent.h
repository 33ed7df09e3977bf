#pragma once

#include <QString>
#include <QtGlobal>

namespace TVX::CORE {

class BasicProject;
class ScanViewMeasurementItem;
class SphericalViewGLWidget;

// Fills a spherical view with what the project holds for its scan besides the panorama and the
// scene graph: the marks of the other stations and the values of its measurements.
class SphericalViewContent final
{
public:
    SphericalViewContent() = delete;

    // Replaces the view's marks by those of the enabled scans within the distance limits of the
    // settings "global/stationMarksMinDist" and "global/stationMarksMaxDist", wherever their
    // direction lies. Returns the number of marks.
    static int setStationMarks(const BasicProject& project, SphericalViewGLWidget& view);
    // The label of a measurement of the view's scan, measured between the scan points of its two
    // directions like a planar dimensioning; "-.-- m" when a point is missing.
    static QString measurementLabel(BasicProject& project, const SphericalViewGLWidget& view,
                                    const ScanViewMeasurementItem& item);
};

} // namespace TVX::CORE
