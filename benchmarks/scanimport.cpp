// Importing a gridded scan of 10000 × 5000 cells (every channel) from PTX and E57, both made from a
// scan file of the project's own writer. Each import runs in a child process, so that its peak
// memory (the child's maximum resident set) is its own. Targets: at least 5 million points per
// second from E57 and 2 million from PTX; peak memory near one tile strip of cells (64 columns ×
// rows × 12 bytes) plus the panorama (3 bytes a cell) above the process's baseline, never the
// cloud as doubles (24 bytes a point and more).
// TVX_IMPORT_BENCH_SIZE=COLUMNSxROWS makes another size; the files are made once in a temporary
// folder (the PTX of the full size takes about 3 GB).
#include "../tests/common/scanexport.h"

#include "fileio/e57reader.h"
#include "fileio/importedscan.h"
#include "fileio/ptxreader.h"
#include "fileio/scanimporter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

struct Inputs {
    QTemporaryDir dir;
    quint32 columns{10000};
    quint32 rows{5000};
    QString ptx, e57;

    Inputs()
    {
        const QByteArray size = qgetenv("TVX_IMPORT_BENCH_SIZE");
        if (const int x = size.indexOf('x'); x > 0) {
            columns = size.left(x).toUInt();
            rows = size.mid(x + 1).toUInt();
        }
        const QString source = dir.filePath(QStringLiteral("source.tvx"));
        writeSourceScan(source, columns, rows);
        ptx = dir.filePath(QStringLiteral("bench.ptx"));
        e57 = dir.filePath(QStringLiteral("bench.e57"));
        QFile ptxFile(ptx);
        QFile e57File(e57);
        if (!ptxFile.open(QIODevice::WriteOnly) || !writePtx(ptxFile, {exportOf(source)}) || !e57File.open(QIODevice::ReadWrite)
            || !writeE57(e57File, {exportOf(source)}))
            std::abort();
        QFile::remove(source);
        QFile::remove(TVX::CORE::TVXFile::dataPathFor(source));
    }
};

Inputs& inputs()
{
    static Inputs made;
    return made;
}

// Reads and imports in a child process; its peak resident set in kB, -1 when it failed.
// `cpuSeconds` receives the child's processor time (user and system).
long importInChild(bool ptx, const QString& output, double& cpuSeconds)
{
    const QString input = ptx ? inputs().ptx : inputs().e57;
    const pid_t child = fork();
    if (child == 0) {
        try {
            const auto scans = ptx ? PtxReader::read(input) : E57Reader::read(input);
            // A scan with a grid that did not keep it would be gridded anew: another, slower path.
            _exit(ScanImporter::write(*scans.at(0), output, {}).gridKept ? 0 : 2);
        } catch (...) {
            _exit(1);
        }
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return -1;
    const auto seconds = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    cpuSeconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    return usage.ru_maxrss;
}

void import(benchmark::State& state, bool ptx)
{
    Inputs& in = inputs();
    const double points = double(in.columns) * in.rows;
    rusage self{};
    getrusage(RUSAGE_SELF, &self);
    long peak = 0;
    double cpu = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        peak = importInChild(ptx, in.dir.filePath(QStringLiteral("out.tvx")), cpu);
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        if (peak < 0)
            state.SkipWithError("the import failed");
    }
    state.counters["points/s"] = benchmark::Counter(points * double(state.iterations()), benchmark::Counter::kIsRate);
    state.counters["peak MB"] = double(peak) / 1024;
    state.counters["child CPU s"] = cpu; // of the last import; the rest of its time it waits for the disk
    state.counters["parent MB"] = double(self.ru_maxrss) / 1024; // the child starts as a copy of it
    state.counters["strip+image MB"] = (64.0 * in.rows * sizeof(TVXFileCell) + 3.0 * points) / (1 << 20);
    state.counters["cloud as doubles MB"] = points * 24 / (1 << 20);
}

void BM_ImportE57(benchmark::State& state)
{
    import(state, false);
}
void BM_ImportPtx(benchmark::State& state)
{
    import(state, true);
}

} // namespace

BENCHMARK(BM_ImportE57)->Iterations(2)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(BM_ImportPtx)->Iterations(2)->UseManualTime()->Unit(benchmark::kSecond);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
