#pragma once

#include <QtGlobal>

#include <utility>
#include <vector>

namespace TVX::CORE {

// Angle arithmetic of the scan import (radians).

// The angle brought into (−π, π].
double wrapAngle(double angle);
// atan2(across, along) for directions near the axis, by a series good to 2e-9 rad while
// |across / along| < 0.2 (std::atan2 beyond): most of the import's time per point went there.
double smallAngle(double along, double across);
// An angle in units of the sub-cell offset (halfDiagonal / 127 each), rounded and clamped to ±127.
qint8 subCellOffset(double angle, double halfDiagonal);
// Least squares line y = a + b·x through (x, y). False with fewer than two distinct x, or a
// slope of (nearly) 0.
bool fitLine(const std::vector<std::pair<double, double>>& samples, double& a, double& b);
// Of the steps within 12 % of `estimate`, the one at which `angles` cluster best around multiples
// of it (the longest mean of the unit vectors at angle × 2π / step); up to 8192 of the angles are
// looked at.
double clusteredStep(const std::vector<double>& angles, double estimate);
// Where the angles cluster against `step`: an angle whose multiples plus it are the cluster centres.
double clusterPhase(const std::vector<double>& angles, double step);

} // namespace TVX::CORE
