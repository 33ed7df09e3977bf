#include "testregistry.h"

#include "../project/projectfixtures.h"

#include "glviews/createmeasurmenttemoperator.h"
#include "glviews/scanviewoperatormanager.h"
#include "mainwindow/application.h"
#include "mainwindow/basicmainwindow.h"
#include "mainwindow/logtablemodel.h"
#include "mainwindow/pointinfotablemodel.h"
#include "mainwindow/pointinfotableviewwidget.h"
#include "mainwindow/userdialogs.h"
#include "project/basicproject.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QImage>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <deque>
#include <functional>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// Answers the window's questions from a script and records what was shown.
class ScriptedDialogs final : public UserDialogs
{
public:
    std::deque<QMessageBox::StandardButton> answers;
    bool confirmLock{false};
    QString fileName;
    QStringList shown; // "title: text" of every box, questions included
    std::function<void(const QString& title)> onQuestion;

    QMessageBox::StandardButton question(const QString& title, const QString& text, QMessageBox::StandardButtons,
                                         QMessageBox::StandardButton) override
    {
        shown << title + QStringLiteral(": ") + text;
        if (onQuestion)
            onQuestion(title);
        if (answers.empty())
            return QMessageBox::Cancel;
        const auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void information(const QString& title, const QString& text) override { shown << title + QStringLiteral(": ") + text; }
    void warning(const QString& title, const QString& text) override { shown << title + QStringLiteral(": ") + text; }
    QString openFileName(const QString&, const QString&, const QString&) override { return fileName; }
    QStringList openFileNames(const QString&, const QString&, const QString&) override { return {}; }
    bool confirmLockDeletion(const QString& message) override
    {
        shown << QStringLiteral("lock: ") + message;
        return confirmLock;
    }
};

QAction* actionNamed(QWidget& window, const QString& text)
{
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// A project with two scans (identifiers 0 and 1) whose stations stand apart, the second turned.
QString makeProject(const QTemporaryDir& dir)
{
    TestScan first;
    first.transformation = {1, 0, 0, 100, 0, 1, 0, 200, 0, 0, 1, 10, 0, 0, 0, 1};
    TestScan second;
    second.transformation = {0, -1, 0, 103, 1, 0, 0, 204, 0, 0, 1, 10.5, 0, 0, 0, 1};
    writeTestScan(dir.filePath(QStringLiteral("a.tvx")), first);
    writeTestScan(dir.filePath(QStringLiteral("b.tvx")), second);
    const QString path = dir.filePath(QStringLiteral("site.tvxprj"));
    BasicProject& project = BasicProject::instance();
    int code = 0;
    QString message;
    project.openProject(path, QStringLiteral("t"), code, message);
    project.addScan(QStringLiteral("a.tvx"));
    project.addScan(QStringLiteral("b.tvx"));
    project.saveProject(message);
    project.closeProject(code, message);
    return path;
}

} // namespace

class BasicMainWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<BasicMainWindow> window;
    ScriptedDialogs* dialogs{nullptr};

private Q_SLOTS:
    void init()
    {
        QSettings().clear();
        QSettings().setValue(QStringLiteral("global/userName"), QStringLiteral("t"));
        window = std::make_unique<BasicMainWindow>();
        auto scripted = std::make_unique<ScriptedDialogs>();
        dialogs = scripted.get();
        window->setUserDialogs(std::move(scripted));
    }

    void cleanup()
    {
        // Discards whatever a test left unsaved and releases the lock.
        dialogs->answers = {QMessageBox::Discard};
        QVERIFY(window->resetApplication());
        window.reset();
        QSettings().clear();
    }

