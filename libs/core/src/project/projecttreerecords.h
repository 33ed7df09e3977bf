#pragma once

#include "fileio/tvxprojectcontent.h"
#include "project/projectitemscangroup.h"

#include <vector>

namespace TVX::CORE {

// The item tree as the project file's records (depth first, a folder before its children, sub-
// folders before scans) and back. A record's kind is the item type minus 1.
std::vector<TVXProjectContent::TreeRecord> projectTreeRecords(const ProjectItemScanGroupPtr& root);

// Rebuilds the tree of records that the serializer has checked for consistent child counts; empty
// when there are no records. Records beyond the root folder's subtree are ignored.
ProjectItemScanGroupPtr projectTreeFromRecords(const std::vector<TVXProjectContent::TreeRecord>& records);

} // namespace TVX::CORE
