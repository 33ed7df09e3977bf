#include "project/projectitem.h"

#include "project/projectitemscangroup.h"

namespace TVX::CORE {

ProjectItem::ProjectItem(ItemType type, const QString& name) : m_itemType(type), m_name(name) {}

ProjectItem::~ProjectItem() = default;

bool ProjectItem::hasAncestor(const ProjectItem* folder) const
{
    for (auto p = parent(); p; p = p->parent()) {
        if (p.get() == folder)
            return true;
    }
    return false;
}

int ProjectItem::row() const
{
    const auto p = parent();
    return p ? p->rowOf(this) : -1;
}

} // namespace TVX::CORE
