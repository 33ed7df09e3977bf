#pragma once

#include <QString>

#include <memory>
#include <vector>

class QIODevice;

namespace TVX::CORE {

// The page layer of an E57 file: the file is cut into pages of `pageSize` bytes, each holding
// pageSize − 4 bytes of data followed by their CRC-32C (big-endian). Offsets in the file's header
// and XML are physical (counting the checksums); the data between them are read as logical bytes.
// Every page is checked when it is read; a block of pages stays cached for sequential reads.
class E57PagedFile final
{
public:
    static constexpr quint64 smallestPage = 64;
    static constexpr quint64 largestPage = 1 << 20;

    // Throws ImportError for a page size out of range.
    E57PagedFile(std::shared_ptr<QIODevice> device, const QString& fileName, quint64 pageSize);
    ~E57PagedFile();
    E57PagedFile(const E57PagedFile&) = delete;
    E57PagedFile& operator=(const E57PagedFile&) = delete;

    quint64 pageSize() const { return m_pageSize; }
    quint64 physicalLength() const { return m_length; }
    // All logical bytes of the whole pages of the file.
    quint64 logicalLength() const { return m_length / m_pageSize * (m_pageSize - 4); }
    quint64 logicalOf(quint64 physical) const { return physical / m_pageSize * (m_pageSize - 4) + physical % m_pageSize; }
    quint64 physicalOf(quint64 logical) const { return logical / (m_pageSize - 4) * m_pageSize + logical % (m_pageSize - 4); }
    // Whether a physical offset lies in the data part of a page.
    bool isDataOffset(quint64 physical) const { return physical % m_pageSize < m_pageSize - 4; }

    // Reads `length` logical bytes starting at logical offset `logical`. Throws ImportError naming
    // the page for a checksum that does not match, a page past the end or a failing read.
    void readLogical(quint64 logical, char* out, quint64 length);

    [[noreturn]] void fail(const QString& why) const;

private:
    const char* page(quint64 index);

    std::shared_ptr<QIODevice> m_device;
    QString m_fileName;
    quint64 m_pageSize;
    quint64 m_length;
    std::vector<char> m_cache; // checked pages m_firstCached … m_firstCached + m_cachedPages − 1
    quint64 m_firstCached{0};
    quint64 m_cachedPages{0};
};

} // namespace TVX::CORE
