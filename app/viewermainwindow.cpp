#include "viewermainwindow.h"

#include "preferenceswidget.h"
#include "showprojectcoordsysdialog.h"
#include "startuphelpwidget.h"

#include "mainwindow/application.h"
#include "mainwindow/logtablemodel.h"
#include "mainwindow/userdialogs.h"
#include "project/basicproject.h"
#include "scene/softwareversion.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QToolBar>

namespace TVX::VIEWER {

using namespace TVX::CORE;

ViewerMainWindow::ViewerMainWindow(QWidget* parent, Qt::WindowFlags flags) : BasicMainWindow(parent, flags)
{
    const auto make = [this](const QString& text, const char* icon, void (ViewerMainWindow::*slot)()) {
        auto* action = new QAction(text, this);
        if (icon)
            action->setIcon(QIcon(QLatin1String(icon)));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    QAction* preferences = make(tr("Preferences..."), nullptr, &ViewerMainWindow::showPreferencesDialog);
    QAction* coordinates = make(tr("Project Coordinates..."), nullptr, &ViewerMainWindow::showProjectCoordSysDialog);
    QAction* introduction = make(tr("Show Quick Introduction"), nullptr, &ViewerMainWindow::showStartupHelpDialog);
    QAction* about = make(tr("About Tarvenix Scan Viewer"), ":/tvxcore/resources/tvx32.png", &ViewerMainWindow::showAboutDialog);
    QAction* more = make(tr("More About Tarvenix"), nullptr, &ViewerMainWindow::showAdvertisingDialog);

    QToolBar* information = addToolBar(tr("Information"));
    information->setObjectName(QStringLiteral("toolbar_info"));
    information->addAction(about);

    if (QMenu* help = menuBar()->findChild<QMenu*>(QStringLiteral("menu_help"))) {
        help->addAction(preferences);
        help->addAction(coordinates);
        help->addSeparator();
        help->addAction(introduction);
        help->addAction(about);
        help->addAction(more);
    }

    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("viewer/mainwindow/geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("viewer/mainwindow/windowState")).toByteArray());
}

ViewerMainWindow::~ViewerMainWindow() = default;

bool ViewerMainWindow::openProject(QString fileName)
{
    if (!BasicMainWindow::openProject(fileName))
        return false;
    // Annotations are read with the project, so that saving never writes a scan's file from an
    // annotation set that was not read first.
    const BasicProject& project = Application::instance().project();
    for (int index = 0; index < project.scanCount(); ++index)
        reportAnnotationLoad(project.scanIdAt(index));
    return true;
}

void ViewerMainWindow::closeEvent(QCloseEvent* event)
{
    if (!askToKeepChanges() || !resetApplication()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(QStringLiteral("viewer/mainwindow/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("viewer/mainwindow/windowState"), saveState());
    event->accept();
}

void ViewerMainWindow::showPreferencesDialog()
{
    PreferencesWidget dialog(this);
    dialog.exec();
}

void ViewerMainWindow::showProjectCoordSysDialog()
{
    const BasicProject& project = Application::instance().project();
    ShowProjectCoordSysDialog dialog(project.origin(), project.coordinateSystems(),
                                     project.currentCoordinateSystem() + 1, this);
    dialog.exec();
}

void ViewerMainWindow::showAboutDialog()
{
    QMessageBox::about(this, tr("About Tarvenix Scan Viewer"),
                       tr("<h3>Tarvenix Scan Viewer</h3><p>Version %1.%2.%3</p>"
                          "<p>Views projects of terrestrial laser scans: panoramas, spheres around each station "
                          "and point clouds; picks coordinates, measures distances and keeps annotations beside "
                          "each scan.</p>")
                           .arg(SoftwareVersion::major)
                           .arg(SoftwareVersion::minor)
                           .arg(SoftwareVersion::patch));
}

void ViewerMainWindow::showAdvertisingDialog()
{
    QMessageBox::information(this, tr("More About Tarvenix"),
                             tr("The Tarvenix Software Suite registers, models and publishes terrestrial laser scans. "
                                "This viewer opens the projects that the suite writes."));
}

void ViewerMainWindow::showStartupHelpDialog()
{
    StartupHelpWidget dialog(this);
    dialog.exec();
}

} // namespace TVX::VIEWER
