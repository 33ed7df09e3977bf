#pragma once

#include "scene/matrix3d.h"
#include "scene/vector3d.h"

#include <QPoint>
#include <QtGlobal>

#include <array>
#include <vector>

namespace TVX::CORE {

// The geometry of the spherical view: the panorama sphere, the camera, and the mappings between
// widget pixels, directions from the station and grid cells. Angles in radians unless a name says
// degrees; directions in the scan's frame.

// The angular extent of a scan, as its scan information gives it.
struct AngularExtent {
    double horizontalMin{0.0};
    double horizontalMax{2.0 * M_PI};
    double verticalMin{-M_PI / 2.0};
    double verticalMax{M_PI / 2.0};
};

// The panorama sphere: one triangle strip, a texture coordinate per vertex.
struct SphereMesh {
    std::vector<std::array<float, 3>> vertices;
    std::vector<std::array<float, 2>> texCoords;
};

constexpr int sphereRings = 150;

// (rings − 1) bands of 2·rings slices, two vertices per slice, the last slice on the first so the
// seam closes. u runs with the horizontal angle and is clamped to [0, 1] outside the scanned turn;
// v runs from the lowest scanned elevation (0) to the highest (1) and leaves [0, 1] outside the
// band, where the texture's black border shows. Fewer than two rings give an empty mesh.
SphereMesh buildSphereMesh(const AngularExtent& extent, int rings = sphereRings, double radius = 1.0);

// A row-major 4 × 4 matrix.
using Matrix4d = std::array<double, 16>;

// What the camera sees: its angles (radians), vertical opening angle (degrees), position, and the
// widget's size in pixels.
struct CameraView {
    double angleX{0.0};
    double angleY{0.0};
    double angleZ{0.0};
    double fieldOfView{60.0};
    Vector3d position;
    int width{0};
    int height{0};
};

// The model-view rotation in effect: its rows are the camera's axes in the scan's frame, and the
// negated third row is the viewing direction. It is Rx(angleX)·Ry(angleY)·Rz(angleZ), the
// transpose of Rz(γ)·Ry(β)·Rx(α) with α = −angleX, β = −angleY, γ = −angleZ.
Matrix3d cameraRotation(double angleX, double angleY, double angleZ);

// What is handed to glLoadMatrixd: Rz(γ)·Ry(β)·Rx(α) written row by row, each row followed by 0,
// then 0, 0, 0, 1. GL reads it column by column, so the matrix in effect is cameraRotation().
Matrix4d cameraMatrixArray(double angleX, double angleY, double angleZ);

// The perspective of the view with near 0.001 and far 10 (as gluPerspective builds it), row-major.
Matrix4d perspectiveMatrix(double fieldOfViewDegrees, double aspect);

// The unit direction through widget pixel (x, y), y counted from the top; zero when the widget
// has no area or the direction is undefined.
Vector3d screenToDirection(const CameraView& view, qint32 x, qint32 y);

// Widget position with the origin at the lower left, and depth in [0, 1].
struct ScreenPoint {
    double x{0.0};
    double y{0.0};
    double depth{0.0};
};

// The widget position of `point`; false when it lies behind the camera or on its near plane.
bool viewToScreen(const CameraView& view, const Vector3d& point, ScreenPoint& screen);
// As viewToScreen, and false as well near and beyond the widget's edges (for marks and labels).
// The margins are 5 pixels outside the left, bottom and right edges but 5 pixels inside the top
// edge; readers of the same views rely on this, so the asymmetry stays.
bool viewToScreenInside(const CameraView& view, const Vector3d& point, ScreenPoint& screen);

// The grid cell that `direction` hits: column from the horizontal angle, rows counted from the top
// (highest elevation); not clamped to the grid. (−1, −1) for a (near) zero direction, and for an
// empty extent whose cells are not numbers.
QPoint directionToCell(const Vector3d& direction, const AngularExtent& extent, quint32 columns, quint32 rows);

// `angle` (radians) turned by `deltaDegrees` and wrapped by one subtraction or addition of 360°:
// deltas within ±360° land in [0, 2π).
double rotatedAngle(double angle, double deltaDegrees);

// One zoom step of 4°, the field of view kept within [10°, 90°].
double zoomedIn(double fieldOfView);
double zoomedOut(double fieldOfView);

// The drawn size of a station mark: made even (odd sizes grow by one), then clamped to 16 … 32.
quint32 stationMarkDrawSize(quint32 size);

// True when (x, y) (origin at the lower left) lies in the round mark of `size` pixels centred at
// (centreX, centreY).
bool stationMarkHolds(qint32 centreX, qint32 centreY, quint32 size, double x, double y);

// A screen rectangle with the origin at the lower left.
struct ScreenRect {
    double left{0.0};
    double bottom{0.0};
    double right{0.0};
    double top{0.0};
};

// The index of the last rectangle that holds column in [left, right] and rowFromBottom + 1 in
// [bottom, top] (later rectangles were drawn over earlier ones); −1 when none does.
int hitAreaAt(const std::vector<ScreenRect>& areas, qint32 column, qint32 rowFromBottom);

// The directions from `from` to `to` along the shorter great circle, `to` excluded, in steps of at
// most `maxStep` radians, so that edges drawn between screen positions follow the sphere. Opposite
// or zero ends give `from` alone.
std::vector<Vector3d> greatCircleSteps(const Vector3d& from, const Vector3d& to, double maxStep);

} // namespace TVX::CORE
