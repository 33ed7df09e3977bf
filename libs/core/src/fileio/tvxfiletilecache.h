#pragma once

#include "fileio/tvxfiletile.h"

#include <functional>
#include <list>

namespace TVX::CORE {

class TVXFile;

// The decoded tiles of one scan, most recently used first, at most 50. Asking for a tile of
// another scan empties the cache first.
class TVXFileTileCache final
{
public:
    static constexpr std::size_t limit = 50;
    static constexpr quint32 noScan = quint32(-1);

    // Looks a tile up, reading it from `file` (opened and closed around the read) on a miss.
    // False when the read fails; the cache then stays as it was (emptied when the scan differs).
    bool lookup(quint32 scanIndex, TVXFile& file, quint32 tileColumn, quint32 tileRow, TVXFileTilePtr& tile);

    quint32 scanIndex() const { return m_scanIndex; }
    std::size_t size() const { return m_tiles.size(); }
    // Tile column and row of the entries, front (most recent) first.
    std::vector<std::pair<quint32, quint32>> order() const;
    void clear();

private:
    struct Entry {
        quint32 tileColumn;
        quint32 tileRow;
        TVXFileTilePtr tile;
    };
    quint32 m_scanIndex{noScan};
    std::list<Entry> m_tiles;
};

} // namespace TVX::CORE
