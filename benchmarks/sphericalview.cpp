// The spherical view as a user meets it: opening a large panorama to its first frame, and frames
// while the camera turns, at 1280 × 800. Needs an X display with Mesa's software driver:
//   LIBGL_ALWAYS_SOFTWARE=1 xvfb-run -a -s "-screen 0 1280x1024x24" build/bin/benchmarks_sphericalview
#include "glviews/glsurfaceformat.h"
#include "glviews/sphericalviewglwidget.h"
#include "mainwindow/coreresources.h"
#include "scene/scanviewscenegraph.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>

#include <GL/gl.h>

#include <benchmark/benchmark.h>

#include <cmath>

using namespace TVX::CORE;

namespace {

const QSize viewSize(1280, 800);

// A panorama with detail everywhere, as large as a full-resolution scan's image.
const QPixmap& largePanorama()
{
    static const QPixmap pixmap = [] {
        QImage image(10000, 5000, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x)
                line[x] = qRgb((x * 7) & 255, (y * 5) & 255, ((x ^ y) * 3) & 255);
        }
        return QPixmap::fromImage(image);
    }();
    return pixmap;
}

std::shared_ptr<ScanViewSceneGraph> levelCamera()
{
    auto graph = std::make_shared<ScanViewSceneGraph>();
    graph->angleX = M_PI / 2.0;
    return graph;
}

// Fifty polygons and fifty labelled texts around the horizon, and twenty station marks.
void annotate(SphericalViewGLWidget& view, ScanViewSceneGraph& graph)
{
    std::vector<SphericalViewGLWidget::StationMark> marks;
    for (int i = 0; i < 50; ++i) {
        const double a = 2.0 * M_PI * i / 50.0;
        const auto at = [a](double da, double z) { return Vector3d(std::cos(a + da), -std::sin(a + da), z); };
        graph.addItem(std::make_shared<ScanViewPolygon>(
            std::vector<Vector3d>{at(0.0, -0.1), at(0.05, -0.1), at(0.05, 0.1), at(0.025, 0.0), at(0.0, 0.1)}));
        graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("Label %1").arg(i), at(0.0, 0.2)));
        if (i % 5 == 0) {
            SphericalViewGLWidget::StationMark mark;
            mark.scanId = quint32(i);
            mark.name = QStringLiteral("Scan %1").arg(i);
            const Vector3d d = at(0.01, -0.3).normalized();
            mark.x = float(d.x);
            mark.y = float(d.y);
            mark.z = float(d.z);
            marks.push_back(mark);
        }
    }
    view.setStationMarks(std::move(marks));
}

void finishFrame(SphericalViewGLWidget& view)
{
    view.repaintNow();
    view.makeCurrent();
    glFinish();
    view.doneCurrent();
}

// From the widget's construction to its first frame: the panorama scaled to the texture limit and
// uploaded, the sphere built, the font loaded, one frame drawn.
void openToFirstFrame(benchmark::State& state)
{
    const QPixmap& panorama = largePanorama();
    for (auto _ : state) {
        SphericalViewGLWidget view(0, panorama, levelCamera(), 0.0, 2.0 * M_PI, -M_PI / 2.0, M_PI / 2.0);
        view.resize(viewSize);
        view.show();
        const QImage frame = view.grabFramebuffer();
        benchmark::DoNotOptimize(frame.constBits());
    }
}
BENCHMARK(openToFirstFrame)->Unit(benchmark::kMillisecond)->Iterations(5);

// One frame while the camera turns a degree per frame; argument 1 adds the annotations.
void turningFrame(benchmark::State& state)
{
    const auto graph = levelCamera();
    SphericalViewGLWidget view(0, largePanorama(), graph, 0.0, 2.0 * M_PI, -M_PI / 2.0, M_PI / 2.0);
    if (state.range(0) == 1)
        annotate(view, *graph);
    view.resize(viewSize);
    view.show();
    view.grabFramebuffer();
    for (auto _ : state) {
        view.rotate(0.0, 0.0, 1.0);
        finishFrame(view);
    }
}
BENCHMARK(turningFrame)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    installCompatibilityGLFormat();
    QApplication application(argc, argv);
    registerCoreResources();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
