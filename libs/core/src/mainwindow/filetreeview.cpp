#include "mainwindow/filetreeview.h"

#include "project/filetreemodel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLoggingCategory>
#include <QMenu>
#include <QMessageBox>
#include <QSet>
#include <QStyleOptionViewItem>

#include <algorithm>
#include <utility>
#include <vector>

namespace TVX::CORE {

namespace {

Q_LOGGING_CATEGORY(lcFileTreeView, "tvx.mainwindow.filetree", QtWarningMsg)

// Through the model's roles rather than its nodes, so that a proxy model would do as well.
bool isScan(const QModelIndex& index)
{
    return index.data(FileTreeModel::ItemTypeRole).toUInt() == ProjectItem::Scan;
}

bool isFolder(const QModelIndex& index)
{
    return index.data(FileTreeModel::ItemTypeRole).toUInt() == ProjectItem::Folder;
}

quint32 scanIdOf(const QModelIndex& index)
{
    return index.data(FileTreeModel::ScanIdRole).toUInt();
}

// The selection model lists indexes in the order they were selected; requests go out in the order
// the tree shows them.
void sortInTreeOrder(QModelIndexList& indexes)
{
    std::vector<std::pair<std::vector<int>, QModelIndex>> keyed;
    keyed.reserve(std::size_t(indexes.size()));
    for (const QModelIndex& index : std::as_const(indexes)) {
        std::vector<int> path;
        for (QModelIndex node = index; node.isValid(); node = node.parent())
            path.push_back(node.row());
        std::reverse(path.begin(), path.end());
        keyed.emplace_back(std::move(path), index);
    }
    std::sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    indexes.clear();
    for (const auto& entry : keyed)
        indexes << entry.second;
}

} // namespace

struct FileTreeView::Private {
    bool editable{true};
    Confirmer confirm;
    // Where the double click that Qt reports through doubleClicked(QModelIndex) happened.
    QPoint doubleClickPosition;
};

FileTreeView::FileTreeView(QWidget* parent) : QTreeView(parent), d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("projectTreeView"));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAllColumnsShowFocus(true);
    setUniformRowHeights(true);
    // Renaming starts from F2, the menu or a new folder only: a double click on a folder keeps
    // expanding and collapsing it.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    header()->setStretchLastSection(false);

    d->confirm = [this](const QString& question) {
        return QMessageBox::question(this, tr("Delete Items"), question, QMessageBox::Yes | QMessageBox::No,
                                     QMessageBox::No)
               == QMessageBox::Yes;
    };
    connect(this, &QAbstractItemView::doubleClicked, this, &FileTreeView::onDoubleClicked);
}

FileTreeView::~FileTreeView() = default;

void FileTreeView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    if (auto* fileTree = qobject_cast<FileTreeModel*>(model)) {
        fileTree->setEditable(d->editable);
        fileTree->setFolderIcon(style()->standardIcon(QStyle::SP_DirIcon));
    }
    // The name takes the width that the view icons leave.
    QHeaderView* columns = header();
    for (int column = 0; column < columns->count(); ++column)
        columns->setSectionResizeMode(column, column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
}

void FileTreeView::setEditable(bool editable)
{
    d->editable = editable;
    if (auto* fileTree = qobject_cast<FileTreeModel*>(model()))
        fileTree->setEditable(editable);
}

bool FileTreeView::isEditable() const
{
    return d->editable;
}

void FileTreeView::setConfirmer(Confirmer confirmer)
{
    d->confirm = std::move(confirmer);
}

QMenu* FileTreeView::buildContextMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    int folders = 0;
    int scans = 0;
    for (const QModelIndex& index : selectedItems()) {
        if (isScan(index))
            ++scans;
        else if (isFolder(index))
            ++folders;
    }
    const auto icon = [](const char* path) { return QIcon(QString::fromLatin1(path)); };

    if (d->editable) {
        menu->addAction(icon(":/tvxcore/resources/addScans.png"), tr("Add Scans"), this, &FileTreeView::addScans);
        menu->addAction(icon(":/tvxcore/resources/addFolder.png"), tr("Add Folder"), this, &FileTreeView::addFolder);
        if (folders == 1 && scans == 0) {
            QAction* rename = menu->addAction(icon(":/tvxcore/resources/renameFolder.png"), tr("Rename Folder"), this,
                                              &FileTreeView::renameFolderForCurrentItem);
            // The root folder keeps its name.
            rename->setEnabled(selectedFolders().constFirst().flags() & Qt::ItemIsEditable);
        }
        if (folders + scans > 0)
            menu->addAction(icon(":/icons/shared/delete.png"), tr("Delete Items"), this, &FileTreeView::deleteItems);
    }
    if (folders > 0 && scans == 0) {
        menu->addAction(tr("Expand Folder"), this, &FileTreeView::expandFolderForCurrentItem);
        menu->addAction(tr("Collapse Folder"), this, &FileTreeView::collapseFolferForCurrentItem);
    }
    if (scans > 0 && folders == 0) {
        menu->addAction(icon(":/icons/shared/planarview_active.png"), tr("Open Planar View"), this,
                        &FileTreeView::openPlanarViewForSelectedItems);
        menu->addAction(icon(":/icons/shared/sphericalview_active.png"), tr("Open Spherical View"), this,
                        &FileTreeView::openSphericalViewForSelectedItems);
        menu->addAction(icon(":/icons/shared/pointcloudview_active.png"), tr("Open Pointcloud View"), this,
                        &FileTreeView::openPointCloudViewForSelectedItems);
        menu->addAction(tr("Close Views of this Scan"), this, &FileTreeView::closeAllViewsOfAScanForSelectedItems);
        menu->addAction(tr("Close Views of all other Scans"), this,
                        &FileTreeView::closeAllViewsOfAllOtherScansForSelectedItems);
    }
    return menu;
}

