#pragma once

#include "mainwindow/basicmainwindow.h"

namespace TVX::VIEWER {

// The viewer's main window: the main window base with the "Information" toolbar, the help menu,
// the preferences and project coordinate systems dialogs, and the window geometry kept in the
// settings ("viewer/mainwindow/geometry", "viewer/mainwindow/windowState").
class ViewerMainWindow final : public TVX::CORE::BasicMainWindow
{
    Q_OBJECT

public:
    explicit ViewerMainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~ViewerMainWindow() override;

public Q_SLOTS:
    bool openProject(QString fileName) override;
    void showPreferencesDialog();
    void showProjectCoordSysDialog();
    void showAboutDialog();
    void showAdvertisingDialog();
    void showStartupHelpDialog();

protected:
    void closeEvent(QCloseEvent* event) override;
};

} // namespace TVX::VIEWER
