#pragma once

#include <QVector3D>

namespace TVX::CORE {

// The camera of the point cloud view, without GL: it orbits `centre`, zooms by moving the eye and
// pans in the view plane. Points and directions in the scan frame (metres), in 32-bit floats as
// the view hands them to GL. Angles in degrees.
class PointcloudCamera final
{
public:
    struct ClipPlanes {
        double nearPlane = 0.0;
        double farPlane = 0.0;
    };

    // The fixed vertical field of view: zoom moves the eye instead.
    static constexpr double fieldOfView = 45.0;

    // Looks at the station (0, 0, 0) from opposite the cloud's centre across the vertical axis, at
    // the centre's height: eye = (−c.x, −c.y, c.z); the z is not negated, on purpose. Up is +z.
    explicit PointcloudCamera(const QVector3D& cloudCentre = QVector3D());

    QVector3D up{0.0f, 0.0f, 1.0f};
    QVector3D side; // up × (eye − centre), not normalised
    QVector3D eye;
    QVector3D centre;
    // Turns waiting for the next orbit().
    float pitchDelta = 0.0f;
    float yawDelta = 0.0f;

    // Applies the pending turns and clears them: the eye turns by −yawDelta about up, then eye and
    // up by −pitchDelta about side. Turning about a zero axis changes nothing.
    void orbit();
    // Zoom by the sign of `steps` only: a quarter of the eye's offset from the centre towards the
    // centre for steps < 1, away from it otherwise. Within four units of the centre (offset
    // quarter no longer than 1) the centre moves along with the eye, so the zoom never stalls.
    void zoom(int steps);
    // Shifts eye and centre in the view plane so that what lies at the centre's depth follows a
    // drag of (dx, dy) widget pixels (y down) in a viewport `viewportHeight` pixels high.
    void pan(int dx, int dy, int viewportHeight);

    // Near and far plane around a cloud's bounding sphere: d − r (never below 0) and d + r, d the
    // distance from the cloud's centre to the eye.
    ClipPlanes clipPlanes(const QVector3D& cloudCentre, double radius) const;

    // A pending turn plus a drag of `pixels` (one degree each): the pending turn's integer part
    // plus the pixels, modulo 360, in [0, 360).
    static float accumulatedTurn(float pending, int pixels);
    // Zoom steps of a wheel delta (120 per notch): −delta / 120 truncated towards zero.
    static int wheelSteps(int delta);
};

} // namespace TVX::CORE
