#include "scene/scanviewscenegraph.h"

#include <algorithm>

namespace TVX::CORE {

namespace {

template<typename Item>
std::shared_ptr<ScanViewItem> firstHit(const std::vector<std::shared_ptr<Item>>& items, const Vector3d& direction)
{
    for (const std::shared_ptr<Item>& item : items)
        if (item && item->hitTest(direction))
            return item;
    return {};
}

template<typename Item>
bool contains(const std::vector<std::shared_ptr<Item>>& items, const ScanViewItem* item)
{
    return std::any_of(items.begin(), items.end(),
                       [item](const std::shared_ptr<Item>& entry) { return entry.get() == item; });
}

template<typename Item>
void erase(std::vector<std::shared_ptr<Item>>& items, const ScanViewItem* item)
{
    items.erase(std::remove_if(items.begin(), items.end(),
                               [item](const std::shared_ptr<Item>& entry) { return entry.get() == item; }),
                items.end());
}

} // namespace

ScanViewSceneGraph::ScanViewSceneGraph() = default;

void ScanViewSceneGraph::addItem(const std::shared_ptr<ScanViewEllipse>& item)
{
    m_ellipses.push_back(item);
    announce(ItemAdded, item.get());
}

void ScanViewSceneGraph::addItem(const std::shared_ptr<ScanViewPolygon>& item)
{
    m_polygons.push_back(item);
    announce(ItemAdded, item.get());
}

void ScanViewSceneGraph::addItem(const std::shared_ptr<ScanViewRectangle>& item)
{
    m_rectangles.push_back(item);
    announce(ItemAdded, item.get());
}

void ScanViewSceneGraph::addItem(const std::shared_ptr<ScanViewTextItem>& item)
{
    m_textItems.push_back(item);
    announce(ItemAdded, item.get());
}

void ScanViewSceneGraph::addItem(const std::shared_ptr<ScanViewMeasurementItem>& item)
{
    m_measurements.push_back(item);
    announce(ItemAdded, item.get());
}

bool ScanViewSceneGraph::removeItem(const ScanViewItem* item)
{
    if (!item
        || !(contains(m_ellipses, item) || contains(m_polygons, item) || contains(m_rectangles, item)
             || contains(m_textItems, item) || contains(m_measurements, item)))
        return false;
    // Announced while the item is still listed, so that the slots can read it and its kind.
    announce(ItemRemoved, item);
    erase(m_ellipses, item);
    erase(m_polygons, item);
    erase(m_rectangles, item);
    erase(m_textItems, item);
    erase(m_measurements, item);
    return true;
}

void ScanViewSceneGraph::notifyItemChanged(const ScanViewItem* item)
{
    announce(ItemChanged, item);
}

std::size_t ScanViewSceneGraph::itemCount() const
{
    return m_ellipses.size() + m_polygons.size() + m_rectangles.size() + m_textItems.size() + m_measurements.size();
}

std::shared_ptr<ScanViewItem> ScanViewSceneGraph::hitTest(const Vector3d& direction) const
{
    if (auto hit = firstHit(m_textItems, direction))
        return hit;
    if (auto hit = firstHit(m_measurements, direction))
        return hit;
    if (auto hit = firstHit(m_ellipses, direction))
        return hit;
    if (auto hit = firstHit(m_rectangles, direction))
        return hit;
    return firstHit(m_polygons, direction);
}

void ScanViewSceneGraph::announce(Change change, const ScanViewItem* item)
{
    ++m_changeCount;
    m_itemChanged(change, item);
}

} // namespace TVX::CORE
