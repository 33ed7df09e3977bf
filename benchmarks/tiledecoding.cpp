// Decoding one 64 × 64 tile of 9-byte records (every channel) from memory, against the memory
// bound: writing the bytes that a decoded tile holds (points, distances, intensities, colours)
// without computing them. The decoder should reach at least half the bound's rate. The records
// vary their sub-cell offsets and leave about one cell in a hundred without return.
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace TVX::CORE;

namespace {

constexpr quint32 tileSize = 64;
constexpr quint32 tileColumn = 7;
constexpr quint32 tileRow = 5;
constexpr double cellsPerTile = double(tileSize) * tileSize;

TVXFileScanInfo scanInfo()
{
    TVXFileScanInfo info;
    info.columns = 4096;
    info.rows = 2048;
    info.tileSize = tileSize;
    info.horizontalMin = 0.0;
    info.horizontalMax = 2.0 * M_PI;
    info.verticalMin = -M_PI / 3;
    info.verticalMax = M_PI / 2;
    info.channels = {{TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 8}, {TVXFileScanInfo::Colour, 24}};
    return info;
}

// The tile's records in stored order (column by column).
std::vector<char> tileRecords()
{
    std::vector<char> records;
    for (quint32 c = tileColumn * tileSize; c < (tileColumn + 1) * tileSize; ++c) {
        for (quint32 r = tileRow * tileSize; r < (tileRow + 1) * tileSize; ++r) {
            const quint32 mm = (c ^ r) % 97 == 0 ? 0 : 2000 + (c * 13 + r * 5) % 60000;
            const char record[] = {char(int(c * 31 + r * 7) % 255 - 127), char(int(c * 3 + r * 17) % 255 - 127),
                                   char(mm >> 16), char(mm >> 8), char(mm), char(c + r), char(c), char(r),
                                   char(c * r)};
            records.insert(records.end(), std::begin(record), std::end(record));
        }
    }
    return records;
}

void reportCells(benchmark::State& state)
{
    state.counters["cells/s"] =
        benchmark::Counter(cellsPerTile * double(state.iterations()), benchmark::Counter::kIsRate);
}

// The argument is the number of tiles written in turn: one stays in the cache, 1024 (150 MB) make
// every tile's bytes go out to memory, as decoding a scan's tiles one after another does.
void BM_TileMemoryBound(benchmark::State& state)
{
    const std::vector<char> records = tileRecords();
    TVXFileTileDecoder decoder(scanInfo());
    TVXFileTile decoded;
    decoder.decode(tileColumn, tileRow, records.data(), records.size(), decoded);
    std::vector<TVXFileTile> tiles(std::size_t(state.range(0)), decoded);
    std::size_t next = 0;
    for (auto _ : state) {
        TVXFileTile& tile = tiles[next++ % tiles.size()];
        benchmark::DoNotOptimize(decoded.points.data());
        std::copy(decoded.points.begin(), decoded.points.end(), tile.points.begin());
        std::copy(decoded.distances.begin(), decoded.distances.end(), tile.distances.begin());
        std::copy(decoded.intensities.begin(), decoded.intensities.end(), tile.intensities.begin());
        std::copy(decoded.colours.begin(), decoded.colours.end(), tile.colours.begin());
        benchmark::ClobberMemory();
    }
    reportCells(state);
}
BENCHMARK(BM_TileMemoryBound)->Arg(1)->Arg(1024);

void BM_DecodeTile(benchmark::State& state)
{
    const std::vector<char> records = tileRecords();
    TVXFileTileDecoder decoder(scanInfo());
    TVXFileTile decoded;
    decoder.decode(tileColumn, tileRow, records.data(), records.size(), decoded);
    std::vector<TVXFileTile> tiles(std::size_t(state.range(0)), decoded);
    std::size_t next = 0;
    for (auto _ : state) {
        decoder.decode(tileColumn, tileRow, records.data(), records.size(), tiles[next++ % tiles.size()]);
        benchmark::ClobberMemory();
    }
    reportCells(state);
}
BENCHMARK(BM_DecodeTile)->Arg(1)->Arg(1024);

// Only the cells on the step, as the point cloud extraction asks for them; the argument is the
// step. Cells per second count the whole tile.
void BM_DecodeEveryStep(benchmark::State& state)
{
    const std::vector<char> records = tileRecords();
    TVXFileTileDecoder decoder(scanInfo());
    const auto step = quint32(state.range(0));
    for (auto _ : state) {
        double sum = 0.0;
        decoder.decodeEveryStep(tileColumn, tileRow, records.data(), records.size(), step,
                                [&sum](const Vector3d& point, bool, const unsigned char*) {
                                    sum += point.x + point.y + point.z;
                                });
        benchmark::DoNotOptimize(sum);
    }
    reportCells(state);
}
BENCHMARK(BM_DecodeEveryStep)->Arg(1)->Arg(5);

} // namespace

BENCHMARK_MAIN();
