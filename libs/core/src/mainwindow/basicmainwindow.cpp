#include "mainwindow/basicmainwindow.h"

#include "glviews/createmeasurmenttemoperator.h"
#include "glviews/scanviewevent.h"
#include "glviews/pointcloudviewglwidget.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/scanviewoperatormanager.h"
#include "glviews/sphericalviewglwidget.h"
#include "mainwindow/application.h"
#include "mainwindow/filetreeview.h"
#include "mainwindow/interactionmodes.h"
#include "mainwindow/logtablemodel.h"
#include "mainwindow/logtableview.h"
#include "mainwindow/mdicontextmenu.h"
#include "mainwindow/mdiplanarviewsubwindow.h"
#include "mainwindow/mdipointcloudviewsubwindow.h"
#include "mainwindow/mdisphericalviewsubwindow.h"
#include "mainwindow/planarviewcontent.h"
#include "mainwindow/pointinfotablemodel.h"
#include "mainwindow/pointinfotableviewwidget.h"
#include "mainwindow/recentprojectlist.h"
#include "mainwindow/sphericalviewcontent.h"
#include "mainwindow/userdialogs.h"
#include "fileio/tvxfilescaninfo.h"
#include "annotations/sceneitemstablemodel.h"
#include "planarview/graphicsview.h"
#include "planarview/interactivedimensioning.h"
#include "planarview/interactivegraphicsitemevent.h"
#include "planarview/lenswidget.h"
#include "planarview/notifyevent.h"
#include "fileio/tvxfile.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"
#include "project/projectimport.h"
#include "project/projectitemscangroup.h"
#include "scene/pointdistance.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QLoggingCategory>
#include <QMdiArea>
#include <QMenuBar>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalMapper>
#include <QStatusBar>
#include <QStyle>
#include <QTime>
#include <QToolBar>

#include <algorithm>
#include <cmath>
#include <exception>

Q_LOGGING_CATEGORY(lcMainWindow, "tvx.mainwindow", QtInfoMsg)

namespace TVX::CORE {

namespace {

BasicProject& project()
{
    return Application::instance().project();
}

ScanViewOperatorManager& operators()
{
    return Application::instance().operatorManager();
}

// Shows a busy cursor while it lives.
class BusyCursor
{
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

QString fixed3(double value)
{
    return QString::number(value, 'f', 3);
}

QString panoramaPath(const QString& scanFilePath)
{
    const QFileInfo scanFile(scanFilePath);
    return scanFile.absolutePath() + QLatin1Char('/') + scanFile.completeBaseName() + QStringLiteral(".jpg");
}

} // namespace

// What the GL views' operators ask of the window.
class BasicMainWindow::OperatorHost final : public ScanViewOperatorHost
{
public:
    explicit OperatorHost(BasicMainWindow& window) : m_window(window) {}

    void pickCell(quint32 scanId, qint32 column, qint32 row) override
    {
        m_window.pointSelectionInPlanarView(scanId, column, row);
    }
    void showLens(bool shown) override { m_window.lensModeEnabled(shown); }
    void showLensAt(quint32 scanId, qint32 column, qint32 row) override { m_window.updateLens(scanId, column, row); }
    void annotationsModified(quint32 scanId) override { m_window.scanWasModified(scanId); }
    void clearItemSelection() override
    {
        for (QMdiSubWindow* window : m_window.mdiArea()->subWindowList()) {
            if (auto* planar = qobject_cast<MDIPlanarViewSubWindow*>(window))
                planar->scene()->clearSelection();
        }
    }
    bool askItemText(QString& text) override
    {
        return m_window.userDialogs().textLine(BasicMainWindow::tr("Add Text"), BasicMainWindow::tr("Text:"), text);
    }

private:
    BasicMainWindow& m_window;
};

struct BasicMainWindow::Private {
    std::unique_ptr<UserDialogs> dialogs;
    QMdiArea* mdiArea{nullptr};
    FileTreeView* treeView{nullptr};
    LensWidget* lens{nullptr};
    QLabel* lensLabel{nullptr};
    PointInfoTableViewWidget* pointInfo{nullptr};
    LogTableModel* logModel{nullptr};
    QPointer<MdiSubWindow> subWindowUnderMouse;
    RecentProjectList recent;

    QList<QDockWidget*> docks;
    QList<QToolBar*> toolBars;

