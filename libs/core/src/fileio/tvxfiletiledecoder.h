#pragma once

#include "fileio/scangeometry.h"
#include "fileio/tvxfiletile.h"

#include <array>
#include <cstddef>
#include <vector>

namespace TVX::CORE {

class TVXFileScanInfo;

// Decodes the point records of one tile from memory; the reader fetches the bytes.
// Built once per scan geometry. It keeps the cosines and sines of the 256 sub-cell offsets and,
// per tile, of the tile's column and row angles, and combines them with the angle-addition
// formulas, so no cell needs a trigonometric call. Points agree with the direct formula
// (pointOfCell) to well within 1e-9 m.
class TVXFileTileDecoder final
{
public:
    struct TileBounds {
        quint32 firstColumn = 0;
        quint32 firstRow = 0;
        quint32 width = 0;
        quint32 height = 0;
        quint64 offset = 0; // of the first record in the data file
        quint64 bytes = 0;  // width × height × record size
    };

    explicit TVXFileTileDecoder(const TVXFileScanInfo& info);

    // False without a distance channel, with a tile size of 0 or for a tile outside the grid.
    bool tileBounds(quint32 tileColumn, quint32 tileRow, TileBounds& bounds) const;

    // Decodes the records of the tile, stored column by column, from `records`. False as
    // tileBounds, or when `size` is smaller than the tile's records. Invalid cells (distance 0)
    // get point (0, 0, 0), distance 0, and intensity and colour 0.
    bool decode(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size, TVXFileTile& tile);

private:
    template <bool hasIntensity, bool hasColour>
    void decodeRecords(const TileBounds& bounds, const unsigned char* records, TVXFileTile& tile) const;

    quint32 m_columns = 0;
    quint32 m_rows = 0;
    quint32 m_tileSize = 0;
    quint32 m_tilesX = 0;
    quint32 m_tilesY = 0;
    quint32 m_recordSize = 0;
    bool m_hasDistance = false;
    bool m_hasIntensity = false;
    bool m_hasColour = false;
    GridAngles m_grid;
    // cos and sin of offset × halfDiagonal / 127, indexed by offset + 128.
    std::array<double, 256> m_subCos{};
    std::array<double, 256> m_subSin{};
    // cos and sin of the current tile's column and row angles; kept to spare allocations.
    std::vector<double> m_columnCos, m_columnSin, m_rowCos, m_rowSin;
};

} // namespace TVX::CORE
