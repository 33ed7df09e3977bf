#include "testregistry.h"

#include "quaternionangles.h"

#include <QTest>

#include <array>
#include <cmath>

using namespace TVX::VIEWER;

namespace {

using Quaternion = std::array<double, 4>; // a, b, c (vector part), d (scalar part)
using Angles = std::array<double, 3>;       // radians

constexpr double degrees = M_PI / 180.0;

Quaternion product(const Quaternion& p, const Quaternion& q)
{
    return {p[3] * q[0] + p[0] * q[3] + p[1] * q[2] - p[2] * q[1],
            p[3] * q[1] - p[0] * q[2] + p[1] * q[3] + p[2] * q[0],
            p[3] * q[2] + p[0] * q[1] - p[1] * q[0] + p[2] * q[3],
            p[3] * q[3] - p[0] * q[0] - p[1] * q[1] - p[2] * q[2]};
}

// A turn by angle about one axis (0 x, 1 y, 2 z): sin(angle / 2) on that axis, cos(angle / 2) as d.
Quaternion turn(int axis, double angle)
{
    Quaternion q{0, 0, 0, std::cos(angle / 2)};
    q[size_t(axis)] = std::sin(angle / 2);
    return q;
}

// Turns about x, then y, then z: the order in which the three angles are read back.
Quaternion xyz(double first, double second, double third)
{
    return product(turn(2, third), product(turn(1, second), turn(0, first)));
}

// -q is the same rotation as q.
Quaternion negated(Quaternion q)
{
    for (double& value : q)
        value = -value;
    return q;
}

struct Row {
    const char* name;
    Quaternion q;
    Angles angles;
};

} // namespace

Q_DECLARE_METATYPE(Quaternion)
Q_DECLARE_METATYPE(Angles)

class QuaternionAnglesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void angles_data()
    {
        QTest::addColumn<Quaternion>("q");
        QTest::addColumn<Angles>("angles");
        const double s = std::sqrt(0.5);
        const Row rows[] = {
            {"zero quaternion gives zeros, not NaN", {0, 0, 0, 0}, {0, 0, 0}},
            {"x, y and z combined", xyz(-70 * degrees, 25 * degrees, 120 * degrees),
             {-70 * degrees, 25 * degrees, 120 * degrees}},
            {"same turn, negated quaternion", negated(xyz(10 * degrees, -5 * degrees, 60 * degrees)),
             {10 * degrees, -5 * degrees, 60 * degrees}},
            // q = turn_y(90°)·turn_x(50°) = (s·sin25°, s·cos25°, -s·sin25°, s·cos25°): both arguments of
            // the first atan2 vanish exactly, and 2·atan2(a, d) = 2·25° gives the turn.
            {"gimbal lock, first from 2 atan2(a, d)",
             {s * std::sin(25 * degrees), s * std::cos(25 * degrees), -s * std::sin(25 * degrees),
              s * std::cos(25 * degrees)},
             {50 * degrees, 90 * degrees, 0}},
            // Not normalised: -2(ac - bd) = 2 lies outside asin's domain and is clamped to 1.
            {"asin argument beyond 1 is clamped", {0, 1, 0, 1}, {0, 90 * degrees, 0}},
        };
        for (const Row& row : rows)
            QTest::newRow(row.name) << row.q << row.angles;
    }

    void angles()
    {
        QFETCH(Quaternion, q);
        QFETCH(Angles, angles);
        const Angles result = quaternionToAngles(q[0], q[1], q[2], q[3]);
        for (size_t i = 0; i < 3; ++i) {
            QVERIFY2(std::abs(result[i] - angles[i]) < 1e-12,
                     qPrintable(QStringLiteral("angle %1: %2 instead of %3")
                                    .arg(i)
                                    .arg(result[i], 0, 'g', 17)
                                    .arg(angles[i], 0, 'g', 17)));
        }
    }
};

TVX_TEST(QuaternionAnglesTest)

#include "quaternionanglestest.moc"
