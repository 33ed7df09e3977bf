// E57 files: header, pages and XML are read, then every scan's compressed vector is decoded and
// small scans are imported. A mutated page would almost always fail its checksum and hide what
// lies behind it, so inputs whose last byte is even get their checksums made right first (by the
// page size of their header); odd ones keep them, for the page check itself. Bad input must end in
// ImportError, never in a crash, a hang or a huge allocation.
#include "importfuzzing.h"

#include "fileio/crc32c.h"
#include "fileio/e57reader.h"

#include <QBuffer>
#include <QtEndian>

#include <cstdint>

namespace {

void repairChecksums(QByteArray& bytes)
{
    if (bytes.size() < 48 || (bytes.back() & 1))
        return;
    const quint64 pageSize = qFromLittleEndian<quint64>(bytes.constData() + 40);
    if (pageSize < 64 || pageSize > 4096)
        return;
    for (qsizetype page = 0; page + qsizetype(pageSize) <= bytes.size(); page += qsizetype(pageSize)) {
        const quint32 crc = TVX::CORE::crc32c(bytes.constData() + page, std::size_t(pageSize - 4));
        qToBigEndian(crc, bytes.data() + page + qsizetype(pageSize) - 4);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto buffer = std::make_shared<QBuffer>();
    QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    repairChecksums(bytes);
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    try {
        TVX::FUZZ::exerciseImport(TVX::CORE::E57Reader::read(buffer, QStringLiteral("fuzz.e57")));
    } catch (const TVX::CORE::ImportError&) {
    }
    return 0;
}