    QAction* openProject{nullptr};
    QAction* saveProject{nullptr};
    QAction* exit{nullptr};
    QAction* pick{nullptr};
    QAction* clearPointList{nullptr};
    QAction* clearPickedPoints{nullptr};
    QAction* editElements{nullptr};
    QAction* zoomIn{nullptr};
    QAction* zoomOut{nullptr};
    QAction* zoomAll{nullptr};
    QAction* cascade{nullptr};
    QAction* tile{nullptr};
    QAction* closeAll{nullptr};
    QAction* addPolygon{nullptr};
    QAction* addRectangle{nullptr};
    QAction* addEllipse{nullptr};
    QAction* addText{nullptr};
    QAction* distance3D{nullptr};
    QAction* distanceXY{nullptr};
    QAction* deltaZ{nullptr};
    QAction* distanceInfo{nullptr};
    QActionGroup* modeGroup{nullptr};
    QSignalMapper* dimensioningMapper{nullptr};
    QSignalMapper* recentMapper{nullptr};
    QList<QAction*> recentActions;
    std::unique_ptr<OperatorHost> operatorHost;
};

BasicMainWindow::BasicMainWindow(QWidget* parent, Qt::WindowFlags flags)
    : QMainWindow(parent, flags), d(std::make_unique<Private>())
{
    qRegisterMetaType<CursorId>("CursorId");
    d->dialogs = std::make_unique<UserDialogs>(this);
    createCentralAreaAndDocks();
    createActions();
    createToolBars();
    createMenus();
    createConnections();
    connectOperators();
    d->recent.load(QSettings());
    rebuildRecentMenu();
    updateWindowTitle(QString());
}

BasicMainWindow::~BasicMainWindow()
{
    // The operators outlive the window; they must not reach it any more.
    operators().setHost(nullptr);
    operators().setActiveViewProvider(nullptr);
}

void BasicMainWindow::connectOperators()
{
    d->operatorHost = std::make_unique<OperatorHost>(*this);
    ScanViewOperatorManager& manager = operators();
    manager.setHost(d->operatorHost.get());
    manager.setActiveViewProvider([this] {
        ActiveView view;
        // The current one stays current while another application has the focus.
        auto* sub = qobject_cast<MdiSubWindow*>(d->mdiArea->currentSubWindow());
        if (!sub)
            return view;
        view.subWindow = sub;
        view.scanId = sub->scanId();
        view.type = quint32(sub->subWindowType());
        if (auto* spherical = qobject_cast<MDISphericalViewSubWindow*>(sub))
            view.spherical = spherical->glWidget();
        return view;
    });
}

void BasicMainWindow::setUserDialogs(std::unique_ptr<UserDialogs> dialogs)
{
    d->dialogs = std::move(dialogs);
}

UserDialogs& BasicMainWindow::userDialogs() const
{
    return *d->dialogs;
}

QMdiArea* BasicMainWindow::mdiArea() const
{
    return d->mdiArea;
}

FileTreeView* BasicMainWindow::projectTreeView() const
{
    return d->treeView;
}

PointInfoTableViewWidget* BasicMainWindow::pointInfoWidget() const
{
    return d->pointInfo;
}

LogTableModel* BasicMainWindow::logModel() const
{
    return d->logModel;
}

MdiSubWindow* BasicMainWindow::subWindowUnderMouse() const
{
    return d->subWindowUnderMouse;
}

void BasicMainWindow::log(int type, const QString& message)
{
    d->logModel->appendEntry(type, QTime::currentTime(), message);
    qCInfo(lcMainWindow).noquote() << message;
}

void BasicMainWindow::warn(const QString& title, const QString& text)
{
    log(LogTableModel::Warning, QStringLiteral("%1: %2").arg(title, text.trimmed()));
    d->dialogs->warning(title, text);
}

// ---- construction ------------------------------------------------------------------------------

void BasicMainWindow::createCentralAreaAndDocks()
{
    d->mdiArea = new QMdiArea(this);
    d->mdiArea->setBackground(QBrush(QPixmap(QStringLiteral(":/icons/shared/bgbrush.png"))));
    setCentralWidget(d->mdiArea);
    statusBar();

    const auto addDock = [this](const QString& title, const char* objectName, QWidget* content,
                                Qt::DockWidgetAreas allowed, Qt::DockWidgetArea area) {
        auto* dock = new QDockWidget(title, this);
        dock->setObjectName(QLatin1String(objectName));
        dock->setAllowedAreas(allowed);
        dock->setWidget(content);
        addDockWidget(area, dock);
        d->docks << dock;
        return dock;
    };

    d->treeView = new FileTreeView(this);
    d->treeView->setModel(project().treeModel().data());
    project().treeModel()->setFolderIcon(style()->standardIcon(QStyle::SP_DirIcon));
    addDock(tr("Project"), "dock_projecttree", d->treeView, Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea,
            Qt::LeftDockWidgetArea);

    d->lens = new LensWidget(this);
    QDockWidget* lensDock = addDock(tr("Lens"), "dock_lens", d->lens,
                                    Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea | Qt::BottomDockWidgetArea,
                                    Qt::LeftDockWidgetArea);
    Q_UNUSED(lensDock);
    d->lensLabel = new QLabel(this);
    d->lensLabel->setObjectName(QStringLiteral("lensTextLabel"));
    statusBar()->addPermanentWidget(d->lensLabel);

    d->pointInfo = new PointInfoTableViewWidget(this);
    QDockWidget* pointDock = addDock(tr("Point Information"), "dock_pointinfo", d->pointInfo,
                                     Qt::BottomDockWidgetArea, Qt::BottomDockWidgetArea);

    d->logModel = new LogTableModel(this);
    auto* logView = new LogTableView(this);
    logView->setModel(d->logModel);
    QDockWidget* reportDock =
        addDock(tr("Report"), "dock_report", logView, Qt::BottomDockWidgetArea, Qt::BottomDockWidgetArea);
    tabifyDockWidget(pointDock, reportDock);
    pointDock->raise();
}

void BasicMainWindow::createActions()
{
    const auto make = [this](const QString& text, const char* icon, auto slot) {
        auto* action = new QAction(text, this);
        if (icon)
            action->setIcon(QIcon(QLatin1String(icon)));
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    const auto makeMode = [&](const QString& text, const char* icon, auto slot) {
        QAction* action = make(text, icon, slot);
        action->setCheckable(true);
        return action;
    };

    d->openProject = make(tr("Open Project"), ":/icons/shared/open.png", qOverload<>(&BasicMainWindow::openProject));
    d->openProject->setShortcut(QKeySequence::Open);
    d->saveProject = make(tr("Save Project"), ":/icons/shared/save.png", &BasicMainWindow::saveProject);
    d->saveProject->setShortcut(QKeySequence::Save);
    d->exit = make(tr("E&xit"), nullptr, &QWidget::close);
    d->exit->setShortcut(QKeySequence::Quit);
    d->pick = makeMode(tr("Pick 3D Coordinates"), ":/icons/shared/pickcoordinatemode.png",
                       &BasicMainWindow::initPickCoordinateMode);
    d->clearPointList = new QAction(QIcon(QStringLiteral(":/icons/shared/clearpointlist.png")), tr("Clear Point List"), this);
    connect(d->clearPointList, &QAction::triggered, d->pointInfo->model(), &PointInfoTableModel::clearAllItems);
    d->clearPickedPoints = make(tr("Clear Picked Points from View"), ":/icons/shared/clearpickedpoints.png",
                                &BasicMainWindow::clearPickedPointsFromView);
    d->editElements = makeMode(tr("Edit Elements"), ":/icons/shared/editmode.png", &BasicMainWindow::initEditElementMode);
    d->zoomIn = makeMode(tr("Zoom In"), ":/icons/shared/zoom_in.png", &BasicMainWindow::initZoomInMode);
    d->zoomOut = makeMode(tr("Zoom Out"), ":/icons/shared/zoom_out.png", &BasicMainWindow::initZoomOutMode);
    d->zoomAll = make(tr("Zoom All"), ":/icons/shared/zoom_all.png", &BasicMainWindow::zoomAll);

    const auto areaAction = [this](const QString& text, const QString& tip, void (QMdiArea::*slot)()) {
        auto* action = new QAction(text, this);
        action->setStatusTip(tip);
        connect(action, &QAction::triggered, d->mdiArea, slot);
        return action;
    };
    d->cascade = areaAction(tr("Cascade Windows"), tr("Cascade all Mdi Windows"), &QMdiArea::cascadeSubWindows);
    d->tile = areaAction(tr("Tile Windows"), tr("Tile all Mdi Windows"), &QMdiArea::tileSubWindows);
    d->closeAll = areaAction(tr("Close All Windows"), tr("Close all Mdi Windows"), &QMdiArea::closeAllSubWindows);

    d->addPolygon = makeMode(tr("Add Polygon"), ":/icons/shared/addpolygon.png", &BasicMainWindow::initDrawPolygonMode);
    d->addRectangle =
        makeMode(tr("Add Rectangle"), ":/icons/shared/addrectangle.png", &BasicMainWindow::initDrawRectangleMode);
    d->addEllipse = makeMode(tr("Add Ellipse"), ":/icons/shared/addellipse.png", &BasicMainWindow::initDrawEllipseMode);
    d->addText = makeMode(tr("Add Text"), ":/icons/shared/addtext.png", &BasicMainWindow::initDrawTextMode);

    // The integers are deliberately 0 3D, 1 Delta Z, 2 XY, while the actions come 3D, XY, Delta Z.
    d->dimensioningMapper = new QSignalMapper(this);
    const auto dimensioning = [this](const QString& text, const char* icon, int kind) {
        auto* action = new QAction(QIcon(QLatin1String(icon)), text, this);
        action->setCheckable(true);
        connect(action, &QAction::triggered, d->dimensioningMapper, qOverload<>(&QSignalMapper::map));
        d->dimensioningMapper->setMapping(action, kind);
        return action;
    };
    d->distance3D = dimensioning(tr("3D Distance"), ":/icons/shared/distance3d.png", 0);
    d->distanceXY = dimensioning(tr("Distance in XY"), ":/icons/shared/distancexy.png", 2);
    d->deltaZ = dimensioning(tr("Delta Z"), ":/icons/shared/distancedz.png", 1);
    connect(d->dimensioningMapper, &QSignalMapper::mappedInt, this, &BasicMainWindow::initPlaceDimensioningMode);
    d->distanceInfo = make(tr("Detailed Distance Information"), ":/icons/shared/distanceall.png",
                           &BasicMainWindow::showCompleteDimensioningInfo);

    d->modeGroup = new QActionGroup(this);
    d->modeGroup->setExclusive(true);
    for (QAction* action : {d->pick, d->editElements, d->zoomIn, d->zoomOut, d->addPolygon, d->addRectangle,
                            d->addEllipse, d->addText, d->distance3D, d->distanceXY, d->deltaZ})
        d->modeGroup->addAction(action);
    d->pick->setChecked(true);

    // The point table's tool column: clearing, taking the clearing back, clearing the views' marks.
    auto* undoClear = new QAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("Undo Clear Point List"), this);
    undoClear->setEnabled(false);
    connect(undoClear, &QAction::triggered, d->pointInfo->model(), &PointInfoTableModel::doUndo);
    connect(d->pointInfo->model(), &PointInfoTableModel::signal_pointInfotable_undomode_changed, undoClear,
            &QAction::setEnabled);
    d->pointInfo->addToolButton(d->clearPointList);
    d->pointInfo->addToolButton(undoClear);
    d->pointInfo->addToolButton(d->clearPickedPoints);

    d->recentMapper = new QSignalMapper(this);
    for (int i = 0; i < RecentProjectList::size; ++i) {
        auto* action = new QAction(this);
        action->setVisible(false);
        connect(action, &QAction::triggered, d->recentMapper, qOverload<>(&QSignalMapper::map));
        d->recentMapper->setMapping(action, i);
        d->recentActions << action;
    }
    connect(d->recentMapper, &QSignalMapper::mappedInt, this, &BasicMainWindow::openRecentProjectFile);
}

void BasicMainWindow::createToolBars()
{
    const auto addBar = [this](const QString& title, const char* objectName, const QList<QAction*>& actions) {
        QToolBar* bar = addToolBar(title);
        bar->setObjectName(QLatin1String(objectName));
        bar->addActions(actions);
        d->toolBars << bar;
    };
    // The object names are kept as they are: saved window states refer to them.
    addBar(tr("File Operations"), "toolbar_file", {d->openProject, d->saveProject});
    addBar(tr("Zoom Operations"), "toolbar_zoom", {d->zoomIn, d->zoomOut, d->zoomAll});
    addBar(tr("Drawing Tools"), "toolbar_2ddraw", {d->editElements, d->addPolygon, d->addRectangle, d->addEllipse, d->addText});
    addBar(tr("Measurement Tools"), "measurement_tools", {d->distance3D, d->distanceXY, d->deltaZ, d->distanceInfo});
    addBar(tr("Point-based Operations"), "toolsbar_point_based_operations",
           {d->pick, d->clearPointList, d->clearPickedPoints});
}

void BasicMainWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(d->openProject);
    file->addAction(d->saveProject);
    file->addSeparator();
    QMenu* recent = file->addMenu(tr("Recently Opened Files"));
    recent->addActions(d->recentActions);
    file->addSeparator();
    file->addAction(d->exit);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    edit->addAction(d->clearPointList);
    edit->addAction(d->clearPickedPoints);

