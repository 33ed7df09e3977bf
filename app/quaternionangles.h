#pragma once

#include <array>

namespace TVX::VIEWER {

// The three angles, in radians, by which a project coordinate system's rotation is shown.
// (a, b, c) is the vector part and d the scalar part of the quaternion, so (0, 0, 0, 1) is no
// rotation. For a unit quaternion the result is (rotation about x, about y, about z), applied in
// the order x, then y, then z. The quaternion is used as stored, without normalising; an argument
// of asin outside [-1, 1] is clamped. At gimbal lock (second angle ±90°), where the first and
// third turns share one axis, the first angle is taken from 2·atan2(a, d).
std::array<double, 3> quaternionToAngles(double a, double b, double c, double d);

} // namespace TVX::VIEWER
