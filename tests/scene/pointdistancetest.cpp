#include "testregistry.h"

#include "scene/pointdistance.h"

#include <QTest>

#include <cmath>

using namespace TVX::CORE;

class PointDistanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Two stations, one turned and tilted, far from the origin: the distance between the two
    // points follows from placing both in the project frame by hand.
    void tiltedAndTranslatedScans()
    {
        ScanPose first;
        first.rotation = Matrix3d::rotationZ(0.5) * Matrix3d::rotationX(0.02);
        first.translation = {2683150.25, 1247320.5, 432.5};
        ScanPose second;
        second.rotation = Matrix3d::rotationZ(-1.2) * Matrix3d::rotationY(-0.03);
        second.translation = {2683158.75, 1247311.0, 433.25};
        const Vector3d a(3.0, -1.0, 0.5);
        const Vector3d b(-2.0, 4.0, -0.25);

        // In a frame around the first station, where doubles keep their precision.
        const Vector3d shift = second.translation - first.translation;
        const Vector3d pa = first.rotation * a;
        const Vector3d pb = second.rotation * b + shift;
        const PointDistance d = pointDistance(a, first, b, second);
        QVERIFY(std::abs(d.dx - std::abs(pa.x - pb.x)) < 1e-9);
        QVERIFY(std::abs(d.dy - std::abs(pa.y - pb.y)) < 1e-9);
        QVERIFY(std::abs(d.dz - std::abs(pa.z - pb.z)) < 1e-9);
        QVERIFY(std::abs(d.distance3D - (pa - pb).length()) < 1e-9);
        QVERIFY(std::abs(d.distanceXY - std::hypot(pa.x - pb.x, pa.y - pb.y)) < 1e-9);
        // Swapping the points changes nothing.
        const PointDistance swapped = pointDistance(b, second, a, first);
        QVERIFY(std::abs(swapped.distance3D - d.distance3D) < 1e-9);
    }
};

TVX_TEST(PointDistanceTest)

#include "pointdistancetest.moc"
