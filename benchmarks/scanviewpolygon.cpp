// Fill mesh and hit test of spherical polygons: a drawn outline of n vertices, once round and
// simple, once zig-zagging across itself so that the even-odd split has much to do.
#include "scene/scanviewpolygon.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

using namespace TVX::CORE;

namespace {

std::vector<Vector3d> roundOutline(int n)
{
    std::vector<Vector3d> vertices;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * M_PI * i / n;
        vertices.push_back(Vector3d(1.0, 0.3 * std::cos(angle), 0.3 * std::sin(angle)).normalized());
    }
    return vertices;
}

std::vector<Vector3d> crossingOutline(int n)
{
    std::mt19937 random(151u);
    std::uniform_real_distribution<double> offset(-0.3, 0.3);
    std::vector<Vector3d> vertices;
    for (int i = 0; i < n; ++i)
        vertices.push_back(Vector3d(1.0, offset(random), offset(random)).normalized());
    return vertices;
}

void meshBuild(benchmark::State& state, std::vector<Vector3d> (*outline)(int))
{
    ScanViewPolygon polygon(outline(int(state.range(0))));
    for (auto _ : state) {
        polygon.setPoint(0, polygon.points()[0]); // marks the mesh stale
        benchmark::DoNotOptimize(polygon.fillMesh().indices.size());
    }
}

void hitTest(benchmark::State& state)
{
    const ScanViewPolygon polygon(roundOutline(int(state.range(0))));
    polygon.fillMesh();
    for (auto _ : state)
        benchmark::DoNotOptimize(polygon.hitTest({1.0, 0.29, 0.0}));
}

} // namespace

BENCHMARK_CAPTURE(meshBuild, round, roundOutline)->RangeMultiplier(8)->Range(8, 4096);
BENCHMARK_CAPTURE(meshBuild, crossing, crossingOutline)->RangeMultiplier(4)->Range(8, 256);
BENCHMARK(hitTest)->RangeMultiplier(8)->Range(8, 4096);

BENCHMARK_MAIN();
