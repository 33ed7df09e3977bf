// The bytes as a scan file: header, directory and the five sections read from memory. When they
// make a readable scan, the same bytes are also decoded as the records of its first tile.
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QLoggingCategory>

#include <cstdint>
#include <ios>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const bool quiet = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("tvx.*=false"));
        return true;
    }();
    Q_UNUSED(quiet)

    QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    TVX::CORE::TVXFile file(QStringLiteral("/nonexistent/fuzz.tvx"));
    try {
        if (!file.readHeader(buffer))
            return 0;
    } catch (const std::ios_base::failure&) {
        return 0;
    }
    TVX::CORE::TVXFileTileDecoder decoder(file.scanInfo());
    TVX::CORE::TVXFileTile tile;
    decoder.decode(0, 0, bytes.constData(), std::size_t(bytes.size()), tile);
    return 0;
}
