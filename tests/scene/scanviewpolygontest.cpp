#include "testregistry.h"

#include "scene/scanviewpolygon.h"

#include <QPolygonF>
#include <QTest>

#include <cmath>
#include <limits>

using namespace TVX::CORE;

namespace {

// Outlines are drawn in the plane x = 1 in front of the station, (u, v) = (y, z) there, and then
// turned about the vertical axis by `yaw`, so that the fill plane is not always the one drawn in.
Vector3d turned(const Vector3d& p, double yaw)
{
    return {p.x * std::cos(yaw) - p.y * std::sin(yaw), p.x * std::sin(yaw) + p.y * std::cos(yaw), p.z};
}

Vector3d toward(const QPointF& uv, double yaw)
{
    return turned(Vector3d(1.0, uv.x(), uv.y()), yaw).normalized();
}

std::vector<Vector3d> directions(const QPolygonF& outline, double yaw)
{
    std::vector<Vector3d> result;
    for (const QPointF& p : outline)
        result.push_back(toward(p, yaw));
    return result;
}

// Area of the fill mesh seen in the drawing plane: each flat triangle between directions projects
// centrally onto a triangle of that plane, so the areas add up to the area filled there.
double meshAreaInDrawingPlane(const ScanViewPolygon::FillMesh& mesh, double yaw)
{
    double area = 0.0;
    for (std::size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        QPointF corner[3];
        for (int k = 0; k < 3; ++k) {
            const Vector3d w = turned(mesh.vertices[mesh.indices[i + std::size_t(k)]], -yaw);
            corner[k] = QPointF(w.y / w.x, w.z / w.x);
        }
        area += std::abs((corner[1].x() - corner[0].x()) * (corner[2].y() - corner[0].y())
                         - (corner[1].y() - corner[0].y()) * (corner[2].x() - corner[0].x()))
            / 2.0;
    }
    return area;
}

QPolygonF scaled(const QVector<QPointF>& points, double factor)
{
    QPolygonF result;
    for (const QPointF& p : points)
        result << p * factor;
    return result;
}

// Shapes in tenths of the plane's unit.
const QPolygonF square = scaled({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}, 0.1);
const QPolygonF bowTie = scaled({{-1, -1}, {1, 1}, {1, -1}, {-1, 1}}, 0.1);
// A square ring drawn as one outline: round the outside, along a slit, round the inside backwards
// and back along the slit; the slit has no width, so the inner square stays open.
const QPolygonF keyhole = scaled({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {0, 2}, {1, 2}, {1, 3}, {3, 3}, {3, 1}, {1, 1}, {1, 2},
                                  {0, 2}},
                                 0.1);

} // namespace

class ScanViewPolygonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillCoversTheEvenOddRegion_data()
    {
        QTest::addColumn<QPolygonF>("outline");
        QTest::addColumn<double>("yaw");
        QTest::addColumn<double>("expectedArea"); // in the drawing plane

        QTest::newRow("bow tie") << bowTie << 0.7 << 0.02; // two lobes of base 0.2 and height 0.1
        QTest::newRow("keyhole") << keyhole << 0.0 << 0.12; // 4 · 4 cells less the open 2 · 2
    }

    void fillCoversTheEvenOddRegion()
    {
        QFETCH(QPolygonF, outline);
        QFETCH(double, yaw);
        QFETCH(double, expectedArea);

        const ScanViewPolygon polygon(directions(outline, yaw));
        const ScanViewPolygon::FillMesh& mesh = polygon.fillMesh();
        QCOMPARE(mesh.indices.size() % 3, std::size_t(0));
        for (quint32 index : mesh.indices)
            QVERIFY(index < mesh.vertices.size());
        for (const Vector3d& v : mesh.vertices)
            QVERIFY(std::abs(v.length() - 1.0) < 1e-12);
        // Corners sit on a grid of a millionth of the plane's unit: a relative error of some 1e-5.
        QVERIFY2(std::abs(meshAreaInDrawingPlane(mesh, yaw) - expectedArea) <= 1e-4 * std::max(expectedArea, 0.01),
                 qPrintable(QString::number(meshAreaInDrawingPlane(mesh, yaw))));
    }

    void hitTest_data()
    {
        QTest::addColumn<QPolygonF>("outline");
        QTest::addColumn<double>("yaw");
        QTest::addColumn<QPointF>("probe");
        QTest::addColumn<bool>("hit");

        QTest::newRow("bow tie turned, left lobe") << bowTie << -2.0 << QPointF(-0.07, 0.0) << true;
        QTest::newRow("bow tie turned, above the crossing") << bowTie << -2.0 << QPointF(0.0, 0.07) << false;
        QTest::newRow("keyhole, open middle") << keyhole << 0.0 << QPointF(0.2, 0.2) << false;
    }

    void hitTest()
    {
        QFETCH(QPolygonF, outline);
        QFETCH(double, yaw);
        QFETCH(QPointF, probe);
        QFETCH(bool, hit);

        const ScanViewPolygon polygon(directions(outline, yaw));
        const Vector3d direction = toward(probe, yaw);
        QCOMPARE(polygon.hitTest(direction), hit);
        // The length of the direction does not matter; the opposite ray never meets anything.
        QCOMPARE(polygon.hitTest(direction * 7.0), hit);
        QVERIFY(!polygon.hitTest(-direction));
    }

    void badVerticesNeverBreakTheMesh_data()
    {
        QTest::addColumn<QString>("extra");  // one more vertex after the square's four
        QTest::addColumn<bool>("squareHit"); // whether the square's centre is still hit

        QTest::newRow("not a number") << "nan" << true;
        // Some 76° from the mean direction, it still projects: its wedge back to the first vertex
        // crosses the square's middle, which the even-odd rule then leaves open.
        QTest::newRow("far to the side") << "side" << false;
        QTest::newRow("outline of opposite pairs") << "opposites" << false;
    }

    void badVerticesNeverBreakTheMesh()
    {
        QFETCH(QString, extra);
        QFETCH(bool, squareHit);

        std::vector<Vector3d> vertices = directions(square, 0.0);
        const double nan = std::numeric_limits<double>::quiet_NaN();
        if (extra == "nan")
            vertices.push_back({nan, 0.0, 1.0});
        else if (extra == "side")
            vertices.push_back({0.0, 1.0, 0.0});
        else if (extra == "opposites")
            vertices = {{1, 0, 0}, {-1, 0, 0}, {0, 1, 0}, {0, -1, 0}};

        const ScanViewPolygon polygon(vertices);
        const ScanViewPolygon::FillMesh& mesh = polygon.fillMesh();
        QCOMPARE(mesh.indices.size() % 3, std::size_t(0));
        for (quint32 index : mesh.indices)
            QVERIFY(index < mesh.vertices.size());
        for (const Vector3d& v : mesh.vertices)
            QVERIFY(std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z));
        QCOMPARE(polygon.hitTest({1.0, 0.0, 0.0}), squareHit);
        QVERIFY(!polygon.hitTest({-1.0, 0.0, 0.0}));
    }
};

TVX_TEST(ScanViewPolygonTest)

#include "scanviewpolygontest.moc"
