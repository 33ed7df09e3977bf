#include "scene/cameraplane.h"

#include "scene/spheregeometry.h"

#include <cmath>

namespace TVX::CORE {

namespace {

constexpr double horizon = 1e-9;

} // namespace

Matrix3d planeAxes(const Vector3d& centre, const Vector3d& xHint)
{
    const Vector3d c = unitDirection(centre);
    Vector3d x = xHint - c * xHint.dot(c);
    if (x.length() < 1e-12) {
        // Any axis that is not along the centre will do.
        const Vector3d fallback = std::abs(c.z) < 0.9 ? Vector3d(0, 0, 1) : Vector3d(1, 0, 0);
        x = fallback - c * fallback.dot(c);
    }
    x = unitDirection(x);
    const Vector3d back = -c;
    const Vector3d y = back.cross(x);
    return Matrix3d({x.x, x.y, x.z, y.x, y.y, y.z, back.x, back.y, back.z});
}

bool toPlane(const Matrix3d& axes, const Vector3d& direction, PlanePoint& point)
{
    const Vector3d x(axes(0, 0), axes(0, 1), axes(0, 2));
    const Vector3d y(axes(1, 0), axes(1, 1), axes(1, 2));
    const Vector3d back(axes(2, 0), axes(2, 1), axes(2, 2));
    const double depth = -direction.dot(back);
    if (!(depth > horizon))
        return false;
    point.u = direction.dot(x) / depth;
    point.v = direction.dot(y) / depth;
    return std::isfinite(point.u) && std::isfinite(point.v);
}

Vector3d fromPlane(const Matrix3d& axes, const PlanePoint& point)
{
    const Vector3d x(axes(0, 0), axes(0, 1), axes(0, 2));
    const Vector3d y(axes(1, 0), axes(1, 1), axes(1, 2));
    const Vector3d back(axes(2, 0), axes(2, 1), axes(2, 2));
    return unitDirection(x * point.u + y * point.v - back);
}

Matrix3d rotationBetween(const Vector3d& from, const Vector3d& to)
{
    const Vector3d a = unitDirection(from);
    const Vector3d b = unitDirection(to);
    const Vector3d axis = a.cross(b);
    const double s = axis.length();
    const double c = a.dot(b);
    if (s < 1e-15) {
        if (c > 0)
            return Matrix3d::identity();
        // Opposite: half a turn about any axis across `a`.
        const Matrix3d across = planeAxes(a, Vector3d(0, 0, 1));
        const Vector3d k(across(0, 0), across(0, 1), across(0, 2));
        return Matrix3d({2 * k.x * k.x - 1, 2 * k.x * k.y, 2 * k.x * k.z, 2 * k.y * k.x, 2 * k.y * k.y - 1,
                         2 * k.y * k.z, 2 * k.z * k.x, 2 * k.z * k.y, 2 * k.z * k.z - 1});
    }
    // Rodrigues' formula about the unit axis k by the angle whose sine is s and cosine c.
    const Vector3d k = axis * (1.0 / s);
    const double t = 1 - c;
    return Matrix3d({t * k.x * k.x + c, t * k.x * k.y - s * k.z, t * k.x * k.z + s * k.y,
                     t * k.x * k.y + s * k.z, t * k.y * k.y + c, t * k.y * k.z - s * k.x,
                     t * k.x * k.z - s * k.y, t * k.y * k.z + s * k.x, t * k.z * k.z + c});
}

} // namespace TVX::CORE
