#include "testregistry.h"

#include "scanexport.h"
#include "windowfixtures.h"

#include "glviews/pointcloudviewglwidget.h"
#include "glviews/scanviewoperatormanager.h"
#include "glviews/sphericalviewglwidget.h"
#include "mainwindow/application.h"
#include "mainwindow/basicmainwindow.h"
#include "mainwindow/mdipointcloudviewsubwindow.h"
#include "mainwindow/mdisphericalviewsubwindow.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"
#include "scene/scanviewscenegraph.h"

#include <QFile>
#include <QMdiArea>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

// The GL views in the window: a spherical and a point cloud view of the same scan, drawing on the
// sphere, saving and reopening.
class GLViewsWindowTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<BasicMainWindow> window;
    ScriptedDialogs* dialogs{nullptr};

    template <typename Sub>
    Sub* subWindow() const
    {
        for (QMdiSubWindow* sub : window->mdiArea()->subWindowList()) {
            if (auto* typed = qobject_cast<Sub*>(sub))
                return typed;
        }
        return nullptr;
    }

private Q_SLOTS:
    void init()
    {
        QSettings().clear();
        window = std::make_unique<BasicMainWindow>();
        auto scripted = std::make_unique<ScriptedDialogs>();
        dialogs = scripted.get();
        window->setUserDialogs(std::move(scripted));
        window->resize(1000, 800);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup()
    {
        dialogs->answers = {QMessageBox::Discard};
        QVERIFY(window->resetApplication());
        window.reset();
        QSettings().clear();
    }

    void sphericalViewDrawsSavesAndReopens()
    {
        QTemporaryDir dir;
        const QString projectPath = makeProject(dir);
        writePanorama(dir, QStringLiteral("a.jpg"));
        QVERIFY(window->openProject(projectPath));
        window->openSphericalView(0);
        auto* sub = subWindow<MDISphericalViewSubWindow>();
        QVERIFY(sub);
        QCOMPARE(sub->windowTitle(), QStringLiteral("Spherical View: a.tvx"));
        QVERIFY(BasicProject::instance().isViewOpen(0, BasicProject::SphericalView));
        SphericalViewGLWidget* view = sub->glWidget();
        // Scan 1 stands about 5 m away: within the default limits.
        QCOMPARE(view->stationMarks().size(), std::size_t(1));
        QCOMPARE(view->stationMarks().front().scanId, 1u);
        window->openSphericalView(0);
        QCOMPARE(window->mdiArea()->subWindowList().size(), 1);

        // A rectangle: click, move, click.
        sub->showMaximized();
        QVERIFY(QTest::qWaitForWindowExposed(view));
        actionNamed(*window, QStringLiteral("Add Rectangle"))->trigger();
        const QPoint from = view->rect().center() - QPoint(60, 40);
        const QPoint to = view->rect().center() + QPoint(50, 30);
        QTest::mouseClick(view, Qt::LeftButton, {}, from);
        QTest::mouseMove(view, to);
        QTest::mouseClick(view, Qt::LeftButton, {}, to);
        BasicProject& project = BasicProject::instance();
        QCOMPARE(project.sceneGraph(0)->rectangles().size(), std::size_t(1));
        QVERIFY(project.isScanModified(0));
        const auto drawn = project.sceneGraph(0)->rectangles().front()->points();

        QVERIFY(window->saveProject());
        QVERIFY(window->resetApplication());
        QVERIFY(window->openProject(projectPath));
        window->openSphericalView(0);
        QVERIFY(subWindow<MDISphericalViewSubWindow>());
        const auto& reopened = project.sceneGraph(0)->rectangles();
        QCOMPARE(reopened.size(), std::size_t(1));
        QCOMPARE(reopened.front()->points().size(), drawn.size());
        // The file keeps directions as single-precision floats.
        for (std::size_t i = 0; i < drawn.size(); ++i)
            QVERIFY((reopened.front()->points()[i] - drawn[i]).length() < 1e-6);
    }

    void missingPanoramaOpensNoSphericalView()
    {
        QTemporaryDir dir;
        QVERIFY(window->openProject(makeProject(dir)));
        window->openSphericalView(1);
        QVERIFY(!subWindow<MDISphericalViewSubWindow>());
        QCOMPARE(dialogs->shown.size(), 1);
        QVERIFY(dialogs->shown.front().startsWith(QStringLiteral("Open a new View Failed: ")));
    }

    void pointcloudViewAndItsMenu()
    {
        QTemporaryDir dir;
        QVERIFY(window->openProject(makeProject(dir)));
        window->openPointcloudView(1);
        auto* sub = subWindow<MDIPointcloudViewSubWindow>();
        QVERIFY(sub);
        QCOMPARE(sub->windowTitle(), QStringLiteral("Pointcloud View: b.tvx"));
        QVERIFY(BasicProject::instance().isViewOpen(1, BasicProject::PointCloudView));

        // Its menu ends with the view's own entries; the colours are numbered in palette order.
        const QList<QAction*> entries = sub->contextMenu()->actions();
        QStringList tail;
        for (auto it = entries.end() - 3; it != entries.end(); ++it)
            tail << (*it)->text();
        QCOMPARE(tail, QStringList({"Reset up-vector", "Color", "Background Color"}));
        const QList<QAction*> colours = entries[entries.size() - 2]->menu()->actions();
        const auto& palette = PointcloudViewGLWidget::palette();
        QCOMPARE(colours.size(), int(palette.size()));
        QCOMPARE(colours[1]->text(), QStringLiteral("1: ") + palette[1].name);

        sub->close();
        QCoreApplication::processEvents();
        QVERIFY(!BasicProject::instance().isViewOpen(1, BasicProject::PointCloudView));
    }

    // A PTX file added from the tree lands in a folder of its own and opens in every view.
    void importedScanOpensInAllViews()
    {
        QTemporaryDir dir;
        const QString projectPath = makeProject(dir);
        const QString source = dir.filePath(QStringLiteral("source.tvx"));
        QVERIFY(writeSourceScan(source, 60, 40));
        QFile ptx(dir.filePath(QStringLiteral("site.ptx")));
        QVERIFY(ptx.open(QIODevice::WriteOnly) && writePtx(ptx, {exportOf(source)}));
        ptx.close();
        QVERIFY(window->openProject(projectPath));
        BasicProject& project = BasicProject::instance();
        const int before = project.scanCount();
        dialogs->fileNames = {ptx.fileName()};
        window->addScansToProject(project.treeModel()->index(0, 0));
        QVERIFY2(dialogs->shown.isEmpty(), qPrintable(dialogs->shown.join(QLatin1Char('\n'))));
        QCOMPARE(project.scanCount(), before + 1);
        QVERIFY(project.hasUnsavedChanges());
        const quint32 imported = project.scanIdAt(before);
        window->openPlanarView(imported);
        window->openSphericalView(imported);
        window->openPointcloudView(imported);
        QCOMPARE(window->mdiArea()->subWindowList().size(), 3);
        QVERIFY(dialogs->shown.isEmpty());
    }
};

TVX_GL_TEST(GLViewsWindowTest)

#include "glviewswindowtest.moc"
