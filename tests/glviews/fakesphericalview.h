#pragma once

#include "glviews/sphericalviewcontrol.h"
#include "scene/cameraplane.h"
#include "scene/scanviewscenegraph.h"

#include <QStringList>

// A spherical view without GL: a 200 × 200 pixel window looking along +x with a 90 degree field,
// pixel (100, 100) in the middle; cells are the pixels the directions fall on. It logs what the
// operators ask of it.
class FakeSphericalView : public TVX::CORE::SphericalViewControl
{
public:
    void rotate(double dx, double dy, double dz) override
    {
        // + 0.0 turns -0 into 0 for the log.
        calls << QStringLiteral("rotate(%1,%2,%3)").arg(dx + 0.0).arg(dy + 0.0).arg(dz + 0.0);
    }
    void zoomIn() override { calls << QStringLiteral("zoomIn"); }
    void zoomOut() override { calls << QStringLiteral("zoomOut"); }
    void update() override { ++updates; }
    void repaintNow() override { ++updates; }
    quint32 scanId() const override { return 7; }
    std::shared_ptr<TVX::CORE::ScanViewSceneGraph> sceneGraph() const override { return graph; }
    TVX::CORE::Vector3d screenToDirection(qint32 x, qint32 y) const override
    {
        return TVX::CORE::fromPlane(cameraRotation(), {(x - 100) / 100.0, (100 - y) / 100.0});
    }
    QPoint directionToCell(const TVX::CORE::Vector3d& direction) const override
    {
        double x = 0, y = 0;
        if (!directionToScreen(direction, x, y))
            return {-1, -1};
        return QPoint(qRound(x), qRound(y));
    }
    bool directionToScreen(const TVX::CORE::Vector3d& direction, double& x, double& y) const override
    {
        TVX::CORE::PlanePoint p;
        if (!TVX::CORE::toPlane(cameraRotation(), direction, p))
            return false;
        x = 100 + 100 * p.u;
        y = 100 - 100 * p.v;
        return true;
    }
    TVX::CORE::Matrix3d cameraRotation() const override
    {
        // Right is -y, up is +z, the view runs along +x.
        return TVX::CORE::Matrix3d({0, -1, 0, 0, 0, 1, -1, 0, 0});
    }
    std::shared_ptr<TVX::CORE::ScanViewItem> itemAt(qint32 x, qint32 y) const override
    {
        return graph->hitTest(screenToDirection(x, y));
    }

    std::shared_ptr<TVX::CORE::ScanViewSceneGraph> graph = std::make_shared<TVX::CORE::ScanViewSceneGraph>();
    QStringList calls;
    int updates = 0;
};
