#include "mainwindow/mdicontextmenu.h"

namespace TVX::CORE {

MDIContextMenu::MDIContextMenu(quint32 scanId, QWidget* parent) : QMenu(parent), m_scanId(scanId) {}

void MDIContextMenu::openPlanarViewForSelectedItem()
{
    Q_EMIT requestToOpenPlanarView(m_scanId);
}

void MDIContextMenu::openSphericalViewForSelectedItem()
{
    Q_EMIT requestToOpenSphericalView(m_scanId);
}

void MDIContextMenu::openPointCloudViewForSelectedItem()
{
    Q_EMIT requestToOpenPointcloudView(m_scanId);
}

void MDIContextMenu::closeAllViewsOfAScanForSelectedItem()
{
    Q_EMIT requestToCloseAllViewsOfAScan(m_scanId);
}

void MDIContextMenu::closeAllViewsOfAllOtherScansForSelectedItem()
{
    Q_EMIT requestToCloseAllViewsOfAllOtherScans(m_scanId);
}

} // namespace TVX::CORE
