#pragma once

#include "project/projectitem.h"

namespace TVX::CORE {

// A scan node of the project tree. Its identifier names the scan in the project's scan list and
// in the views' signals (there as quint32); the project file stores it as a signed 64-bit number.
class ProjectItemScan final : public ProjectItem
{
public:
    static std::shared_ptr<ProjectItemScan> create(const QString& name, quint64 scanId);

    quint64 scanId() const { return m_scanId; }
    void setScanId(quint64 scanId) { m_scanId = scanId; }

private:
    ProjectItemScan(const QString& name, quint64 scanId);

    quint64 m_scanId;
};

using ProjectItemScanPtr = std::shared_ptr<ProjectItemScan>;

} // namespace TVX::CORE
