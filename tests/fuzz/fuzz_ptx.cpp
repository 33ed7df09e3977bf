// PTX files: the reader indexes the input, then every scan is read and small ones are imported.
// Bad input must end in ImportError, never in a crash, a hang or a huge allocation.
#include "importfuzzing.h"

#include "fileio/ptxreader.h"

#include <QBuffer>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    auto buffer = std::make_shared<QBuffer>();
    buffer->setData(reinterpret_cast<const char*>(data), qsizetype(size));
    buffer->open(QIODevice::ReadOnly);
    try {
        TVX::FUZZ::exerciseImport(TVX::CORE::PtxReader::read(buffer, QStringLiteral("fuzz.ptx")));
    } catch (const TVX::CORE::ImportError&) {
    }
    return 0;
}
