#include "fileio/crc32c.h"

#include <array>
#include <cstring>

#if defined(__x86_64__)
#include <nmmintrin.h>
#endif

namespace TVX::CORE {

namespace {

std::array<quint32, 256> makeTable()
{
    std::array<quint32, 256> table{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value >> 1) ^ (value & 1 ? 0x82F63B78u : 0u);
        table[i] = value;
    }
    return table;
}

quint32 bytewise(const unsigned char* data, std::size_t size, quint32 state)
{
    static const std::array<quint32, 256> table = makeTable();
    for (std::size_t i = 0; i < size; ++i)
        state = table[(state ^ data[i]) & 0xFF] ^ (state >> 8);
    return state;
}

#if defined(__x86_64__)
__attribute__((target("sse4.2"))) quint32 hardware(const unsigned char* data, std::size_t size, quint32 state)
{
    quint64 wide = state;
    for (; size >= 8; size -= 8, data += 8) {
        quint64 word;
        std::memcpy(&word, data, 8);
        wide = _mm_crc32_u64(wide, word);
    }
    quint32 narrow = quint32(wide);
    for (; size > 0; --size, ++data)
        narrow = _mm_crc32_u8(narrow, *data);
    return narrow;
}

const bool haveInstruction = __builtin_cpu_supports("sse4.2");
#endif

} // namespace

quint32 crc32c(const char* data, std::size_t size, quint32 crc)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(data);
    const quint32 state = ~crc;
#if defined(__x86_64__)
    if (haveInstruction)
        return ~hardware(bytes, size, state);
#endif
    return ~bytewise(bytes, size, state);
}

} // namespace TVX::CORE
