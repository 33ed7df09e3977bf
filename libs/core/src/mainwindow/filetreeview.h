#pragma once

#include <QModelIndexList>
#include <QTreeView>

#include <functional>
#include <memory>

class QMenu;

namespace TVX::CORE {

// The project tree of the "Project" dock, over a FileTreeModel. The view changes nothing but the
// tree's own folders (adding and renaming them through the model); opening, closing, adding and
// deleting are requests that the main window carries out.
//
// Gestures: Enter/Return or a double click on a scan asks for its preferred view, Delete deletes
// the selected items after a confirmation, F2 renames the current folder.
class FileTreeView final : public QTreeView
{
    Q_OBJECT

public:
    // Answers a yes/no question; true for yes.
    using Confirmer = std::function<bool(const QString& question)>;

    explicit FileTreeView(QWidget* parent = nullptr);
    ~FileTreeView() override;

    // A FileTreeModel also gets the edit permission and the style's folder icon.
    void setModel(QAbstractItemModel* model) override;

    // False for a read-only project: no editing entries, gestures or slots. Handed to the model.
    void setEditable(bool editable);
    bool isEditable() const;

    // Replaces the message box that confirms deleting (for tests and scripted use).
    void setConfirmer(Confirmer confirmer);

    // The context menu for the current selection, owned by `parent` and the caller; empty when
    // nothing applies.
    QMenu* buildContextMenu(QWidget* parent);

Q_SIGNALS:
    void requestToOpenPreferredView(quint32 scanId);
    void requestToOpenPlanarView(quint32 scanId);
    void requestToOpenSphericalView(quint32 scanId);
    void requestToOpenPointcloudView(quint32 scanId);
    void requestToCloseAllViewsOfAScan(quint32 scanId);
    void requestToCloseAllViewsOfAllOtherScans(quint32 scanId);
    // The folder the new scans go to.
    void requestToAddScans(QModelIndex folder);
    // Column-0 indexes in tree order, without the root folder and without items inside another
    // listed folder. The receiver closes the views and removes the rows.
    void requestToDeleteItems(QModelIndexList& items);

public Q_SLOTS:
    // Each emits its request once per selected scan, in tree order.
    void openPlanarViewForSelectedItems();
    void openSphericalViewForSelectedItems();
    void openPointCloudViewForSelectedItems();
    void closeAllViewsOfAScanForSelectedItems();
    void closeAllViewsOfAllOtherScansForSelectedItems();
    // Adds "New Folder" to the target folder (see addScans) and starts editing its name.
    void addFolder();
    // Target: the current folder, else the folder of the current scan, else the root folder.
    void addScans();
    void renameFolderForCurrentItem();
    void deleteItems();
    // Both act on the selected folders, or on the current item when no folder is selected.
    void expandFolderForCurrentItem();
    void collapseFolferForCurrentItem();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void emitForSelectedScans(void (FileTreeView::*request)(quint32));
    QModelIndexList selectedItems() const;
    QModelIndexList selectedFolders() const;
    QModelIndex targetFolder() const;
    bool isOnCheckBox(const QModelIndex& index, const QPoint& position) const;
    void onDoubleClicked(const QModelIndex& index);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
