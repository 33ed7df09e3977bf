#include "project/filetreemodel.h"

#include <QIcon>
#include <QMimeData>

#include <algorithm>
#include <array>

namespace TVX::CORE {

namespace {

// The drag payload: the dragged nodes themselves and the model they come from. Other sources
// cannot produce this class, which is what limits drops to drags from the same model.
class ProjectNodeMimeData final : public QMimeData
{
public:
    const FileTreeModel* source = nullptr;
    std::vector<std::weak_ptr<ProjectItem>> nodes;
};

// Rows from the root folder down to a node: orders nodes as the tree shows them.
std::vector<int> rowPath(const ProjectItem& item)
{
    std::vector<int> path;
    for (const ProjectItem* node = &item; node->parent(); node = node->parent().get())
        path.push_back(node->row());
    std::reverse(path.begin(), path.end());
    return path;
}

} // namespace

const QString FileTreeModel::mimeType = QStringLiteral("application/x-tarvenix-projectnode");

struct FileTreeModel::Private {
    ProjectItemScanGroupPtr holder;
    bool editable{true};
    ViewStateProvider viewState;
    QIcon folderIcon;
    // Document icon of scans, then (inactive, active) per view kind; made on first use, once a GUI
    // application exists.
    mutable std::array<QIcon, 7> icons;
    mutable bool iconsLoaded{false};

    const QIcon& icon(int index) const
    {
        if (!iconsLoaded) {
            const char* const paths[] = {
                ":/icons/shared/tvx_doc_small_lib.ico",     ":/icons/shared/planarview_inactive.png",
                ":/icons/shared/planarview_active.png",     ":/icons/shared/sphericalview_inactive.png",
                ":/icons/shared/sphericalview_active.png",  ":/icons/shared/pointcloudview_inactive.png",
                ":/icons/shared/pointcloudview_active.png"};
            for (std::size_t i = 0; i < icons.size(); ++i)
                icons[i] = QIcon(QString::fromLatin1(paths[i]));
            iconsLoaded = true;
        }
        return icons[std::size_t(index)];
    }
    const QIcon& viewIcon(int column, bool open) const { return icon(2 * column - 1 + (open ? 1 : 0)); }
};

FileTreeModel::FileTreeModel(QObject* parent) : QAbstractItemModel(parent), d(std::make_unique<Private>())
{
    connect(this, &QAbstractItemModel::dataChanged, this, &FileTreeModel::checkIfRelevantDataChanged);
}

FileTreeModel::~FileTreeModel() = default;

void FileTreeModel::setRootHolder(const ProjectItemScanGroupPtr& holder)
{
    beginResetModel();
    d->holder = holder;
    endResetModel();
}

ProjectItemScanGroupPtr FileTreeModel::rootHolder() const
{
    return d->holder;
}

ProjectItemScanGroupPtr FileTreeModel::rootFolder() const
{
    return d->holder ? std::static_pointer_cast<ProjectItemScanGroup>(d->holder->child(0)) : nullptr;
}

void FileTreeModel::setFolderIcon(const QIcon& icon)
{
    d->folderIcon = icon;
}

void FileTreeModel::setEditable(bool editable)
{
    d->editable = editable;
}

bool FileTreeModel::isEditable() const
{
    return d->editable;
}

void FileTreeModel::setViewStateProvider(ViewStateProvider provider)
{
    d->viewState = std::move(provider);
}

void FileTreeModel::scanViewsChanged(quint32 scanId)
{
    const QModelIndex scan = indexOfScan(scanId);
    if (scan.isValid())
        Q_EMIT dataChanged(scan.siblingAtColumn(PlanarColumn), scan.siblingAtColumn(PointCloudColumn),
                           {Qt::DecorationRole});
}

ProjectItemPtr FileTreeModel::item(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return static_cast<ProjectItem*>(index.internalPointer())->shared_from_this();
}

QModelIndex FileTreeModel::indexOf(const ProjectItem* item, int column) const
{
    if (!item || item == d->holder.get() || !item->parent())
        return {};
    return createIndex(item->row(), column, const_cast<ProjectItem*>(item));
}

QModelIndex FileTreeModel::indexOfScan(quint32 scanId) const
{
    const auto root = rootFolder();
    if (!root)
        return {};
    ProjectItemScanPtr found;
    root->forEachScan([&found, scanId](const ProjectItemScanPtr& scan) {
        if (!found && scan->scanId() == scanId)
            found = scan;
    });
    return indexOf(found.get());
}

ProjectItemScanGroup* FileTreeModel::folderAt(const QModelIndex& index) const
{
    const ProjectItemPtr node = item(index);
    return node && node->isFolder() ? static_cast<ProjectItemScanGroup*>(node.get()) : nullptr;
}

QModelIndex FileTreeModel::addFolder(const QModelIndex& parent, const QString& name)
{
    const QModelIndex folderIndex = parent.isValid() ? parent.siblingAtColumn(NameColumn) : indexOf(rootFolder().get());
    ProjectItemScanGroup* folder = folderAt(folderIndex);
    if (!folder)
        return {};
    const int row = int(folder->folders().size());
    beginInsertRows(folderIndex, row, row);
    folder->appendFolder(ProjectItemScanGroup::create(name));
    endInsertRows();
    return index(row, NameColumn, folderIndex);
}

QModelIndex FileTreeModel::addScan(const QModelIndex& parent, const ProjectItemScanPtr& scan)
{
    const QModelIndex folderIndex = parent.isValid() ? parent.siblingAtColumn(NameColumn) : indexOf(rootFolder().get());
    ProjectItemScanGroup* folder = folderAt(folderIndex);
    if (!folder || !scan)
        return {};
    const int row = folder->childCount();
    beginInsertRows(folderIndex, row, row);
    folder->appendScan(scan);
    endInsertRows();
    return index(row, NameColumn, folderIndex);
}

QModelIndex FileTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column < 0 || column >= ColumnCount || parent.column() > NameColumn)
        return {};
    const ProjectItemScanGroup* folder = parent.isValid() ? folderAt(parent) : d->holder.get();
    if (!folder)
        return {};
    const ProjectItemPtr child = folder->child(row);
    return child ? createIndex(row, column, child.get()) : QModelIndex();
}

