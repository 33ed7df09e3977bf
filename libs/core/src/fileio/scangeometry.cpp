#include "fileio/scangeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TVX::CORE {

double angleStep(double min, double max, quint32 count)
{
    return (max - min) / (double(count) - 1.0);
}

double halfDiagonal(double horizontalStep, double verticalStep)
{
    return 0.5 * std::sqrt(horizontalStep * horizontalStep + verticalStep * verticalStep);
}

GridAngles gridAngles(quint32 columns, quint32 rows, double horizontalMin, double horizontalMax, double verticalMin,
                      double verticalMax)
{
    GridAngles grid;
    grid.rows = rows;
    grid.horizontalMin = horizontalMin;
    grid.horizontalStep = angleStep(horizontalMin, horizontalMax, columns);
    grid.verticalMin = verticalMin;
    grid.verticalStep = angleStep(verticalMin, verticalMax, rows);
    grid.halfDiagonal = halfDiagonal(grid.horizontalStep, grid.verticalStep);
    return grid;
}

double columnAngle(quint32 column, const GridAngles& grid)
{
    return double(column) * grid.horizontalStep + grid.horizontalMin;
}

double rowAngle(quint32 row, const GridAngles& grid)
{
    // Signed, so that a row past the grid (point reads do not check bounds) lies below it.
    return double(qint64(grid.rows) - qint64(row) - 1) * grid.verticalStep + grid.verticalMin;
}

double subCellAngle(qint8 offset, double halfDiagonal)
{
    return double(offset) * halfDiagonal / 127.0;
}

Vector3d pointFromAngles(double horizontal, double vertical, double distance)
{
    return {std::cos(horizontal) * distance * std::cos(vertical),
            std::sin(horizontal) * (-distance) * std::cos(vertical), std::sin(vertical) * distance};
}

Vector3d pointOfCell(quint32 column, quint32 row, qint8 dx, qint8 dy, double distance, const GridAngles& grid)
{
    return pointFromAngles(columnAngle(column, grid) + subCellAngle(dx, grid.halfDiagonal),
                           rowAngle(row, grid) + subCellAngle(dy, grid.halfDiagonal), distance);
}

quint32 tileCount(quint32 cells, quint32 tileSize)
{
    return cells / tileSize + (cells % tileSize != 0 ? 1 : 0);
}

quint32 tileExtent(quint32 tileIndex, quint32 cells, quint32 tileSize)
{
    // "Past the last full tile" in signed terms: with fewer cells than one tile, tile 0 is the remainder.
    return tileIndex >= cells / tileSize ? cells % tileSize : tileSize;
}

quint64 tileOffset(quint32 tileColumn, quint32 tileRow, quint32 columns, quint32 rows, quint32 tileSize,
                   quint32 recordSize)
{
    const quint32 width = tileExtent(tileColumn, columns, tileSize);
    const quint32 strip = tileColumn * recordSize * rows * tileSize; // every strip is complete over all rows
    const quint32 inStrip = width * tileRow * recordSize * tileSize;
    return dataFileHeaderSize + quint64(strip) + quint64(inStrip);
}

quint64 recordOffset(quint32 column, quint32 row, quint32 columns, quint32 rows, quint32 tileSize, quint32 recordSize)
{
    const quint32 tileColumn = column / tileSize;
    const quint32 tileRow = row / tileSize;
    const quint32 height = tileExtent(tileRow, rows, tileSize);
    const quint32 inTile = ((column - tileColumn * tileSize) * height + (row - tileRow * tileSize)) * recordSize;
    return tileOffset(tileColumn, tileRow, columns, rows, tileSize, recordSize) + quint64(inTile);
}

namespace {
// round(value) as a 32-bit cell index, or nothing when it is none.
bool toCellIndex(double value, qint64& index)
{
    const double rounded = std::round(value);
    if (!(std::abs(rounded) < 4.0e18))
        return false;
    index = qint64(rounded);
    return true;
}
} // namespace

std::pair<qint32, qint32> cellOfPoint(const Vector3d& point, double horizontalMin, double horizontalMax,
                                      double verticalMin, double verticalMax, quint32 columns, quint32 rows)
{
    constexpr std::pair<qint32, qint32> none{-1, -1};
    const double r0Squared = point.dot(point);
    if (r0Squared < 1e-8)
        return none;
    const double r0 = std::sqrt(r0Squared);
    // Clamped against rounding just past ±1, where asin and acos have no value.
    const double v = std::asin(std::clamp(point.z / r0, -1.0, 1.0));
    const double rho = std::sqrt(point.x * point.x + point.y * point.y);
    double h = 0.0;
    if (rho != 0.0) {
        h = std::acos(std::clamp(point.x / rho, -1.0, 1.0));
        if (point.y > 0.0)
            h = 2.0 * M_PI - h; // y = −d·sin(h)·cos(v): positive y means the lower half turn
    }
    qint64 column = 0;
    qint64 scaledRow = 0;
    if (!toCellIndex((h - horizontalMin) / (horizontalMax - horizontalMin) * double(columns), column)
        || !toCellIndex((v - verticalMin) / (verticalMax - verticalMin) * double(rows), scaledRow))
        return none;
    const qint64 row = qint64(rows) - scaledRow;
    constexpr qint64 low = std::numeric_limits<qint32>::min();
    constexpr qint64 high = std::numeric_limits<qint32>::max();
    if (column < low || column > high || row < low || row > high)
        return none;
    return {qint32(column), qint32(row)};
}

} // namespace TVX::CORE
