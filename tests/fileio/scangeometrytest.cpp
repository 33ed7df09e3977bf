#include "testregistry.h"

#include "fileio/scangeometry.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

namespace {

struct OffsetRow {
    const char* name;
    quint32 column, row, columns, rows, tileSize, recordSize;
    quint64 offset;
};

struct PointRow {
    const char* name;
    quint32 column, row;
    int dx, dy;
    Vector3d point;
};

struct CellRow {
    const char* name;
    Vector3d point;
    double horizontalMax;
    qint32 column, row;
};

} // namespace
Q_DECLARE_METATYPE(OffsetRow)
Q_DECLARE_METATYPE(PointRow)
Q_DECLARE_METATYPE(CellRow)

// Record positions, the cell ↔ point mapping and its inverse.
class ScanGeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordOffset_data()
    {
        QTest::addColumn<OffsetRow>("row");
        // 10 × 6 cells in tiles of 4: tile columns of width 4, 4, 2 and tile rows of height 4, 2.
        const OffsetRow rows[] = {
            // Column by column inside a tile: (0, 1) is the second record, (1, 0) the fifth.
            {"next column", 1, 0, 10, 6, 4, 5, 12 + 4 * 5},
            // With 9-byte records strip 2 starts at 12 + 2·4·6·9 = 444 and tile (2, 1) after the 2 × 4
            // records of tile (2, 0): 444 + 72 = 516; (9, 5) is record 1 × 2 + 1 = 3 in it: 516 + 27.
            {"narrow last corner, 9-byte records", 9, 5, 10, 6, 4, 9, 543},
            // 70000 × 70000, tiles of 64, 9 bytes: the strip product 1093·9·70000·64 = 44 069 760 000
            // wraps to 44 069 760 000 − 10·2³² = 1 120 087 040; the last strip is 48 wide (70000 − 1093·64),
            // and (69999, 0) is record 47 × 64 in it: 12 + 1 120 087 040 + 3008·9.
            {"32-bit wrap of the strip product", 69999, 0, 70000, 70000, 64, 9, 1120114124},
        };
        for (const OffsetRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void recordOffset()
    {
        QFETCH(OffsetRow, row);
        QCOMPARE(TVX::CORE::recordOffset(row.column, row.row, row.columns, row.rows, row.tileSize, row.recordSize),
                 row.offset);
    }

    void pointOfCell_data()
    {
        QTest::addColumn<PointRow>("row");
        // 5 × 3 cells over h ∈ [0, π], v ∈ [−π/4, π/4]: both steps are π/4; distance 2 m.
        // halfDiag = 0.5·sqrt(2)·π/4 = π·sqrt(2)/8, the angle of an offset of ±127.
        const double h = M_PI / 2 + M_PI * std::sqrt(2.0) / 8;
        const PointRow rows[] = {
            // (2, 1): h = π/2, v = 0: x = 0, y = sin(π/2)·(−2)·1 = −2, z = 0.
            {"centre, y negative", 2, 1, 0, 0, {0.0, -2.0, 0.0}},
            // (2, 1) with dx 127: h = π/2 + π√2/8, v = 0: x = 2·cos h, y = −2·sin h.
            {"full sub-cell offset", 2, 1, 127, 0, {2 * std::cos(h), -2 * std::sin(h), 0.0}},
        };
        for (const PointRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void pointOfCell()
    {
        QFETCH(PointRow, row);
        const GridAngles grid = gridAngles(5, 3, 0.0, M_PI, -M_PI / 4, M_PI / 4);
        const Vector3d p = TVX::CORE::pointOfCell(row.column, row.row, qint8(row.dx), qint8(row.dy), 2.0, grid);
        QVERIFY2((p - row.point).length() < 1e-12,
                 qPrintable(QStringLiteral("(%1, %2, %3)").arg(p.x).arg(p.y).arg(p.z)));
    }

    void cellOfPoint_data()
    {
        QTest::addColumn<CellRow>("row");
        // Grid: 11 columns over h ∈ [0, hMax], 5 rows over v ∈ [−π/4, π/4].
        const auto direction = [](double h, double v) {
            return Vector3d(std::cos(h) * std::cos(v), -std::sin(h) * std::cos(v), std::sin(v));
        };
        const CellRow rows[] = {
            // |p|² = 2.5e-9 < 1e-8.
            {"closer than 1e-4 m", {5e-5, 0, 0}, M_PI, -1, -1},
            // (1e-4, 0, 0): |p|² = 1e-8 is not below the limit. h = 0, v = 0:
            // column = round(0) = 0; row = 5 − round(0.5·5) = 5 − 3 = 2 (round half away from zero).
            {"just far enough", {1e-4, 0, 0}, M_PI, 0, 2},
            // Column 8 lies at h = 0.8π; back: 0.8·11 = 8.8 → 9, not 8. Row 3 lies at v = −π/8;
            // back: (π/8)/(π/2)·5 = 1.25 → 1, row = 5 − 1 = 4, not 3. The scaling by columns and rows.
            {"asymmetry of the inverse", direction(0.8 * M_PI, -M_PI / 8), M_PI, 9, 4},
            // y > 0: h = 2π − acos(0) = 3π/2; over [0, 2π] with 11 columns: 0.75·11 = 8.25 → 8.
            {"positive y, second half turn", {0, 1, 0}, 2 * M_PI, 8, 2},
            // An empty horizontal range has no cells: the quotient is infinite.
            {"empty angle range", {1, -1, 0}, 0.0, -1, -1},
        };
        for (const CellRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void cellOfPoint()
    {
        QFETCH(CellRow, row);
        const auto cell = TVX::CORE::cellOfPoint(row.point, 0.0, row.horizontalMax, -M_PI / 4, M_PI / 4, 11, 5);
        QCOMPARE(cell.first, row.column);
        QCOMPARE(cell.second, row.row);
    }
};

TVX_TEST(ScanGeometryTest)
#include "scangeometrytest.moc"
