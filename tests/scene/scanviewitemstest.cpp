#include "testregistry.h"

#include "scene/scanviewellipse.h"
#include "scene/scanviewmeasurementitem.h"
#include "scene/scanviewrectangle.h"
#include "scene/scanviewtextitem.h"
#include "scene/spheregeometry.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

Q_DECLARE_METATYPE(TVX::CORE::Vector3d)

namespace {

// A direction in the plane x = 1 in front of the station.
Vector3d ahead(double u, double v)
{
    return Vector3d(1.0, u, v).normalized();
}

// `d` turned by `angle` towards `towards` (which must not be parallel to it), in the plane of both.
Vector3d tilted(const Vector3d& d, const Vector3d& towards, double angle)
{
    const Vector3d unit = d.normalized();
    const Vector3d across = (towards - unit * towards.dot(unit)).normalized();
    return unit * std::cos(angle) + across * std::sin(angle);
}

} // namespace

// Hit tests of the point-like, line-like and area items; the polygon has its own test.
class ScanViewItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rectangles share p1 = (1, −0.1, −0.1), the corner between the two edges, and p2 = (1, 0.1, −0.1).
    void rectangleHit_data()
    {
        QTest::addColumn<Vector3d>("p0");
        QTest::addColumn<Vector3d>("direction");
        QTest::addColumn<bool>("hit");
        // A square of corners (±0.1, ±0.1) in the plane x = 1.
        const Vector3d square(1, -0.1, 0.1);
        // A parallelogram: p1 + s·(p2 - p1) + t·(p0 - p1); (0.15, 0.05) has s = 0.875, t = 0.75.
        const Vector3d skewed(1, 0.0, 0.1);
        // Only the quad's second triangle, reaching to p0 + p2 - p1, covers this one.
        QTest::newRow("near the derived fourth corner") << square << ahead(0.09, 0.09) << true;
        QTest::newRow("parallelogram, inside its slanted part") << skewed << ahead(0.15, 0.05) << true;
        QTest::newRow("parallelogram, cut-off corner") << skewed << ahead(-0.09, 0.09) << false;
    }

    void rectangleHit()
    {
        QFETCH(Vector3d, p0);
        QFETCH(Vector3d, direction);
        QFETCH(bool, hit);
        const Vector3d p1(1, -0.1, -0.1), p2(1, 0.1, -0.1);
        const ScanViewRectangle rectangle(p0, p1, p2);
        QCOMPARE(rectangle.hitTest(direction), hit);
        QVERIFY(!rectangle.hitTest(-direction));
    }

    void ellipseHit_data()
    {
        QTest::addColumn<Vector3d>("axisEnd2");
        QTest::addColumn<double>("s"); // the direction runs through centre + s·(end1 - centre) + t·(end2 - centre)
        QTest::addColumn<double>("t");
        QTest::addColumn<bool>("hit");

        const Vector3d square(1, 0, 0.1), slanted(1, 0.1, 0.1);
        QTest::newRow("centre") << square << 0.0 << 0.0 << true;
        QTest::newRow("slanted axes, outside") << slanted << 0.8 << 0.8 << false;
    }

    void ellipseHit()
    {
        QFETCH(Vector3d, axisEnd2);
        QFETCH(double, s);
        QFETCH(double, t);
        QFETCH(bool, hit);

        // Unit directions as the view makes them: their plane is not x = 1 but tilted.
        const Vector3d centre = Vector3d(1, 0, 0);
        const Vector3d end1 = Vector3d(1, 0.2, 0).normalized();
        const Vector3d end2 = axisEnd2.normalized();
        const ScanViewEllipse ellipse(centre, end1, end2);
        const Vector3d through = centre + (end1 - centre) * s + (end2 - centre) * t;
        QCOMPARE(ellipse.hitTest(through), hit);
        QCOMPARE(ellipse.hitTest(through * 3.0), hit);
        QVERIFY(!ellipse.hitTest(-through));
    }

    void textHit_data()
    {
        QTest::addColumn<Vector3d>("anchor");
        QTest::addColumn<double>("offAngle"); // in multiples of the pick angle
        QTest::addColumn<bool>("hit");

        QTest::newRow("on the anchor") << Vector3d(0, 0, 1) << 0.0 << true;
        QTest::newRow("beyond the pick angle") << Vector3d(0.3, -0.4, 0.2) << 1.2 << false;
    }

    void textHit()
    {
        QFETCH(Vector3d, anchor);
        QFETCH(double, offAngle);
        QFETCH(bool, hit);

        const ScanViewTextItem text(QStringLiteral("Pfeiler"), anchor);
        const Vector3d direction = tilted(anchor, Vector3d(0.1, 0.7, -0.3), offAngle * itemPickAngle);
        QCOMPARE(text.hitTest(direction), hit);
        QCOMPARE(text.hitTest(direction * 0.01), hit);
    }

    void measurementHit_data()
    {
        QTest::addColumn<Vector3d>("first");
        QTest::addColumn<Vector3d>("second");
        QTest::addColumn<Vector3d>("direction");
        QTest::addColumn<bool>("hit");

        // A quarter circle from x to y in the horizontal plane; the pick angle lifts or turns off it.
        const Vector3d x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
        const Vector3d middle = Vector3d(1, 1, 0).normalized();
        QTest::newRow("middle of the arc") << x << y << middle << true;
        QTest::newRow("above the arc beyond the pick angle") << x << y << tilted(middle, z, 1.2 * itemPickAngle) << false;
        // On the same great circle but off the shorter arc between the ends.
        QTest::newRow("on the great circle beyond the second end") << x << y << Vector3d(-1, 1, 0) << false;
    }

    void measurementHit()
    {
        QFETCH(Vector3d, first);
        QFETCH(Vector3d, second);
        QFETCH(Vector3d, direction);
        QFETCH(bool, hit);

        const ScanViewMeasurementItem measurement(2, first, second);
        QCOMPARE(measurement.hitTest(direction), hit);
        // The arc has no direction of its own.
        const ScanViewMeasurementItem reversed(2, second, first);
        QCOMPARE(reversed.hitTest(direction), hit);
    }

    // An item without enough points has nothing to hit, even with every point straight ahead.
    void tooFewPointsNeverHit()
    {
        const std::pair<std::shared_ptr<ScanViewItem>, std::size_t> items[] = {
            {std::make_shared<ScanViewRectangle>(), 2},
            {std::make_shared<ScanViewTextItem>(), 0},
            {std::make_shared<ScanViewMeasurementItem>(), 1},
        };
        for (const auto& [item, points] : items) {
            item->setPoints(std::vector<Vector3d>(points, Vector3d(1, 0, 0)));
            QVERIFY(!item->hitTest({1, 0, 0}));
            QVERIFY(!item->hitTest({1, 0.01, 0.01}));
        }
    }
};

TVX_TEST(ScanViewItemsTest)

#include "scanviewitemstest.moc"
