#pragma once

#include "demoscene.h"

#include "fileio/scangeometry.h"
#include "fileio/tvxfilewriter.h"
#include "scene/scanpose.h"

#include <QImage>
#include <QPointF>

namespace TVX::TOOL {

// One station of the simulated terrestrial laser scanner.
struct StationSetup {
    CORE::ScanPose pose; // scan frame → scene frame
    quint32 columns{2048};
    quint32 rows{1024};
    double horizontalMin{0.0}; // radians
    double horizontalMax{2 * M_PI};
    double verticalMin{-M_PI / 3};
    double verticalMax{M_PI / 2};
    quint64 seed{0}; // of this station's measurement noise
};

// The pose of a station standing at `position` (scene frame), turned by `heading` about the
// vertical and tilted by `tiltX` about x, then `tiltY` about y (radians): R = Rz · Ry · Rx.
CORE::ScanPose stationPose(const CORE::Vector3d& position, double heading, double tiltX, double tiltY);

// Casts the beam of each grid cell into the scene, the way the scan file's geometry defines the
// cell's direction (sub-cell offsets included), and reports what the laser and the colour camera
// see: the distance with a little range noise, an intensity from the material and the angle of
// incidence, and the colour. Beams that hit nothing within the range, or that glass swallows,
// give no return. The panorama image (one pixel per cell) is painted along the way.
class ScannerSimulator final
{
public:
    static constexpr double maximumRange = 120.0; // metres

    ScannerSimulator(const DemoScene& scene, const StationSetup& station);

    CORE::TVXFileCell measure(quint32 column, quint32 row);
    const QImage& panorama() const { return m_panorama; }

    // A scene point in the scan frame.
    CORE::Vector3d toScanFrame(const CORE::Vector3d& scenePoint) const;
    // Where a scene point shows in the planar view: (column, row) of its direction, with the
    // cell (c, r) covering [c, c + 1) × [r, r + 1).
    QPointF planarPosition(const CORE::Vector3d& scenePoint) const;

private:
    const DemoScene& m_scene;
    StationSetup m_station;
    CORE::GridAngles m_grid;
    QImage m_panorama;
};

} // namespace TVX::TOOL
