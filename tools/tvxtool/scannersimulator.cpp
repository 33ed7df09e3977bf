#include "scannersimulator.h"

#include "demorandom.h"

#include <algorithm>
#include <cmath>

using TVX::CORE::Vector3d;

namespace TVX::TOOL {

CORE::ScanPose stationPose(const Vector3d& position, double heading, double tiltX, double tiltY)
{
    CORE::ScanPose pose;
    pose.rotation = CORE::Matrix3d::rotationZ(heading) * CORE::Matrix3d::rotationY(tiltY) * CORE::Matrix3d::rotationX(tiltX);
    pose.translation = position;
    return pose;
}

ScannerSimulator::ScannerSimulator(const DemoScene& scene, const StationSetup& station)
    : m_scene(scene), m_station(station),
      m_grid(CORE::gridAngles(station.columns, station.rows, station.horizontalMin, station.horizontalMax,
                              station.verticalMin, station.verticalMax)),
      m_panorama(int(station.columns), int(station.rows), QImage::Format_RGB888)
{
}

CORE::TVXFileCell ScannerSimulator::measure(quint32 column, quint32 row)
{
    const quint64 seed = m_station.seed;
    CORE::TVXFileCell cell;
    // The beam leaves a little off the cell's centre, as a real scanner's encoders read it.
    cell.dx = qint8(int(hashOf(seed, column, row, 1) % 101) - 50);
    cell.dy = qint8(int(hashOf(seed, column, row, 2) % 101) - 50);
    const double horizontal = CORE::columnAngle(column, m_grid) + CORE::subCellAngle(cell.dx, m_grid.halfDiagonal);
    const double vertical = CORE::rowAngle(row, m_grid) + CORE::subCellAngle(cell.dy, m_grid.halfDiagonal);
    const Vector3d direction = m_station.pose.rotation * CORE::pointFromAngles(horizontal, vertical, 1.0);

    SurfaceHit hit;
    QRgb colour = 0;
    if (m_scene.cast(m_station.pose.translation, direction, hit)) {
        const SurfaceLook look = m_scene.look(hit);
        colour = look.colour;
        const bool swallowed = hit.material == Material::Glass && unitOf(hashOf(seed, column, row, 3)) < 0.35;
        if (hit.distance <= maximumRange && !swallowed) {
            // Range noise of about ±2 mm; the return weakens with the angle of incidence and the range.
            const double noise = (unitOf(hashOf(seed, column, row, 4)) + unitOf(hashOf(seed, column, row, 5)) - 1.0) * 0.002;
            cell.distanceMm = quint32(std::max<qint64>(1, std::llround((hit.distance + noise) * 1000.0)));
            const double incidence = std::abs(direction.dot(hit.normal));
            const double strength = look.reflectance * (0.3 + 0.7 * incidence) / (1.0 + hit.distance / 60.0);
            const double jitter = (unitOf(hashOf(seed, column, row, 6)) - 0.5) * 6.0;
            cell.intensity = quint8(std::clamp<long>(std::lround(strength * 255.0 + jitter), 1, 255));
        }
    } else {
        colour = DemoScene::skyColour(direction);
    }
    cell.red = quint8(qRed(colour));
    cell.green = quint8(qGreen(colour));
    cell.blue = quint8(qBlue(colour));
    uchar* pixel = m_panorama.scanLine(int(row)) + 3 * std::size_t(column);
    pixel[0] = cell.red;
    pixel[1] = cell.green;
    pixel[2] = cell.blue;
    return cell;
}

Vector3d ScannerSimulator::toScanFrame(const Vector3d& scenePoint) const
{
    return m_station.pose.rotation.transposed() * (scenePoint - m_station.pose.translation);
}

QPointF ScannerSimulator::planarPosition(const Vector3d& scenePoint) const
{
    const Vector3d p = toScanFrame(scenePoint);
    const double range = p.length();
    // x = cos(h)·cos(v), y = −sin(h)·cos(v), z = sin(v) for a unit direction.
    double horizontal = std::atan2(-p.y, p.x);
    while (horizontal < m_station.horizontalMin)
        horizontal += 2 * M_PI;
    const double vertical = range > 0 ? std::asin(std::clamp(p.z / range, -1.0, 1.0)) : 0.0;
    const double column = (horizontal - m_grid.horizontalMin) / m_grid.horizontalStep;
    const double row = (m_station.rows - 1) - (vertical - m_grid.verticalMin) / m_grid.verticalStep;
    return {column + 0.5, row + 0.5};
}

} // namespace TVX::TOOL
