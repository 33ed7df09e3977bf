#pragma once

// The procedural outdoor scene of the demo project: a plaza with paving and grass between
// buildings (façades with windows and doors, one with a portico of columns), a road with a parked
// vehicle and street lamps, trees, reference spheres on poles and a ring of distant buildings.
// Scene frame: metres, z up, the ground at z = 0, the plaza around the origin.
#include "scene/vector3d.h"

#include <QRgb>
#include <QString>

#include <array>
#include <memory>
#include <vector>

namespace TVX::TOOL {

enum class Material : quint8 {
    Grass, Asphalt, RoadMarking, Paving, Plaster, Brick, Roof, Glass, Frame, Door, Stone, Bark, Leaves,
    CarPaint, CarGlass, Tyre, Target, Pole,
};

struct SurfaceHit {
    double distance{0.0}; // along the unit ray
    CORE::Vector3d point;
    CORE::Vector3d normal; // unit, against the ray
    Material material{Material::Grass};
    QRgb tint{0};          // the object's own colour, where its material has one
};

// What the colour camera and the laser see of a hit.
struct SurfaceLook {
    QRgb colour{0};          // lit, as the panorama shows it
    double reflectance{0.0}; // of the laser's wavelength, 0 to 1
};

struct DemoReferenceSphere {
    QString name;
    CORE::Vector3d centre;
    double radius{0.0};
};

// A rectangle standing in the scene: corners bottom left, bottom right, top right, top left as
// seen from outside.
using DemoQuad = std::array<CORE::Vector3d, 4>;

struct DemoLandmarks {
    std::vector<DemoQuad> doors;
    std::vector<DemoQuad> windows; // ground floor windows of the buildings around the plaza
    std::vector<DemoQuad> facades; // the plaza sides of those buildings
    std::vector<DemoReferenceSphere> spheres;
    std::vector<std::pair<CORE::Vector3d, double>> treeCrowns; // centre and radius
    CORE::Vector3d vehicle;                                      // centre of its body
};

class DemoScene final
{
public:
    explicit DemoScene(quint64 seed);
    ~DemoScene();
    DemoScene(const DemoScene&) = delete;
    DemoScene& operator=(const DemoScene&) = delete;

    // The first surface along a ray from `origin` in the unit direction `direction`.
    bool cast(const CORE::Vector3d& origin, const CORE::Vector3d& direction, SurfaceHit& hit) const;
    SurfaceLook look(const SurfaceHit& hit) const;
    // The sky in a direction (no surface there).
    static QRgb skyColour(const CORE::Vector3d& direction);

    const DemoLandmarks& landmarks() const;
    // Free places on the plaza for `count` scanner stations (on the ground), each within 4 to
    // 12 m of the others for up to nine stations; more stations continue along the road, each 4 to
    // 12 m from the one before, up to the twentieth; the rest stand on open ground around the
    // plaza, nearest first (far more than 500 fit).
    std::vector<CORE::Vector3d> stationPlaces(int count) const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::TOOL
