#pragma once

#include "scene/matrix3d.h"
#include "scene/vector3d.h"

#include <QPoint>
#include <QtGlobal>

#include <memory>

namespace TVX::CORE {

class ScanViewItem;
class ScanViewSceneGraph;

// What the operators may do to a spherical view: turn and zoom its camera, map pixels to
// directions and cells, find items under the cursor, and repaint it.
class SphericalViewControl
{
public:
    virtual ~SphericalViewControl() = default;

    // Degrees about the camera's X, Y and Z axes, added to its current angles.
    virtual void rotate(double dx, double dy, double dz) = 0;
    // One step of the field of view (4 degrees), within its limits.
    virtual void zoomIn() = 0;
    virtual void zoomOut() = 0;
    // Schedules a repaint.
    virtual void update() = 0;
    // Repaints before returning (used where the result must be visible at once).
    virtual void repaintNow() = 0;

    virtual quint32 scanId() const = 0;
    // The view state of the scan: camera, items, picked directions.
    virtual std::shared_ptr<ScanViewSceneGraph> sceneGraph() const = 0;
    // The unit direction from the camera through a widget pixel (y from the top); zero when
    // undefined.
    virtual Vector3d screenToDirection(qint32 x, qint32 y) const = 0;
    // The grid cell that a direction hits, unclamped: outside the grid when the direction is
    // outside the scanned extent; (-1, -1) for a zero direction.
    virtual QPoint directionToCell(const Vector3d& direction) const = 0;
    // Widget position (x, y from the top) of a point; false when it is not visible.
    virtual bool directionToScreen(const Vector3d& direction, double& x, double& y) const = 0;
    // The rows of the camera rotation matrix: the camera's axes in the scan's frame.
    virtual Matrix3d cameraRotation() const = 0;
    // The item drawn at a widget pixel (y from the top), else the scene graph's hit test along
    // the pixel's direction; empty when none.
    virtual std::shared_ptr<ScanViewItem> itemAt(qint32 x, qint32 y) const = 0;
};

} // namespace TVX::CORE
