#pragma once

#include "mainwindow/mdisubwindow.h"

#include <QPixmap>

#include <memory>

namespace TVX::CORE {

class ScanViewSceneGraph;
class SphericalViewGLWidget;

// The sub window of a spherical view: the scan's panorama on a sphere around its station.
class MDISphericalViewSubWindow final : public MdiSubWindow
{
    Q_OBJECT

public:
    // Angles in radians, as the scan's information gives them.
    MDISphericalViewSubWindow(quint32 scanId, const QPixmap& panorama, std::shared_ptr<ScanViewSceneGraph> viewState,
                              double horizontalMin, double horizontalMax, double verticalMin, double verticalMax,
                              QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~MDISphericalViewSubWindow() override;

    MdiSubWindowType subWindowType() const override { return SphericalView; }
    SphericalViewGLWidget* glWidget() const { return m_view.get(); }

private:
    std::shared_ptr<SphericalViewGLWidget> m_view;
};

} // namespace TVX::CORE
