#include "fileio/e57bitpackdecoder.h"

#include <QtEndian>

#include <cstring>

namespace TVX::CORE {

E57BitPackDecoder::E57BitPackDecoder(Kind kind, int bits, qint64 minimum, double scale, double offset)
    : m_kind(kind), m_bits(bits), m_minimum(minimum), m_scale(scale), m_offset(offset), m_bytes(padding, 0)
{}

E57BitPackDecoder E57BitPackDecoder::forFloat(bool single)
{
    return single ? E57BitPackDecoder(Kind::Single, 32, 0, 1.0, 0.0) : E57BitPackDecoder(Kind::Double, 64, 0, 1.0, 0.0);
}

E57BitPackDecoder E57BitPackDecoder::forInteger(qint64 minimum, qint64 maximum, double scale, double offset)
{
    return E57BitPackDecoder(Kind::Integer, bitsFor(minimum, maximum), minimum, scale, offset);
}

int E57BitPackDecoder::bitsFor(qint64 minimum, qint64 maximum)
{
    quint64 range = quint64(maximum) - quint64(minimum);
    int bits = 0;
    while (range) {
        ++bits;
        range >>= 1;
    }
    return bits;
}

void E57BitPackDecoder::append(const char* bytes, std::size_t size)
{
    compact();
    m_bytes.resize(m_bytes.size() - padding);
    m_bytes.insert(m_bytes.end(), bytes, bytes + size);
    m_bytes.resize(m_bytes.size() + padding, 0);
}

void E57BitPackDecoder::compact()
{
    const std::size_t consumed = std::size_t(m_bitPosition / 8);
    if (consumed == 0 || consumed < (m_bytes.size() - padding) / 2)
        return;
    m_bytes.erase(m_bytes.begin(), m_bytes.begin() + std::ptrdiff_t(consumed));
    m_bitPosition -= quint64(consumed) * 8;
}

quint64 E57BitPackDecoder::available() const
{
    if (m_bits == 0)
        return std::numeric_limits<quint64>::max();
    const quint64 bits = quint64(m_bytes.size() - padding) * 8 - m_bitPosition;
    return bits / quint64(m_bits);
}

void E57BitPackDecoder::decode(double* out, std::size_t count)
{
    const unsigned char* data = m_bytes.data();
    if (m_kind == Kind::Double || m_kind == Kind::Single) {
        const std::size_t width = m_kind == Kind::Double ? 8 : 4;
        const unsigned char* at = data + m_bitPosition / 8; // floats start on a byte when their stream holds only floats
        for (std::size_t i = 0; i < count; ++i, at += width)
            out[i] = width == 8 ? qFromLittleEndian<double>(at) : double(qFromLittleEndian<float>(at));
        m_bitPosition += quint64(count) * width * 8;
        return;
    }
    if (m_bits == 0) {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = double(m_minimum) * m_scale + m_offset;
        return;
    }
    const int bits = m_bits;
    const quint64 mask = bits == 64 ? ~quint64(0) : (quint64(1) << bits) - 1;
    quint64 position = m_bitPosition;
    for (std::size_t i = 0; i < count; ++i, position += quint64(bits)) {
        const unsigned char* at = data + position / 8;
        const int shift = int(position % 8);
        quint64 word = qFromLittleEndian<quint64>(at) >> shift;
        if (shift + bits > 64) // the value reaches into a ninth byte
            word |= quint64(at[8]) << (64 - shift);
        const qint64 value = qint64(quint64(m_minimum) + (word & mask));
        out[i] = double(value) * m_scale + m_offset;
    }
    m_bitPosition = position;
}

} // namespace TVX::CORE
