#pragma once

#include "scene/matrix3d.h"
#include "scene/vector3d.h"

namespace TVX::CORE {

// Flat coordinates of directions in a plane that touches the unit sphere, as the spherical view's
// items are drawn and edited: `axes` holds the plane's x and y axes in its first two rows and the
// direction away from the plane's centre in its third row, like the rows of the spherical view's
// camera rotation. Great circles map to straight lines, so shapes drawn aligned with the axes stay
// straight on the sphere.
struct PlanePoint {
    double u = 0.0;
    double v = 0.0;
};

// Axes of the plane touching the sphere at `centre`, its x axis along `xHint` as far as that lies
// in the plane; a hint along the centre falls back to another axis.
Matrix3d planeAxes(const Vector3d& centre, const Vector3d& xHint);

// False for a direction at or behind the plane's horizon (it has no flat position).
bool toPlane(const Matrix3d& axes, const Vector3d& direction, PlanePoint& point);
// The unit direction of a flat position.
Vector3d fromPlane(const Matrix3d& axes, const PlanePoint& point);

// The rotation that turns unit direction `from` into unit direction `to` by the shortest way.
Matrix3d rotationBetween(const Vector3d& from, const Vector3d& to);

} // namespace TVX::CORE
