#include "testregistry.h"

#include "scene/spheregeometry.h"
#include "scene/sphericalprojection.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

Q_DECLARE_METATYPE(TVX::CORE::Vector3d)
Q_DECLARE_METATYPE(TVX::CORE::AngularExtent)
Q_DECLARE_METATYPE(TVX::CORE::CameraView)

namespace {

constexpr double degree = M_PI / 180.0;

const AngularExtent fullExtent{0.0, 2.0 * M_PI, -M_PI / 2.0, M_PI / 2.0};
// A quarter turn either side of 180° and ±30° of elevation.
const AngularExtent partialExtent{90.0 * degree, 270.0 * degree, -30.0 * degree, 30.0 * degree};

// The camera looking at horizontal angle `azimuth` and elevation `elevation` (degrees). Rows of
// Rx(aX)·Rz(aZ): the third is (sin aX·sin aZ, sin aX·cos aZ, cos aX), so the viewing direction is
// (−sin aX·sin aZ, −sin aX·cos aZ, −cos aX); with aX = 90° + e and aZ = a − 90° that is
// (cos e·cos a, −cos e·sin a, sin e): elevation e, and horizontal angle a growing clockwise.
CameraView lookingAt(double azimuth, double elevation, double fieldOfView, int width, int height)
{
    CameraView view;
    view.angleX = (90.0 + elevation) * degree;
    view.angleZ = (azimuth - 90.0) * degree;
    view.fieldOfView = fieldOfView;
    view.width = width;
    view.height = height;
    return view;
}

Vector3d direction(double azimuth, double elevation)
{
    const double a = azimuth * degree;
    const double e = elevation * degree;
    return {std::cos(e) * std::cos(a), -std::cos(e) * std::sin(a), std::sin(e)};
}

Vector3d viewingDirection(const CameraView& view)
{
    const Matrix3d r = cameraRotation(view.angleX, view.angleY, view.angleZ);
    return {-r(2, 0), -r(2, 1), -r(2, 2)};
}

} // namespace

class SphericalProjectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sphereMeshCloses()
    {
        const SphereMesh mesh = buildSphereMesh(fullExtent);
        // 149 bands of 300 slices, two vertices per slice.
        QCOMPARE(mesh.vertices.size(), std::size_t(149 * 300 * 2));
        QCOMPARE(mesh.texCoords.size(), mesh.vertices.size());
        for (const auto& v : mesh.vertices)
            QVERIFY(std::abs(std::hypot(v[0], v[1], v[2]) - 1.0) < 1e-6);
        // The last slice of every band lies on its first.
        for (std::size_t band = 0; band < 149; ++band) {
            const std::size_t first = band * 600;
            const std::size_t last = first + 598;
            for (std::size_t k = 0; k < 2; ++k) {
                for (std::size_t c = 0; c < 3; ++c)
                    QVERIFY(std::abs(mesh.vertices[first + k][c] - mesh.vertices[last + k][c]) < 1e-6f);
            }
        }
        QVERIFY(buildSphereMesh(fullExtent, 1).vertices.empty());
    }

    // Three rings: φ = 0, 90°, 180°; six slices 72° apart, λ = 72°·j, horizontal angle h = 360° − λ.
    // Vertex (band i, slice j, upper/lower k) sits at index (6·i + j)·2 + k.
    void sphereTextureCoordinates_data()
    {
        QTest::addColumn<AngularExtent>("extent");
        QTest::addColumn<int>("index");
        QTest::addColumn<double>("u");
        QTest::addColumn<double>("v");
        QTest::newRow("full: nadir, h = 0°") << fullExtent << 23 << 0.0 << 0.0;
        // vStart = 60°, vRange = 60°: the zenith lies at (180° − 60°) / 60° = 2, the nadir at −1.
        QTest::newRow("partial: zenith above the band") << partialExtent << 0 << 1.0 << 2.0;
        // h = 216°: (216 − 90) / 180 = 0.7.
        QTest::newRow("partial: equator inside, h = 216°") << partialExtent << 5 << 0.7 << 0.5;
        QTest::newRow("partial: after the turn clamps to 1") << partialExtent << 3 << 1.0 << 0.5;
    }

    void sphereTextureCoordinates()
    {
        QFETCH(AngularExtent, extent);
        QFETCH(int, index);
        QFETCH(double, u);
        QFETCH(double, v);
        const SphereMesh mesh = buildSphereMesh(extent, 3);
        QCOMPARE(mesh.vertices.size(), std::size_t(24));
        QVERIFY2(std::abs(mesh.texCoords.at(std::size_t(index))[0] - u) < 1e-6, "u");
        QVERIFY2(std::abs(mesh.texCoords.at(std::size_t(index))[1] - v) < 1e-6, "v");
    }

    // What GL reads column by column from the written array must be the rotation the camera uses.
    void cameraMatrixIsReadTransposed()
    {
        const double angleX = 30.0 * degree, angleY = -20.0 * degree, angleZ = 250.0 * degree;
        const Matrix4d array = cameraMatrixArray(angleX, angleY, angleZ);
        const Matrix3d inEffect = cameraRotation(angleX, angleY, angleZ);
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column)
                QCOMPARE(array[std::size_t(column * 4 + row)], inEffect(row, column));
            QCOMPARE(array[std::size_t(row * 4 + 3)], 0.0);
            QCOMPARE(array[std::size_t(12 + row)], 0.0);
        }
        QCOMPARE(array[15], 1.0);
    }

    void cameraLooksWhereItsAnglesSay()
    {
        // All zero: the camera looks straight down.
        QCOMPARE(viewingDirection(CameraView()), Vector3d(0.0, 0.0, -1.0));
        const CameraView view = lookingAt(120.0, 25.0, 60.0, 100, 100);
        QVERIFY((viewingDirection(view) - direction(120.0, 25.0)).length() < 1e-12);
    }

    // Pixels go to directions and back to the same place; the centre pixel looks along the camera,
    // and the top edge's middle lies half the field of view above it.
    void screenRoundTrips_data()
    {
        QTest::addColumn<CameraView>("view");
        QTest::addColumn<QPoint>("pixel");
        const CameraView wide = lookingAt(200.0, -10.0, 60.0, 640, 400);
        const CameraView tall = lookingAt(15.0, 70.0, 12.0, 300, 500);
        QTest::newRow("wide, centre") << wide << QPoint(320, 200);
        QTest::newRow("wide, top left") << wide << QPoint(0, 0);
        QTest::newRow("tall, top middle") << tall << QPoint(150, 0);
    }

    void screenRoundTrips()
    {
        QFETCH(CameraView, view);
        QFETCH(QPoint, pixel);
        const Vector3d d = screenToDirection(view, pixel.x(), pixel.y());
        QVERIFY(std::abs(d.length() - 1.0) < 1e-12);
        ScreenPoint screen;
        QVERIFY(viewToScreen(view, d, screen));
        QVERIFY2(std::abs(screen.x - pixel.x()) < 1e-6, qPrintable(QString::number(screen.x)));
        QVERIFY2(std::abs(screen.y - (view.height - pixel.y())) < 1e-6, qPrintable(QString::number(screen.y)));
        QVERIFY(screen.depth > 0.0 && screen.depth < 1.0);
        // A point behind the camera is never on screen.
        QVERIFY(!viewToScreen(view, -d, screen));

        const Vector3d ahead = viewingDirection(view);
        const double fromCentre = angleBetween(d, ahead);
        if (pixel == QPoint(view.width / 2, view.height / 2))
            QVERIFY(fromCentre < 1e-9);
        if (pixel == QPoint(view.width / 2, 0))
            QVERIFY(std::abs(fromCentre - view.fieldOfView / 2.0 * degree) < 1e-9);
    }

    void undefinedPixels()
    {
        QCOMPARE(screenToDirection(lookingAt(0.0, 0.0, 60.0, 100, 0), 50, 0), Vector3d());
    }

    // 360 × 180 cells over the full sphere: one cell per degree, row 90 at the horizon.
    void directionToCell_data()
    {
        QTest::addColumn<Vector3d>("direction");
        QTest::addColumn<AngularExtent>("extent");
        QTest::addColumn<QPoint>("cell");
        // Row 180 − round(135 / 180 · 180) = 45.
        QTest::newRow("45° up") << direction(0.0, 45.0) << fullExtent << QPoint(0, 45);
        QTest::newRow("10.6° rounds to the nearer column") << direction(10.6, 0.0) << fullExtent << QPoint(11, 90);
        // 180° across −90 … 90 at 2 columns per degree; elevation 60° is 30° above a 60° band of
        // 180 rows: 180 − round(90 / 60 · 180) = −90.
        QTest::newRow("above a partial band") << direction(180.0, 60.0) << partialExtent << QPoint(180, -90);
        QTest::newRow("zero") << Vector3d(0, 0, 0) << fullExtent << QPoint(-1, -1);
        QTest::newRow("empty extent") << Vector3d(1, 0, 0) << AngularExtent{1.0, 1.0, 0.0, 0.0} << QPoint(-1, -1);
    }

    void directionToCell()
    {
        QFETCH(Vector3d, direction);
        QFETCH(AngularExtent, extent);
        QFETCH(QPoint, cell);
        QCOMPARE(TVX::CORE::directionToCell(direction, extent, 360, 180), cell);
    }

    // 200 × 100 pixels: points 3 pixels beyond the left, bottom and right edges still count, but
    // the top edge cuts off 5 pixels inside.
    void edgeTestIsAsymmetric_data()
    {
        QTest::addColumn<QPoint>("pixel"); // y from the top
        QTest::addColumn<bool>("inside");
        QTest::newRow("3 beyond the right") << QPoint(203, 50) << true;
        QTest::newRow("8 beyond the right") << QPoint(208, 50) << false;
        QTest::newRow("3 inside the top") << QPoint(100, 3) << false;
        QTest::newRow("8 inside the top") << QPoint(100, 8) << true;
    }

    void edgeTestIsAsymmetric()
    {
        QFETCH(QPoint, pixel);
        QFETCH(bool, inside);
        const CameraView view = lookingAt(40.0, 5.0, 50.0, 200, 100);
        const Vector3d d = screenToDirection(view, pixel.x(), pixel.y());
        ScreenPoint screen;
        QVERIFY(viewToScreen(view, d, screen));
        QCOMPARE(viewToScreenInside(view, d, screen), inside);
    }

    void zoomAndMarkSizesStopAtTheirLimits()
    {
        QCOMPARE(zoomedIn(60.0), 56.0);
        QCOMPARE(zoomedIn(14.0), 10.0);
        QCOMPARE(zoomedOut(88.0), 90.0);
        QCOMPARE(stationMarkDrawSize(15), 16u);
        QCOMPARE(stationMarkDrawSize(33), 32u); // grows, then clamps
        QCOMPARE(stationMarkDrawSize(0), 16u);
        QCOMPARE(stationMarkDrawSize(0xffffffffu), 32u); // the largest odd does not wrap
    }

    void anglesWrap()
    {
        struct Case {
            double before, delta, after; // degrees
        };
        for (const Case& c : {Case{359.0, 2.0, 1.0}, Case{0.0, -1.0, 359.0}, Case{350.0, 10.0, 0.0}}) {
            const double result = rotatedAngle(c.before * degree, c.delta);
            QVERIFY(result >= 0.0 && result < 2.0 * M_PI);
            QVERIFY2(std::abs(result / degree - c.after) < 1e-9, qPrintable(QString::number(result / degree)));
        }
    }

    // The later of two overlapping rectangles wins; the row is tested one above the pixel.
    void hitAreas()
    {
        const std::vector<ScreenRect> areas{{0, 10, 50, 20}, {40, 0, 60, 30}};
        QCOMPARE(hitAreaAt(areas, 45, 15), 1);
        QCOMPARE(hitAreaAt(areas, 10, 9), 0);
        QCOMPARE(hitAreaAt(areas, 10, 8), -1);
        QCOMPARE(hitAreaAt(areas, 10, 20), -1);
        QCOMPARE(hitAreaAt({}, 0, 0), -1);
        // A round mark of 20 pixels: its square's corner is outside.
        QVERIFY(stationMarkHolds(100, 100, 20, 109.0, 100.0));
        QVERIFY(!stationMarkHolds(100, 100, 20, 109.0, 109.0));
    }

    void arcStepsFollowTheGreatCircle()
    {
        const std::vector<Vector3d> steps = greatCircleSteps(Vector3d(1, 0, 0), Vector3d(0, 0, 2), 10.0 * degree);
        QCOMPARE(steps.size(), std::size_t(9));
        for (std::size_t k = 0; k < steps.size(); ++k) {
            QVERIFY(std::abs(steps[k].y) < 1e-15);
            QVERIFY((steps[k] - direction(0.0, 10.0 * double(k))).length() < 1e-12);
        }
        QCOMPARE(greatCircleSteps(Vector3d(1, 0, 0), Vector3d(-1, 0, 0), 0.1).size(), std::size_t(1));
        QCOMPARE(greatCircleSteps(Vector3d(1, 0, 0), Vector3d(0, 1, 0), 0.0).size(), std::size_t(1));
    }
};

TVX_TEST(SphericalProjectionTest)

#include "sphericalprojectiontest.moc"
