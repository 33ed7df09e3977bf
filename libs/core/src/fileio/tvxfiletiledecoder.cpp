#include "fileio/tvxfiletiledecoder.h"

#include "fileio/tvxfilescaninfo.h"

#include <cmath>
#include <cstring>
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
        const double cosine = std::cos(angle);
        const double sine = std::sin(angle);
        m_sub[std::size_t(offset + 128)] = Pair{cosine, sine};
        m_subTurned[std::size_t(offset + 128)] = Pair{-sine, cosine};
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

bool TVXFileTileDecoder::pick(quint32 tileColumn, quint32 tileRow, std::size_t size, quint32 step, TileBounds& bounds,
                              Picks& picks) const
{
    if (step == 0 || !tileBounds(tileColumn, tileRow, bounds) || bounds.bytes > size)
        return false;
    // The tile's first column (row) on the step, and how many follow every step-th inside it.
    const auto onStep = [step](quint32 first, quint32 extent, quint32& offset, quint32& count) {
        offset = (step - first % step) % step;
        count = offset < extent ? (extent - offset - 1) / step + 1 : 0;
    };
    onStep(bounds.firstColumn, bounds.width, picks.firstColumn, picks.columns);
    onStep(bounds.firstRow, bounds.height, picks.firstRow, picks.rows);
    return true;
}

void TVXFileTileDecoder::fillTable(AngleTable& table, quint32 first, quint32 count, quint32 step, bool columns) const
{
    table.first = first;
    table.count = count;
    table.step = step;
    table.cosines.resize(count);
    table.sines.resize(count);
    for (quint32 k = 0; k < count; ++k) {
        const quint32 index = first + k * step;
        const double angle = columns ? columnAngle(index, m_grid) : rowAngle(index, m_grid);
        const double cosine = std::cos(angle);
        const double sine = std::sin(angle);
        table.cosines[k] = Pair{cosine, cosine};
        table.sines[k] = Pair{sine, sine};
    }
}

void TVXFileTileDecoder::prepareTables(const TileBounds& bounds, const Picks& picks, quint32 step)
{
    // The tables' sizes are bounded by the bytes given, which pick() has checked.
    const quint32 firstColumn = bounds.firstColumn + picks.firstColumn;
    if (m_columnTable.first != firstColumn || m_columnTable.count != picks.columns || m_columnTable.step != step)
        fillTable(m_columnTable, firstColumn, picks.columns, step, true);

    const quint32 firstRow = bounds.firstRow + picks.firstRow;
    const quint64 key = quint64(firstRow) << 32 | step;
    auto it = m_rowTables.find(key);
    if (it == m_rowTables.end()) {
        // Enough for the rows of any sensible scan (32 MiB); a corrupt geometry starts afresh.
        constexpr quint64 keptRows = 1 << 20;
        if (m_rowTableRows + picks.rows > keptRows) {
            m_rowTables.clear();
            m_rowTableRows = 0;
        }
        it = m_rowTables.try_emplace(key).first;
        fillTable(it->second, firstRow, picks.rows, step, false);
        m_rowTableRows += picks.rows;
    }
    m_rowTable = &it->second;
}

bool TVXFileTileDecoder::decode(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size,
                                TVXFileTile& tile)
{
    TileBounds bounds;
    Picks picks;
    if (!pick(tileColumn, tileRow, size, 1, bounds, picks))
        return false;
    prepareTables(bounds, picks, 1);

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

bool TVXFileTileDecoder::countReturns(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size,
                                      quint32 step, quint64& count) const
{
    TileBounds bounds;
    Picks picks;
    if (!pick(tileColumn, tileRow, size, step, bounds, picks))
        return false;
    const auto* bytes = reinterpret_cast<const unsigned char*>(records);
    const std::size_t columnBytes = std::size_t(bounds.height) * m_recordSize;
    quint64 returns = 0;
    for (std::size_t i = 0; i < picks.columns; ++i) {
        const unsigned char* column = bytes + (picks.firstColumn + i * step) * columnBytes;
        for (std::size_t j = 0; j < picks.rows; ++j)
            returns += millimetres(column + (picks.firstRow + j * step) * m_recordSize) != 0;
    }
    count = returns;
    return true;
}

template <bool hasIntensity, bool hasColour>
void TVXFileTileDecoder::decodeRecords(const TileBounds& bounds, const unsigned char* records, TVXFileTile& tile) const
{
    // Record: dx, dy (signed), 24-bit big-endian distance in mm, [intensity], [r, g, b].
    constexpr std::size_t recordSize = 5 + (hasIntensity ? 1 : 0) + (hasColour ? 3 : 0);
    constexpr std::size_t colourAt = 5 + (hasIntensity ? 1 : 0);
    // Locals for everything the loop reads: the byte stores below may alias anything, and would
    // otherwise make the compiler fetch it again for every cell.
    Vector3d* points = tile.points.data();
    double* distances = tile.distances.data();
    quint8* intensities = tile.intensities.data();
    quint8* colours = tile.colours.data();
    const Pair* sub = m_sub.data() + 128;
    const Pair* turned = m_subTurned.data() + 128;
    const Pair* rowCos = m_rowTable->cosines.data();
    const Pair* rowSin = m_rowTable->sines.data();
    const Pair* columnCos = m_columnTable.cosines.data();
    const Pair* columnSin = m_columnTable.sines.data();
    const std::size_t width = bounds.width;
    const std::size_t height = bounds.height;

    std::size_t cell = 0; // in stored order
    for (std::size_t i = 0; i < width; ++i) {
        const Pair cosColumn = columnCos[i];
        const Pair sinColumn = columnSin[i];
        for (std::size_t j = 0; j < height; ++j, ++cell) {
            const unsigned char* record = records + cell * recordSize;
            const quint32 mm = millimetres(record);
            if (mm == 0) {
                points[cell] = Vector3d();
                distances[cell] = 0.0;
                if constexpr (hasIntensity)
                    intensities[cell] = 0;
                if constexpr (hasColour)
                    std::memset(colours + 3 * cell, 0, 3);
                continue;
            }
            // The arithmetic of pointOf, on the local tables.
            const qint8 dx = qint8(record[0]);
            const qint8 dy = qint8(record[1]);
            const Pair h = cosColumn * sub[dx] + sinColumn * turned[dx];
            const Pair v = rowCos[j] * sub[dy] + rowSin[j] * turned[dy];
            const double d = mm * 0.001;
            const Pair xy = h * Pair{d, -d} * v[0];
            points[cell] = Vector3d(xy[0], xy[1], v[1] * d);
            distances[cell] = d;
            if constexpr (hasIntensity)
                intensities[cell] = record[5];
            if constexpr (hasColour)
                std::memcpy(colours + 3 * cell, record + colourAt, 3);
        }
    }
}

} // namespace TVX::CORE
