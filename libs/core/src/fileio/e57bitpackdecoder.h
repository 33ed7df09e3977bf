#pragma once

#include <QtGlobal>

#include <cstddef>
#include <limits>
#include <vector>

namespace TVX::CORE {

// Decodes one field's bytestream of an E57 compressed vector written with the bit-pack codec: a
// double or single float as 8 or 4 little-endian bytes; an integer (and the raw value of a scaled
// integer) as value − minimum in the fewest bits that hold maximum − minimum, packed from the least
// significant bit up, so that the bytes form one continuous bit stream (no bits at all when minimum
// equals maximum). The stream continues from packet to packet: bytes are appended as they come.
class E57BitPackDecoder final
{
public:
    enum class Kind { Double, Single, Integer };

    static E57BitPackDecoder forFloat(bool single);
    // Values come out as (minimum + stored) × scale + offset.
    static E57BitPackDecoder forInteger(qint64 minimum, qint64 maximum, double scale = 1.0, double offset = 0.0);
    // The bits per value of an integer field.
    static int bitsFor(qint64 minimum, qint64 maximum);

    Kind kind() const { return m_kind; }
    int bitsPerValue() const { return m_bits; }

    void append(const char* bytes, std::size_t size);
    // Values that the bytes appended so far complete (unlimited for 0 bits).
    quint64 available() const;
    // Bytes held that are not yet decoded.
    std::size_t pendingBytes() const { return m_bytes.size() - padding - m_bitPosition / 8; }
    // Decodes `count` values, at most available().
    void decode(double* out, std::size_t count);
    // Passes over `count` values, at most available().
    void skip(std::size_t count) { m_bitPosition += quint64(count) * quint64(m_bits); }

private:
    static constexpr std::size_t padding = 8; // zero bytes after the data, for whole-word loads

    E57BitPackDecoder(Kind kind, int bits, qint64 minimum, double scale, double offset);
    void compact();

    Kind m_kind;
    int m_bits;
    qint64 m_minimum;
    double m_scale;
    double m_offset;
    std::vector<unsigned char> m_bytes;
    quint64 m_bitPosition{0};
};

} // namespace TVX::CORE