QModelIndex FileTreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const auto parentFolder = static_cast<ProjectItem*>(index.internalPointer())->parent();
    return indexOf(parentFolder.get());
}

int FileTreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > NameColumn)
        return 0;
    const ProjectItemScanGroup* folder = parent.isValid() ? folderAt(parent) : d->holder.get();
    return folder ? folder->childCount() : 0;
}

int FileTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

QVariant FileTreeModel::data(const QModelIndex& index, int role) const
{
    const ProjectItemPtr node = item(index);
    if (!node)
        return {};
    const auto* scan = node->isScan() ? static_cast<const ProjectItemScan*>(node.get()) : nullptr;
    switch (role) {
    case ItemTypeRole:
        return node->itemType();
    case ScanIdRole:
        return scan ? QVariant(quint32(scan->scanId())) : QVariant();
    default:
        break;
    }
    if (index.column() != NameColumn) {
        if (!scan || role != Qt::DecorationRole)
            return {};
        const bool open = d->viewState && d->viewState(quint32(scan->scanId()), index.column());
        return d->viewIcon(index.column(), open);
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return node->name();
    case Qt::CheckStateRole:
        return scan ? QVariant(scan->isEnabled() ? Qt::Checked : Qt::Unchecked) : QVariant();
    case Qt::DecorationRole:
        if (scan)
            return d->icon(0);
        return d->folderIcon.isNull() ? QVariant() : QVariant(d->folderIcon);
    default:
        return {};
    }
}

QVariant FileTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (section == NameColumn)
        return role == Qt::DisplayRole ? QVariant(tr("Name")) : QVariant();
    if (section < PlanarColumn || section > PointCloudColumn)
        return {};
    if (role == Qt::DecorationRole)
        return d->viewIcon(section, true);
    if (role == Qt::ToolTipRole) {
        switch (section) {
        case PlanarColumn:
            return tr("Planar View");
        case SphericalColumn:
            return tr("Spherical View");
        default:
            return tr("Pointcloud View");
        }
    }
    return {};
}

