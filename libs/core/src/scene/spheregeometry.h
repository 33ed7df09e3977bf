#pragma once

#include "scene/vector3d.h"

namespace TVX::CORE {

// Pure geometry of the spherical scene: rays start at the scanner's station (the origin) and run
// along a direction; directions need not be normalised unless a function says so.

// How far off a point-like or line-like item a direction may be and still hit it, in radians
// (half a degree: about a finger's width of a cursor at the widest field of view).
constexpr double itemPickAngle = 0.5 * 3.14159265358979323846 / 180.0;

// True when the ray from the origin along `direction` meets the triangle (v0, v1, v2) at a positive
// distance. Degenerate triangles and a zero direction are never met.
bool rayHitsTriangle(const Vector3d& direction, const Vector3d& v0, const Vector3d& v1, const Vector3d& v2);

// The angle between two directions in radians, in [0, π]; π/2 when either is zero or not finite.
double angleBetween(const Vector3d& a, const Vector3d& b);

// The angle in radians from `direction` to the shorter great-circle arc from `a` to `b`; for equal
// or opposite ends, the angle to the nearer end. π/2 when any of the three is zero or not finite.
double angleToArc(const Vector3d& direction, const Vector3d& a, const Vector3d& b);

// True when all three components are finite numbers.
bool isFinite(const Vector3d& v);

// The unit vector along `v`, also for components so large or small that their squares overflow or
// vanish; the zero vector for a zero or non-finite `v`.
Vector3d unitDirection(const Vector3d& v);

} // namespace TVX::CORE
