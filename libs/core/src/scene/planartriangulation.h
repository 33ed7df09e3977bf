#pragma once

#include <QPointF>

#include <polyclipping/clipper.hpp>

#include <vector>

namespace TVX::CORE {

// Most triangles that one triangulation produces; an outline that would need more (tens of
// thousands of zig-zagging vertices) gets none rather than an allocation of gigabytes.
constexpr std::size_t maxTriangulationTriangles = 1u << 20;

// Triangles that cover exactly the region which the even-odd rule fills for `outlines`, such as the
// outer outlines and holes that Clipper's simplification returns; any orientation, collinear and
// repeated points, and edges that still cross are all allowed.
// Returns three corners per triangle, each triangle counter-clockwise with positive area.
//
// The region is cut into vertical slabs at every vertex and crossing; inside a slab no edges cross,
// so the edges met bottom-up bound filled trapezoids in pairs, each giving at most two triangles.
std::vector<QPointF> triangulateEvenOdd(const ClipperLib::Paths& outlines);

} // namespace TVX::CORE
