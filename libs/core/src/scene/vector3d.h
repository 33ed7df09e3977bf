#pragma once

#include <cmath>

namespace TVX::CORE {

// A point or direction in a scan's frame, in 64-bit floats (metres for points, unit length for
// directions of the spherical scene).
struct Vector3d {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    constexpr Vector3d() = default;
    constexpr Vector3d(double px, double py, double pz) : x(px), y(py), z(pz) {}

    constexpr Vector3d operator+(const Vector3d& o) const { return {x + o.x, y + o.y, z + o.z}; }
    constexpr Vector3d operator-(const Vector3d& o) const { return {x - o.x, y - o.y, z - o.z}; }
    constexpr Vector3d operator*(double s) const { return {x * s, y * s, z * s}; }
    constexpr Vector3d operator-() const { return {-x, -y, -z}; }
    constexpr bool operator==(const Vector3d& o) const { return x == o.x && y == o.y && z == o.z; }
    constexpr bool operator!=(const Vector3d& o) const { return !(*this == o); }

    constexpr double dot(const Vector3d& o) const { return x * o.x + y * o.y + z * o.z; }
    constexpr Vector3d cross(const Vector3d& o) const
    {
        return {y * o.z - z * o.y, z * o.x - x * o.z, x * o.y - y * o.x};
    }
    double length() const { return std::sqrt(dot(*this)); }
    // The unit vector along this one; the zero vector stays zero.
    Vector3d normalized() const
    {
        const double l = length();
        return l > 0.0 ? Vector3d(x / l, y / l, z / l) : Vector3d();
    }
};

} // namespace TVX::CORE
