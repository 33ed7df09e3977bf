#pragma once

#include "mainwindow/mdisubwindow.h"

class QGraphicsScene;
class QImage;

namespace TVX::CORE {

class GraphicsView;
class PanoramaItem;

// The sub window of a planar view: a scene holding the scan's panorama stretched onto its grid
// (scene coordinates are grid coordinates) and the GraphicsView over it.
class MDIPlanarViewSubWindow final : public MdiSubWindow
{
    Q_OBJECT

public:
    MDIPlanarViewSubWindow(quint32 scanId, const QImage& panorama, int columns, int rows, QWidget* parent = nullptr,
                           Qt::WindowFlags flags = {});
    ~MDIPlanarViewSubWindow() override;

    MdiSubWindowType subWindowType() const override { return PlanarView; }
    // Fits the whole grid into the view, keeping the aspect ratio.
    void fit() override;

    GraphicsView* graphicsView() const { return m_view; }
    QGraphicsScene* scene() const { return m_scene; }
    PanoramaItem* panorama() const { return m_panorama; }

private:
    QGraphicsScene* m_scene;
    PanoramaItem* m_panorama;
    GraphicsView* m_view;
};

} // namespace TVX::CORE
