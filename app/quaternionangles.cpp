#include "quaternionangles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVX::VIEWER {

std::array<double, 3> quaternionToAngles(double a, double b, double c, double d)
{
    const double third = std::atan2(2.0 * (a * b + c * d), a * a + d * d - b * b - c * c);
    const double second = std::asin(std::clamp(-2.0 * (a * c - b * d), -1.0, 1.0));
    const double y = 2.0 * (b * c + a * d);
    const double x = d * d - a * a - b * b + c * c;
    // Both arguments vanish at gimbal lock, where atan2 would say nothing about the turn.
    constexpr double epsilon = std::numeric_limits<double>::epsilon();
    const double first = (std::abs(y) <= epsilon && std::abs(x) <= epsilon) ? 2.0 * std::atan2(a, d) : std::atan2(y, x);
    return {first, second, third};
}

} // namespace TVX::VIEWER
