#include "fileio/e57pagedfile.h"

#include "fileio/crc32c.h"
#include "fileio/importerror.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace TVX::CORE {

namespace {
constexpr quint64 cacheBytes = 1 << 20;

} // namespace

E57PagedFile::E57PagedFile(std::shared_ptr<QIODevice> device, const QString& fileName, quint64 pageSize)
    : m_device(std::move(device)), m_fileName(fileName), m_pageSize(pageSize), m_length(quint64(m_device->size()))
{
    if (pageSize < smallestPage || pageSize > largestPage)
        fail(QCoreApplication::translate("TVX::CORE::E57PagedFile", "page size %1 is not between %2 and %3")
                 .arg(pageSize)
                 .arg(smallestPage)
                 .arg(largestPage));
}

E57PagedFile::~E57PagedFile() = default;

void E57PagedFile::fail(const QString& why) const
{
    throw ImportError(QStringLiteral("%1: %2").arg(m_fileName, why));
}

const char* E57PagedFile::page(quint64 index)
{
    if (index >= m_firstCached && index < m_firstCached + m_cachedPages)
        return m_cache.data() + (index - m_firstCached) * m_pageSize;
    const quint64 pages = m_length / m_pageSize;
    if (index >= pages)
        fail(QCoreApplication::translate("TVX::CORE::E57PagedFile", "page %1 lies past the end of the file (%2 pages)")
                 .arg(index)
                 .arg(pages));
    const quint64 count = std::min(std::max<quint64>(1, cacheBytes / m_pageSize), pages - index);
    m_cache.resize(std::size_t(count * m_pageSize));
    m_cachedPages = 0;
    if (!m_device->seek(qint64(index * m_pageSize))
        || m_device->read(m_cache.data(), qint64(count * m_pageSize)) != qint64(count * m_pageSize))
        fail(QCoreApplication::translate("TVX::CORE::E57PagedFile", "cannot read page %1: %2")
                 .arg(index)
                 .arg(m_device->errorString()));
    for (quint64 i = 0; i < count; ++i) {
        const char* data = m_cache.data() + i * m_pageSize;
        const quint32 stored = qFromBigEndian<quint32>(data + m_pageSize - 4);
        if (crc32c(data, std::size_t(m_pageSize - 4)) != stored)
            fail(QCoreApplication::translate("TVX::CORE::E57PagedFile", "page %1: the checksum does not match")
                     .arg(index + i));
    }
    m_firstCached = index;
    m_cachedPages = count;
    return m_cache.data();
}

void E57PagedFile::readLogical(quint64 logical, char* out, quint64 length)
{
    const quint64 data = m_pageSize - 4;
    while (length > 0) {
        const quint64 index = logical / data;
        const quint64 within = logical % data;
        const quint64 take = std::min(length, data - within);
        std::memcpy(out, page(index) + within, std::size_t(take));
        out += take;
        logical += take;
        length -= take;
    }
}

} // namespace TVX::CORE
