#pragma once

#include "project/projectitem.h"
#include "project/projectitemscan.h"

#include <functional>
#include <vector>

namespace TVX::CORE {

// A folder of the project tree. Its children are its sub-folders followed by its scans: child i
// is sub-folder i while i is below the number of sub-folders, else scan (i − number of
// sub-folders). So folders always come before scans, whatever order they were added in.
class ProjectItemScanGroup final : public ProjectItem
{
public:
    static std::shared_ptr<ProjectItemScanGroup> create(const QString& name);
    ~ProjectItemScanGroup() override;

    int childCount() const { return int(m_folders.size() + m_scans.size()); }
    // Empty when `index` is out of range.
    ProjectItemPtr child(int index) const;
    // Row of a direct child, -1 when `item` is not one.
    int rowOf(const ProjectItem* item) const;

    const std::vector<std::shared_ptr<ProjectItemScanGroup>>& folders() const { return m_folders; }
    const std::vector<ProjectItemScanPtr>& scans() const { return m_scans; }

    // Adding sets the child's parent to this folder; the child must not be in a folder yet.
    void appendFolder(const std::shared_ptr<ProjectItemScanGroup>& folder);
    void appendScan(const ProjectItemScanPtr& scan);
    // Inserts at a position among the children of the same kind (clamped to the list).
    void insertFolder(int position, const std::shared_ptr<ProjectItemScanGroup>& folder);
    void insertScan(int position, const ProjectItemScanPtr& scan);
    // Removes the child at a row and clears its parent; empty when the row is out of range.
    ProjectItemPtr takeChild(int row);

    // Visits this folder's scans and those of all folders below, depth first, sub-folders first.
    void forEachScan(const std::function<void(const ProjectItemScanPtr&)>& visit) const;

private:
    explicit ProjectItemScanGroup(const QString& name);
    void adopt(ProjectItem& child);

    std::vector<std::shared_ptr<ProjectItemScanGroup>> m_folders;
    std::vector<ProjectItemScanPtr> m_scans;
};

using ProjectItemScanGroupPtr = std::shared_ptr<ProjectItemScanGroup>;

} // namespace TVX::CORE
