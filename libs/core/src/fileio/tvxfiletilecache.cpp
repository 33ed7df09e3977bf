#include "fileio/tvxfiletilecache.h"

#include "fileio/tvxfile.h"

#include <algorithm>

namespace TVX::CORE {

bool TVXFileTileCache::lookup(quint32 scanIndex, TVXFile& file, quint32 tileColumn, quint32 tileRow,
                              TVXFileTilePtr& tile)
{
    if (scanIndex == m_scanIndex) {
        const auto hit = std::find_if(m_tiles.begin(), m_tiles.end(), [&](const Entry& entry) {
            return entry.tileColumn == tileColumn && entry.tileRow == tileRow;
        });
        if (hit != m_tiles.end()) {
            if (hit != m_tiles.begin())
                m_tiles.splice(m_tiles.begin(), m_tiles, hit);
            tile = m_tiles.front().tile;
            return true;
        }
    } else {
        m_tiles.clear();
    }

    auto read = std::make_shared<TVXFileTile>();
    file.openData();
    const bool ok = file.readTile(tileColumn, tileRow, *read);
    file.closeData();
    if (!ok)
        return false;
    m_scanIndex = scanIndex;
    m_tiles.push_front({tileColumn, tileRow, read});
    if (m_tiles.size() > limit)
        m_tiles.pop_back();
    tile = read;
    return true;
}

std::vector<std::pair<quint32, quint32>> TVXFileTileCache::order() const
{
    std::vector<std::pair<quint32, quint32>> tiles;
    tiles.reserve(m_tiles.size());
    for (const Entry& entry : m_tiles)
        tiles.emplace_back(entry.tileColumn, entry.tileRow);
    return tiles;
}

void TVXFileTileCache::clear()
{
    m_tiles.clear();
    m_scanIndex = noScan;
}

} // namespace TVX::CORE
