#include "project/projectitemscangroup.h"

#include <algorithm>

namespace TVX::CORE {

namespace {

template<typename T>
void insertClamped(std::vector<T>& list, int position, const T& item)
{
    const auto at = std::clamp<std::ptrdiff_t>(position, 0, std::ptrdiff_t(list.size()));
    list.insert(list.begin() + at, item);
}

} // namespace

ProjectItemScanGroup::ProjectItemScanGroup(const QString& name) : ProjectItem(Folder, name) {}

ProjectItemScanGroup::~ProjectItemScanGroup()
{
    // Tear the sub-tree down level by level rather than by nested destructor calls, so that a very
    // deep tree cannot exhaust the stack.
    std::vector<std::shared_ptr<ProjectItemScanGroup>> pending;
    pending.swap(m_folders);
    while (!pending.empty()) {
        auto folder = std::move(pending.back());
        pending.pop_back();
        if (folder.use_count() == 1) {
            for (auto& sub : folder->m_folders)
                pending.push_back(std::move(sub));
            folder->m_folders.clear();
        }
    }
}

std::shared_ptr<ProjectItemScanGroup> ProjectItemScanGroup::create(const QString& name)
{
    return std::shared_ptr<ProjectItemScanGroup>(new ProjectItemScanGroup(name));
}

ProjectItemPtr ProjectItemScanGroup::child(int index) const
{
    if (index < 0)
        return {};
    const auto folderCount = int(m_folders.size());
    if (index < folderCount)
        return m_folders[std::size_t(index)];
    if (index - folderCount < int(m_scans.size()))
        return m_scans[std::size_t(index - folderCount)];
    return {};
}

int ProjectItemScanGroup::rowOf(const ProjectItem* item) const
{
    if (!item)
        return -1;
    if (item->isFolder()) {
        for (std::size_t i = 0; i < m_folders.size(); ++i) {
            if (m_folders[i].get() == item)
                return int(i);
        }
    } else {
        for (std::size_t i = 0; i < m_scans.size(); ++i) {
            if (m_scans[i].get() == item)
                return int(m_folders.size() + i);
        }
    }
    return -1;
}

void ProjectItemScanGroup::adopt(ProjectItem& child)
{
    child.m_parent = std::static_pointer_cast<ProjectItemScanGroup>(shared_from_this());
}

void ProjectItemScanGroup::appendFolder(const std::shared_ptr<ProjectItemScanGroup>& folder)
{
    insertFolder(int(m_folders.size()), folder);
}

void ProjectItemScanGroup::appendScan(const ProjectItemScanPtr& scan)
{
    insertScan(int(m_scans.size()), scan);
}

void ProjectItemScanGroup::insertFolder(int position, const std::shared_ptr<ProjectItemScanGroup>& folder)
{
    adopt(*folder);
    insertClamped(m_folders, position, folder);
}

void ProjectItemScanGroup::insertScan(int position, const ProjectItemScanPtr& scan)
{
    adopt(*scan);
    insertClamped(m_scans, position, scan);
}

ProjectItemPtr ProjectItemScanGroup::takeChild(int row)
{
    ProjectItemPtr item = child(row);
    if (!item)
        return {};
    const auto folderCount = int(m_folders.size());
    if (row < folderCount)
        m_folders.erase(m_folders.begin() + row);
    else
        m_scans.erase(m_scans.begin() + (row - folderCount));
    item->m_parent.reset();
    return item;
}

void ProjectItemScanGroup::forEachScan(const std::function<void(const ProjectItemScanPtr&)>& visit) const
{
    // Children in child order, each folder's sub-tree before its next sibling; an explicit stack of
    // (folder, next child) keeps deep trees off the call stack.
    std::vector<std::pair<const ProjectItemScanGroup*, std::size_t>> stack{{this, 0}};
    while (!stack.empty()) {
        auto& [folder, next] = stack.back();
        if (next < folder->m_folders.size()) {
            const ProjectItemScanGroup* sub = folder->m_folders[next++].get();
            stack.emplace_back(sub, 0);
            continue;
        }
        for (const auto& scan : folder->m_scans)
            visit(scan);
        stack.pop_back();
    }
}

} // namespace TVX::CORE
