#include "fileio/tvxfiletiledecoder.h"

#include "fileio/tvxfilescaninfo.h"

#include <cmath>
#include <limits>

namespace TVX::CORE {

TVXFileTileDecoder::TVXFileTileDecoder(const TVXFileScanInfo& info)
    : m_columns(info.columns),
      m_rows(info.rows),
      m_tileSize(info.tileSize),
      m_tilesX(info.tilesX()),
      m_tilesY(info.tilesY()),
      m_recordSize(info.recordSize()),
      m_hasDistance(info.hasDistance()),
      m_hasIntensity(info.hasIntensity()),
      m_hasColour(info.hasColour()),
      m_grid(info.gridAngles())
{
    for (int offset = -128; offset < 128; ++offset) {
        const double angle = subCellAngle(qint8(offset), m_grid.halfDiagonal);
        m_subCos[std::size_t(offset + 128)] = std::cos(angle);
        m_subSin[std::size_t(offset + 128)] = std::sin(angle);
    }
}

bool TVXFileTileDecoder::tileBounds(quint32 tileColumn, quint32 tileRow, TileBounds& bounds) const
{
    if (!m_hasDistance || m_tileSize == 0 || tileColumn >= m_tilesX || tileRow >= m_tilesY)
        return false;
    bounds.firstColumn = tileColumn * m_tileSize;
    bounds.firstRow = tileRow * m_tileSize;
    bounds.width = tileExtent(tileColumn, m_columns, m_tileSize);
    bounds.height = tileExtent(tileRow, m_rows, m_tileSize);
    bounds.offset = tileOffset(tileColumn, tileRow, m_columns, m_rows, m_tileSize, m_recordSize);
    // Saturated: a corrupt geometry may describe more than 64 bits can count.
    const quint64 cells = quint64(bounds.width) * bounds.height;
    bounds.bytes = cells > std::numeric_limits<quint64>::max() / m_recordSize ? std::numeric_limits<quint64>::max()
                                                                              : cells * m_recordSize;
    return true;
}

bool TVXFileTileDecoder::decode(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size,
                                TVXFileTile& tile)
{
    TileBounds bounds;
    if (!tileBounds(tileColumn, tileRow, bounds) || bounds.bytes > size)
        return false;

    // Tables for this tile's columns and rows; their size is bounded by the bytes given.
    auto fillTables = [this](quint32 first, quint32 count, double (*angleOf)(quint32, const GridAngles&),
                             std::vector<double>& cosines, std::vector<double>& sines) {
        cosines.resize(count);
        sines.resize(count);
        for (quint32 i = 0; i < count; ++i) {
            const double angle = angleOf(first + i, m_grid);
            cosines[i] = std::cos(angle);
            sines[i] = std::sin(angle);
        }
    };
    fillTables(bounds.firstColumn, bounds.width, columnAngle, m_columnCos, m_columnSin);
    fillTables(bounds.firstRow, bounds.height, rowAngle, m_rowCos, m_rowSin);

    const std::size_t cells = std::size_t(bounds.width) * bounds.height;
    tile.firstColumn = bounds.firstColumn;
    tile.lastColumn = bounds.firstColumn + bounds.width - 1;
    tile.firstRow = bounds.firstRow;
    tile.lastRow = bounds.firstRow + bounds.height - 1;
    tile.points.resize(cells);
    tile.distances.resize(cells);
    tile.intensities.resize(m_hasIntensity ? cells : 0);
    tile.colours.resize(m_hasColour ? 3 * cells : 0);

    const auto* bytes = reinterpret_cast<const unsigned char*>(records);
    if (m_hasIntensity && m_hasColour)
        decodeRecords<true, true>(bounds, bytes, tile);
    else if (m_hasIntensity)
        decodeRecords<true, false>(bounds, bytes, tile);
    else if (m_hasColour)
        decodeRecords<false, true>(bounds, bytes, tile);
    else
        decodeRecords<false, false>(bounds, bytes, tile);
    return true;
}

template <bool hasIntensity, bool hasColour>
void TVXFileTileDecoder::decodeRecords(const TileBounds& bounds, const unsigned char* records, TVXFileTile& tile) const
{
    // Record: dx, dy (signed), 24-bit big-endian distance in mm, [intensity], [r, g, b].
    constexpr std::size_t recordSize = 5 + (hasIntensity ? 1 : 0) + (hasColour ? 3 : 0);
    constexpr std::size_t colourAt = 5 + (hasIntensity ? 1 : 0);
    Vector3d* point = tile.points.data();
    double* distance = tile.distances.data();
    quint8* intensity = tile.intensities.data();
    quint8* colour = tile.colours.data();
    const unsigned char* record = records;
    // Local copies of the table pointers: the byte stores below may alias anything, and would
    // otherwise make the compiler fetch them again for every cell.
    const double* subCos = m_subCos.data();
    const double* subSin = m_subSin.data();
    const double* rowCos = m_rowCos.data();
    const double* rowSin = m_rowSin.data();

    for (quint32 i = 0; i < bounds.width; ++i) {
        const double cosColumn = m_columnCos[i];
        const double sinColumn = m_columnSin[i];
        for (quint32 j = 0; j < bounds.height; ++j, record += recordSize) {
            const quint32 millimetres = quint32(record[2]) << 16 | quint32(record[3]) << 8 | record[4];
            if (millimetres == 0) {
                *point++ = Vector3d();
                *distance++ = 0.0;
                if constexpr (hasIntensity)
                    *intensity++ = 0;
                if constexpr (hasColour) {
                    colour[0] = colour[1] = colour[2] = 0;
                    colour += 3;
                }
                continue;
            }
            // Sub-cell offsets are signed bytes; the tables are indexed by offset + 128.
            const std::size_t dx = std::size_t(qint8(record[0]) + 128);
            const std::size_t dy = std::size_t(qint8(record[1]) + 128);
            // cos(a + b) = cos a cos b − sin a sin b; sin(a + b) = sin a cos b + cos a sin b.
            const double cosH = cosColumn * subCos[dx] - sinColumn * subSin[dx];
            const double sinH = sinColumn * subCos[dx] + cosColumn * subSin[dx];
            const double cosV = rowCos[j] * subCos[dy] - rowSin[j] * subSin[dy];
            const double sinV = rowSin[j] * subCos[dy] + rowCos[j] * subSin[dy];
            const double d = millimetres * 0.001;
            *point++ = Vector3d(cosH * d * cosV, sinH * (-d) * cosV, sinV * d);
            *distance++ = d;
            if constexpr (hasIntensity)
                *intensity++ = record[5];
            if constexpr (hasColour) {
                colour[0] = record[colourAt];
                colour[1] = record[colourAt + 1];
                colour[2] = record[colourAt + 2];
                colour += 3;
            }
        }
    }
}

} // namespace TVX::CORE
