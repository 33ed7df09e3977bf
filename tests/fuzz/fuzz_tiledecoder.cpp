// The tile decoder on arbitrary bytes. The first 16 bytes give the geometry, big-endian: columns
// and rows (u16 each); tile size, channel bits (1 distance, 2 intensity, 4 colour), tile column and
// tile row (u8 each); the angles horizontalMin, horizontalMax, verticalMin, verticalMax (i16 each,
// in units of 2π/32768). The rest are the tile's records.
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"

#include <QtEndian>

#include <cmath>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace TVX::CORE;
    constexpr size_t headerSize = 16;
    if (size < headerSize)
        return 0;
    const auto angle = [&](size_t at) { return qFromBigEndian<qint16>(data + at) / 32768.0 * 2.0 * M_PI; };

    TVXFileScanInfo info;
    info.columns = qFromBigEndian<quint16>(data);
    info.rows = qFromBigEndian<quint16>(data + 2);
    info.tileSize = data[4];
    if (data[5] & 1)
        info.channels.push_back({TVXFileScanInfo::Distance, 0});
    if (data[5] & 2)
        info.channels.push_back({TVXFileScanInfo::Intensity, 0});
    if (data[5] & 4)
        info.channels.push_back({TVXFileScanInfo::Colour, 0});
    info.horizontalMin = angle(8);
    info.horizontalMax = angle(10);
    info.verticalMin = angle(12);
    info.verticalMax = angle(14);

    TVXFileTileDecoder decoder(info);
    TVXFileTile tile;
    if (!decoder.decode(data[6], data[7], reinterpret_cast<const char*>(data + headerSize), size - headerSize, tile))
        return 0;
    // What a decoded tile promises: one entry per cell, and nothing at all for a cell without return.
    const std::size_t cells = std::size_t(tile.width()) * tile.height();
    if (tile.points.size() != cells || tile.distances.size() != cells
        || tile.intensities.size() != ((data[5] & 2) ? cells : 0)
        || tile.colours.size() != ((data[5] & 4) ? 3 * cells : 0))
        std::abort();
    for (std::size_t i = 0; i < cells; ++i)
        if (tile.distances[i] == 0.0
            && (tile.points[i] != Vector3d() || (!tile.intensities.empty() && tile.intensities[i] != 0)))
            std::abort();
    return 0;
}
