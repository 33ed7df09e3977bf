#include "scene/pointdistance.h"

#include <cmath>

namespace TVX::CORE {

PointDistance pointDistance(const Vector3d& first, const ScanPose& firstPose, const Vector3d& second,
                            const ScanPose& secondPose)
{
    const Vector3d mean = (firstPose.translation + secondPose.translation) * 0.5;
    const Vector3d a = firstPose.rotation * first + (firstPose.translation - mean);
    const Vector3d b = secondPose.rotation * second + (secondPose.translation - mean);
    PointDistance result;
    result.dx = std::abs(a.x - b.x);
    result.dy = std::abs(a.y - b.y);
    result.dz = std::abs(a.z - b.z);
    result.distance3D = std::sqrt(result.dx * result.dx + result.dy * result.dy + result.dz * result.dz);
    result.distanceXY = std::hypot(result.dx, result.dy);
    return result;
}

double dimensioningDistance(quint32 type, const Vector3d& first, const Vector3d& second, const Matrix3d& rotation)
{
    const Vector3d d = rotation * first - rotation * second;
    switch (type) {
    case 0:
        return std::sqrt(d.dot(d));
    case 1:
        return std::abs(d.z);
    case 2:
        return std::hypot(d.x, d.y);
    default:
        return -1.0;
    }
}

QString dimensioningLabel(quint32 type, double value, bool valid)
{
    static const char* const suffixes[] = {" (3D)", " (DZ)", " (XY)"};
    const QString number =
        valid ? QStringLiteral("%1 m").arg(value, 0, 'f', 3, QLatin1Char(' ')) : QStringLiteral("-.-- m");
    return number + (type < 3 ? QLatin1String(suffixes[type]) : QLatin1String(""));
}

} // namespace TVX::CORE