    QMenu* view = menuBar()->addMenu(tr("&View"));
    QMenu* toolBars = view->addMenu(tr("Toolbars"));
    for (QToolBar* bar : std::as_const(d->toolBars))
        toolBars->addAction(bar->toggleViewAction());
    QMenu* windows = view->addMenu(tr("Windows"));
    for (QDockWidget* dock : std::as_const(d->docks))
        windows->addAction(dock->toggleViewAction());

    QMenu* area = menuBar()->addMenu(tr("&Windows"));
    area->addAction(d->cascade);
    area->addAction(d->tile);
    area->addSeparator();
    area->addAction(d->closeAll);

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("menu_help"));
}

void BasicMainWindow::createConnections()
{
    FileTreeView* tree = d->treeView;
    connect(tree, &FileTreeView::requestToOpenPreferredView, this, &BasicMainWindow::openViewWithPreferredStyle);
    connect(tree, &FileTreeView::requestToOpenPlanarView, this, &BasicMainWindow::openPlanarView);
    connect(tree, &FileTreeView::requestToOpenSphericalView, this, &BasicMainWindow::openSphericalView);
    connect(tree, &FileTreeView::requestToOpenPointcloudView, this, &BasicMainWindow::openPointcloudView);
    connect(tree, &FileTreeView::requestToCloseAllViewsOfAScan, this, &BasicMainWindow::closeAllViewsOfAScan);
    connect(tree, &FileTreeView::requestToCloseAllViewsOfAllOtherScans, this,
            &BasicMainWindow::closeAllViewsOfAllOtherScans);
    connect(tree, &FileTreeView::requestToDeleteItems, this, &BasicMainWindow::deleteItemsFromProjectTree);
    connect(tree, &FileTreeView::requestToAddScans, this, &BasicMainWindow::addScansToProject);

    FileTreeModel* model = project().treeModel().data();
    connect(model, &FileTreeModel::checkBoxScanDisabled, this, &BasicMainWindow::closeAllViewsOfAScan);
    connect(model, &FileTreeModel::relevantDataChanged, this, &BasicMainWindow::setProjectIsModified);
    connect(model, &QAbstractItemModel::rowsInserted, this, &BasicMainWindow::setProjectIsModified);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &BasicMainWindow::setProjectIsModified);
    connect(model, &QAbstractItemModel::rowsMoved, this, &BasicMainWindow::setProjectIsModified);
    connect(model, &FileTreeModel::checkBoxStateChanged, this, &BasicMainWindow::projectTreeScanCheckBoxChanged);
    // A new or reset tree (a project opened or closed) is no change of the project.
    connect(model, &QAbstractItemModel::modelReset, this, [this] { updateWindowTitle(project().projectFilePath()); });
    connect(&project(), &BasicProject::unsavedChangesChanged, this, [this] { setWindowModified(project().hasUnsavedChanges()); });
}

void BasicMainWindow::rebuildRecentMenu()
{
    for (int i = 0; i < RecentProjectList::size; ++i) {
        const QString path = d->recent.at(i);
        d->recentActions[i]->setText(RecentProjectList::displayText(path));
        d->recentActions[i]->setVisible(!path.isEmpty());
    }
}

// ---- projects ----------------------------------------------------------------------------------

void BasicMainWindow::handle_message(const QString& message)
{
    if (message.startsWith(QLatin1String("WAKE_UP"))) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
        raise();
        show();
        return;
    }
    if (!message.startsWith(QLatin1String("OPEN_VIEW ")))
        return;
    QString path = message;
    path.remove(QRegularExpression(QStringLiteral("^OPEN_VIEW ")));
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (path.isEmpty())
        return;
    if (project().isOpen()) {
        // Directory objects compare equal when they denote the same canonical location.
        const QDir open(QDir::toNativeSeparators(QDir::cleanPath(project().projectFilePath())));
        const QDir received(QDir::toNativeSeparators(QDir::cleanPath(path)));
        if (open == received)
            return;
    }
    openProject(path);
}

