#pragma once

#include "scene/vector3d.h"

#include <array>
#include <cmath>

namespace TVX::CORE {

// A 3 × 3 matrix in 64-bit floats, row-major; used for rotations between a scan's frame and the
// project frame.
struct Matrix3d {
    std::array<double, 9> m{1, 0, 0, 0, 1, 0, 0, 0, 1};

    constexpr Matrix3d() = default;
    constexpr explicit Matrix3d(const std::array<double, 9>& rowMajor) : m(rowMajor) {}

    static constexpr Matrix3d identity() { return Matrix3d(); }
    // Right-handed rotations by `angle` radians about one axis.
    static Matrix3d rotationX(double angle)
    {
        const double c = std::cos(angle), s = std::sin(angle);
        return Matrix3d({1, 0, 0, 0, c, -s, 0, s, c});
    }
    static Matrix3d rotationY(double angle)
    {
        const double c = std::cos(angle), s = std::sin(angle);
        return Matrix3d({c, 0, s, 0, 1, 0, -s, 0, c});
    }
    static Matrix3d rotationZ(double angle)
    {
        const double c = std::cos(angle), s = std::sin(angle);
        return Matrix3d({c, -s, 0, s, c, 0, 0, 0, 1});
    }

    constexpr double operator()(int row, int column) const { return m[std::size_t(row * 3 + column)]; }
    constexpr double& operator()(int row, int column) { return m[std::size_t(row * 3 + column)]; }

    constexpr Vector3d operator*(const Vector3d& v) const
    {
        return {m[0] * v.x + m[1] * v.y + m[2] * v.z, m[3] * v.x + m[4] * v.y + m[5] * v.z,
                m[6] * v.x + m[7] * v.y + m[8] * v.z};
    }
    constexpr Matrix3d operator*(const Matrix3d& o) const
    {
        Matrix3d r({0, 0, 0, 0, 0, 0, 0, 0, 0});
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                for (int k = 0; k < 3; ++k)
                    r(i, j) += (*this)(i, k) * o(k, j);
            }
        }
        return r;
    }
    // The inverse of a rotation.
    constexpr Matrix3d transposed() const { return Matrix3d({m[0], m[3], m[6], m[1], m[4], m[7], m[2], m[5], m[8]}); }
    bool operator==(const Matrix3d& o) const { return m == o.m; }
};

} // namespace TVX::CORE
