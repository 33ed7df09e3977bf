#include "testregistry.h"

#include "windowfixtures.h"

#include "annotations/sceneitemstablemodel.h"
#include "glviews/createmeasurmenttemoperator.h"
#include "glviews/scanviewoperatormanager.h"
#include "mainwindow/application.h"
#include "mainwindow/basicmainwindow.h"
#include "mainwindow/logtablemodel.h"
#include "mainwindow/mdicontextmenu.h"
#include "mainwindow/mdiplanarviewsubwindow.h"
#include "mainwindow/pointinfotablemodel.h"
#include "mainwindow/pointinfotableviewwidget.h"
#include "mainwindow/userdialogs.h"
#include "planarview/graphicsview.h"
#include "planarview/interactivedimensioning.h"
#include "planarview/interactivestationmark.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QGraphicsScene>
#include <QImage>
#include <QMenu>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

template<typename Item>
QList<Item*> itemsOf(const GraphicsView& view)
{
    QList<Item*> found;
    for (QGraphicsItem* item : view.scene()->items()) {
        if (auto* typed = dynamic_cast<Item*>(item))
            found << typed;
    }
    return found;
}

// What a user does with the mouse in a planar view, in cells.
struct PlanarUser {
    GraphicsView* view;

    QPoint at(const QPointF& cell) const { return view->mapFromScene(cell); }
    void moveTo(const QPointF& cell) const
    {
        const QPoint p = at(cell);
        QMouseEvent event(QEvent::MouseMove, QPointF(p), view->viewport()->mapToGlobal(QPointF(p)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
    void click(const QPointF& cell) const
    {
        moveTo(cell);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at(cell));
    }
};

// Opens the protected menu builder to the test.
struct MenuWindow : BasicMainWindow {
    using BasicMainWindow::buildContextMenu;
};

} // namespace

class BasicMainWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<BasicMainWindow> window;
    ScriptedDialogs* dialogs{nullptr};

    GraphicsView* planarView(quint32 scanId) const
    {
        for (QMdiSubWindow* sub : window->mdiArea()->subWindowList()) {
            auto* planar = qobject_cast<MDIPlanarViewSubWindow*>(sub);
            if (planar && planar->scanId() == scanId)
                return planar->graphicsView();
        }
        return nullptr;
    }

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
        QTest::newRow("rectangle") << "Add Rectangle" << 36u << 1 << 0 << -1;
        // The dimensioning integers: 0 3D, 1 Delta Z, 2 XY.
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

