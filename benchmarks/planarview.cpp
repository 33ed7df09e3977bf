// The planar view of a scan as a user meets it: building the view (panorama pyramid, scene,
// sub window) and its first frame, and one full frame at "zoom all" and at 1:1, for a small and a
// large scan. Run with QT_QPA_PLATFORM=offscreen.
#include "mainwindow/mdiplanarviewsubwindow.h"
#include "planarview/graphicsview.h"
#include "planarview/panoramaitem.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace TVX::CORE;

namespace {

// A panorama with detail everywhere, so that no tile compresses to nothing.
QImage panorama(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = qRgb((x * 7) & 255, (y * 5) & 255, ((x ^ y) * 3) & 255);
    }
    return image;
}

const QImage& image(int width)
{
    static const QImage small = panorama(2048, 1024);
    static const QImage large = panorama(10000, 5000);
    return width == 2048 ? small : large;
}

// Renders what the viewport shows into an image of its size.
void frame(MDIPlanarViewSubWindow& sub, QImage& target)
{
    QPainter painter(&target);
    sub.graphicsView()->render(&painter, QRectF(), sub.graphicsView()->viewport()->rect());
}

void openToFirstFrame(benchmark::State& state)
{
    const QImage& source = image(int(state.range(0)));
    QImage target(1200, 700, QImage::Format_RGB32);
    for (auto _ : state) {
        MDIPlanarViewSubWindow sub(0, source, source.width(), source.height());
        sub.resize(1200, 700);
        sub.show();
        sub.fit();
        frame(sub, target);
    }
    MDIPlanarViewSubWindow sub(0, source, source.width(), source.height());
    state.counters["heldMB"] = double(sub.panorama()->byteCount()) / 1e6;
    state.counters["imageMB"] = double(source.sizeInBytes()) / 1e6;
}
BENCHMARK(openToFirstFrame)->Arg(2048)->Arg(10000)->Unit(benchmark::kMillisecond);

// One frame of the large scan: argument 0 at "zoom all", 1 at one image pixel per screen pixel.
void paintFrame(benchmark::State& state)
{
    const QImage& source = image(10000);
    MDIPlanarViewSubWindow sub(0, source, source.width(), source.height());
    sub.resize(1200, 700);
    sub.show();
    sub.fit();
    if (state.range(0) == 1) {
        sub.graphicsView()->setTransform(QTransform());
        sub.graphicsView()->centerOn(5000, 2500);
    }
    QImage target(1200, 700, QImage::Format_RGB32);
    for (auto _ : state)
        frame(sub, target);
}
BENCHMARK(paintFrame)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
