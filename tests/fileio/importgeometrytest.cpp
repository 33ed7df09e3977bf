#include "testregistry.h"

#include "fileio/importgeometry.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

// The angle arithmetic of the import, against the plain formulas.
class ImportGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // units = angle / halfDiagonal × 127, rounded, clamped to ±127.
    void subCellOffsets_data()
    {
        QTest::addColumn<double>("units");
        QTest::addColumn<int>("expected");
        QTest::newRow("rounds down") << 0.4 << 0;
        QTest::newRow("rounds up") << 0.6 << 1;
        QTest::newRow("negative") << -42.3 << -42;
        QTest::newRow("edge of the cell") << 127.0 << 127;
        QTest::newRow("beyond the cell") << 300.0 << 127;
        QTest::newRow("far beyond, negative") << -1e12 << -127;
    }
    void subCellOffsets()
    {
        QFETCH(double, units);
        QFETCH(int, expected);
        const double halfDiagonal = 0.0123;
        QCOMPARE(int(subCellOffset(units * halfDiagonal / 127.0, halfDiagonal)), expected);
    }

    // The series and std::atan2 agree wherever the series is used, and beyond it.
    void smallAngles_data()
    {
        QTest::addColumn<double>("along");
        QTest::addColumn<double>("across");
        QTest::newRow("a small angle") << 12.0 << 0.01;
        QTest::newRow("just inside the series") << 1.0 << -0.1999;
        QTest::newRow("just outside") << 1.0 << 0.2001;
        QTest::newRow("right angle") << 0.0 << 3.0;
        QTest::newRow("behind") << -2.0 << 0.1;
    }
    void smallAngles()
    {
        QFETCH(double, along);
        QFETCH(double, across);
        QVERIFY(std::abs(smallAngle(along, across) - std::atan2(across, along)) < 2e-9);
    }

    void wrappedAngles()
    {
        QVERIFY(std::abs(wrapAngle(2 * M_PI + 0.25) - 0.25) < 1e-12);
        QVERIFY(std::abs(wrapAngle(-3 * M_PI / 2) - M_PI / 2) < 1e-12);
    }

    // A grid of 0.0246 rad steps whose points stray up to ±40 % of a step is found from an
    // estimate 8 % too large, and so is where its cell centres lie.
    void clusteredSteps()
    {
        const double step = 0.0246, start = 0.3;
        std::vector<double> angles;
        for (int k = 0; k < 70; ++k) {
            for (int j = 0; j < 30; ++j) { // evenly spread strays, from a golden-ratio sequence
                const double spread = std::fmod(k * 0.618034 + j * 0.381966, 1.0) - 0.5;
                angles.push_back(start + k * step + 0.8 * spread * step);
            }
        }
        const double found = clusteredStep(angles, step * 1.08);
        QVERIFY2(std::abs(found - step) < 0.003 * step, qPrintable(QString::number(found)));
        const double phase = clusterPhase(angles, step);
        const double offset = std::remainder(phase - start, step); // centres at start + k·step
        QVERIFY2(std::abs(offset) < 0.05 * step, qPrintable(QString::number(offset)));
    }

    void fittedLines()
    {
        double a = 0, b = 0;
        QVERIFY(fitLine({{0, 1.0}, {1, 1.5}, {2, 2.0}, {3, 2.5}}, a, b));
        QCOMPARE(a, 1.0);
        QCOMPARE(b, 0.5);
        QVERIFY(!fitLine({{2, 1.0}, {2, 3.0}}, a, b)); // one column only
        QVERIFY(!fitLine({{0, 1.0}, {1, 1.0}}, a, b)); // no slope: no grid
    }
};

TVX_TEST(ImportGeometryTest)
#include "importgeometrytest.moc"
