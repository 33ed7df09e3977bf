// Viewer entry point. For now it brings up the resources, the OpenGL format and an empty main
// window; the full start-up sequence arrives with the main window.
#include "glviews/glsurfaceformat.h"
#include "mainwindow/coreresources.h"

#include <QApplication>
#include <QIcon>
#include <QMainWindow>

int main(int argc, char** argv)
{
    TVX::CORE::registerCoreResources();
    TVX::CORE::installCompatibilityGLFormat();
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Tarvenix Scan Viewer"));
    window.setWindowIcon(QIcon(QStringLiteral(":/tvxcore/resources/tvx32.png")));
    window.resize(1024, 700);
    window.show();
    return app.exec();
}
