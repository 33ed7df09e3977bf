#include "scene/pointcloudcamera.h"

#include <QQuaternion>

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

namespace {

QVector3D turned(const QVector3D& v, const QVector3D& axis, float degrees)
{
    // A zero axis (up along the view) would give a quaternion that scales instead of turning.
    if (axis.lengthSquared() == 0.0f)
        return v;
    return QQuaternion::fromAxisAndAngle(axis, degrees).rotatedVector(v);
}

} // namespace

PointcloudCamera::PointcloudCamera(const QVector3D& cloudCentre)
    : side(QVector3D::crossProduct(up, QVector3D(-cloudCentre.x(), -cloudCentre.y(), cloudCentre.z()))),
      eye(-cloudCentre.x(), -cloudCentre.y(), cloudCentre.z())
{
}

void PointcloudCamera::orbit()
{
    QVector3D offset = turned(eye - centre, up, -yawDelta);
    side = QVector3D::crossProduct(up, offset);
    offset = turned(offset, side, -pitchDelta);
    up = turned(up, side, -pitchDelta);
    side = QVector3D::crossProduct(up, offset);
    pitchDelta = 0.0f;
    yawDelta = 0.0f;
    eye = centre + offset;
}

void PointcloudCamera::zoom(int steps)
{
    const QVector3D quarter = (eye - centre) * 0.25f;
    const QVector3D move = steps < 1 ? -quarter : quarter;
    eye += move;
    if (quarter.length() <= 1.0f)
        centre += move;
}

void PointcloudCamera::pan(int dx, int dy, int viewportHeight)
{
    const QVector3D forward = centre - eye;
    const float depth = forward.length();
    if (depth == 0.0f || viewportHeight <= 0)
        return;
    const QVector3D right = QVector3D::crossProduct(forward, up).normalized();
    const QVector3D screenUp = QVector3D::crossProduct(right, forward).normalized();
    // The height the view shows at the centre's depth, spread over the viewport's pixels.
    const double metresPerPixel = 2.0 * depth * std::tan(fieldOfView * M_PI / 360.0) / viewportHeight;
    // The camera moves against the drag, so the scene follows the mouse.
    const QVector3D shift = (right * float(-dx) + screenUp * float(dy)) * float(metresPerPixel);
    eye += shift;
    centre += shift;
}

PointcloudCamera::ClipPlanes PointcloudCamera::clipPlanes(const QVector3D& cloudCentre, double radius) const
{
    const double distance = (cloudCentre - eye).length();
    return {std::max(distance - radius, 0.0), distance + radius};
}

float PointcloudCamera::accumulatedTurn(float pending, int pixels)
{
    int degrees = (int(pending) + pixels) % 360;
    if (degrees < 0)
        degrees += 360;
    return float(degrees);
}

int PointcloudCamera::wheelSteps(int delta)
{
    return -delta / 120;
}

} // namespace TVX::CORE
