#include "scene/planartriangulation.h"

#include <QLoggingCategory>

#include <algorithm>

namespace TVX::CORE {

namespace {

Q_LOGGING_CATEGORY(lcTriangulation, "tvx.glviews.triangulation")

// A non-vertical edge, left end first.
struct Edge {
    double x0, y0, x1, y1;
    double yAt(double x) const
    {
        // The ends are returned as they are, so that neighbouring slabs share their corners exactly.
        if (x <= x0)
            return y0;
        if (x >= x1)
            return y1;
        return y0 + (y1 - y0) * (x - x0) / (x1 - x0);
    }
};

double twiceArea(const QPointF& a, const QPointF& b, const QPointF& c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

void addTriangle(std::vector<QPointF>& triangles, const QPointF& a, const QPointF& b, const QPointF& c)
{
    if (twiceArea(a, b, c) <= 0.0)
        return;
    triangles.push_back(a);
    triangles.push_back(b);
    triangles.push_back(c);
}

// Where two edges cross, given that they do between `left` and `right`.
double crossingX(const Edge& a, const Edge& b, double left, double right)
{
    const double gapLeft = a.yAt(left) - b.yAt(left);
    const double gapRight = a.yAt(right) - b.yAt(right);
    return left + (right - left) * gapLeft / (gapLeft - gapRight);
}

// Fills the slab between `left` and `right` from the edges that span it. Clipper rounds the
// crossings it resolves to the integer grid, so its pieces may still cross slightly: where the
// bottom-up order of the edges differs between the slab's middle and one of its sides, the slab is
// split at the crossings found and each part filled on its own.
bool fillSlab(std::vector<const Edge*>& active, double left, double right, std::vector<QPointF>& triangles, int depth)
{
    const double middle = 0.5 * (left + right);
    std::sort(active.begin(), active.end(),
              [middle](const Edge* a, const Edge* b) { return a->yAt(middle) < b->yAt(middle); });
    std::vector<double> cuts;
    for (std::size_t i = 0; i + 1 < active.size(); ++i) {
        const Edge& a = *active[i];
        const Edge& b = *active[i + 1];
        // Inversions below a millionth of a grid step cannot hold a triangle worth drawing.
        if (a.yAt(left) > b.yAt(left) + 1e-6 || a.yAt(right) > b.yAt(right) + 1e-6) {
            const double x = crossingX(a, b, left, right);
            if (x > left && x < right)
                cuts.push_back(x);
        }
    }
    // Depth bounds the splitting where rounding leaves an inversion without a usable crossing.
    if (!cuts.empty() && depth < 32) {
        std::sort(cuts.begin(), cuts.end());
        cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
        double from = left;
        cuts.push_back(right);
        for (double to : cuts) {
            if (!fillSlab(active, from, to, triangles, depth + 1))
                return false;
            from = to;
        }
        return true;
    }
    if (triangles.size() / 3 + active.size() > maxTriangulationTriangles)
        return false;
    for (std::size_t i = 0; i + 1 < active.size(); i += 2) {
        const Edge& lower = *active[i];
        const Edge& upper = *active[i + 1];
        const QPointF a(left, lower.yAt(left));
        const QPointF b(right, lower.yAt(right));
        const QPointF c(right, upper.yAt(right));
        const QPointF d(left, upper.yAt(left));
        // A trapezoid that narrows to a point on one side gives a single triangle.
        addTriangle(triangles, a, b, c);
        addTriangle(triangles, a, c, d);
    }
    return true;
}

} // namespace

std::vector<QPointF> triangulateEvenOdd(const ClipperLib::Paths& outlines)
{
    std::vector<Edge> edges;
    std::vector<double> slabBounds;
    for (const ClipperLib::Path& outline : outlines) {
        if (outline.size() < 3)
            continue;
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const ClipperLib::IntPoint& p = outline[i];
            const ClipperLib::IntPoint& q = outline[(i + 1) % outline.size()];
            slabBounds.push_back(double(p.X));
            // Vertical edges lie on slab bounds and bound nothing inside a slab.
            if (p.X == q.X)
                continue;
            if (p.X < q.X)
                edges.push_back({double(p.X), double(p.Y), double(q.X), double(q.Y)});
            else
                edges.push_back({double(q.X), double(q.Y), double(p.X), double(p.Y)});
        }
    }
    std::sort(slabBounds.begin(), slabBounds.end());
    slabBounds.erase(std::unique(slabBounds.begin(), slabBounds.end()), slabBounds.end());
    std::sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) { return a.x0 < b.x0; });

    std::vector<QPointF> triangles;
    std::vector<const Edge*> active;
    std::size_t nextEdge = 0;
    for (std::size_t s = 0; s + 1 < slabBounds.size(); ++s) {
        const double left = slabBounds[s];
        const double right = slabBounds[s + 1];
        active.erase(std::remove_if(active.begin(), active.end(), [left](const Edge* e) { return e->x1 <= left; }),
                     active.end());
        while (nextEdge < edges.size() && edges[nextEdge].x0 <= left)
            active.push_back(&edges[nextEdge++]);
        if (!fillSlab(active, left, right, triangles, 0)) {
            qCWarning(lcTriangulation) << "outline too complex to fill:" << edges.size() << "edges";
            return {};
        }
    }
    return triangles;
}

} // namespace TVX::CORE