bool BasicMainWindow::askToKeepChanges()
{
    BasicProject& p = project();
    if (!p.hasUnsavedChanges())
        return true;
    if (p.isReadOnly()) {
        d->dialogs->information(tr("Read-only project"),
                                tr("Changes could not be saved, because the project was opened in read-only mode."));
        return true;
    }
    const QMessageBox::StandardButton answer =
        d->dialogs->question(tr("Save Changes?"),
                             tr("Changes where made to one or more views. Should they be stored permanently?"),
                             QMessageBox::SaveAll | QMessageBox::Cancel | QMessageBox::Discard, QMessageBox::SaveAll);
    if (answer == QMessageBox::Cancel)
        return false;
    if (answer != QMessageBox::SaveAll)
        return true;
    for (;;) {
        QString message;
        const bool projectSaved = !p.isModified() || p.saveProject(message);
        if (!projectSaved)
            log(LogTableModel::Error, message);
        if (projectSaved && saveAnnotationsForAllOpenPlanarViews())
            return true;
        const QMessageBox::StandardButton again =
            d->dialogs->question(tr("File IO Error"), tr("An error occurred during saving the changes permanently. Try again?"),
                                 QMessageBox::Retry | QMessageBox::Discard, QMessageBox::Retry);
        if (again != QMessageBox::Retry)
            return false;
    }
}

bool BasicMainWindow::openProject(QString fileName)
{
    if (!askToKeepChanges())
        return false;
    return openProjectFile(fileName);
}

bool BasicMainWindow::openProject()
{
    return openProject(QString());
}

bool BasicMainWindow::openProjectFile(const QString& requested)
{
    if (!resetApplication())
        return false;
    QString fileName = requested;
    if (fileName.isEmpty()) {
        const QString last = d->recent.at(0);
        const QString start = last.isEmpty() ? QDir::homePath() : QFileInfo(last).absolutePath();
        fileName = d->dialogs->openFileName(tr("Select Project File"), start, tr("Tarvenix Project File (*.tvxprj)"));
        if (fileName.isEmpty())
            return false;
    }

    BasicProject& p = project();
    // A project file that does not exist yet starts a new project, but only in a folder that does.
    const QDir directory = QFileInfo(fileName).absoluteDir();
    if (!directory.exists()) {
        warn(tr("Could Not Open Project Directory"),
             tr("The project directory %1 does not exist.").arg(QDir::toNativeSeparators(directory.path())));
        return false;
    }
    const QString userName = QSettings().value(QStringLiteral("global/userName"), QStringLiteral("unknownUserName")).toString();
    for (;;) {
        int code = 0;
        QString message;
        bool opened = false;
        {
            const BusyCursor busy;
            opened = p.openProject(fileName, userName, code, message);
        }
        if (opened) {
            if (code == BasicProject::OpenedOlderFormat)
                warn(tr("Warning: Old Project File Version"), message);
            else if (!message.isEmpty())
                log(LogTableModel::Information, message.trimmed());
            log(LogTableModel::Information, tr("Project %1 opened%2.")
                                                .arg(QDir::toNativeSeparators(p.projectFilePath()),
                                                     p.isReadOnly() ? tr(" read-only") : QString()));
            const QStringList unreadable = p.unreadableScans();
            if (!unreadable.isEmpty()) {
                for (const QString& scan : unreadable)
                    log(LogTableModel::Warning, tr("Scan not readable: %1").arg(scan));
                warn(tr("Scans Could Not Be Read"),
                     tr("The following scans of the project could not be read and are not shown:\n\n%1")
                         .arg(unreadable.join(QLatin1Char('\n'))));
            }
            updateWindowTitle(p.projectFilePath());
            d->treeView->expandAll();
            d->recent.add(p.projectFilePath());
            QSettings settings;
            d->recent.save(settings);
            rebuildRecentMenu();
            return true;
        }
        if (code == BasicProject::LockedByOthers) {
            log(LogTableModel::Warning, message.trimmed());
            if (!d->dialogs->confirmLockDeletion(message))
                return false;
            const QString lock = QFileInfo(fileName).absoluteDir().filePath(QStringLiteral("tvxlock~"));
            if (!QFile::remove(lock)) {
                warn(tr("Could Not Open Project Directory"), tr("The lock file %1 could not be deleted.").arg(lock));
                return false;
            }
            log(LogTableModel::Warning, tr("Lock file %1 deleted by the user.").arg(QDir::toNativeSeparators(lock)));
            continue;
        }
        warn(tr("Could Not Open Project Directory"), message);
        return false;
    }
}

void BasicMainWindow::openRecentProjectFile(int id)
{
    if (id < 0 || id >= RecentProjectList::size || !askToKeepChanges())
        return;
    const QString path = d->recent.at(id);
    if (!path.isEmpty())
        openProjectFile(path);
}

bool BasicMainWindow::saveProject()
{
    BasicProject& p = project();
    if (!p.isOpen())
        return true;
    if (p.isReadOnly()) {
        d->dialogs->information(tr("Read-only project"),
                                tr("Changes could not be saved, because the project was opened in read-only mode."));
        return false;
    }
    QString message;
    if (!p.saveProject(message)) {
        warn(tr("File IO Error"), message);
        return false;
    }
    if (!saveAnnotationsForAllOpenPlanarViews())
        return false;
    log(LogTableModel::Information, tr("Project %1 saved.").arg(QDir::toNativeSeparators(p.projectFilePath())));
    setWindowModified(p.hasUnsavedChanges());
    return true;
}

bool BasicMainWindow::resetApplication()
{
    d->mdiArea->closeAllSubWindows();
    QCoreApplication::processEvents();
    resetToPickMode();
    BasicProject& p = project();
    int code = 0;
    QString message;
    if (!p.closeProject(code, message)) {
        warn(tr("Could Not Close Project"), message);
        return false;
    }
    d->pointInfo->model()->clearAllItems();
    updateWindowTitle(QString());
    return true;
}

void BasicMainWindow::updateWindowTitle(const QString& projectPath)
{
    setWindowTitle(projectPath.isEmpty() ? tr("Tarvenix Viewer") : tr("Tarvenix Viewer: %1[*]").arg(projectPath));
    setWindowModified(project().hasUnsavedChanges());
}

void BasicMainWindow::addScansToProject(const QModelIndex& folder)
{
    BasicProject& p = project();
    if (!p.isOpen() || p.isReadOnly())
        return;
    const QString imports = ProjectImport::nameFilters().join(QLatin1Char(' '));
    const QStringList files = d->dialogs->openFileNames(
        tr("Add Scans"), p.projectDirectory(),
        tr("Scans (*.tvx %1);;Scan Files (*.tvx);;Scans of Other Scanners (%1)").arg(imports));
    const auto node = p.treeModel()->item(folder);
    ProjectItemScanGroupPtr target;
    if (node && node->isFolder())
        target = std::static_pointer_cast<ProjectItemScanGroup>(node);
    else if (node)
        target = node->parent();
    QStringList failed;
    for (const QString& file : files) {
        QString reason;
        if (ProjectImport::canImport(file)) {
            if (!importScans(file, target, reason))
                failed << QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(file), reason);
        } else if (p.addScan(file, target, &reason) < 0) {
            failed << QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(file), reason);
        } else {
            log(LogTableModel::Information, tr("Scan %1 added.").arg(QDir::toNativeSeparators(file)));
        }
    }
    if (!failed.isEmpty())
        warn(tr("Add Scans"), tr("These scans could not be added:\n\n%1").arg(failed.join(QLatin1Char('\n'))));
}

