#pragma once

#include "scene/vector3d.h"

#include <QtGlobal>

#include <utility>

namespace TVX::CORE {

// The mapping between grid cells, angles, 3D points and record positions of a scan's data file.
// Angles in radians, distances in metres, points in the scan frame. Column 0 lies at the minimum
// horizontal angle, row 0 is the top row (highest vertical angle).

// Point records start after the data file's 12-byte header.
constexpr quint64 dataFileHeaderSize = 12;

// What the forward mapping cell → point needs of a scan's geometry.
struct GridAngles {
    quint32 rows = 0;
    double horizontalMin = 0.0;
    double horizontalStep = 0.0;
    double verticalMin = 0.0;
    double verticalStep = 0.0;
    double halfDiagonal = 0.0; // half the diagonal of one cell, the unit of the sub-cell offsets
};

// (max − min) / (count − 1): the angle between neighbouring cells. A single cell gives a division
// by zero (inf or NaN), as the format defines it.
double angleStep(double min, double max, quint32 count);
// 0.5 × sqrt(horizontalStep² + verticalStep²).
double halfDiagonal(double horizontalStep, double verticalStep);
GridAngles gridAngles(quint32 columns, quint32 rows, double horizontalMin, double horizontalMax, double verticalMin,
                      double verticalMax);

// Cell centre angles: column × step + min, and (rows − row − 1) × step + min.
double columnAngle(quint32 column, const GridAngles& grid);
double rowAngle(quint32 row, const GridAngles& grid);
// A signed 8-bit sub-cell offset as an angle: offset × halfDiagonal / 127.
double subCellAngle(qint8 offset, double halfDiagonal);

// x = cos(h)·d·cos(v), y = sin(h)·(−d)·cos(v), z = sin(v)·d. The minus sign on y is deliberate:
// horizontal angles grow clockwise seen from above.
Vector3d pointFromAngles(double horizontal, double vertical, double distance);
// The point of a record: the cell's angles plus its sub-cell offsets, at `distance` metres.
Vector3d pointOfCell(quint32 column, quint32 row, qint8 dx, qint8 dy, double distance, const GridAngles& grid);

// Tiles of `tileSize` cells cover the grid; the last tile column or row holds the remainder.
// tileSize must not be 0.
quint32 tileCount(quint32 cells, quint32 tileSize);
// Width of tile column `tileIndex` (or height of tile row): cells mod tileSize past the last full
// tile, else tileSize.
quint32 tileExtent(quint32 tileIndex, quint32 cells, quint32 tileSize);

// Byte position in the data file of a tile's first record and of a cell's record. Tiles are stored
// in strips of tileSize columns over all rows; inside a tile the records go column by column.
// Each of the three products (strip, tile in strip, record in tile) wraps in 32-bit unsigned
// arithmetic before being added: files whose products pass 4 GiB are not addressable, on purpose
// (readers of the same format compute positions this way). tileSize must not be 0.
quint64 tileOffset(quint32 tileColumn, quint32 tileRow, quint32 columns, quint32 rows, quint32 tileSize,
                   quint32 recordSize);
quint64 recordOffset(quint32 column, quint32 row, quint32 columns, quint32 rows, quint32 tileSize, quint32 recordSize);

// The cell (column, row) in whose direction `point` lies; (−1, −1) for a point at the station
// (|p|² < 1e-8) or when the result is no 32-bit number (e.g. an empty angle range).
// It scales by columns and rows, not by columns − 1 and rows − 1 as the forward mapping does, so a
// cell's own point does not always map back to it; kept on purpose, the views rely on it.
std::pair<qint32, qint32> cellOfPoint(const Vector3d& point, double horizontalMin, double horizontalMax,
                                      double verticalMin, double verticalMax, quint32 columns, quint32 rows);

} // namespace TVX::CORE
