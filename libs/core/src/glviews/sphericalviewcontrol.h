#pragma once

namespace TVX::CORE {

// What the operators may do to a spherical view: turn and zoom its camera and repaint it.
class SphericalViewControl
{
public:
    virtual ~SphericalViewControl() = default;

    // Degrees about the camera's X, Y and Z axes, added to its current angles.
    virtual void rotate(double dx, double dy, double dz) = 0;
    // One step of the field of view (4 degrees), within its limits.
    virtual void zoomIn() = 0;
    virtual void zoomOut() = 0;
    virtual void update() = 0;
};

} // namespace TVX::CORE
