#include "testregistry.h"

#include "scene/pointcloudcamera.h"

#include <QMatrix4x4>
#include <QPointF>
#include <QTest>

using namespace TVX::CORE;

namespace {

bool near(const QVector3D& a, const QVector3D& b)
{
    return (a - b).length() < 1e-4f;
}

QByteArray text(const QVector3D& v)
{
    return QByteArray::number(v.x()) + ", " + QByteArray::number(v.y()) + ", " + QByteArray::number(v.z());
}

// Where a point appears in a width × height viewport (y down), by Qt's own matrices as the
// oracle for what gluPerspective and gluLookAt do.
QPointF pixelOf(const PointcloudCamera& camera, const QVector3D& point, int width, int height)
{
    QMatrix4x4 projection;
    projection.perspective(float(PointcloudCamera::fieldOfView), float(width) / float(height), 0.1f, 1000.0f);
    QMatrix4x4 view;
    view.lookAt(camera.eye, camera.centre, camera.up);
    const QVector4D clip = projection * view * QVector4D(point, 1.0f);
    return {(clip.x() / clip.w() + 1.0) / 2.0 * width, (1.0 - clip.y() / clip.w()) / 2.0 * height};
}

} // namespace

class PointcloudCameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setUp_data()
    {
        QTest::addColumn<QVector3D>("cloudCentre");
        QTest::addColumn<QVector3D>("eye");
        QTest::addColumn<QVector3D>("side");
        // side = (0, 0, 1) × (ex, ey, ez) = (−ey, ex, 0).
        QTest::newRow("cloud above the station")
            << QVector3D(3, -2, 1.5) << QVector3D(-3, 2, 1.5) << QVector3D(-2, -3, 0);
        QTest::newRow("cloud below: z kept") << QVector3D(-1, 4, -2) << QVector3D(1, -4, -2) << QVector3D(4, 1, 0);
    }
    void setUp()
    {
        QFETCH(QVector3D, cloudCentre);
        QFETCH(QVector3D, eye);
        QFETCH(QVector3D, side);
        const PointcloudCamera camera(cloudCentre);
        QVERIFY2(near(camera.eye, eye), text(camera.eye));
        QVERIFY2(near(camera.side, side), text(camera.side));
    }

    void wheelZoom_data()
    {
        QTest::addColumn<float>("distance");
        QTest::addColumn<int>("delta");
        QTest::addColumn<QVector3D>("eye");
        QTest::addColumn<QVector3D>("centre");
        // The centre at (1, 0, 0), the eye `distance` further along +x; v = offset / 4.
        QTest::newRow("far, one notch away: the eye alone") << 8.0f << 120 << QVector3D(7, 0, 0) << QVector3D(1, 0, 0);
        QTest::newRow("far, half a notch back: 0 steps zoom in")
            << 8.0f << -60 << QVector3D(7, 0, 0) << QVector3D(1, 0, 0);
        QTest::newRow("far, one notch back: out") << 8.0f << -120 << QVector3D(11, 0, 0) << QVector3D(1, 0, 0);
        QTest::newRow("|v| = 1, in: both") << 4.0f << 120 << QVector3D(4, 0, 0) << QVector3D(0, 0, 0);
    }
    void wheelZoom()
    {
        QFETCH(float, distance);
        QFETCH(int, delta);
        QFETCH(QVector3D, eye);
        QFETCH(QVector3D, centre);
        PointcloudCamera camera;
        camera.centre = QVector3D(1, 0, 0);
        camera.eye = QVector3D(1 + distance, 0, 0);
        camera.zoom(PointcloudCamera::wheelSteps(delta));
        QVERIFY2(near(camera.eye, eye), text(camera.eye));
        QVERIFY2(near(camera.centre, centre), text(camera.centre));
    }

    void turnAccumulation_data()
    {
        QTest::addColumn<float>("pending");
        QTest::addColumn<QList<int>>("drags");
        QTest::addColumn<float>("degrees");
        QTest::newRow("350 then 20") << 0.0f << QList<int>{350, 20} << 10.0f;
        QTest::newRow("-725: twice round and -5") << 0.0f << QList<int>{-725} << 355.0f;
        QTest::newRow("fraction dropped") << 12.75f << QList<int>{1} << 13.0f;
    }
    void turnAccumulation()
    {
        QFETCH(float, pending);
        QFETCH(QList<int>, drags);
        QFETCH(float, degrees);
        for (int pixels : drags)
            pending = PointcloudCamera::accumulatedTurn(pending, pixels);
        QCOMPARE(pending, degrees);
    }

    void orbit_data()
    {
        QTest::addColumn<QVector3D>("centre");
        QTest::addColumn<QVector3D>("eye");
        QTest::addColumn<float>("yaw");
        QTest::addColumn<float>("pitch");
        QTest::addColumn<QVector3D>("turnedEye");
        QTest::addColumn<QVector3D>("turnedUp");
        // Yaw turns the offset (−3, 0, 0) by −90° about +z: (x, y) → (y, −x) = (0, 3), here about (1, 1, 0).
        QTest::newRow("yaw about another centre") << QVector3D(1, 1, 0) << QVector3D(-2, 1, 0) << 90.0f << 0.0f
                                                  << QVector3D(1, 4, 0) << QVector3D(0, 0, 1);
        // side = (0, 0, 1) × (−3, 0, 0) = (0, −3, 0); −90° about it is +90° about +y:
        // (x, z) → (z, −x), so the offset goes to (0, 0, 3) and up to (1, 0, 0).
        QTest::newRow("pitch over the top") << QVector3D() << QVector3D(-3, 0, 0) << 0.0f << 90.0f
                                            << QVector3D(0, 0, 3) << QVector3D(1, 0, 0);
        QTest::newRow("eye along up: no pitch axis") << QVector3D() << QVector3D(0, 0, 5) << 0.0f << 30.0f
                                                     << QVector3D(0, 0, 5) << QVector3D(0, 0, 1);
    }
    void orbit()
    {
        QFETCH(QVector3D, centre);
        QFETCH(QVector3D, eye);
        QFETCH(float, yaw);
        QFETCH(float, pitch);
        QFETCH(QVector3D, turnedEye);
        QFETCH(QVector3D, turnedUp);
        PointcloudCamera camera;
        camera.centre = centre;
        camera.eye = eye;
        camera.yawDelta = yaw;
        camera.pitchDelta = pitch;
        camera.orbit();
        QVERIFY2(near(camera.eye, turnedEye), text(camera.eye));
        QVERIFY2(near(camera.up, turnedUp), text(camera.up));
        QVERIFY2(near(camera.side, QVector3D::crossProduct(camera.up, camera.eye - camera.centre)), text(camera.side));
        QCOMPARE(camera.centre, centre);
        QCOMPARE(camera.yawDelta, 0.0f);
        QCOMPARE(camera.pitchDelta, 0.0f);
    }

    // What lay at the centre's depth under the mouse stays under it.
    void panFollowsTheMouse()
    {
        const QVector3D cloudCentre(120, 80, -4);
        const QPoint drag(3, 60);
        constexpr int width = 400;
        constexpr int height = 300;
        PointcloudCamera camera(cloudCentre);
        const QVector3D held = camera.centre;
        const QPointF before = pixelOf(camera, held, width, height);
        camera.pan(drag.x(), drag.y(), height);
        const QPointF after = pixelOf(camera, held, width, height);
        const QPointF moved = after - before;
        QVERIFY2((moved - QPointF(drag)).manhattanLength() < 0.05,
                 qPrintable(QStringLiteral("moved by (%1, %2)").arg(moved.x()).arg(moved.y())));
        QVERIFY(near(camera.eye - camera.centre, PointcloudCamera(cloudCentre).eye));
    }
};

TVX_TEST(PointcloudCameraTest)

#include "pointcloudcameratest.moc"
