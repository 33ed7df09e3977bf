// Opening a project of 200 scans as `tvxtool project --scans` does (read-only, no lock, headers
// only), against reading the same bytes raw in the same process: the project file and every
// scan file, each opened, read whole and closed. The target is at most three times the raw read.
// The project is written once, into a temporary folder, before the first benchmark.
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"
#include "fileio/tvxprojectserializer.h"
#include "project/basicproject.h"
#include "project/projecttreerecords.h"
#include "scene/tvxsreferencesphere.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

using namespace TVX::CORE;

namespace {

constexpr int scanCount = 200;

struct Project {
    QTemporaryDir dir;
    QString file;
    QStringList files; // the project file and every scan file
};

void fail(const QString& why)
{
    std::fprintf(stderr, "cannot write the benchmark project: %s\n", qPrintable(why));
    std::exit(1);
}

const Project& project()
{
    static const Project* written = [] {
        auto* p = new Project;
        QDir(p->dir.path()).mkdir(QStringLiteral("scans"));
        TVXProjectContent content;
        const auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
        for (int i = 0; i < scanCount; ++i) {
            const QString relative = QStringLiteral("scans/scan%1.tvx").arg(i, 3, 10, QLatin1Char('0'));
            TVXFileWriter writer;
            TVXFileScanInfo& info = writer.scanInfo();
            info.columns = 64;
            info.rows = 32;
            info.horizontalMax = 6.28;
            info.verticalMin = -1.0;
            info.verticalMax = 1.5;
            info.channels = {{TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 8}};
            info.transformation[3] = i;
            writer.referenceInfo().appendObject(std::make_shared<TVXSReferenceSphere>(
                QStringLiteral("S1"), TVXSReferencePoint::Values{1.0, 2.0, 0.5, 0.07}));
            QString error;
            if (!writer.write(p->dir.filePath(relative), &error))
                fail(error);
            content.scans << relative;
            root->appendScan(ProjectItemScan::create(relative, quint64(i)));
            p->files << p->dir.filePath(relative);
        }
        content.tree = projectTreeRecords(root);
        p->file = p->dir.filePath(QStringLiteral("bench.tvxprj"));
        TVXProjectSerializer serializer(p->file);
        if (!serializer.open(TVXProjectSerializer::WriteOnly))
            fail(p->file);
        serializer.write(content);
        serializer.close();
        p->files.prepend(p->file);
        return p;
    }();
    return *written;
}

void BM_OpenProjectForReading(benchmark::State& state)
{
    const Project& bench = project();
    BasicProject& basic = BasicProject::instance();
    for (auto _ : state) {
        int code = 0;
        QString message;
        if (!basic.openProjectForReading(bench.file, code, message) || basic.scanCount() != scanCount)
            state.SkipWithError(qPrintable(message));
        basic.closeProject(code, message);
    }
    state.SetItemsProcessed(state.iterations() * scanCount);
}
BENCHMARK(BM_OpenProjectForReading)->Unit(benchmark::kMillisecond);

void BM_ReadProjectBytesRaw(benchmark::State& state)
{
    const Project& bench = project();
    for (auto _ : state) {
        for (const QString& path : bench.files) {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                state.SkipWithError("cannot read");
            benchmark::DoNotOptimize(file.readAll().size());
        }
    }
    state.SetItemsProcessed(state.iterations() * scanCount);
}
BENCHMARK(BM_ReadProjectBytesRaw)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