bool BasicMainWindow::importScans(const QString& file, const ProjectItemScanGroupPtr& folder, QString& reason)
{
    const QString name = QDir::toNativeSeparators(file);
    // On this thread, as everything else: the progress keeps the window alive and offers Cancel.
    QProgressDialog progress(tr("Importing %1 ...").arg(name), tr("Cancel"), 0, 1000, this);
    progress.setWindowTitle(tr("Add Scans"));
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    progress.setValue(0);
    const ProjectImport::Result result = ProjectImport::importFile(
        project(), file, folder, ScanImporter::Options(), [&progress](quint64 done, quint64 total) {
            progress.setValue(total > 0 ? int(std::min<quint64>(done, total) * 1000 / total) : 0);
            QCoreApplication::processEvents();
            return !progress.wasCanceled();
        });
    if (result.cancelled) {
        log(LogTableModel::Information, tr("Import of %1 cancelled; nothing was added.").arg(name));
        return true;
    }
    if (!result.ok) {
        reason = result.error;
        return false;
    }
    log(LogTableModel::Information, tr("Scans imported from %1 into the folder %2: %3.")
                                        .arg(name, result.folderName)
                                        .arg(result.scans.size()));
    return true;
}

void BasicMainWindow::deleteItemsFromProjectTree(QModelIndexList& indexes)
{
    FileTreeModel* model = project().treeModel().data();
    // Views of every scan below the removed nodes close first.
    for (const QModelIndex& index : std::as_const(indexes)) {
        const auto node = model->item(index);
        if (!node)
            continue;
        if (node->isScan()) {
            closeAllViewsOfAScan(quint32(std::static_pointer_cast<ProjectItemScan>(node)->scanId()));
        } else {
            std::static_pointer_cast<ProjectItemScanGroup>(node)->forEachScan(
                [this](const ProjectItemScanPtr& scan) { closeAllViewsOfAScan(quint32(scan->scanId())); });
        }
    }
    // Persistent indexes stay valid while their siblings go; a node below another removed one
    // goes with it.
    QList<QPersistentModelIndex> rows;
    for (const QModelIndex& index : std::as_const(indexes))
        rows << QPersistentModelIndex(index.siblingAtColumn(0));
    for (const QPersistentModelIndex& row : std::as_const(rows)) {
        if (row.isValid())
            model->removeRows(row.row(), 1, row.parent());
    }
}

// ---- views -------------------------------------------------------------------------------------

void BasicMainWindow::openViewWithPreferredStyle(quint32 scanId)
{
    bool ok = false;
    int kind = QSettings().value(QStringLiteral("global/default_view_type"), 0).toInt(&ok);
    if (!ok)
        kind = 0;
    if (kind == 0) {
        const auto* active = qobject_cast<MdiSubWindow*>(d->mdiArea->activeSubWindow());
        kind = active ? int(active->subWindowType()) : int(MdiSubWindow::PlanarView);
    }
    switch (kind) {
    case MdiSubWindow::PlanarView:
        openPlanarView(scanId);
        break;
    case MdiSubWindow::SphericalView:
        openSphericalView(scanId);
        break;
    case MdiSubWindow::PointcloudView:
        openPointcloudView(scanId);
        break;
    default:
        break;
    }
}

MdiSubWindow* BasicMainWindow::findSubWindow(quint32 scanId, MdiSubWindow::MdiSubWindowType kind) const
{
    for (QMdiSubWindow* window : d->mdiArea->subWindowList()) {
        auto* sub = qobject_cast<MdiSubWindow*>(window);
        if (sub && sub->scanId() == scanId && sub->subWindowType() == kind)
            return sub;
    }
    return nullptr;
}

MDIContextMenu* BasicMainWindow::buildContextMenu(MdiSubWindow::MdiSubWindowType kind, quint32 scanId)
{
    auto* menu = new MDIContextMenu(scanId, this);
    const bool drawing = kind == MdiSubWindow::PlanarView || kind == MdiSubWindow::SphericalView;
    if (drawing) {
        menu->addActions({d->pick, d->clearPickedPoints, d->clearPointList});
        menu->addSeparator();
    }
    if (kind != MdiSubWindow::PlanarView)
        menu->addAction(QIcon(QStringLiteral(":/icons/shared/planarview_active.png")), tr("Open Planar View"), menu,
                        &MDIContextMenu::openPlanarViewForSelectedItem);
    if (kind != MdiSubWindow::SphericalView)
        menu->addAction(QIcon(QStringLiteral(":/icons/shared/sphericalview_active.png")), tr("Open Spherical View"),
                        menu, &MDIContextMenu::openSphericalViewForSelectedItem);
    if (kind != MdiSubWindow::PointcloudView)
        menu->addAction(QIcon(QStringLiteral(":/icons/shared/pointcloudview_active.png")), tr("Open Pointcloud View"),
                        menu, &MDIContextMenu::openPointCloudViewForSelectedItem);
    menu->addAction(tr("Close Views of this Scan"), menu, &MDIContextMenu::closeAllViewsOfAScanForSelectedItem);
    menu->addAction(tr("Close Views of all other Scans"), menu,
                    &MDIContextMenu::closeAllViewsOfAllOtherScansForSelectedItem);
    menu->addSeparator();
    if (drawing) {
        menu->addActions({d->editElements, d->addPolygon, d->addRectangle, d->addEllipse, d->addText});
        menu->addSeparator();
        menu->addActions({d->distance3D, d->distanceXY, d->deltaZ, d->distanceInfo});
        menu->addSeparator();
    }
    connect(menu, &MDIContextMenu::requestToOpenPlanarView, this, &BasicMainWindow::openPlanarView);
    connect(menu, &MDIContextMenu::requestToOpenSphericalView, this, &BasicMainWindow::openSphericalView);
    connect(menu, &MDIContextMenu::requestToOpenPointcloudView, this, &BasicMainWindow::openPointcloudView);
    connect(menu, &MDIContextMenu::requestToCloseAllViewsOfAScan, this, &BasicMainWindow::closeAllViewsOfAScan);
    connect(menu, &MDIContextMenu::requestToCloseAllViewsOfAllOtherScans, this,
            &BasicMainWindow::closeAllViewsOfAllOtherScans);
    return menu;
}

void BasicMainWindow::addScanSubWindow(MdiSubWindow* sub)
{
    d->mdiArea->addSubWindow(sub);
    connect(sub, &MdiSubWindow::signalMouseEntered, this, [this](MdiSubWindow* window) { d->subWindowUnderMouse = window; });
}

bool BasicMainWindow::activateView(quint32 scanId, MdiSubWindow::MdiSubWindowType kind)
{
    MdiSubWindow* existing = findSubWindow(scanId, kind);
    if (existing)
        d->mdiArea->setActiveSubWindow(existing);
    return existing != nullptr;
}

void BasicMainWindow::warnOpenViewFailed()
{
    warn(tr("Open a new View Failed"),
         tr("Tarvenix was unable to open a new scan view. Please close some other views and try again."));
}

