#include "testregistry.h"

#include "scene/pointdistance.h"
#include "scene/stationmarkgeometry.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

Q_DECLARE_METATYPE(TVX::CORE::Vector3d)

class StationMarkGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markSizes_data()
    {
        QTest::addColumn<double>("nearest");
        QTest::addColumn<double>("farthest");
        QTest::addColumn<double>("distance");
        QTest::addColumn<int>("size");
        QTest::newRow("nearest of 2, 6, 10 m") << 2.0 << 10.0 << 2.0 << 32;
        QTest::newRow("farthest of 2, 6, 10 m") << 2.0 << 10.0 << 10.0 << 16;
        QTest::newRow("5.0 and 5.05 m lie within 0.1 m") << 5.0 << 5.05 << 5.0 << 24;
        QTest::newRow("a single station") << 7.0 << 7.0 << 7.0 << 24;
    }

    void markSizes()
    {
        QFETCH(double, nearest);
        QFETCH(double, farthest);
        QFETCH(double, distance);
        QFETCH(int, size);
        QCOMPARE(stationMarkSize(nearest, farthest, distance), size);
    }

    // The grid spans the full turn and ±45°: a station straight ahead at the horizon lies at column
    // 0 in the middle row; horizontal angles grow clockwise seen from above (y < 0 first).
    void cells_data()
    {
        QTest::addColumn<Vector3d>("local");
        QTest::addColumn<bool>("inside");
        QTest::addColumn<QPoint>("cell");
        QTest::newRow("ahead") << Vector3d(5, 0, 0) << true << QPoint(0, 20);
        QTest::newRow("quarter turn clockwise") << Vector3d(0, -5, 0) << true << QPoint(10, 20);
        QTest::newRow("above the range") << Vector3d(1, 0, 5) << false << QPoint();
    }

    void cells()
    {
        QFETCH(Vector3d, local);
        QFETCH(bool, inside);
        QFETCH(QPoint, cell);
        QPoint result;
        QCOMPARE(stationMarkCell(local, 0.0, 2 * M_PI, -M_PI / 4, M_PI / 4, 40, 40, result), inside);
        if (inside)
            QCOMPARE(result, cell);
    }

    // On a scan tilted by 5°, two points at the same height in the project frame measure a height
    // difference of 0 and their full separation horizontally.
    void dimensioningIsLevelled()
    {
        const Matrix3d tilt = Matrix3d::rotationX(5 * M_PI / 180);
        const Matrix3d back = tilt.transposed();
        const Vector3d a = back * Vector3d(2, 1, 0.3);
        const Vector3d b = back * Vector3d(-1, 5, 0.3);
        QVERIFY(std::abs(a.z - b.z) > 0.1); // not level in the scanner's own frame
        QVERIFY(std::abs(dimensioningDistance(1, a, b, tilt)) < 1e-12);
        QVERIFY(std::abs(dimensioningDistance(2, a, b, tilt) - 5.0) < 1e-12);
        QVERIFY(std::abs(dimensioningDistance(0, a, b, tilt) - 5.0) < 1e-12);
        QCOMPARE(dimensioningDistance(3, a, b, tilt), -1.0);
    }
};

TVX_TEST(StationMarkGeometryTest)

#include "stationmarkgeometrytest.moc"
