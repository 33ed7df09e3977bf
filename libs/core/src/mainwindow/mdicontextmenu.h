#pragma once

#include <QMenu>

namespace TVX::CORE {

// The context menu of a scan view's sub window; its entries ask the main window to open or close
// views of the sub window's scan.
class MDIContextMenu final : public QMenu
{
    Q_OBJECT

public:
    MDIContextMenu(quint32 scanId, QWidget* parent = nullptr);

    quint32 scanId() const { return m_scanId; }

Q_SIGNALS:
    void requestToOpenPlanarView(quint32 scanId);
    void requestToOpenSphericalView(quint32 scanId);
    void requestToOpenPointcloudView(quint32 scanId);
    void requestToCloseAllViewsOfAScan(quint32 scanId);
    void requestToCloseAllViewsOfAllOtherScans(quint32 scanId);

public Q_SLOTS:
    void openPlanarViewForSelectedItem();
    void openSphericalViewForSelectedItem();
    void openPointCloudViewForSelectedItem();
    void closeAllViewsOfAScanForSelectedItem();
    void closeAllViewsOfAllOtherScansForSelectedItem();

private:
    quint32 m_scanId;
};

} // namespace TVX::CORE