Qt::ItemFlags FileTreeModel::flags(const QModelIndex& index) const
{
    const ProjectItemPtr node = item(index);
    if (!node)
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool root = node->parent() == d->holder;
    if (node->isScan()) {
        flags |= Qt::ItemNeverHasChildren;
        if (index.column() == NameColumn)
            flags |= Qt::ItemIsUserCheckable;
    }
    if (!d->editable)
        return flags;
    if (node->isFolder())
        flags |= Qt::ItemIsDropEnabled;
    if (!root)
        flags |= Qt::ItemIsDragEnabled;
    if (node->isFolder() && !root && index.column() == NameColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool FileTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const ProjectItemPtr node = item(index);
    if (!node || index.column() != NameColumn)
        return false;
    if (role == Qt::CheckStateRole && node->isScan()) {
        const bool enabled = value.toInt() == Qt::Checked;
        if (enabled == node->isEnabled())
            return true;
        node->setEnabled(enabled);
        Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
        if (!enabled)
            Q_EMIT checkBoxScanDisabled(quint32(static_cast<ProjectItemScan&>(*node).scanId()));
        Q_EMIT checkBoxStateChanged();
        return true;
    }
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const QString name = value.toString().trimmed();
    if (name.isEmpty())
        return false;
    if (name != node->name()) {
        node->setName(name);
        Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    }
    return true;
}

bool FileTreeModel::removeRows(int row, int count, const QModelIndex& parent)
{
    ProjectItemScanGroup* folder = folderAt(parent);
    if (!d->editable || !folder || row < 0 || count <= 0 || row > folder->childCount() - count)
        return false;
    QList<quint32> removedScans;
    beginRemoveRows(parent.siblingAtColumn(NameColumn), row, row + count - 1);
    for (int i = 0; i < count; ++i) {
        const ProjectItemPtr node = folder->takeChild(row);
        if (node->isScan()) {
            removedScans << quint32(static_cast<ProjectItemScan&>(*node).scanId());
        } else {
            static_cast<ProjectItemScanGroup&>(*node).forEachScan(
                [&removedScans](const ProjectItemScanPtr& scan) { removedScans << quint32(scan->scanId()); });
        }
    }
    endRemoveRows();
    if (!removedScans.isEmpty())
        Q_EMIT scansRemoved(removedScans);
    return true;
}

QStringList FileTreeModel::mimeTypes() const
{
    return {mimeType};
}

QMimeData* FileTreeModel::mimeData(const QModelIndexList& indexes) const
{
    std::vector<ProjectItemPtr> nodes;
    for (const QModelIndex& index : indexes) {
        const ProjectItemPtr node = item(index);
        if (node && std::find(nodes.begin(), nodes.end(), node) == nodes.end())
            nodes.push_back(node);
    }
    if (nodes.empty())
        return nullptr;
    // Moved nodes keep the order in which the tree shows them, whatever the order of selection.
    std::sort(nodes.begin(), nodes.end(), [](const ProjectItemPtr& a, const ProjectItemPtr& b) {
        return rowPath(*a) < rowPath(*b);
    });
    auto* mime = new ProjectNodeMimeData;
    mime->source = this;
    mime->nodes.assign(nodes.begin(), nodes.end());
    mime->setData(mimeType, QByteArray::number(qulonglong(nodes.size())));
    return mime;
}

bool FileTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                    const QModelIndex& parent) const
{
    const auto* mime = dynamic_cast<const ProjectNodeMimeData*>(data);
    const ProjectItemScanGroup* target = folderAt(parent);
    if (!d->editable || action != Qt::MoveAction || !mime || mime->source != this || !target)
        return false;
    for (const auto& weak : mime->nodes) {
        const ProjectItemPtr node = weak.lock();
        // Gone, the root folder, or the target itself or one of its ancestors.
        if (!node || !node->parent() || node->parent() == d->holder || node.get() == target
            || target->hasAncestor(node.get()))
            return false;
    }
    return true;
}

bool FileTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    ProjectItemScanGroup& target = *folderAt(parent);
    std::vector<ProjectItemPtr> nodes;
    for (const auto& weak : static_cast<const ProjectNodeMimeData*>(data)->nodes)
        nodes.push_back(weak.lock());
    // A dragged folder takes its dragged descendants along; they are not moved on their own.
    const auto insideDraggedFolder = [&nodes](const ProjectItemPtr& node) {
        return std::any_of(nodes.begin(), nodes.end(),
                           [&node](const ProjectItemPtr& other) { return node->hasAncestor(other.get()); });
    };
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), insideDraggedFolder), nodes.end());

    const int folderCount = int(target.folders().size());
    int folderPosition = row < 0 ? folderCount : std::min(row, folderCount);
    int scanPosition = row < 0 ? int(target.scans().size()) : std::clamp(row - folderCount, 0, int(target.scans().size()));
    for (const ProjectItemPtr& node : nodes) {
        if (node->isFolder())
            folderPosition = moveNode(node, target, folderPosition) + 1;
        else
            scanPosition = moveNode(node, target, scanPosition) + 1;
    }
    return false;
}

int FileTreeModel::moveNode(const ProjectItemPtr& node, ProjectItemScanGroup& target, int position)
{
    // Positions count among the children of the node's own kind (folders or scans).
    const ProjectItemScanGroupPtr source = node->parent();
    const int sourceRow = source->rowOf(node.get());
    const int sourcePosition = node->isFolder() ? sourceRow : sourceRow - int(source->folders().size());
    const int targetRow = node->isFolder() ? position : int(target.folders().size()) + position;
    if (!beginMoveRows(indexOf(source.get()), sourceRow, sourceRow, indexOf(&target), targetRow))
        return sourcePosition; // already in place
    source->takeChild(sourceRow);
    const int insertAt = source.get() == &target && sourcePosition < position ? position - 1 : position;
    if (node->isFolder())
        target.insertFolder(insertAt, std::static_pointer_cast<ProjectItemScanGroup>(node));
    else
        target.insertScan(insertAt, std::static_pointer_cast<ProjectItemScan>(node));
    endMoveRows();
    return insertAt;
}

Qt::DropActions FileTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

Qt::DropActions FileTreeModel::supportedDragActions() const
{
    return Qt::MoveAction;
}

void FileTreeModel::checkIfRelevantDataChanged(const QModelIndex& topLeft, const QModelIndex&)
{
    if (topLeft.isValid() && topLeft.column() == NameColumn)
        Q_EMIT relevantDataChanged();
}

} // namespace TVX::CORE
