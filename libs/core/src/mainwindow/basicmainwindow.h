#pragma once

#include "mainwindow/cursorid.h"
#include "mainwindow/mdisubwindow.h"
#include "project/projectitemscangroup.h"

#include <QMainWindow>
#include <QModelIndexList>

#include <memory>

class QMdiArea;

namespace TVX::CORE {

class FileTreeView;
class GraphicsView;
class InteractiveGraphicsItem;
class LogTableModel;
class MDIContextMenu;
class PointInfoTableViewWidget;
class SphericalViewGLWidget;
class UserDialogs;

// The frame of the viewer: the multiple-document area with one sub window per open scan view,
// the docks "Project", "Lens", "Point Information" and "Report", five toolbars, the menus and the
// status bar. It owns the actions, switches the interaction mode of all views, opens projects and
// views, asks before discarding changes, keeps the recent projects and shows distance
// information. The work itself lives in the project, the views and the models it wires up.
class BasicMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit BasicMainWindow(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~BasicMainWindow() override;

    // Every question and message box goes through this object; tests install their own.
    void setUserDialogs(std::unique_ptr<UserDialogs> dialogs);
    UserDialogs& userDialogs() const;

    QMdiArea* mdiArea() const;
    FileTreeView* projectTreeView() const;
    PointInfoTableViewWidget* pointInfoWidget() const;
    LogTableModel* logModel() const;
    // The sub window under the mouse, as the sub windows report it; null when none.
    MdiSubWindow* subWindowUnderMouse() const;

    // Appends an entry to the report log (types of LogTableModel).
    void log(int type, const QString& message);

Q_SIGNALS:
    void interactionModeChanged();
    void graphicsViewModeChanged(int mode, int subMode);
    void cursorContextChanged(TVX::CORE::CursorId cursor);
    // Every planar view takes its picked-point marks away.
    void clearPickedPointMarks();

public Q_SLOTS:
    void handle_message(const QString& message);
    virtual bool openProject(QString fileName);
    virtual bool openProject();
    virtual bool saveProject();
    void openRecentProjectFile(int id);
    virtual bool resetApplication();
    virtual void loadAnnotationsForPlanarView(quint32 scanId);
    virtual bool saveAnnotationsForAllOpenPlanarViews();
    virtual void resetToPickMode();
    virtual void disableInteractiveLensMode();
    virtual void clear_picked_point_items();
    virtual void projectTreeScanCheckBoxChanged();
    void openViewWithPreferredStyle(quint32 scanId);
    virtual void openPlanarView(quint32 scanId);
    void closePlanarView(quint32 scanId);
    virtual void openSphericalView(quint32 scanId);
    void closeSphericalView(quint32 scanId);
    virtual void openPointcloudView(quint32 scanId);
    void closePointcloudView(quint32 scanId);
    void closeAllViewsOfAScan(quint32 scanId);
    void closeAllViewsOfAllOtherScans(quint32 scanId);
    void initPickCoordinateMode();
    void initEditElementMode();
    void initZoomInMode();
    void initZoomOutMode();
    void initDrawPolygonMode();
    void initDrawRectangleMode();
    void initDrawEllipseMode();
    void initDrawTextMode();
    void initPlaceDimensioningMode(int type);
    // Measures a planar dimensioning on its scan's grid and hands it the value.
    void updateDimensioningInfoForGraphicsItem(TVX::CORE::InteractiveGraphicsItem* item);
    void showCompleteDimensioningInfo();
    void zoomAll();
    void setProjectIsModified();
    void scanWasModified(quint32 scanId);
    virtual void areaSelectionInPlanarView(quint32 scanId, TVX::CORE::InteractiveGraphicsItem* area);
    // A finished item's record joins the scan's annotation set.
    virtual void sceneElementAdded(quint32 scanId, TVX::CORE::InteractiveGraphicsItem* item);
    // The item's record leaves the annotation set and the item is deleted.
    virtual void sceneElementAboutToBeRemoved(quint32 scanId, TVX::CORE::InteractiveGraphicsItem* item);
    void removeLastPointFromList(quint32 scanId, qint32 column, qint32 row);
    virtual void mdiWindowAboutToClosed(quint32 scanId, TVX::CORE::MdiSubWindow::MdiSubWindowType kind);
    void showColumnAndRowInStatusLine(QPoint position);
    void clearPickedPointsFromView();
    virtual void deleteItemsFromProjectTree(QModelIndexList& indexes);
    void lensModeEnabled(bool enabled);
    void updateLens(quint32 scanId, qint32 column, qint32 row);
    virtual void pointSelectionInPlanarView(quint32 scanId, qint32 column, qint32 row);
    // Offers a file dialog for scan files and adds them under the folder at `folder`.
    void addScansToProject(const QModelIndex& folder);

protected:
    // Ask before discarding changes: true when the caller may go on.
    bool askToKeepChanges();
    // Shows the project in the title, "Tarvenix Viewer: " and its path; empty without project.
    virtual void updateWindowTitle(const QString& projectPath);
    // A warning box that also goes into the report log.
    void warn(const QString& title, const QString& text);
    // The context menu of a scan view's sub window of a kind, with the window's actions.
    MDIContextMenu* buildContextMenu(MdiSubWindow::MdiSubWindowType kind, quint32 scanId);
    // The sub window of a scan and kind; null when none is open.
    MdiSubWindow* findSubWindow(quint32 scanId, MdiSubWindow::MdiSubWindowType kind) const;
    void addScanSubWindow(MdiSubWindow* sub);

    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void customEvent(QEvent* event) override;
    // Shows a failed read of a scan's annotation file; true when it was read.
    bool reportAnnotationLoad(quint32 scanId);

private:
    void createCentralAreaAndDocks();
    void createActions();
    void createToolBars();
    void createMenus();
    void createConnections();
    void rebuildRecentMenu();
    bool openProjectFile(const QString& fileName);
    void setMode(quint32 operatorId, int mode, int subMode);
    void forwardKey(QKeyEvent* event, bool press);
    void closeViews(quint32 scanId, bool ofThisScan);
    void placeStationMarks(GraphicsView* view);
    void placeStationMarks(SphericalViewGLWidget* view);
    void connectOperators();
    // An open view of the scan and kind comes to the front; true when there was one.
    bool activateView(quint32 scanId, MdiSubWindow::MdiSubWindowType kind);
    // "Open a new View Failed", shown and logged.
    void warnOpenViewFailed();
    // Imports a PTX or E57 file under `folder` with a progress dialog that can cancel it; true
    // when imported or cancelled, else false with the reason.
    bool importScans(const QString& file, const ProjectItemScanGroupPtr& folder, QString& reason);

    class OperatorHost;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
