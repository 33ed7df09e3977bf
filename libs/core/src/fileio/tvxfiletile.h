#pragma once

#include "scene/vector3d.h"

#include <QtGlobal>

#include <memory>
#include <vector>

namespace TVX::CORE {

// One decoded block of a scan's grid. Cells are stored column by column: cell (c, r) is at
// index (c − firstColumn) × height() + (r − firstRow). Points are in the scan frame, metres.
struct TVXFileTile {
    quint32 firstColumn = 0;
    quint32 lastColumn = 0; // inclusive
    quint32 firstRow = 0;
    quint32 lastRow = 0;    // inclusive
    std::vector<Vector3d> points;
    std::vector<double> distances;       // metres; 0 for a cell without return
    std::vector<quint8> intensities;     // one per cell; empty without an intensity channel
    std::vector<quint8> colours;         // r, g, b per cell; empty without a colour channel

    quint32 width() const { return lastColumn - firstColumn + 1; }
    quint32 height() const { return lastRow - firstRow + 1; }
    std::size_t indexOf(quint32 column, quint32 row) const
    {
        return std::size_t(column - firstColumn) * height() + (row - firstRow);
    }
};

using TVXFileTilePtr = std::shared_ptr<TVXFileTile>;

} // namespace TVX::CORE
