// Reading a scan of 4096 × 2048 cells with every channel (9-byte records, tiles of 64): tiles with
// and without decoding, decoding alone, point cloud extraction, single points and the header.
// The scan is written once, into a temporary folder, before the first benchmark.
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"
#include "fileio/tvxfilewriter.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace TVX::CORE;

namespace {

constexpr quint32 columns = 4096;
constexpr quint32 rows = 2048;
constexpr double cellsPerScan = double(columns) * rows;

const QString& scanPath()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString scan = dir.filePath(QStringLiteral("bench.tvx"));
        TVXFileWriter writer;
        TVXFileScanInfo& info = writer.scanInfo();
        info.columns = columns;
        info.rows = rows;
        info.horizontalMin = 0.0;
        info.horizontalMax = 2.0 * M_PI;
        info.verticalMin = -M_PI / 3;
        info.verticalMax = M_PI / 2;
        info.channels = {
            {TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 8}, {TVXFileScanInfo::Colour, 24}};
        writer.setCellSource([](quint32 c, quint32 r) {
            TVXFileCell cell;
            cell.dx = qint8(int(c * 31 + r * 7) % 255 - 127);
            cell.dy = qint8(int(c * 3 + r * 17) % 255 - 127);
            cell.distanceMm = (c ^ r) % 97 == 0 ? 0 : 2000 + (c * 13 + r * 5) % 60000;
            cell.intensity = quint8(c + r);
            cell.red = quint8(c);
            cell.green = quint8(r);
            cell.blue = quint8(c * r);
            return cell;
        });
        QString error;
        if (!writer.write(scan, &error)) {
            std::fprintf(stderr, "cannot write the benchmark scan: %s\n", qPrintable(error));
            std::exit(1);
        }
        return scan;
    }();
    return path;
}

// A scan whose header has been read.
struct OpenScan {
    TVXFile file{scanPath()};
    OpenScan()
    {
        if (!file.open() || !file.readHeader() || !file.close())
            std::abort();
    }
};

void reportCells(benchmark::State& state, double cellsPerIteration)
{
    state.counters["cells/s"] =
        benchmark::Counter(cellsPerIteration * double(state.iterations()), benchmark::Counter::kIsRate);
}

// Every tile read and decoded, the data file open throughout.
void BM_ReadTile(benchmark::State& state)
{
    OpenScan scan;
    const quint32 tilesX = scan.file.scanInfo().tilesX();
    const quint32 tilesY = scan.file.scanInfo().tilesY();
    TVXFileTile tile;
    scan.file.openData();
    for (auto _ : state) {
        for (quint32 tc = 0; tc < tilesX; ++tc)
            for (quint32 tr = 0; tr < tilesY; ++tr)
                if (!scan.file.readTile(tc, tr, tile))
                    state.SkipWithError("tile read failed");
        benchmark::DoNotOptimize(tile.points.data());
    }
    scan.file.closeData();
    reportCells(state, cellsPerScan);
}
BENCHMARK(BM_ReadTile)->Unit(benchmark::kMillisecond);

// The same reads without decoding: the limit that memory and I/O set.
void BM_ReadTileRecords(benchmark::State& state)
{
    OpenScan scan;
    const quint32 tilesX = scan.file.scanInfo().tilesX();
    const quint32 tilesY = scan.file.scanInfo().tilesY();
    std::vector<char> records;
    scan.file.openData();
    for (auto _ : state) {
        for (quint32 tc = 0; tc < tilesX; ++tc)
            for (quint32 tr = 0; tr < tilesY; ++tr)
                if (!scan.file.readTileRecords(tc, tr, records))
                    state.SkipWithError("tile read failed");
        benchmark::DoNotOptimize(records.data());
    }
    scan.file.closeData();
    reportCells(state, cellsPerScan);
}
BENCHMARK(BM_ReadTileRecords)->Unit(benchmark::kMillisecond);

// Decoding alone, from memory: one 64 × 64 tile again and again.
void BM_DecodeTile(benchmark::State& state)
{
    OpenScan scan;
    std::vector<char> records;
    if (!scan.file.readTileRecords(7, 5, records))
        std::abort();
    TVXFileTileDecoder decoder(scan.file.scanInfo());
    TVXFileTile tile;
    for (auto _ : state) {
        decoder.decode(7, 5, records.data(), records.size(), tile);
        benchmark::DoNotOptimize(tile.points.data());
    }
    reportCells(state, 64.0 * 64.0);
}
BENCHMARK(BM_DecodeTile);

// The point cloud view's extraction; the argument is the step.
void BM_ExtractPointCloud(benchmark::State& state)
{
    OpenScan scan;
    std::vector<float> xyz;
    for (auto _ : state) {
        if (!scan.file.extractPointCloud(quint32(state.range(0)), xyz))
            state.SkipWithError("extraction failed");
        benchmark::DoNotOptimize(xyz.data());
    }
    reportCells(state, cellsPerScan);
}
BENCHMARK(BM_ExtractPointCloud)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

// Single points as a pick reads them: the data file opened and closed around each.
void BM_ReadPoint(benchmark::State& state)
{
    OpenScan scan;
    quint32 c = 0;
    quint32 r = 0;
    for (auto _ : state) {
        double x, y, z;
        bool valid;
        c = (c + 977) % columns;
        r = (r + 523) % rows;
        scan.file.readPoint(c, r, x, y, z, valid);
        benchmark::DoNotOptimize(x);
    }
    reportCells(state, 1.0);
}
BENCHMARK(BM_ReadPoint);

// Opening a scan: both files opened, header and sections read, closed.
void BM_ReadHeader(benchmark::State& state)
{
    TVXFile file(scanPath());
    for (auto _ : state) {
        if (!file.open() || !file.readHeader())
            state.SkipWithError("header read failed");
        file.close();
    }
    state.SetItemsProcessed(state.iterations()); // headers
}
BENCHMARK(BM_ReadHeader);

} // namespace

BENCHMARK_MAIN();