void FileTreeView::openPlanarViewForSelectedItems()
{
    emitForSelectedScans(&FileTreeView::requestToOpenPlanarView);
}

void FileTreeView::openSphericalViewForSelectedItems()
{
    emitForSelectedScans(&FileTreeView::requestToOpenSphericalView);
}

void FileTreeView::openPointCloudViewForSelectedItems()
{
    emitForSelectedScans(&FileTreeView::requestToOpenPointcloudView);
}

void FileTreeView::closeAllViewsOfAScanForSelectedItems()
{
    emitForSelectedScans(&FileTreeView::requestToCloseAllViewsOfAScan);
}

void FileTreeView::closeAllViewsOfAllOtherScansForSelectedItems()
{
    emitForSelectedScans(&FileTreeView::requestToCloseAllViewsOfAllOtherScans);
}

void FileTreeView::addFolder()
{
    if (!d->editable)
        return;
    auto* fileTree = qobject_cast<FileTreeModel*>(model());
    if (!fileTree) {
        qCWarning(lcFileTreeView) << "cannot add a folder: the view shows no project tree model";
        return;
    }
    const QModelIndex parentFolder = targetFolder();
    const QModelIndex folder = fileTree->addFolder(parentFolder, tr("New Folder"));
    if (!folder.isValid())
        return;
    expand(parentFolder);
    setCurrentIndex(folder);
    scrollTo(folder);
    edit(folder);
}

void FileTreeView::addScans()
{
    const QModelIndex folder = targetFolder();
    if (d->editable && folder.isValid())
        Q_EMIT requestToAddScans(folder);
}

void FileTreeView::renameFolderForCurrentItem()
{
    const QModelIndex folder = currentIndex().siblingAtColumn(0);
    // The model makes neither the root folder nor anything in a read-only project editable.
    if (!d->editable || !isFolder(folder) || !(folder.flags() & Qt::ItemIsEditable))
        return;
    scrollTo(folder);
    edit(folder);
}

void FileTreeView::deleteItems()
{
    if (!d->editable)
        return;
    const QModelIndexList selected = selectedItems();
    const QSet<QModelIndex> selectedSet(selected.begin(), selected.end());
    QModelIndexList items;
    for (const QModelIndex& index : selected) {
        // The root folder stays; what lies inside a deleted folder goes with it.
        bool covered = !index.parent().isValid();
        for (QModelIndex folder = index.parent(); folder.isValid() && !covered; folder = folder.parent())
            covered = selectedSet.contains(folder);
        if (!covered)
            items << index;
    }
    if (items.isEmpty() || !d->confirm(tr("Delete the selected items from the project? The scan files stay on disk.")))
        return;
    Q_EMIT requestToDeleteItems(items);
}

void FileTreeView::expandFolderForCurrentItem()
{
    for (const QModelIndex& folder : selectedFolders())
        expand(folder);
}

void FileTreeView::collapseFolferForCurrentItem()
{
    for (const QModelIndex& folder : selectedFolders())
        collapse(folder);
}

void FileTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(buildContextMenu(this));
    if (!menu->isEmpty())
        menu->exec(event->globalPos());
    event->accept();
}

void FileTreeView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return: {
        const QModelIndex scan = currentIndex().siblingAtColumn(0);
        if (isScan(scan)) {
            Q_EMIT requestToOpenPreferredView(scanIdOf(scan));
            event->accept();
            return;
        }
        break; // folders: the tree's own handling
    }
    case Qt::Key_Delete:
        deleteItems();
        event->accept();
        return;
    case Qt::Key_F2:
        renameFolderForCurrentItem();
        event->accept();
        return;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

void FileTreeView::mouseDoubleClickEvent(QMouseEvent* event)
{
    d->doubleClickPosition = event->position().toPoint();
    QTreeView::mouseDoubleClickEvent(event);
}

void FileTreeView::onDoubleClicked(const QModelIndex& index)
{
    const QModelIndex scan = index.siblingAtColumn(0);
    // Quick clicks on a check box are no request to open the scan.
    if (isScan(scan) && !isOnCheckBox(scan, d->doubleClickPosition))
        Q_EMIT requestToOpenPreferredView(scanIdOf(scan));
}

bool FileTreeView::isOnCheckBox(const QModelIndex& index, const QPoint& position) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.index = index;
    option.features |= QStyleOptionViewItem::HasCheckIndicator;
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this).contains(position);
}

void FileTreeView::emitForSelectedScans(void (FileTreeView::*request)(quint32))
{
    for (const QModelIndex& index : selectedItems()) {
        if (isScan(index))
            Q_EMIT(this->*request)(scanIdOf(index));
    }
}

QModelIndexList FileTreeView::selectedItems() const
{
    QModelIndexList items;
    if (!selectionModel())
        return items;
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
        if (index.column() == 0)
            items << index;
    }
    sortInTreeOrder(items);
    return items;
}

QModelIndexList FileTreeView::selectedFolders() const
{
    QModelIndexList folders = selectedItems();
    folders.erase(std::remove_if(folders.begin(), folders.end(), [](const QModelIndex& index) { return !isFolder(index); }),
                  folders.end());
    if (folders.isEmpty() && isFolder(currentIndex().siblingAtColumn(0)))
        folders << currentIndex().siblingAtColumn(0);
    return folders;
}

QModelIndex FileTreeView::targetFolder() const
{
    QModelIndex folder = currentIndex().siblingAtColumn(0);
    if (isScan(folder))
        folder = folder.parent();
    if (!isFolder(folder) && model())
        folder = model()->index(0, 0, rootIndex());
    return folder;
}

} // namespace TVX::CORE
