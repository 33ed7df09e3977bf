#pragma once

#include "fileio/scangeometry.h"
#include "fileio/tvxfiletile.h"

#include <QtEndian>

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

namespace TVX::CORE {

class TVXFileScanInfo;

// Decodes the point records of one tile from memory; the reader fetches the bytes.
// Built once per scan geometry. It keeps the cosines and sines of the 256 sub-cell offsets and of
// the column and row angles of the tiles it decodes, and combines them with the angle-addition
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

    // The cells of the tile whose column and row are multiples of `step`, in stored order:
    // visit(point, hasReturn, record) with the point that decode() gives the cell and the cell's
    // record (for its intensity and colour). Only these cells are decoded, and only their angles
    // computed. False as decode(), and for a step of 0.
    template <typename Visit>
    bool decodeEveryStep(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size, quint32 step,
                         Visit&& visit);

    // How many of the cells that decodeEveryStep visits have a return, from their distance bytes
    // alone. False as decodeEveryStep.
    bool countReturns(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size, quint32 step,
                      quint64& count) const;

    // The 24-bit big-endian distance in millimetres of a record (bytes 2 to 4); 0 means no return.
    static quint32 millimetres(const unsigned char* record)
    {
        // One load of bytes 1 to 4 instead of three.
        return qFromBigEndian<quint32>(record + 1) & 0xFFFFFF;
    }

private:
    // Two doubles that the compiler keeps in one register and computes on together: a cosine and
    // a sine, or (x, y). Each lane is computed as its own double would be.
    typedef double Pair __attribute__((vector_size(16)));

    // The tile's cells on the step: columns first + k × step for k < count, the same for rows.
    struct Picks {
        quint32 firstColumn = 0;
        quint32 columns = 0;
        quint32 firstRow = 0;
        quint32 rows = 0;
    };
    // cos and sin of the angles of `count` columns (rows) from `first` on, every step-th; each
    // value in both lanes, ready to multiply a sub-cell pair.
    struct AngleTable {
        quint32 first = 0;
        quint32 count = 0;
        quint32 step = 0;
        std::vector<Pair> cosines;
        std::vector<Pair> sines;
    };

    bool pick(quint32 tileColumn, quint32 tileRow, std::size_t size, quint32 step, TileBounds& bounds,
              Picks& picks) const;
    // The angle tables of the picked columns and rows, of which there must be some; a strip's
    // column table serves all its tiles, and row tables are kept for the tile rows met, as every
    // strip meets them again.
    void prepareTables(const TileBounds& bounds, const Picks& picks, quint32 step);
    void fillTable(AngleTable& table, quint32 first, quint32 count, quint32 step, bool columns) const;

    // The point of a record with a return, with the cos and sin pairs of its column and row.
    // cos(a + b) = cos a cos b − sin a sin b; sin(a + b) = sin a cos b + cos a sin b: with the
    // sub-cell pair (cos b, sin b) and its turned pair (−sin b, cos b) that gives (cos, sin) of the
    // sum at once. x = cosH·d·cosV, y = sinH·(−d)·cosV, z = sinV·d, multiplied in this order.
    Vector3d pointOf(const unsigned char* record, quint32 mm, Pair cosColumn, Pair sinColumn, Pair cosRow,
                     Pair sinRow) const
    {
        const Pair h = cosColumn * m_sub[qint8(record[0]) + 128] + sinColumn * m_subTurned[qint8(record[0]) + 128];
        const Pair v = cosRow * m_sub[qint8(record[1]) + 128] + sinRow * m_subTurned[qint8(record[1]) + 128];
        const double d = mm * 0.001;
        const Pair xy = h * Pair{d, -d} * v[0];
        return {xy[0], xy[1], v[1] * d};
    }

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
    // (cos, sin) and (−sin, cos) of offset × halfDiagonal / 127, indexed by offset + 128.
    std::array<Pair, 256> m_sub{};
    std::array<Pair, 256> m_subTurned{};
    AngleTable m_columnTable;
    std::unordered_map<quint64, AngleTable> m_rowTables; // by first row and step
    quint64 m_rowTableRows = 0;                          // that they hold together
    const AngleTable* m_rowTable = nullptr;              // of the current tile
};

template <typename Visit>
bool TVXFileTileDecoder::decodeEveryStep(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size,
                                         quint32 step, Visit&& visit)
{
    TileBounds bounds;
    Picks picks;
    if (!pick(tileColumn, tileRow, size, step, bounds, picks))
        return false;
    if (picks.columns == 0 || picks.rows == 0)
        return true;
    prepareTables(bounds, picks, step);
    // Locals for what the loop reads: stores of the visitor may alias anything.
    const auto* bytes = reinterpret_cast<const unsigned char*>(records);
    const std::size_t recordSize = m_recordSize;
    const std::size_t columnBytes = std::size_t(bounds.height) * recordSize;
    const std::size_t columns = picks.columns;
    const std::size_t rows = picks.rows;
    const std::size_t firstRow = picks.firstRow;
    const Pair* columnCos = m_columnTable.cosines.data();
    const Pair* columnSin = m_columnTable.sines.data();
    const Pair* rowCos = m_rowTable->cosines.data();
    const Pair* rowSin = m_rowTable->sines.data();
    for (std::size_t i = 0; i < columns; ++i) {
        const unsigned char* column = bytes + (picks.firstColumn + i * step) * columnBytes;
        const Pair cosColumn = columnCos[i];
        const Pair sinColumn = columnSin[i];
        for (std::size_t j = 0; j < rows; ++j) {
            const unsigned char* record = column + (firstRow + j * step) * recordSize;
            const quint32 mm = millimetres(record);
            visit(mm ? pointOf(record, mm, cosColumn, sinColumn, rowCos[j], rowSin[j]) : Vector3d(), mm != 0, record);
        }
    }
    return true;
}

} // namespace TVX::CORE
