#include "testregistry.h"

#include "scene/planartriangulation.h"

#include <QTest>

#include <vector>

using namespace TVX::CORE;
using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;

Q_DECLARE_METATYPE(ClipperLib::Paths)

namespace {

Path square(ClipperLib::cInt x, ClipperLib::cInt y, ClipperLib::cInt side, bool counterClockwise)
{
    Path p{{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
    if (!counterClockwise)
        ClipperLib::ReversePath(p);
    return p;
}

// What the even-odd rule fills at a point, by counting the edges crossed on the way up from below.
bool insideEvenOdd(const Paths& outlines, double x, double y)
{
    bool inside = false;
    for (const Path& p : outlines) {
        if (p.size() < 3)
            continue;
        for (std::size_t i = 0; i < p.size(); ++i) {
            const IntPoint& a = p[i];
            const IntPoint& b = p[(i + 1) % p.size()];
            if ((double(a.X) <= x) != (double(b.X) <= x)) {
                const double yCross = double(a.Y) + (double(b.Y) - double(a.Y)) * (x - double(a.X)) / double(b.X - a.X);
                if (yCross < y)
                    inside = !inside;
            }
        }
    }
    return inside;
}

double twiceArea(const QPointF& a, const QPointF& b, const QPointF& c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

} // namespace

// The triangles must cover exactly what the even-odd rule fills: no gap, no overlap, no spill.
class PlanarTriangulationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversExactly_data()
    {
        QTest::addColumn<Paths>("outlines");
        QTest::addColumn<double>("expectedArea");

        // Areas by hand: squares side². The right hole's rightmost vertex cannot bridge straight right through the second hole.
        QTest::newRow("holes in a row at one height")
            << Paths{square(0, 0, 30, true), square(2, 10, 5, false), square(12, 10, 5, false),
                     square(22, 10, 5, false)}
            << 900.0 - 75.0;
        QTest::newRow("island inside a hole")
            << Paths{square(0, 0, 20, true), square(4, 4, 12, false), square(8, 8, 4, true)} << 400.0 - 144.0 + 16.0;
        QTest::newRow("hole whose corner points at the outline's reflex corner")
            << Paths{{{0, 0}, {20, 0}, {20, 20}, {12, 20}, {10, 12}, {8, 20}, {0, 20}}, {{9, 2}, {11, 2}, {10, 8}}}
            << 400.0 - 4.0 * 8.0 / 2.0 - 2.0 * 6.0 / 2.0; // notch: base 4, height 8; hole: base 2, height 6
        // Unsimplified input: the triangulation splits crossing edges itself.
        QTest::newRow("bow tie as drawn") << Paths{{{0, 0}, {20, 20}, {20, 0}, {0, 20}}}
                                          << 2 * 20.0 * 10.0 / 2.0; // two lobes of base 20, height 10
        QTest::newRow("outline traced twice") // every point is crossed twice: even, so empty
            << Paths{{{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 0}, {4, 0}, {4, 4}, {0, 4}}} << 0.0;
    }

    void coversExactly()
    {
        QFETCH(Paths, outlines);
        QFETCH(double, expectedArea);
        // Sample points off every edge lie in exactly one triangle when the even-odd rule fills them
        // and in none otherwise; the triangles' areas add up to the region.
        const std::vector<QPointF> corners = triangulateEvenOdd(outlines);
        QCOMPARE(corners.size() % 3, std::size_t(0));
        double sum = 0.0;
        for (std::size_t i = 0; i < corners.size(); i += 3) {
            const double area = twiceArea(corners[i], corners[i + 1], corners[i + 2]) / 2.0;
            QVERIFY2(area > 0.0, "every triangle is counter-clockwise and not degenerate");
            sum += area;
        }
        QVERIFY2(std::abs(sum - expectedArea) <= 1e-9 * std::max(1.0, expectedArea),
                 qPrintable(QStringLiteral("triangles %1, region %2").arg(sum).arg(expectedArea)));

        // Every outline lies within 0 … 30. Irrational-looking offsets keep the samples off the
        // integer vertices and, almost surely, the edges.
        const int steps = 24;
        for (int i = 0; i <= steps; ++i) {
            for (int j = 0; j <= steps; ++j) {
                const double x = -1.0 + 32.0 * (i + 0.3183) / steps;
                const double y = -1.0 + 32.0 * (j + 0.6180) / steps;
                int covering = 0;
                for (std::size_t t = 0; t < corners.size(); t += 3) {
                    const QPointF pt(x, y);
                    if (twiceArea(corners[t], corners[t + 1], pt) > 0 && twiceArea(corners[t + 1], corners[t + 2], pt) > 0
                        && twiceArea(corners[t + 2], corners[t], pt) > 0)
                        ++covering;
                }
                QVERIFY2(covering == (insideEvenOdd(outlines, x, y) ? 1 : 0),
                         qPrintable(QStringLiteral("(%1, %2) lies in %3 triangles").arg(x).arg(y).arg(covering)));
            }
        }
    }

    // Outlines whose slabs would hold millions of triangles are refused before they allocate.
    void refusesOutlinesBeyondTheTriangleLimit()
    {
        // A comb of n teeth reaching right to x = 1000 + i: the slab between two tips is crossed by
        // the long edges of every longer tooth, about n² / 2 trapezoids in all, 4 million for n = 2000.
        const int teeth = 2000;
        Path comb;
        for (int i = 0; i < teeth; ++i) {
            comb.push_back({0, 2 * i});
            comb.push_back({1000 + i, 2 * i});
            comb.push_back({1000 + i, 2 * i + 1});
            comb.push_back({0, 2 * i + 1});
        }
        comb.push_back({-1, 2 * teeth});
        comb.push_back({-1, 0});
        QVERIFY(triangulateEvenOdd({comb}).empty());
        comb.resize(40 * 4);
        comb.push_back({-1, 2 * 40});
        comb.push_back({-1, 0});
        QVERIFY(!triangulateEvenOdd({comb}).empty());
    }
};

TVX_TEST(PlanarTriangulationTest)

#include "planartriangulationtest.moc"
