#include "scene/spheregeometry.h"

#include <algorithm>

namespace TVX::CORE {

bool rayHitsTriangle(const Vector3d& direction, const Vector3d& v0, const Vector3d& v1, const Vector3d& v2)
{
    // Möller–Trumbore with the ray's origin at the station.
    const Vector3d e1 = v1 - v0;
    const Vector3d e2 = v2 - v0;
    const Vector3d p = direction.cross(e2);
    const double det = e1.dot(p);
    // Relative to the sizes involved, so that tiny triangles far from degenerate still count.
    const double scale = direction.length() * e1.length() * e2.length();
    if (!(std::abs(det) > 1e-15 * scale))
        return false;
    const double inv = 1.0 / det;
    const Vector3d s = -v0;
    const double u = s.dot(p) * inv;
    if (u < 0.0 || u > 1.0)
        return false;
    const Vector3d q = s.cross(e1);
    const double v = direction.dot(q) * inv;
    if (v < 0.0 || u + v > 1.0)
        return false;
    return e2.dot(q) * inv > 0.0;
}

double angleBetween(const Vector3d& a, const Vector3d& b)
{
    const Vector3d ua = unitDirection(a);
    const Vector3d ub = unitDirection(b);
    if (ua.dot(ua) == 0.0 || ub.dot(ub) == 0.0)
        return 3.14159265358979323846 / 2.0;
    // atan2 stays accurate for the small angles that picking asks about, where acos does not.
    return std::atan2(ua.cross(ub).length(), ua.dot(ub));
}

double angleToArc(const Vector3d& direction, const Vector3d& a, const Vector3d& b)
{
    const Vector3d d = unitDirection(direction);
    const Vector3d ua = unitDirection(a);
    const Vector3d ub = unitDirection(b);
    if (d.dot(d) == 0.0 || ua.dot(ua) == 0.0 || ub.dot(ub) == 0.0)
        return 3.14159265358979323846 / 2.0;
    const double toEnds = std::min(angleBetween(d, ua), angleBetween(d, ub));
    const Vector3d n = ua.cross(ub);
    if (n.length() < 1e-12)
        return toEnds;
    const Vector3d un = n.normalized();
    // The foot of the direction on the arc's great circle lies on the arc when it is on the inner
    // side of both ends.
    const Vector3d foot = d - un * d.dot(un);
    if (ua.cross(foot).dot(un) >= 0.0 && foot.cross(ub).dot(un) >= 0.0 && foot.dot(foot) > 0.0)
        return std::min(toEnds, std::asin(std::clamp(std::abs(d.dot(un)), 0.0, 1.0)));
    return toEnds;
}

bool isFinite(const Vector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

Vector3d unitDirection(const Vector3d& v)
{
    if (!isFinite(v))
        return {};
    const double largest = std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
    if (largest == 0.0)
        return {};
    return (v * (1.0 / largest)).normalized();
}

} // namespace TVX::CORE
