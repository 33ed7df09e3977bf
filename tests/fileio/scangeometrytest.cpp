#include "testregistry.h"

#include "fileio/scangeometry.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

// Record positions, the cell ↔ point mapping and its inverse.
class ScanGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordOffset_data()
    {
        QTest::addColumn<quint32>("column");
        QTest::addColumn<quint32>("row");
        QTest::addColumn<quint32>("columns");
        QTest::addColumn<quint32>("rows");
        QTest::addColumn<quint32>("tileSize");
        QTest::addColumn<quint32>("recordSize");
        QTest::addColumn<quint64>("offset");

        // 10 × 6 cells in tiles of 4: tile columns of width 4, 4, 2 and tile rows of height 4, 2.
        QTest::newRow("first cell") << 0u << 0u << 10u << 6u << 4u << 5u << quint64(12);
        // Column by column inside a tile: (0, 1) is the second record, (1, 0) the fifth.
        QTest::newRow("next column") << 1u << 0u << 10u << 6u << 4u << 5u << quint64(12 + 4 * 5);
        // Tile row 1 of strip 0 starts after the 4 × 4 records of tile (0, 0): 12 + 80 = 92; it is
        // 2 rows high, so (1, 5) is record 1 × 2 + 1 = 3 in it: 92 + 15.
        QTest::newRow("narrow last tile row") << 1u << 5u << 10u << 6u << 4u << 5u << quint64(107);
        // Strip 2 starts after two full strips of 4 × 6 records: 12 + 2 × 4 × 6 × 5 = 252. It is 2
        // columns wide, so (9, 0) is record 1 × 4 + 0 = 4 in tile (2, 0): 252 + 20.
        QTest::newRow("narrow last tile strip") << 9u << 0u << 10u << 6u << 4u << 5u << quint64(272);
        // With 9-byte records strip 2 starts at 12 + 2·4·6·9 = 444 and tile (2, 1) after the 2 × 4
        // records of tile (2, 0): 444 + 72 = 516; (9, 5) is record 1 × 2 + 1 = 3 in it: 516 + 27.
        QTest::newRow("narrow last corner, 9-byte records") << 9u << 5u << 10u << 6u << 4u << 9u << quint64(543);
        // Fewer columns than one tile: the only tile column is the remainder (3 wide).
        QTest::newRow("grid narrower than a tile") << 2u << 1u << 3u << 2u << 64u << 5u
                                                   << quint64(12 + (2 * 2 + 1) * 5);
        // 70000 × 70000, tiles of 64, 9 bytes: the strip product 1093·9·70000·64 = 44 069 760 000
        // wraps to 44 069 760 000 − 10·2³² = 1 120 087 040; the last strip is 48 wide (70000 − 1093·64),
        // and (69999, 0) is record 47 × 64 in it: 12 + 1 120 087 040 + 3008·9.
        QTest::newRow("32-bit wrap of the strip product") << 69999u << 0u << 70000u << 70000u << 64u << 9u
                                                          << quint64(1120114124);
    }

    void recordOffset()
    {
        QFETCH(quint32, column);
        QFETCH(quint32, row);
        QFETCH(quint32, columns);
        QFETCH(quint32, rows);
        QFETCH(quint32, tileSize);
        QFETCH(quint32, recordSize);
        QFETCH(quint64, offset);
        QCOMPARE(TVX::CORE::recordOffset(column, row, columns, rows, tileSize, recordSize), offset);
    }

    void tileExtents_data()
    {
        QTest::addColumn<quint32>("cells");
        QTest::addColumn<quint32>("tileSize");
        QTest::addColumn<quint32>("count");
        QTest::addColumn<quint32>("lastExtent");

        QTest::newRow("multiple of the tile size") << 128u << 64u << 2u << 64u;
        QTest::newRow("remainder") << 130u << 64u << 3u << 2u;
        QTest::newRow("fewer cells than a tile") << 10u << 64u << 1u << 10u;
    }

    void tileExtents()
    {
        QFETCH(quint32, cells);
        QFETCH(quint32, tileSize);
        QFETCH(quint32, count);
        QFETCH(quint32, lastExtent);
        QCOMPARE(tileCount(cells, tileSize), count);
        QCOMPARE(tileExtent(count - 1, cells, tileSize), lastExtent);
        if (count > 1)
            QCOMPARE(tileExtent(0, cells, tileSize), tileSize);
    }

    void pointOfCell_data()
    {
        QTest::addColumn<quint32>("column");
        QTest::addColumn<quint32>("row");
        QTest::addColumn<int>("dx");
        QTest::addColumn<int>("dy");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("z");

        // 5 × 3 cells over h ∈ [0, π], v ∈ [−π/4, π/4]: both steps are π/4; distance 2 m.
        const double s = std::sqrt(0.5);
        // (0, 0): h = 0, v = (3 − 0 − 1)·π/4 − π/4 = π/4: x = cos 0·2·cos 45° = 2s, y = 0, z = 2s.
        QTest::newRow("top left") << 0u << 0u << 0 << 0 << 2 * s << 0.0 << 2 * s;
        // (2, 1): h = π/2, v = 0: x = 0, y = sin(π/2)·(−2)·1 = −2, z = 0.
        QTest::newRow("centre, y negative") << 2u << 1u << 0 << 0 << 0.0 << -2.0 << 0.0;
        // (4, 2): h = π, v = −π/4: x = −2s, y = 0, z = −2s.
        QTest::newRow("bottom right") << 4u << 2u << 0 << 0 << -2 * s << 0.0 << -2 * s;
        // halfDiag = 0.5·sqrt(2)·π/4 = π·sqrt(2)/8; dx = 127 adds it to h: (2, 1) with dx 127 is
        // h = π/2 + π√2/8, v = 0: x = 2·cos h, y = −2·sin h.
        const double h = M_PI / 2 + M_PI * std::sqrt(2.0) / 8;
        QTest::newRow("full sub-cell offset") << 2u << 1u << 127 << 0 << 2 * std::cos(h) << -2 * std::sin(h) << 0.0;
        // dy = −127 lowers v by the same: z = 2·sin(−π√2/8), x = 2·cos(π√2/8)·cos(π/2) ≈ 0.
        const double v = -M_PI * std::sqrt(2.0) / 8;
        QTest::newRow("negative vertical offset") << 2u << 1u << 0 << -127 << 0.0 << -2 * std::cos(v)
                                                  << 2 * std::sin(v);
    }

    void pointOfCell()
    {
        QFETCH(quint32, column);
        QFETCH(quint32, row);
        QFETCH(int, dx);
        QFETCH(int, dy);
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, z);
        const GridAngles grid = gridAngles(5, 3, 0.0, M_PI, -M_PI / 4, M_PI / 4);
        const Vector3d p = TVX::CORE::pointOfCell(column, row, qint8(dx), qint8(dy), 2.0, grid);
        QVERIFY2(std::abs(p.x - x) < 1e-12 && std::abs(p.y - y) < 1e-12 && std::abs(p.z - z) < 1e-12,
                 qPrintable(QStringLiteral("(%1, %2, %3)").arg(p.x).arg(p.y).arg(p.z)));
    }

    void cellOfPoint_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("z");
        QTest::addColumn<double>("horizontalMax");
        QTest::addColumn<qint32>("column");
        QTest::addColumn<qint32>("row");

        // Grid: 11 columns over h ∈ [0, hMax], 5 rows over v ∈ [−π/4, π/4].
        QTest::newRow("station") << 0.0 << 0.0 << 0.0 << M_PI << -1 << -1;
        // |p|² = 2.5e-9 < 1e-8.
        QTest::newRow("closer than 1e-4 m") << 5e-5 << 0.0 << 0.0 << M_PI << -1 << -1;
        // (1e-4, 0, 0): |p|² = 1e-8 is not below the limit. h = 0, v = 0:
        // column = round(0) = 0; row = 5 − round(0.5·5) = 5 − 3 = 2 (round half away from zero).
        QTest::newRow("just far enough") << 1e-4 << 0.0 << 0.0 << M_PI << 0 << 2;
        // Forward, column 4 of 11 lies at h = 4·π/10 = 0.4π; back: 0.4·11 = 4.4 → 4. Row 1 lies at
        // v = 3·π/8 − π/4 = π/8; back: (3π/8)/(π/2)·5 = 3.75 → 4, row = 5 − 4 = 1.
        QTest::newRow("round trip that holds")
            << std::cos(0.4 * M_PI) * std::cos(M_PI / 8) << -std::sin(0.4 * M_PI) * std::cos(M_PI / 8)
            << std::sin(M_PI / 8) << M_PI << 4 << 1;
        // Column 8 lies at h = 0.8π; back: 0.8·11 = 8.8 → 9, not 8. Row 3 lies at v = −π/8;
        // back: (π/8)/(π/2)·5 = 1.25 → 1, row = 5 − 1 = 4, not 3. The scaling by columns and rows.
        QTest::newRow("asymmetry of the inverse")
            << std::cos(0.8 * M_PI) * std::cos(-M_PI / 8) << -std::sin(0.8 * M_PI) * std::cos(-M_PI / 8)
            << std::sin(-M_PI / 8) << M_PI << 9 << 4;
        // y > 0: h = 2π − acos(0) = 3π/2; over [0, 2π] with 11 columns: 0.75·11 = 8.25 → 8.
        QTest::newRow("positive y, second half turn") << 0.0 << 1.0 << 0.0 << 2 * M_PI << 8 << 2;
        // Straight up: ρ = 0 gives h = 0; v = π/2: (π/2 + π/4)/(π/2)·5 = 7.5 → 8, row 5 − 8 = −3.
        QTest::newRow("zenith, above the grid") << 0.0 << 0.0 << 3.0 << M_PI << 0 << -3;
        // An empty horizontal range has no cells: the quotient is infinite.
        QTest::newRow("empty angle range") << 1.0 << -1.0 << 0.0 << 0.0 << -1 << -1;
    }

    void cellOfPoint()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(double, z);
        QFETCH(double, horizontalMax);
        QFETCH(qint32, column);
        QFETCH(qint32, row);
        const auto cell = TVX::CORE::cellOfPoint({x, y, z}, 0.0, horizontalMax, -M_PI / 4, M_PI / 4, 11, 5);
        QCOMPARE(cell.first, column);
        QCOMPARE(cell.second, row);
    }
};

TVX_TEST(ScanGeometryTest)
#include "scangeometrytest.moc"
