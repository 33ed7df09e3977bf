// The viewer's entry point: resources, the single-instance application object, then the start-up
// sequence (command line, hand-over to a running instance, language, user name, main window,
// splash, the project of the command line, messages, start-up help, event loop).
#include "qtsingleapplication.h"
#include "startuphelpwidget.h"
#include "startupsequence.h"
#include "viewermainwindow.h"

#include "glviews/glsurfaceformat.h"
#include "mainwindow/coreresources.h"
#include "scene/softwareversion.h"

#include <QDateTime>
#include <QDir>
#include <QInputDialog>
#include <QLocale>
#include <QSettings>
#include <QSplashScreen>
#include <QTranslator>

#include <cstdio>
#include <memory>

namespace {

using namespace TVX::VIEWER;

class ViewerEnvironment final : public StartUpEnvironment
{
public:
    explicit ViewerEnvironment(QtSingleApplication& application) : m_application(application) {}

    void printHelp(const std::string& text) override { std::fputs(text.c_str(), stdout); }
    void printError(const std::string& text) override { std::fputs(text.c_str(), stderr); }
    bool isRunning() override { return m_application.isRunning(); }
    bool sendMessage(const QString& message, int timeout) override { return m_application.sendMessage(message, timeout); }

    void activateExistingWindow() override
    {
        // A second process has no window of its own; kept for the library's contract.
        if (QWidget* window = m_application.activationWindow()) {
            window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
            window->raise();
            window->show();
            m_application.activateWindow();
        }
    }

    void loadTranslations(const QString& locale) override
    {
        // Relative names resolve against the current folder, as start-up has always done; an
        // installed viewer also finds them beside its executable.
        const QString appFolder = QCoreApplication::applicationDirPath();
        for (const auto& [translator, prefix] : {std::pair{&m_qtTranslator, QStringLiteral("i18n/qt_")},
                                                 std::pair{&m_appTranslator, QStringLiteral("i18n/scanviewer_")}}) {
            // A translator that found no file translates nothing: English.
            if (!translator->load(prefix + locale))
                static_cast<void>(translator->load(prefix + locale, appFolder));
        }
        QCoreApplication::installTranslator(&m_qtTranslator);
        QCoreApplication::installTranslator(&m_appTranslator);
    }

    bool ensureUserName() override
    {
        QSettings settings;
        const QString home = QDir(QDir::homePath()).dirName();
        return TVX::VIEWER::ensureUserName(settings, home, [](const QString& initial) -> std::optional<QString> {
            bool ok = false;
            const QString name = QInputDialog::getText(
                nullptr, QCoreApplication::translate("application start up", "Please specify your user name"),
                QCoreApplication::translate("application start up", "User name:"), QLineEdit::Normal, initial, &ok);
            if (!ok)
                return std::nullopt;
            return name;
        });
    }

    void createMainWindow() override
    {
        m_window = std::make_unique<ViewerMainWindow>();
        m_application.setActivationWindow(m_window.get(), true);
    }

    void showSplashAndWindow() override
    {
        m_splashPixmap = std::make_unique<QPixmap>(QStringLiteral(":/icons/viewer/splash_viewer.png"));
        m_splash = std::make_unique<QSplashScreen>(*m_splashPixmap, Qt::SplashScreen | Qt::WindowStaysOnTopHint);
        m_splash->show();
        m_splash->showMessage(QStringLiteral("Tarvenix Scan Viewer - Version: %1.%2.%3")
                                      .arg(TVX::CORE::SoftwareVersion::major)
                                      .arg(TVX::CORE::SoftwareVersion::minor)
                                      .arg(TVX::CORE::SoftwareVersion::patch)
                                  + QStringLiteral(" - ") + QStringLiteral("made by Tarvenix Surveying Software"),
                              Qt::AlignBottom | Qt::AlignHCenter, Qt::black);
        QCoreApplication::processEvents();
        const QDateTime deadline = QDateTime::currentDateTime().addSecs(2);
        while (QDateTime::currentDateTime() < deadline)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 100);
        m_splash->finish(m_window.get());
        m_window->show();
        m_window->raise();
    }

    void openProject(const QString& path) override { m_window->openProject(path); }

    void connectMessages() override
    {
        QObject::connect(&m_application, &QtSingleApplication::messageReceived, m_window.get(),
                         &ViewerMainWindow::handle_message);
    }

    void showStartUpHelp() override
    {
        StartupHelpWidget help;
        help.exec();
    }

    int exec() override { return QCoreApplication::exec(); }

    QVariant setting(const QString& key) const override { return QSettings().value(key); }
    QString systemLocale() const override { return QLocale::system().name(); }

    // Destroyed in reverse order of construction: splash, pixmap, window, translators.
    ~ViewerEnvironment() override
    {
        m_splash.reset();
        m_splashPixmap.reset();
        m_window.reset();
    }

private:
    QtSingleApplication& m_application;
    QTranslator m_qtTranslator;
    QTranslator m_appTranslator;
    std::unique_ptr<ViewerMainWindow> m_window;
    std::unique_ptr<QPixmap> m_splashPixmap;
    std::unique_ptr<QSplashScreen> m_splash;
};

} // namespace

int main(int argc, char** argv)
{
    TVX::CORE::registerCoreResources();
    // Help and a refused command line need no display: they are answered before the application
    // object exists, so that they work on a terminal without one too.
    const CommandLine commandLine = parseCommandLine(argc, argv);
    if (commandLine.help) {
        std::fputs(commandLine.helpText.c_str(), stdout);
        return 0;
    }
    if (!commandLine.error.empty()) {
        std::fputs((commandLine.error + "\n\n" + commandLine.helpText).c_str(), stderr);
        return 2;
    }
    TVX::CORE::installCompatibilityGLFormat();
    QCoreApplication::setOrganizationDomain(QStringLiteral("tarvenix.com"));
    QCoreApplication::setOrganizationName(QStringLiteral("tarvenix.com"));
    QCoreApplication::setApplicationName(QStringLiteral("TVX"));
    QtSingleApplication application(argc, argv, true);
    ViewerEnvironment environment(application);
    return runStartUp(argc, argv, environment);
}
