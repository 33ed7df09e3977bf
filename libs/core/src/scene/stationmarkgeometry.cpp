#include "scene/stationmarkgeometry.h"

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

Matrix3d inverseByAdjugate(const Matrix3d& a)
{
    const double det = a(0, 0) * (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1))
                       - a(0, 1) * (a(1, 0) * a(2, 2) - a(1, 2) * a(2, 0))
                       + a(0, 2) * (a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0));
    if (det == 0.0)
        return Matrix3d::identity();
    const double f = 1.0 / det;
    return Matrix3d({(a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) * f, (a(0, 2) * a(2, 1) - a(0, 1) * a(2, 2)) * f,
                     (a(0, 1) * a(1, 2) - a(0, 2) * a(1, 1)) * f, (a(1, 2) * a(2, 0) - a(1, 0) * a(2, 2)) * f,
                     (a(0, 0) * a(2, 2) - a(0, 2) * a(2, 0)) * f, (a(0, 2) * a(1, 0) - a(0, 0) * a(1, 2)) * f,
                     (a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0)) * f, (a(0, 1) * a(2, 0) - a(0, 0) * a(2, 1)) * f,
                     (a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0)) * f});
}

int stationMarkSize(double nearest, double farthest, double distance)
{
    const double range = farthest - nearest;
    if (range > 0.1)
        return int(32.0 - (distance - nearest) / range * 16.0);
    return 24;
}

bool stationMarkCell(const Vector3d& local, double horizontalMin, double horizontalMax, double verticalMin,
                     double verticalMax, quint32 columns, quint32 rows, QPoint& cell)
{
    double h = 0.0;
    double v = 0.0;
    const double r = local.length();
    if (r > 0.0) {
        v = std::asin(std::clamp(local.z / r, -1.0, 1.0));
        const double rho = std::hypot(local.x, local.y);
        if (rho > 0.0) {
            h = std::acos(std::clamp(local.x / rho, -1.0, 1.0));
            if (local.y > 0.0)
                h = 2.0 * M_PI - h;
        }
    }
    const double column = (h - horizontalMin) / (horizontalMax - horizontalMin) * double(columns) + 0.5;
    const double row = (1.0 - (v - verticalMin) / (verticalMax - verticalMin)) * double(rows) + 0.5;
    // Truncation towards zero keeps values just below 0 in the grid; NaN from an empty angle range
    // and values past the 32-bit range are refused here.
    if (!(column > -1.0 && column < double(columns) + 1.0 && row > -1.0 && row < double(rows) + 1.0))
        return false;
    const qint32 c = qint32(column);
    const qint32 rw = qint32(row);
    if (c < 0 || c >= qint64(columns) || rw < 0 || rw >= qint64(rows))
        return false;
    cell = QPoint(c, rw);
    return true;
}

} // namespace TVX::CORE
