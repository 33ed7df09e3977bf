#include "mainwindow/mdisphericalviewsubwindow.h"

#include "glviews/sphericalviewglwidget.h"

namespace TVX::CORE {

MDISphericalViewSubWindow::MDISphericalViewSubWindow(quint32 scanId, const QPixmap& panorama,
                                                     std::shared_ptr<ScanViewSceneGraph> viewState,
                                                     double horizontalMin, double horizontalMax, double verticalMin,
                                                     double verticalMax, QWidget* parent, Qt::WindowFlags flags)
    : MdiSubWindow(scanId, parent, flags),
      m_view(std::make_shared<SphericalViewGLWidget>(scanId, panorama, std::move(viewState), horizontalMin,
                                                     horizontalMax, verticalMin, verticalMax))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // A click gives the view the focus, which makes its sub window the active one.
    m_view->setFocusPolicy(Qt::ClickFocus);
    setWidget(m_view.get());
}

MDISphericalViewSubWindow::~MDISphericalViewSubWindow()
{
    // The shared pointer owns the widget, not the window's children.
    setWidget(nullptr);
}

} // namespace TVX::CORE