    void openingFailureIsShownAndLogged()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("p.tvxprj"));
        writeBytes(path, "TVXH damaged");
        const int logged = window->logModel()->rowCount();
        QVERIFY(!window->openProject(path));
        QCOMPARE(dialogs->shown.size(), 1);
        QVERIFY2(dialogs->shown[0].startsWith(QLatin1String("Could Not Open Project Directory: ")),
                 qPrintable(dialogs->shown[0]));
        QCOMPARE(window->logModel()->rowCount(), logged + 1);
        QVERIFY(!BasicProject::instance().isOpen());
        QCOMPARE(readBytes(path), QByteArray("TVXH damaged"));
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

        writePanorama(dir, QStringLiteral("a.jpg"));
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

    // The other station gets a mark at the cell of its direction, with its name and distance;
    // clearing its check box takes the mark away, setting it again brings it back.
    void stationMarks()
    {
        QTemporaryDir dir;
        QVERIFY(window->openProject(makeProject(dir)));
        writePanorama(dir, QStringLiteral("a.jpg"));
        window->openPlanarView(0);
        GraphicsView* view = planarView(0);
        QVERIFY(view);
        const auto marks = itemsOf<InteractiveStationMark>(*view);
        QCOMPARE(marks.size(), 1);
        BasicProject& project = BasicProject::instance();
        QCOMPARE(marks.first()->scanId(), 1u);
        QCOMPARE(marks.first()->text(), project.scanName(1) + QStringLiteral("\ndistance: 5.025 m"));
        QCOMPARE(marks.first()->size(), 24);

        FileTreeModel& model = *project.treeModel();
        QVERIFY(model.setData(model.indexOfScan(1), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(itemsOf<InteractiveStationMark>(*view).isEmpty());
        QVERIFY(model.setData(model.indexOfScan(1), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(itemsOf<InteractiveStationMark>(*view).size(), 1);
    }

    // Items drawn with the mouse are in the scan's annotation set, a dimensioning
    // measures the scan's points, Delete takes an item out again, and after saving, closing and
    // reopening the same items come back from the same file.
    void annotationsRoundTrip()
    {
        QTemporaryDir dir;
        const QString projectPath = makeProject(dir);
        writePanorama(dir, QStringLiteral("a.jpg"));
        QVERIFY(window->openProject(projectPath));
        window->openPlanarView(0);
        const PlanarUser user{planarView(0)};
        QVERIFY(user.view);
        window->resize(1400, 1000);
        window->show();
        window->mdiArea()->subWindowList().first()->showMaximized();
        window->zoomAll();
        const auto draw = [&](int subMode, const QList<QPointF>& clicks) {
            window->graphicsViewModeChanged(1, subMode);
            for (const QPointF& cell : clicks)
                user.click(cell);
            QCoreApplication::sendPostedEvents();
        };
        draw(0, {{2.5, 2.5}, {8.5, 6.5}});
        draw(2, {{22.5, 3.5}, {30.5, 9.5}});
        draw(3, {{4.5, 20.5}});
        QTest::keyClicks(user.view, QStringLiteral("Pump 3"));
        draw(5, {{5.5, 12.5}, {20.5, 16.5}});
        BasicProject& project = BasicProject::instance();
        const auto records = project.sceneItems(0);
        QCOMPARE(records->rowCount(), 4);
        QVERIFY(project.isScanModified(0));

        const auto dimensionings = itemsOf<InteractiveDimensioning>(*user.view);
        QCOMPARE(dimensionings.size(), 1);
        CellSample a;
        CellSample b;
        QVERIFY(project.cellSample(0, 5, 12, a) && project.cellSample(0, 20, 16, b));
        QVERIFY(dimensionings.first()->isValueValid());
        QVERIFY(std::abs(dimensionings.first()->value() - (a.point - b.point).length()) < 1e-9);
        QCOMPARE(dimensionings.first()->labelText(),
                 QStringLiteral("%1 m (3D)").arg((a.point - b.point).length(), 0, 'f', 3));

        // The ellipse goes again: selected in edit mode, then Delete.
        window->graphicsViewModeChanged(2, 0);
        user.click({26.5, 6.5});
        QTest::keyClick(user.view, Qt::Key_Delete);
        QCOMPARE(records->rowCount(), 3);

        QVERIFY(window->saveProject());
        QVERIFY(!project.hasUnsavedChanges());
        const QString annotationPath = dir.filePath(QStringLiteral("a-viewer.xml"));
        const QByteArray saved = readBytes(annotationPath);
        QVERIFY(saved.contains("Pump 3"));
        QList<int> types;
        for (QGraphicsItem* item : user.view->scene()->items())
            types << item->type();
        std::sort(types.begin(), types.end());

        QVERIFY(window->resetApplication());
        QVERIFY(window->openProject(projectPath));
        window->openPlanarView(0);
        GraphicsView* reopened = planarView(0);
        QVERIFY(reopened);
        QList<int> reopenedTypes;
        for (QGraphicsItem* item : reopened->scene()->items())
            reopenedTypes << item->type();
        std::sort(reopenedTypes.begin(), reopenedTypes.end());
        QCOMPARE(reopenedTypes, types);
        QCOMPARE(project.sceneItems(0)->rowCount(), 3);
        project.setScanModified(0, true);
        QVERIFY(window->saveProject());
        QCOMPARE(readBytes(annotationPath), saved);
    }

    // A damaged annotation file is reported when the view opens, and the next save keeps it
    // beside the new one instead of overwriting what could not be read.
    void damagedAnnotationFile()
    {
        QTemporaryDir dir;
        const QString projectPath = makeProject(dir);
        writePanorama(dir, QStringLiteral("b.jpg"));
        QFile damaged(dir.filePath(QStringLiteral("b-viewer.xml")));
        QVERIFY(damaged.open(QIODevice::WriteOnly));
        damaged.write("<?xml version=\"1.0\"?>\n<viewerscene><polygonitem");
        damaged.close();
        QVERIFY(window->openProject(projectPath));
        window->openPlanarView(1);
        QVERIFY(planarView(1));
        QVERIFY(dialogs->shown.value(0).startsWith(QStringLiteral("Error reading file: Parse error in file ")
                                                   + QDir::toNativeSeparators(damaged.fileName()) + QStringLiteral(":\n\n")));
        window->scanWasModified(1);
        QVERIFY(window->saveProject());
        QVERIFY(QFile::exists(damaged.fileName() + QStringLiteral(".unreadable")));
    }

    void contextMenuPerKind_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("entries");
        const QString picking = QStringLiteral("Pick 3D Coordinates|Clear Picked Points from View|Clear Point List|-|");
        const QString closing = QStringLiteral("Close Views of this Scan|Close Views of all other Scans|-");
        const QString drawing = QStringLiteral("|Edit Elements|Add Polygon|Add Rectangle|Add Ellipse|Add Text|-|3D Distance|"
                                               "Distance in XY|Delta Z|Detailed Distance Information|-");
        QTest::newRow("planar") << 1
                                << picking + QStringLiteral("Open Spherical View|Open Pointcloud View|") + closing + drawing;
        QTest::newRow("point cloud") << 3 << QStringLiteral("Open Planar View|Open Spherical View|") + closing;
    }

    void contextMenuPerKind()
    {
        QFETCH(int, kind);
        QFETCH(QString, entries);
        MenuWindow menuWindow;
        QMenu* menu = menuWindow.buildContextMenu(MdiSubWindow::MdiSubWindowType(kind), 0);
        QStringList texts;
        for (QAction* action : menu->actions())
            texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
        QCOMPARE(texts.join(QLatin1Char('|')), entries);
        delete menu;
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