    void modeActions_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<quint32>("operatorId");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("subMode");
        QTest::addColumn<int>("measurementKind"); // -1: not a dimensioning
        QTest::newRow("pick") << "Pick 3D Coordinates" << 1u << 0 << 0 << -1;
        QTest::newRow("edit") << "Edit Elements" << 4102u << 2 << 0 << -1;
        QTest::newRow("zoom out") << "Zoom Out" << 17u << 3 << 1 << -1;
        QTest::newRow("rectangle") << "Add Rectangle" << 36u << 1 << 0 << -1;
        QTest::newRow("text") << "Add Text" << 40u << 1 << 3 << -1;
        // The dimensioning integers: 0 3D, 1 Delta Z, 2 XY.
        QTest::newRow("3D distance") << "3D Distance" << 38u << 1 << 5 << 0;
        QTest::newRow("distance in XY") << "Distance in XY" << 38u << 1 << 7 << 2;
        QTest::newRow("delta Z") << "Delta Z" << 38u << 1 << 6 << 1;
    }

    void modeActions()
    {
        QFETCH(QString, action);
        QFETCH(quint32, operatorId);
        QFETCH(int, mode);
        QFETCH(int, subMode);
        QFETCH(int, measurementKind);
        QVERIFY(actionNamed(*window, QStringLiteral("Pick 3D Coordinates"))->isChecked());
        if (action != QLatin1String("Pick 3D Coordinates"))
            actionNamed(*window, QStringLiteral("Zoom In"))->trigger();
        QSignalSpy modes(window.get(), &BasicMainWindow::graphicsViewModeChanged);
        QAction* chosen = actionNamed(*window, action);
        QVERIFY(chosen);
        chosen->trigger();
        QVERIFY(chosen->isChecked());
        QCOMPARE(modes.count(), 1);
        QCOMPARE(modes.at(0).at(0).toInt(), mode);
        QCOMPARE(modes.at(0).at(1).toInt(), subMode);
        ScanViewOperatorManager& manager = Application::instance().operatorManager();
        QCOMPARE(manager.currentMode(), operatorId);
        if (measurementKind >= 0) {
            const auto measurement =
                std::dynamic_pointer_cast<CreateMeasurmenttemOperator>(manager.operatorFor(38));
            QVERIFY(measurement);
            QCOMPARE(measurement->measurementKind(), measurementKind);
        }
        // One member of the group is checked at any time.
        int checked = 0;
        for (QAction* a : window->findChildren<QAction*>())
            checked += a->isCheckable() && a->isChecked() && a->actionGroup() ? 1 : 0;
        QCOMPARE(checked, 1);
    }

    void unknownDimensioningEmitsNothing()
    {
        QSignalSpy modes(window.get(), &BasicMainWindow::graphicsViewModeChanged);
        window->initPlaceDimensioningMode(3);
        QCOMPARE(modes.count(), 0);
        QCOMPARE(Application::instance().operatorManager().currentMode(), 38u);
    }

    void docksAndToolBars()
    {
        QStringList bars;
        for (QToolBar* bar : window->findChildren<QToolBar*>())
            bars << bar->objectName();
        QCOMPARE(bars, QStringList({"toolbar_file", "toolbar_zoom", "toolbar_2ddraw", "measurement_tools",
                                    "toolsbar_point_based_operations"}));
        auto* pointInfo = window->findChild<QDockWidget*>(QStringLiteral("dock_pointinfo"));
        auto* report = window->findChild<QDockWidget*>(QStringLiteral("dock_report"));
        QVERIFY(pointInfo && report);
        QCOMPARE(window->tabifiedDockWidgets(pointInfo), QList<QDockWidget*>{report});
        QCOMPARE(window->dockWidgetArea(window->findChild<QDockWidget*>(QStringLiteral("dock_lens"))),
                 Qt::LeftDockWidgetArea);
    }

    // Ask before discarding changes: what is shown, and whether the caller goes on.
    void askBeforeDiscarding_data()
    {
        QTest::addColumn<QString>("situation");
        QTest::addColumn<QList<int>>("answers");
        QTest::addColumn<bool>("proceeds");
        QTest::addColumn<QStringList>("titles");
        QTest::addColumn<bool>("saved");
        QTest::newRow("nothing changed") << "unchanged" << QList<int>{} << true << QStringList{} << false;
        QTest::newRow("cancel") << "changed" << QList<int>{QMessageBox::Cancel} << false << QStringList{"Save Changes?"} << false;
        QTest::newRow("discard") << "changed" << QList<int>{QMessageBox::Discard} << true << QStringList{"Save Changes?"} << false;
        QTest::newRow("save all") << "changed" << QList<int>{QMessageBox::SaveAll} << true << QStringList{"Save Changes?"} << true;
        // Saving fails while somebody else holds the lock: retry after they left, or give up.
        QTest::newRow("retry after a failed save")
            << "lock taken" << QList<int>{QMessageBox::SaveAll, QMessageBox::Retry} << true
            << QStringList{"Save Changes?", "File IO Error"} << true;
        QTest::newRow("discard after a failed save")
            << "lock taken" << QList<int>{QMessageBox::SaveAll, QMessageBox::Discard} << false
            << QStringList{"Save Changes?", "File IO Error"} << false;
    }

    void askBeforeDiscarding()
    {
        QFETCH(QString, situation);
        QFETCH(QList<int>, answers);
        QFETCH(bool, proceeds);
        QFETCH(QStringList, titles);
        QFETCH(bool, saved);
        QTemporaryDir dir;
        const QString path = makeProject(dir);
        QVERIFY(window->openProject(path));
        BasicProject& project = BasicProject::instance();
        if (situation != QLatin1String("unchanged"))
            project.setOrigin({5, 6, 7});
        const QString lock = dir.filePath(QStringLiteral("tvxlock~"));
        const QByteArray ownLock = readBytes(lock);
        if (situation == QLatin1String("lock taken")) {
            writeBytes(lock, "user:other\n");
            // The other user leaves while the retry question is up.
            if (answers.contains(QMessageBox::Retry)) {
                dialogs->onQuestion = [&](const QString& title) {
                    if (title == QLatin1String("File IO Error"))
                        writeBytes(lock, ownLock);
                };
            }
        }
        for (int answer : answers)
            dialogs->answers.push_back(QMessageBox::StandardButton(answer));
        const QStringList before = dialogs->shown;
        const bool opened = window->openProject(path);
        QCOMPARE(opened, proceeds);
        QStringList shownTitles;
        for (const QString& box : dialogs->shown.mid(before.size()))
            shownTitles << box.section(QStringLiteral(": "), 0, 0);
        QCOMPARE(shownTitles, titles);
        dialogs->onQuestion = nullptr;
        writeBytes(lock, ownLock);
        // What was saved is in the file: the origin changed only when saving went through.
        int code = 0;
        QString message;
        QVERIFY(project.closeProject(code, message));
        QVERIFY(project.openProject(path, QStringLiteral("t"), code, message));
        QCOMPARE(project.origin()[0] == 5.0, saved);
        project.closeProject(code, message);
    }

    void openingFailuresAreShownAndLogged_data()
    {
        QTest::addColumn<QByteArray>("content"); // of the project file; null: a folder that is missing
        QTest::newRow("damaged project file") << QByteArray("TVXH damaged");
        QTest::newRow("missing folder") << QByteArray();
    }

    void openingFailuresAreShownAndLogged()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        QString path = dir.filePath(QStringLiteral("p.tvxprj"));
        if (content.isNull())
            path = dir.filePath(QStringLiteral("missing/p.tvxprj"));
        else
            writeBytes(path, content);
        const int logged = window->logModel()->rowCount();
        QVERIFY(!window->openProject(path));
        QCOMPARE(dialogs->shown.size(), 1);
        QVERIFY2(dialogs->shown[0].startsWith(QLatin1String("Could Not Open Project Directory: ")),
                 qPrintable(dialogs->shown[0]));
        QCOMPARE(window->logModel()->rowCount(), logged + 1);
        QVERIFY(!BasicProject::instance().isOpen());
        if (!content.isNull())
            QCOMPARE(readBytes(path), content);
    }

    void lockOfOthersCanBeDeleted_data()
    {
        QTest::addColumn<bool>("confirm");
        QTest::newRow("kept") << false;
        QTest::newRow("deleted and opened") << true;
    }

    void lockOfOthersCanBeDeleted()
    {
        QFETCH(bool, confirm);
        QTemporaryDir dir;
        const QString path = makeProject(dir);
        const QString lock = dir.filePath(QStringLiteral("tvxlock~"));
        writeBytes(lock, "user:zora\n");
        dialogs->confirmLock = confirm;
        QCOMPARE(window->openProject(path), confirm);
        QVERIFY(dialogs->shown.value(0).startsWith(QLatin1String("lock: A lock file was found")));
        QVERIFY(dialogs->shown.value(0).contains(QLatin1String("  user: zora\n")));
        QCOMPARE(readBytes(lock), confirm ? QByteArray("user:t\n") : QByteArray("user:zora\n"));
        QCOMPARE(window->windowTitle().startsWith(QLatin1String("Tarvenix Viewer: ")), confirm);
    }

    void recentProjects()
    {
        QTemporaryDir dir;
        const QString path = makeProject(dir);
        QVERIFY(window->openProject(path));
        QVERIFY(window->openProject(path));
        QCOMPARE(QSettings().value(QStringLiteral("global/recently_used_projectfiles/0")).toString(), path);
        QCOMPARE(QSettings().value(QStringLiteral("global/recently_used_projectfiles/1")).toString(), QString());
        QVERIFY(actionNamed(*window, path) && actionNamed(*window, path)->isVisible());
    }

    // Two points of two scans: the second scan stands 3 m east, 4 m north, 0.5 m higher and is
    // turned by 90°, so its cell's point (x, y, z) lies at (103 − y, 204 + x, 10.5 + z).
    void distanceInformation()
    {
        QTemporaryDir dir;
        QVERIFY(window->openProject(makeProject(dir)));
        window->showCompleteDimensioningInfo();
        QCOMPARE(dialogs->shown.value(0),
                 QStringLiteral("Missing Information: You need to specify two points in the same or in different scans before."));

        BasicProject& project = BasicProject::instance();
        CellSample a;
        CellSample b;
        QVERIFY(project.cellSample(0, 5, 7, a) && project.cellSample(1, 20, 12, b));
        window->pointSelectionInPlanarView(0, 5, 7);
        window->pointSelectionInPlanarView(1, 20, 12);
        QCOMPARE(window->pointInfoWidget()->model()->pointCount(), 2);
        window->showCompleteDimensioningInfo();

        const Vector3d pa = a.point + Vector3d(100, 200, 10);
        const Vector3d pb(103 - b.point.y, 204 + b.point.x, 10.5 + b.point.z);
        const double dx = std::abs(pa.x - pb.x), dy = std::abs(pa.y - pb.y), dz = std::abs(pa.z - pb.z);
        const auto f = [](double v) { return QString::number(v, 'f', 3); };
        QCOMPARE(dialogs->shown.value(1),
                 QStringLiteral("Distance Information: DX: %1 m\nDY: %2 m\nDZ: %3 m\n\nDistance 3D: %4 m\nDistance XY: %5 m")
                     .arg(f(dx), f(dy), f(dz), f(std::sqrt(dx * dx + dy * dy + dz * dz)), f(std::hypot(dx, dy))));
    }

    // A planar view needs its panorama; asking again activates the open one; a new view is told
    // the current mode; closing it clears the project's open flag.
    void planarViews()
    {
        QTemporaryDir dir;
        QVERIFY(window->openProject(makeProject(dir)));
        window->openPlanarView(0);
        QCOMPARE(dialogs->shown.value(0).section(QStringLiteral(": "), 0, 0), QStringLiteral("Open a new View Failed"));
        QVERIFY(window->mdiArea()->subWindowList().isEmpty());

        QImage panorama(40, 30, QImage::Format_RGB32);
        panorama.fill(Qt::gray);
        QVERIFY(panorama.save(dir.filePath(QStringLiteral("a.jpg"))));
        actionNamed(*window, QStringLiteral("Delta Z"))->trigger();
        QSignalSpy modes(window.get(), &BasicMainWindow::graphicsViewModeChanged);
        window->openPlanarView(0);
        window->openPlanarView(0);
        QCOMPARE(window->mdiArea()->subWindowList().size(), 1);
        QCOMPARE(modes.count(), 1);
        QCOMPARE(modes.at(0), (QList<QVariant>{1, 6}));
        QCOMPARE(window->mdiArea()->subWindowList().first()->windowTitle(), QStringLiteral("Planar View: a.tvx"));
        BasicProject& project = BasicProject::instance();
        QVERIFY(project.isViewOpen(0, BasicProject::PlanarView));
        window->mdiArea()->subWindowList().first()->close();
        QVERIFY(!project.isViewOpen(0, BasicProject::PlanarView));
    }

    void messagesFromOtherInstances()
    {
        QTemporaryDir dir;
        const QString path = makeProject(dir);
        window->handle_message(QStringLiteral("OPEN_VIEW "));
        QVERIFY(!BasicProject::instance().isOpen());
        window->handle_message(QStringLiteral("open_view ") + path);
        QVERIFY(!BasicProject::instance().isOpen());
        window->handle_message(QStringLiteral("OPEN_VIEW ") + path);
        QVERIFY(BasicProject::instance().isOpen());
        // The open project again, written differently: nothing happens, no question either.
        BasicProject::instance().setOrigin({1, 1, 1});
        window->handle_message(QStringLiteral("OPEN_VIEW ") + dir.path() + QStringLiteral("/./site.tvxprj"));
        QVERIFY(dialogs->shown.isEmpty());
        QVERIFY(BasicProject::instance().hasUnsavedChanges());
    }
};

TVX_TEST(BasicMainWindowTest)

#include "basicmainwindowtest.moc"
