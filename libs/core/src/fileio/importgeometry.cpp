#include "fileio/importgeometry.h"

#include <algorithm>
#include <cmath>

namespace TVX::CORE {

namespace {
constexpr double twoPi = 2 * M_PI;
constexpr std::size_t clusterSamples = 8192;
} // namespace

double wrapAngle(double angle)
{
    return angle - twoPi * std::round(angle / twoPi);
}

double smallAngle(double along, double across)
{
    if (along > 0 && std::abs(across) < 0.2 * along) {
        const double t = across / along;
        const double t2 = t * t;
        return t * (1 - t2 * (1.0 / 3 - t2 * (1.0 / 5 - t2 * (1.0 / 7 - t2 * (1.0 / 9)))));
    }
    return std::atan2(across, along);
}

qint8 subCellOffset(double angle, double halfDiagonal)
{
    const double units = angle / halfDiagonal * 127.0;
    if (!(units == units))
        return 0;
    // qRound inlines where std::lround is a call: this runs twice per cell.
    return qint8(std::clamp(qRound(std::clamp(units, -200.0, 200.0)), -127, 127));
}

bool fitLine(const std::vector<std::pair<double, double>>& samples, double& a, double& b)
{
    if (samples.size() < 2)
        return false;
    double sx = 0, sy = 0;
    for (const auto& [x, y] : samples) {
        sx += x;
        sy += y;
    }
    const double n = double(samples.size());
    const double mx = sx / n, my = sy / n;
    double sxx = 0, sxy = 0;
    for (const auto& [x, y] : samples) {
        sxx += (x - mx) * (x - mx);
        sxy += (x - mx) * (y - my);
    }
    if (sxx <= 0)
        return false;
    b = sxy / sxx;
    a = my - b * mx;
    return std::isfinite(a) && std::isfinite(b) && std::abs(b) > 1e-12;
}

namespace {
// Squared length of the sum of the unit vectors at angle × 2π / step, and its direction.
std::pair<double, double> clustering(const std::vector<double>& angles, double step)
{
    const std::size_t every = std::max<std::size_t>(1, angles.size() / clusterSamples);
    double c = 0, s = 0;
    for (std::size_t i = 0; i < angles.size(); i += every) {
        c += std::cos(twoPi * angles[i] / step);
        s += std::sin(twoPi * angles[i] / step);
    }
    return {c * c + s * s, std::atan2(s, c)};
}
} // namespace

double clusteredStep(const std::vector<double>& angles, double estimate)
{
    double best = estimate, bestStrength = -1;
    for (int k = -60; k <= 60; ++k) {
        const double step = estimate * (1 + 0.002 * k);
        const double strength = clustering(angles, step).first;
        if (strength > bestStrength) {
            bestStrength = strength;
            best = step;
        }
    }
    return best;
}

double clusterPhase(const std::vector<double>& angles, double step)
{
    const auto [strength, direction] = clustering(angles, step);
    return strength > 0 ? direction / twoPi * step : 0.0;
}

} // namespace TVX::CORE
