#include "scene/tvxsceneitem.h"

namespace TVX::CORE {

TVXSceneItem::TVXSceneItem() : m_data(std::make_unique<TVXSceneItemData>()) {}

TVXSceneItem::TVXSceneItem(const TVXSceneItem& other) : m_data(std::make_unique<TVXSceneItemData>(*other.m_data)) {}

TVXSceneItem& TVXSceneItem::operator=(const TVXSceneItem& other)
{
    if (this != &other)
        *m_data = *other.m_data;
    return *this;
}

TVXSceneItem::~TVXSceneItem() = default;

quint32 TVXSceneItem::category() const
{
    return 0;
}

std::shared_ptr<TVXSceneItem> TVXSceneItem::clone() const
{
    // Copies the common block only; derived records that do not override this come back plain.
    return std::make_shared<TVXSceneItem>(*this);
}

} // namespace TVX::CORE
