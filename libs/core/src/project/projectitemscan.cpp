#include "project/projectitemscan.h"

namespace TVX::CORE {

ProjectItemScan::ProjectItemScan(const QString& name, quint64 scanId) : ProjectItem(Scan, name), m_scanId(scanId) {}

std::shared_ptr<ProjectItemScan> ProjectItemScan::create(const QString& name, quint64 scanId)
{
    // The constructor is private, so make_shared cannot reach it.
    return std::shared_ptr<ProjectItemScan>(new ProjectItemScan(name, scanId));
}

} // namespace TVX::CORE
