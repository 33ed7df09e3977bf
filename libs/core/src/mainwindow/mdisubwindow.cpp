#include "mainwindow/mdisubwindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QIcon>
#include <QMenu>

namespace TVX::CORE {

MdiSubWindow::MdiSubWindow(quint32 scanId, QWidget* parent, Qt::WindowFlags flags)
    : QMdiSubWindow(parent, flags), m_scanId(scanId)
{
    // Written without a slash after the colon, as the resource is known by this name too.
    setWindowIcon(QIcon(QStringLiteral(":icons/shared/tvx_doc_small_lib.ico")));
    setAttribute(Qt::WA_DeleteOnClose);
    installEventFilter(this);
}

MdiSubWindow::~MdiSubWindow()
{
    delete m_contextMenu;
}

void MdiSubWindow::setContextMenu(QMenu* menu)
{
    delete m_contextMenu;
    m_contextMenu = menu;
    if (menu) {
        menu->setParent(this, menu->windowFlags());
        menu->hide();
    }
}

void MdiSubWindow::fit() {}

bool MdiSubWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this && event->type() == QEvent::Enter)
        Q_EMIT signalMouseEntered(this);
    return QMdiSubWindow::eventFilter(watched, event);
}

void MdiSubWindow::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_contextMenu) {
        m_contextMenu->exec(QCursor::pos());
        event->accept();
        return;
    }
    QMdiSubWindow::contextMenuEvent(event);
}

void MdiSubWindow::closeEvent(QCloseEvent* event)
{
    Q_EMIT signalAboutToClose(m_scanId);
    QCoreApplication::processEvents();
    QMdiSubWindow::closeEvent(event);
}

} // namespace TVX::CORE
