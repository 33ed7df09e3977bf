// The point cloud view of a 10000 × 5000 scan with every channel (about 1.8 million points at
// step 5): from construction (reading the points) to the first full frame, one frame at full
// density and one while interacting, and the bytes held per point. The scan is written once into
// a temporary folder. Run under Xvfb with software GL:
//   xvfb-run -a -s "-screen 0 1280x1024x24" env LIBGL_ALWAYS_SOFTWARE=1 QT_QPA_PLATFORM=xcb
//       build/bin/benchmarks_pointcloudview
// Frames are rendered and read back by grabFramebuffer, so every figure includes one read of the
// 1200 × 700 frame.
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"
#include "glviews/glsurfaceformat.h"
#include "glviews/pointcloudviewglwidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace TVX::CORE;

namespace {

constexpr quint32 columns = 10000;
constexpr quint32 rows = 5000;

const QString& scanPath()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString scan = dir.filePath(QStringLiteral("cloud.tvx"));
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
        writer.setMeasureBoundingBox(true);
        writer.setCellSource([](quint32 c, quint32 r) {
            TVXFileCell cell;
            cell.dx = qint8(int(c * 31 + r * 7) % 255 - 127);
            cell.dy = qint8(int(c * 3 + r * 17) % 255 - 127);
            // The top tenth is sky, without returns.
            cell.distanceMm = r < rows / 10 ? 0 : 3000 + (c * 13 + r * 7) % 40000;
            cell.intensity = quint8(c + r);
            cell.red = quint8(c);
            cell.green = quint8(r);
            cell.blue = quint8(c * r);
            return cell;
        });
        QElapsedTimer timer;
        timer.start();
        QString error;
        if (!writer.write(scan, &error)) {
            std::fprintf(stderr, "cannot write the benchmark scan: %s\n", qPrintable(error));
            std::exit(1);
        }
        std::fprintf(stderr, "scan of %u x %u cells written in %.1f s\n", columns, rows, timer.elapsed() / 1000.0);
        return scan;
    }();
    return path;
}

std::shared_ptr<TVXFile> openScan()
{
    auto file = std::make_shared<TVXFile>(scanPath());
    if (!file->open() || !file->readHeader() || !file->close())
        std::abort();
    return file;
}

void showView(PointcloudViewGLWidget& view)
{
    view.resize(1200, 700);
    view.show();
    QApplication::processEvents();
}

void press(PointcloudViewGLWidget& view, QEvent::Type type)
{
    const QPointF at(600, 350);
    QMouseEvent event(type, at, view.mapToGlobal(at), Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &event);
}

void openToFirstFrame(benchmark::State& state)
{
    const auto file = openScan();
    quint64 points = 0;
    quint64 bytes = 0;
    for (auto _ : state) {
        PointcloudViewGLWidget view(scanPath(), file, nullptr, Qt::black);
        showView(view);
        benchmark::DoNotOptimize(view.grabFramebuffer());
        points = view.pointCount();
        bytes = view.bytesHeld();
    }
    state.counters["points"] = double(points);
    state.counters["bytesPerPoint"] = double(bytes) / double(points);
}
BENCHMARK(openToFirstFrame)->Unit(benchmark::kMillisecond)->Iterations(3);

// One frame: argument 0 at full density, 1 while the left button is held.
void paintFrame(benchmark::State& state)
{
    const auto file = openScan();
    PointcloudViewGLWidget view(scanPath(), file, nullptr, Qt::black);
    showView(view);
    view.grabFramebuffer();
    const bool interacting = state.range(0) == 1;
    if (interacting)
        press(view, QEvent::MouseButtonPress);
    for (auto _ : state)
        benchmark::DoNotOptimize(view.grabFramebuffer());
    state.counters["drawnPoints"] = double(view.lastPaint().drawnPoints);
    if (interacting)
        press(view, QEvent::MouseButtonRelease);
}
BENCHMARK(paintFrame)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    installCompatibilityGLFormat();
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    scanPath();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
