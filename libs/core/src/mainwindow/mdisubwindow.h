#pragma once

#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>


namespace TVX::CORE {

// A sub window of the main window's multiple-document area holding one view of one scan. It
// knows its scan and its kind, announces its closing and the mouse entering it, and shows the
// context menu that the main window built for its kind.
class MdiSubWindow : public QMdiSubWindow
{
    Q_OBJECT

public:
    enum MdiSubWindowType { PlanarView = 1, SphericalView = 2, PointcloudView = 3 };
    Q_ENUM(MdiSubWindowType)

    MdiSubWindow(quint32 scanId, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~MdiSubWindow() override;

    quint32 scanId() const { return m_scanId; }
    virtual MdiSubWindowType subWindowType() const = 0;
    // Takes the menu over (re-parented to this window, hidden until used); the previous one is deleted.
    virtual void setContextMenu(QMenu* menu);
    QMenu* contextMenu() const { return m_contextMenu; }
    // Fits the view's content into the window; nothing by default.
    virtual void fit();

Q_SIGNALS:
    void signalAboutToClose(quint32 scanId);
    void signalMouseEntered(TVX::CORE::MdiSubWindow* subWindow);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    quint32 m_scanId;
    QPointer<QMenu> m_contextMenu;
};

} // namespace TVX::CORE
