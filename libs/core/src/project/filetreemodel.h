#pragma once

#include "project/projectitemscangroup.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QList>

#include <functional>
#include <memory>

namespace TVX::CORE {

// The project's item tree as an item model. The model's invisible root is a holder folder whose
// one child, the folder "scans", is the tree's root. Rows of a folder are its sub-folders, then its
// scans. Column 0 holds the name (scans with a check box, the node's enabled flag); columns 1 to 3
// show for scans whether a planar, spherical or point cloud view is open.
//
// Nodes move inside the tree by drag and drop with the mime type
// "application/x-tarvenix-projectnode"; only this model's own drags are accepted.
class FileTreeModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, PlanarColumn, SphericalColumn, PointCloudColumn, ColumnCount };
    enum Role {
        ItemTypeRole = Qt::UserRole + 1, // ProjectItem::ItemType
        ScanIdRole,                      // quint32, scans only
    };
    // Answers whether a scan has a view of a kind open (1 planar, 2 spherical, 3 point cloud).
    using ViewStateProvider = std::function<bool(quint32 scanId, int viewKind)>;

    static const QString mimeType;

    explicit FileTreeModel(QObject* parent = nullptr);
    ~FileTreeModel() override;

    // The holder of the root folder; empty for no project. Resets the model.
    void setRootHolder(const ProjectItemScanGroupPtr& holder);
    ProjectItemScanGroupPtr rootHolder() const;
    // The folder "scans"; empty for no project.
    ProjectItemScanGroupPtr rootFolder() const;

    // Without edit permission (a read-only project) nothing can be renamed, removed or moved;
    // check boxes still work.
    void setEditable(bool editable);
    // Decoration of folder rows; the view hands in its style's folder icon (none by default, so
    // that the model needs no widget library).
    void setFolderIcon(const QIcon& icon);
    bool isEditable() const;

    void setViewStateProvider(ViewStateProvider provider);
    // Shows a scan's view icons anew after its views opened or closed.
    void scanViewsChanged(quint32 scanId);

    // The node of an index; empty for the invalid index.
    ProjectItemPtr item(const QModelIndex& index) const;
    QModelIndex indexOf(const ProjectItem* item, int column = NameColumn) const;
    // The first scan node with that identifier, in tree order; invalid when there is none.
    QModelIndex indexOfScan(quint32 scanId) const;

    // Adds a folder after the sub-folders, or a scan after the scans, of the folder at `parent`
    // (the invalid index stands for the root folder). Returns the new row's index, invalid when
    // `parent` is not a folder.
    QModelIndex addFolder(const QModelIndex& parent, const QString& name);
    QModelIndex addScan(const QModelIndex& parent, const ProjectItemScanPtr& scan);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // Renames a folder other than the root (Qt::EditRole, a name that is not blank after trimming)
    // or sets a scan's check box (Qt::CheckStateRole).
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    // Removes rows of a folder with everything below them; the root folder cannot be removed.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    // Moves the dragged nodes into the folder at `parent`, before child `row` (folders among the
    // folders, scans among the scans; -1 appends). Returns false even when the nodes moved: a view
    // removes the source rows after a successful move drop, and here nothing is left to remove.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;
    Qt::DropActions supportedDropActions() const override;
    Qt::DropActions supportedDragActions() const override;

Q_SIGNALS:
    // A scan's check box was cleared.
    void checkBoxScanDisabled(quint32 scanId);
    // A scan's check box changed either way (after checkBoxScanDisabled).
    void checkBoxStateChanged();
    // Something that the project file stores changed: a name or a check box.
    void relevantDataChanged();
    // Scan nodes left the tree through removeRows.
    void scansRemoved(const QList<quint32>& scanIds);

public Q_SLOTS:
    // Connected to the model's own dataChanged: emits relevantDataChanged when the change touches
    // column 0 (names, check boxes), not when only view icons changed.
    void checkIfRelevantDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);

private:
    ProjectItemScanGroup* folderAt(const QModelIndex& index) const;
    int moveNode(const ProjectItemPtr& node, ProjectItemScanGroup& target, int position);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