void BasicMainWindow::openPlanarView(quint32 scanId)
{
    const BusyCursor busy;
    if (activateView(scanId, MdiSubWindow::PlanarView))
        return;
    BasicProject& p = project();
    const auto file = p.scanFileOf(scanId);
    if (!file)
        return;
    const QFileInfo scanFile(file->path());
    const QString imagePath = panoramaPath(file->path());
    const QImage image(imagePath);
    if (image.isNull()) {
        log(LogTableModel::Warning, tr("The panorama %1 cannot be read.").arg(QDir::toNativeSeparators(imagePath)));
        warnOpenViewFailed();
        return;
    }
    const TVXFileScanInfo& info = file->scanInfo();
    auto* sub = new MDIPlanarViewSubWindow(scanId, image, int(info.columns), int(info.rows));
    sub->setWindowTitle(tr("Planar View: ") + scanFile.fileName());
    sub->setContextMenu(buildContextMenu(MdiSubWindow::PlanarView, scanId));
    addScanSubWindow(sub);
    connect(sub, &MdiSubWindow::signalAboutToClose, this, &BasicMainWindow::closePlanarView);

    GraphicsView* view = sub->graphicsView();
    connect(view, &GraphicsView::signalRowAndColumnMouseMove, this, &BasicMainWindow::showColumnAndRowInStatusLine);
    connect(view, &GraphicsView::signalLensModeEnabled, this, &BasicMainWindow::lensModeEnabled);
    connect(view, &GraphicsView::qsig_UpdateLens, this, &BasicMainWindow::updateLens);
    connect(view, &GraphicsView::signalLMBClick, this, &BasicMainWindow::pointSelectionInPlanarView);
    connect(view, &GraphicsView::signalRemovePointFromLMBClick, this, &BasicMainWindow::removeLastPointFromList);
    connect(view, &GraphicsView::signalAreaSelected, this, &BasicMainWindow::areaSelectionInPlanarView);
    connect(view, &GraphicsView::signalSceneElementAdded, this, &BasicMainWindow::sceneElementAdded);
    connect(view, &GraphicsView::signalSceneElementAboutToBeRemoved, this, &BasicMainWindow::sceneElementAboutToBeRemoved);
    connect(view, &GraphicsView::signalDBLClickScanPositionPlanarView, this, &BasicMainWindow::openViewWithPreferredStyle);
    connect(this, &BasicMainWindow::graphicsViewModeChanged, view, &GraphicsView::graphicsViewModeChanged);
    connect(this, &BasicMainWindow::cursorContextChanged, view, &GraphicsView::cursorContextChanged);
    connect(this, &BasicMainWindow::clearPickedPointMarks, view, &GraphicsView::removeAndDeleteAllPickedPointItems);

    p.setViewOpen(scanId, BasicProject::PlanarView, true);
    placeStationMarks(view);
    PlanarViewContent::addReferencePoints(p, *view);
    sub->show();
    sub->fit();
    loadAnnotationsForPlanarView(scanId);

    InteractionModes::CheckedActions checked;
    checked.distance3D = d->distance3D->isChecked();
    checked.distanceXY = d->distanceXY->isChecked();
    checked.deltaZ = d->deltaZ->isChecked();
    checked.zoomIn = d->zoomIn->isChecked();
    checked.zoomOut = d->zoomOut->isChecked();
    for (const InteractionModes::Pair& pair : InteractionModes::pairsForNewView(operators().currentMode(), checked))
        Q_EMIT graphicsViewModeChanged(pair.first, pair.second);
}

void BasicMainWindow::openSphericalView(quint32 scanId)
{
    const BusyCursor busy;
    if (activateView(scanId, MdiSubWindow::SphericalView))
        return;
    BasicProject& p = project();
    if (p.scanIndex(scanId) < 0)
        return;
    const auto file = p.scanFileOf(scanId);
    const auto graph = p.sceneGraph(scanId);
    const QString imagePath = file ? panoramaPath(file->path()) : QString();
    const QPixmap panorama(imagePath);
    if (!file || !graph || panorama.isNull()) {
        log(LogTableModel::Warning, file ? tr("The panorama %1 cannot be read.").arg(QDir::toNativeSeparators(imagePath))
                                         : tr("The scan %1 cannot be read.").arg(scanId));
        warnOpenViewFailed();
        return;
    }
    const TVXFileScanInfo& info = file->scanInfo();
    auto* sub = new MDISphericalViewSubWindow(scanId, panorama, graph, info.horizontalMin, info.horizontalMax,
                                              info.verticalMin, info.verticalMax);
    sub->setWindowTitle(tr("Spherical View: ") + QFileInfo(file->path()).fileName());
    sub->setContextMenu(buildContextMenu(MdiSubWindow::SphericalView, scanId));
    connect(sub, &MdiSubWindow::signalAboutToClose, this, &BasicMainWindow::closeSphericalView);

    SphericalViewGLWidget* view = sub->glWidget();
    view->setGridSize(info.columns, info.rows);
    view->setOperatorManager(&operators());
    view->setMeasurementLabeler([view](const ScanViewMeasurementItem& item) {
        return SphericalViewContent::measurementLabel(project(), *view, item);
    });
    connect(view, &SphericalViewGLWidget::signalDBLClickStationMarkSphericalView, this,
            &BasicMainWindow::openViewWithPreferredStyle);
    connect(this, &BasicMainWindow::cursorContextChanged, view, [view](CursorId cursor) { view->setCursorMode(int(cursor)); });

    p.setViewOpen(scanId, BasicProject::SphericalView, true);
    placeStationMarks(view);
    addScanSubWindow(sub);
    sub->resize(d->mdiArea->size() * 0.8);
    sub->show();
    // The scan's measurements and other items live in its scene graph, which the view draws.
    reportAnnotationLoad(scanId);
}

void BasicMainWindow::openPointcloudView(quint32 scanId)
{
    const BusyCursor busy;
    if (activateView(scanId, MdiSubWindow::PointcloudView))
        return;
    BasicProject& p = project();
    if (p.scanIndex(scanId) < 0)
        return;
    const auto file = p.scanFileOf(scanId);
    MDIPointcloudViewSubWindow* sub = nullptr;
    QString reason;
    try {
        if (file)
            sub = new MDIPointcloudViewSubWindow(scanId, file->path(), file, QColor(Qt::darkGray));
    } catch (const std::exception& error) {
        reason = QString::fromLocal8Bit(error.what());
    }
    if (!sub) {
        log(LogTableModel::Warning, tr("The points of scan %1 cannot be read: %2").arg(p.scanName(scanId), reason));
        warnOpenViewFailed();
        return;
    }
    sub->setWindowTitle(tr("Pointcloud View: ") + QFileInfo(file->path()).fileName());
    sub->setContextMenu(buildContextMenu(MdiSubWindow::PointcloudView, scanId));
    connect(sub, &MdiSubWindow::signalAboutToClose, this, &BasicMainWindow::closePointcloudView);
    p.setViewOpen(scanId, BasicProject::PointCloudView, true);
    addScanSubWindow(sub);
    sub->resize(d->mdiArea->size() * 0.8);
    sub->show();
}

void BasicMainWindow::closePlanarView(quint32 scanId)
{
    operators().resetActiveOperator();
    if (project().scanIndex(scanId) >= 0) {
        mdiWindowAboutToClosed(scanId, MdiSubWindow::PlanarView);
        project().setViewOpen(scanId, BasicProject::PlanarView, false);
    }
}

void BasicMainWindow::closeSphericalView(quint32 scanId)
{
    operators().resetActiveOperator();
    if (project().scanIndex(scanId) >= 0) {
        mdiWindowAboutToClosed(scanId, MdiSubWindow::SphericalView);
        project().setViewOpen(scanId, BasicProject::SphericalView, false);
    }
}

void BasicMainWindow::closePointcloudView(quint32 scanId)
{
    operators().resetActiveOperator();
    if (project().scanIndex(scanId) >= 0) {
        mdiWindowAboutToClosed(scanId, MdiSubWindow::PointcloudView);
        project().setViewOpen(scanId, BasicProject::PointCloudView, false);
    }
}

