#pragma once

#include "scene/vector3d.h"

#include <QtGlobal>

#include <memory>
#include <vector>

namespace TVX::CORE {

// A cell's colour as the viewer shows it: its colour triple when the scan has one, else its
// intensity as grey. Either pointer may be null (no such channel); false when both are.
inline bool colourOrGrey(const quint8* colour, const quint8* intensity, quint8& red, quint8& green, quint8& blue)
{
    if (colour) {
        red = colour[0];
        green = colour[1];
        blue = colour[2];
        return true;
    }
    if (intensity) {
        red = green = blue = *intensity;
        return true;
    }
    return false;
}

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
    // The colour, else the intensity as grey, of the cell at `index`; false with neither channel.
    bool colourOrGrey(std::size_t index, quint8& red, quint8& green, quint8& blue) const
    {
        return TVX::CORE::colourOrGrey(3 * index + 2 < colours.size() ? &colours[3 * index] : nullptr,
                                       index < intensities.size() ? &intensities[index] : nullptr, red, green, blue);
    }
};

using TVXFileTilePtr = std::shared_ptr<TVXFileTile>;

} // namespace TVX::CORE
