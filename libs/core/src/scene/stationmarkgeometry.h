#pragma once

#include "scene/matrix3d.h"
#include "scene/vector3d.h"

#include <QPoint>

namespace TVX::CORE {

// Where and how large the mark of another scan's station is drawn in a scan's views.

// The inverse by the adjugate over the determinant; the identity when the determinant is exactly 0,
// so that a broken pose still places marks somewhere sensible.
Matrix3d inverseByAdjugate(const Matrix3d& matrix);

// Marks shrink with distance: 32 pixels for the nearest station down to 16 for the farthest, all
// 24 when the stations lie within 0.1 m of each other's distance.
int stationMarkSize(double nearest, double farthest, double distance);

// The planar cell of a station seen from the viewing station (`local` in the viewing scan's
// frame). False when it falls outside the grid.
bool stationMarkCell(const Vector3d& local, double horizontalMin, double horizontalMax, double verticalMin,
                     double verticalMax, quint32 columns, quint32 rows, QPoint& cell);

} // namespace TVX::CORE
