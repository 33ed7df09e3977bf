#pragma once

#include <QString>

#include <memory>

namespace TVX::CORE {

class ProjectItemScanGroup;

// A node of the project's item tree: a folder or a scan. Nodes are shared objects that know their
// parent folder; they are made by the factories of the two kinds only.
class ProjectItem : public std::enable_shared_from_this<ProjectItem>
{
public:
    // Item types; a node's record kind in the project file is its type minus 1.
    enum ItemType : quint32 { Folder = 2, Scan = 3 };

    virtual ~ProjectItem();
    ProjectItem(const ProjectItem&) = delete;
    ProjectItem& operator=(const ProjectItem&) = delete;

    quint32 itemType() const { return m_itemType; }
    bool isFolder() const { return m_itemType == Folder; }
    bool isScan() const { return m_itemType == Scan; }

    QString name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    // The check box of the tree; stored as the node's flag in the project file.
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

    // The folder holding this node; empty for a node outside any folder.
    std::shared_ptr<ProjectItemScanGroup> parent() const { return m_parent.lock(); }
    // True when `folder` is this node's parent, grand-parent and so on.
    bool hasAncestor(const ProjectItem* folder) const;
    // Row of this node among its parent's children (sub-folders first); -1 without a parent.
    int row() const;

protected:
    ProjectItem(ItemType type, const QString& name);

private:
    friend class ProjectItemScanGroup;

    quint32 m_itemType;
    QString m_name;
    bool m_enabled{true};
    std::weak_ptr<ProjectItemScanGroup> m_parent;
};

using ProjectItemPtr = std::shared_ptr<ProjectItem>;

} // namespace TVX::CORE