void BasicMainWindow::closeViews(quint32 scanId, bool ofThisScan)
{
    const QList<QMdiSubWindow*> windows = d->mdiArea->subWindowList();
    for (QMdiSubWindow* window : windows) {
        auto* sub = qobject_cast<MdiSubWindow*>(window);
        if (!sub || (sub->scanId() == scanId) != ofThisScan)
            continue;
        mdiWindowAboutToClosed(sub->scanId(), sub->subWindowType());
        d->mdiArea->removeSubWindow(sub);
        sub->close();
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    resetToPickMode();
}

void BasicMainWindow::closeAllViewsOfAScan(quint32 scanId)
{
    closeViews(scanId, true);
}

void BasicMainWindow::closeAllViewsOfAllOtherScans(quint32 scanId)
{
    closeViews(scanId, false);
}

void BasicMainWindow::mdiWindowAboutToClosed(quint32, MdiSubWindow::MdiSubWindowType)
{
    d->subWindowUnderMouse.clear();
}

bool BasicMainWindow::reportAnnotationLoad(quint32 scanId)
{
    BasicProject& p = project();
    QString error;
    if (p.loadAnnotations(scanId, error))
        return true;
    const QString path = p.annotationFilePath(scanId);
    warn(tr("Error reading file"), tr("Parse error in file %1:\n\n%2").arg(path, error));
    return false;
}

void BasicMainWindow::loadAnnotationsForPlanarView(quint32 scanId)
{
    auto* sub = qobject_cast<MDIPlanarViewSubWindow*>(findSubWindow(scanId, MdiSubWindow::PlanarView));
    if (!sub)
        return;
    if (!project().sceneItems(scanId)) {
        warn(tr("Internal Error"), tr("No scene information for scan found."));
        return;
    }
    reportAnnotationLoad(scanId);
    PlanarViewContent::addAnnotationItems(project(), *sub->graphicsView());
}

bool BasicMainWindow::saveAnnotationsForAllOpenPlanarViews()
{
    BasicProject& p = project();
    const QList<quint32> modified = p.scansWithModifiedAnnotations();
    if (modified.isEmpty())
        return true;
    if (p.isReadOnly()) {
        d->dialogs->information(tr("Read-only project"),
                                tr("Changes could not be saved, because the project was opened in read-only mode."));
        return false;
    }
    QString failed;
    for (const quint32 scanId : modified) {
        QString error;
        if (p.saveAnnotations(scanId, error)) {
            log(LogTableModel::Information, tr("Annotations saved to %1.").arg(p.annotationFilePath(scanId)));
            continue;
        }
        log(LogTableModel::Error, tr("Annotations not saved to %1: %2").arg(p.annotationFilePath(scanId), error));
        failed += tr("   %1\n").arg(p.annotationFilePath(scanId));
    }
    setWindowModified(p.hasUnsavedChanges());
    if (failed.isEmpty())
        return true;
    d->dialogs->warning(tr("Error writing files"), tr("Could not write the following files:\n") + failed);
    return false;
}

void BasicMainWindow::disableInteractiveLensMode() {}

void BasicMainWindow::clear_picked_point_items()
{
    Q_EMIT clearPickedPointMarks();
}

void BasicMainWindow::placeStationMarks(GraphicsView* view)
{
    if (QSettings().value(QStringLiteral("global/showStationMarks"), true).toBool())
        PlanarViewContent::addStationMarks(project(), *view);
}

void BasicMainWindow::placeStationMarks(SphericalViewGLWidget* view)
{
    if (QSettings().value(QStringLiteral("global/showStationMarks"), true).toBool())
        SphericalViewContent::setStationMarks(project(), *view);
    else
        view->setStationMarks({});
}

void BasicMainWindow::projectTreeScanCheckBoxChanged()
{
    for (QMdiSubWindow* window : d->mdiArea->subWindowList()) {
        if (auto* planar = qobject_cast<MDIPlanarViewSubWindow*>(window)) {
            GraphicsView* view = planar->graphicsView();
            view->removeAndDeleteAllInteractiveStationMarks();
            placeStationMarks(view);
            view->viewport()->update();
        } else if (auto* spherical = qobject_cast<MDISphericalViewSubWindow*>(window)) {
            placeStationMarks(spherical->glWidget());
            spherical->glWidget()->update();
        }
    }
}

void BasicMainWindow::clearPickedPointsFromView()
{
    clear_picked_point_items();
}

void BasicMainWindow::zoomAll()
{
    for (QMdiSubWindow* window : d->mdiArea->subWindowList()) {
        if (auto* sub = qobject_cast<MdiSubWindow*>(window))
            sub->fit();
    }
}

void BasicMainWindow::setProjectIsModified()
{
    BasicProject& p = project();
    if (!p.isOpen())
        return;
    p.setModified(true);
    setWindowModified(true);
}

void BasicMainWindow::scanWasModified(quint32 scanId)
{
    project().setScanModified(scanId, true);
    setWindowModified(true);
}

void BasicMainWindow::areaSelectionInPlanarView(quint32 scanId, InteractiveGraphicsItem* area)
{
    if (!area)
        return;
    const QRectF box = area->sceneBoundingRect();
    log(LogTableModel::Information, tr("Area selected in %1: columns %2 to %3, rows %4 to %5.")
                                        .arg(project().scanName(scanId))
                                        .arg(qint64(box.left()))
                                        .arg(qint64(box.right()))
                                        .arg(qint64(box.top()))
                                        .arg(qint64(box.bottom())));
}

void BasicMainWindow::sceneElementAdded(quint32 scanId, InteractiveGraphicsItem* item)
{
    const auto records = project().sceneItems(scanId);
    if (!item || !records || !item->record())
        return;
    records->addItem(item->record());
    scanWasModified(scanId);
}

void BasicMainWindow::sceneElementAboutToBeRemoved(quint32 scanId, InteractiveGraphicsItem* item)
{
    if (!item)
        return;
    if (const auto records = project().sceneItems(scanId)) {
        const auto& rows = records->items();
        const auto it = std::find(rows.begin(), rows.end(), item->record());
        if (it != rows.end())
            records->removeRows(int(it - rows.begin()), 1);
    }
    if (GraphicsView* view = item->view())
        view->removeGaphicsItem(item);
    delete item;
    scanWasModified(scanId);
    setProjectIsModified();
}

// ---- interaction modes -------------------------------------------------------------------------

void BasicMainWindow::setMode(quint32 operatorId, int mode, int subMode)
{
    operators().setMode(operatorId);
    Q_EMIT graphicsViewModeChanged(mode, subMode);
    Q_EMIT interactionModeChanged();
}

void BasicMainWindow::resetToPickMode()
{
    d->pick->setChecked(true);
    initPickCoordinateMode();
}

void BasicMainWindow::initPickCoordinateMode()
{
    setMode(InteractionModes::pick.operatorId, InteractionModes::pick.pair.first, InteractionModes::pick.pair.second);
}

void BasicMainWindow::initEditElementMode()
{
    const auto& m = InteractionModes::editElements;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initZoomInMode()
{
    const auto& m = InteractionModes::zoomIn;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initZoomOutMode()
{
    const auto& m = InteractionModes::zoomOut;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initDrawPolygonMode()
{
    const auto& m = InteractionModes::drawPolygon;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initDrawRectangleMode()
{
    const auto& m = InteractionModes::drawRectangle;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initDrawEllipseMode()
{
    const auto& m = InteractionModes::drawEllipse;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initDrawTextMode()
{
    const auto& m = InteractionModes::drawText;
    setMode(m.operatorId, m.pair.first, m.pair.second);
}

void BasicMainWindow::initPlaceDimensioningMode(int type)
{
    ScanViewOperatorManager& manager = operators();
    InteractionModes::Pair pair;
    const bool known = InteractionModes::dimensioningPair(type, pair);
    // The kind goes into the measurement operator before it becomes active.
    if (known) {
        if (auto measurement = std::dynamic_pointer_cast<CreateMeasurmenttemOperator>(
                manager.operatorFor(InteractionModes::measurementOperator)))
            measurement->setMeasurementKind(type);
    }
    manager.setMode(InteractionModes::measurementOperator);
    if (known) {
        Q_EMIT graphicsViewModeChanged(pair.first, pair.second);
        Q_EMIT interactionModeChanged();
    }
}

// ---- points, distances, lens ---------------------------------------------------------------------

void BasicMainWindow::pointSelectionInPlanarView(quint32 scanId, qint32 column, qint32 row)
{
    BasicProject& p = project();
    CellSample sample;
    if (!p.cellSample(scanId, column, row, sample)) {
        log(LogTableModel::Warning, tr("No point at column %1, row %2 of scan %3.").arg(column).arg(row).arg(scanId));
        return;
    }
    PointInfoEntry entry;
    entry.scanId = scanId;
    entry.column = column;
    entry.row = row;
    entry.distance = sample.distance;
    entry.x = sample.point.x;
    entry.y = sample.point.y;
    entry.z = sample.point.z;
    entry.reflectance = sample.intensity;
    if (const auto file = p.scanFileOf(scanId))
        entry.filePath = file->path();
    d->pointInfo->model()->appendPoint(entry);
}

void BasicMainWindow::removeLastPointFromList(quint32 scanId, qint32 column, qint32 row)
{
    PointInfoTableModel* model = d->pointInfo->model();
    const int last = model->pointCount() - 1;
    if (last < 0)
        return;
    const PointInfoEntry entry = model->pointAt(last);
    if (entry.scanId == scanId && entry.column == column && entry.row == row)
        model->removeRows(last, 1, QModelIndex());
}

void BasicMainWindow::showCompleteDimensioningInfo()
{
    PointInfoTableModel* model = d->pointInfo->model();
    const int count = model->pointCount();
    if (count < 2) {
        d->dialogs->warning(tr("Missing Information"),
                            tr("You need to specify two points in the same or in different scans before."));
        return;
    }
    BasicProject& p = project();
    const PointInfoEntry entries[2] = {model->pointAt(count - 1), model->pointAt(count - 2)};
    CellSample samples[2];
    ScanPose poses[2];
    for (int i = 0; i < 2; ++i) {
        if (!p.cellSample(entries[i].scanId, entries[i].column, entries[i].row, samples[i]) || !samples[i].valid
            || !p.scanPose(entries[i].scanId, poses[i]))
            return;
    }
    const PointDistance distance = pointDistance(samples[0].point, poses[0], samples[1].point, poses[1]);
    const QString text = tr("DX: %1 m").arg(fixed3(distance.dx)) + QLatin1Char('\n')
                         + tr("DY: %1 m").arg(fixed3(distance.dy)) + QLatin1Char('\n')
                         + tr("DZ: %1 m").arg(fixed3(distance.dz)) + QStringLiteral("\n\n")
                         + tr("Distance 3D: %1 m").arg(fixed3(distance.distance3D)) + QLatin1Char('\n')
                         + tr("Distance XY: %1 m").arg(fixed3(distance.distanceXY));
    d->dialogs->information(tr("Distance Information"), text);
}

void BasicMainWindow::showColumnAndRowInStatusLine(QPoint position)
{
    statusBar()->showMessage(tr("c: %1,  r: %2", "abbreviation for column and row").arg(position.x()).arg(position.y()));
}

void BasicMainWindow::lensModeEnabled(bool enabled)
{
    if (!enabled)
        return;
    for (QDockWidget* dock : std::as_const(d->docks)) {
        if (dock->widget() == d->lens) {
            dock->show();
            dock->raise();
        }
    }
}

void BasicMainWindow::updateLens(quint32 scanId, qint32 column, qint32 row)
{
    BasicProject& p = project();
    d->lens->setPixmap(QPixmap::fromImage(p.lensPicture(scanId, column, row)));
    CellSample sample;
    if (!p.cellSample(scanId, column, row, sample) || !sample.valid)
        return;
    d->lensLabel->setText(tr("c: %1, r: %2,   x: %3, y: %4, z: %5, dist: %6")
                              .arg(column)
                              .arg(row)
                              .arg(fixed3(sample.point.x), fixed3(sample.point.y), fixed3(sample.point.z),
                                   fixed3(sample.distance)));
}

// ---- keys --------------------------------------------------------------------------------------

void BasicMainWindow::forwardKey(QKeyEvent* event, bool press)
{
    Q_UNUSED(press);
    operators().dispatch(scanViewEvent(*event));
}

void BasicMainWindow::keyPressEvent(QKeyEvent* event)
{
    forwardKey(event, true);
    QMainWindow::keyPressEvent(event);
}

void BasicMainWindow::keyReleaseEvent(QKeyEvent* event)
{
    forwardKey(event, false);
    QMainWindow::keyReleaseEvent(event);
}

void BasicMainWindow::customEvent(QEvent* event)
{
    if (event->type() == InteractiveGraphicsItemEvent::EventType) {
        updateDimensioningInfoForGraphicsItem(static_cast<InteractiveGraphicsItemEvent*>(event)->item());
    } else if (event->type() == NotifyEvent::EventType) {
        const quint32 scanId = static_cast<NotifyEvent*>(event)->scanId();
        if (project().scanIndex(scanId) >= 0) {
            scanWasModified(scanId);
            setProjectIsModified();
        }
    } else {
        QMainWindow::customEvent(event);
    }
}

void BasicMainWindow::updateDimensioningInfoForGraphicsItem(InteractiveGraphicsItem* item)
{
    auto* dimensioning = qobject_cast<InteractiveDimensioning*>(item);
    if (!dimensioning)
        return;
    // The item's own view names its scan; the active sub window only stands in for an item
    // without a view, so that items measured after loading use their own scan's grid.
    quint32 scanId = 0;
    if (GraphicsView* view = dimensioning->view()) {
        scanId = view->scanId();
    } else if (auto* active = qobject_cast<MDIPlanarViewSubWindow*>(d->mdiArea->activeSubWindow())) {
        scanId = active->scanId();
    } else {
        dimensioning->setValue(0.0, false);
        return;
    }
    BasicProject& p = project();
    const QPointF a = dimensioning->pointA() + dimensioning->scenePos();
    const QPointF b = dimensioning->pointB() + dimensioning->scenePos();
    CellSample first;
    CellSample second;
    ScanPose pose;
    if (p.scanIndex(scanId) < 0 || !p.scanPose(scanId, pose)
        || !p.cellSample(scanId, qint32(std::trunc(a.x())), qint32(std::trunc(a.y())), first) || !first.valid
        || !p.cellSample(scanId, qint32(std::trunc(b.x())), qint32(std::trunc(b.y())), second) || !second.valid) {
        dimensioning->setValue(0.0, false);
        return;
    }
    dimensioning->setValue(
        dimensioningDistance(dimensioning->dimensioningType(), first.point, second.point, pose.rotation), true);
}

} // namespace TVX::CORE
