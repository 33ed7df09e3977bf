#pragma once

#include "scene/scanpose.h"
#include "scene/vector3d.h"

#include <QString>
#include <QtGlobal>

namespace TVX::CORE {

// The differences between two points of possibly different scans, in the common project frame.
struct PointDistance {
    double dx{0.0}; // absolute differences, metres
    double dy{0.0};
    double dz{0.0};
    double distance3D{0.0};
    double distanceXY{0.0};
};

// Takes each point (in its scan's frame) into the project frame with its scan's pose. The two
// translations are first reduced by their mean, so that large project coordinates cost no
// precision; the differences are the same as with the full translations.
PointDistance pointDistance(const Vector3d& first, const ScanPose& firstPose, const Vector3d& second,
                            const ScanPose& secondPose);

// The distance that a planar dimensioning of `type` measures between two points of one scan
// (scan frame): 0 the 3D distance, 1 the height difference |dz|, 2 the horizontal distance. The
// points are first turned into the project frame with the scan's rotation, so that a tilted scan
// measures height and horizontal distance levelled; the translation cancels. -1 for another type.
double dimensioningDistance(quint32 type, const Vector3d& first, const Vector3d& second, const Matrix3d& rotation);

// The label of a dimensioning: "12.345 m (3D)", "-.-- m (DZ)" when no value could be measured;
// no suffix for an unknown type.
QString dimensioningLabel(quint32 type, double value, bool valid);

} // namespace TVX::CORE
