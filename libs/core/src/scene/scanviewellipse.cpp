#include "scene/scanviewellipse.h"

#include <cmath>

namespace TVX::CORE {

ScanViewEllipse::ScanViewEllipse() = default;

ScanViewEllipse::ScanViewEllipse(const Vector3d& centre, const Vector3d& axisEnd1, const Vector3d& axisEnd2)
    : ScanViewItem({centre, axisEnd1, axisEnd2})
{
}

bool ScanViewEllipse::hitTest(const Vector3d& direction) const
{
    const std::vector<Vector3d>& p = points();
    if (p.size() < 3)
        return false;
    const Vector3d& centre = p[0];
    const Vector3d u = p[1] - centre;
    const Vector3d v = p[2] - centre;
    const Vector3d normal = u.cross(v);
    const double along = direction.dot(normal);
    // A ray parallel to the ellipse's plane, or collinear axes, meets no area.
    if (!(std::abs(along) > 1e-12 * direction.length() * normal.length()))
        return false;
    const double distance = centre.dot(normal) / along;
    if (!(distance > 0.0))
        return false;
    // Coordinates (s, t) of the meeting point in the basis (u, v), from the normal equations.
    const Vector3d q = direction * distance - centre;
    const double uu = u.dot(u);
    const double uv = u.dot(v);
    const double vv = v.dot(v);
    const double qu = q.dot(u);
    const double qv = q.dot(v);
    const double det = uu * vv - uv * uv;
    const double s = (qu * vv - qv * uv) / det;
    const double t = (qv * uu - qu * uv) / det;
    return s * s + t * t <= 1.0;
}

std::vector<Vector3d> ScanViewEllipse::outline(int segments) const
{
    const std::vector<Vector3d>& p = points();
    if (p.size() < 3 || segments <= 0)
        return {};
    const Vector3d u = p[1] - p[0];
    const Vector3d v = p[2] - p[0];
    std::vector<Vector3d> result;
    result.reserve(std::size_t(segments));
    for (int i = 0; i < segments; ++i) {
        const double angle = 2.0 * M_PI * i / segments;
        result.push_back((p[0] + u * std::cos(angle) + v * std::sin(angle)).normalized());
    }
    return result;
}

} // namespace TVX::CORE
