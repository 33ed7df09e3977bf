#include "project/projecttreerecords.h"

namespace TVX::CORE {

std::vector<TVXProjectContent::TreeRecord> projectTreeRecords(const ProjectItemScanGroupPtr& root)
{
    std::vector<TVXProjectContent::TreeRecord> records;
    // Each node is written when it is taken from the stack; a folder's children are pushed in
    // reverse, so siblings come out in child order and every folder's records directly follow it.
    std::vector<ProjectItemPtr> stack;
    if (root)
        stack.push_back(root);
    while (!stack.empty()) {
        const ProjectItemPtr item = stack.back();
        stack.pop_back();
        TVXProjectContent::TreeRecord record;
        record.kind = item->itemType() - 1;
        record.enabled = item->isEnabled();
        record.name = item->name();
        if (item->isScan()) {
            record.number = qint64(std::static_pointer_cast<ProjectItemScan>(item)->scanId());
        } else {
            const auto folder = std::static_pointer_cast<ProjectItemScanGroup>(item);
            record.number = folder->childCount();
            for (int i = folder->childCount() - 1; i >= 0; --i)
                stack.push_back(folder->child(i));
        }
        records.push_back(std::move(record));
    }
    return records;
}

ProjectItemScanGroupPtr projectTreeFromRecords(const std::vector<TVXProjectContent::TreeRecord>& records)
{
    if (records.empty() || records.front().kind != TVXProjectContent::TreeRecord::Folder)
        return {};
    struct Open {
        ProjectItemScanGroup* folder;
        qint64 pending;
    };
    const auto root = ProjectItemScanGroup::create(records.front().name);
    root->setEnabled(records.front().enabled);
    std::vector<Open> stack{{root.get(), records.front().number}};
    for (std::size_t i = 1; i < records.size() && !stack.empty(); ++i) {
        while (!stack.empty() && stack.back().pending <= 0)
            stack.pop_back();
        if (stack.empty())
            break;
        --stack.back().pending;
        ProjectItemScanGroup* parent = stack.back().folder;
        const TVXProjectContent::TreeRecord& record = records[i];
        if (record.kind == TVXProjectContent::TreeRecord::Scan) {
            const auto scan = ProjectItemScan::create(record.name, quint64(record.number));
            scan->setEnabled(record.enabled);
            parent->appendScan(scan);
            continue;
        }
        const auto folder = ProjectItemScanGroup::create(record.name);
        folder->setEnabled(record.enabled);
        parent->appendFolder(folder);
        stack.push_back({folder.get(), record.number});
    }
    return root;
}

} // namespace TVX::CORE
