#pragma once

#include <QtGlobal>

#include <cstddef>

namespace TVX::CORE {

// CRC-32C (Castagnoli, reflected polynomial 0x82F63B78, initial value and final XOR 0xFFFFFFFF),
// the checksum of E57 pages. Continue a running checksum by passing the previous result as `crc`.
// Uses the processor's CRC instruction where there is one.
quint32 crc32c(const char* data, std::size_t size, quint32 crc = 0);

} // namespace TVX::CORE
