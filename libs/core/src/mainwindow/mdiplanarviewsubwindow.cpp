#include "mainwindow/mdiplanarviewsubwindow.h"

#include "planarview/graphicsview.h"
#include "planarview/panoramaitem.h"

#include <QGraphicsScene>

namespace TVX::CORE {

MDIPlanarViewSubWindow::MDIPlanarViewSubWindow(quint32 scanId, const QImage& panorama, int columns, int rows,
                                               QWidget* parent, Qt::WindowFlags flags)
    : MdiSubWindow(scanId, parent, flags), m_scene(new QGraphicsScene(this)),
      m_panorama(new PanoramaItem(panorama, columns, rows)), m_view(new GraphicsView(scanId, this))
{
    m_scene->addItem(m_panorama);
    m_scene->setSceneRect(m_panorama->boundingRect());
    m_scene->setBackgroundBrush(Qt::black);
    m_view->setScene(m_scene);
    setWidget(m_view);
}

MDIPlanarViewSubWindow::~MDIPlanarViewSubWindow() = default;

void MDIPlanarViewSubWindow::fit()
{
    m_view->fitInView(m_scene->sceneRect(), Qt::KeepAspectRatio);
}

} // namespace TVX::CORE
