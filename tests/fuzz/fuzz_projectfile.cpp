// The project file reader on arbitrary bytes: it must refuse or accept without crashing, hanging
// or allocating more than the input justifies.
#include "fileio/tvxprojectserializer.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(data), qsizetype(size));
    TVX::CORE::TVXProjectSerializer serializer(QStringLiteral("fuzz.tvxprj"));
    TVX::CORE::TVXProjectContent content;
    if (serializer.read(bytes, content) && !content.tree.empty()) {
        // What was accepted must write back and read again to the same bytes.
        const QByteArray written = TVX::CORE::TVXProjectSerializer::encode(content);
        TVX::CORE::TVXProjectContent again;
        if (!serializer.read(written, again) || TVX::CORE::TVXProjectSerializer::encode(again) != written)
            __builtin_trap();
    }
    return 0;
}
