#pragma once

#include "scene/scanviewellipse.h"
#include "scene/scanviewmeasurementitem.h"
#include "scene/scanviewpolygon.h"
#include "scene/scanviewrectangle.h"
#include "scene/scanviewtextitem.h"
#include "scene/vector3d.h"

#include <boost/signals2/signal.hpp>

#include <memory>
#include <vector>

namespace TVX::CORE {

// The view state of one scan's panorama: the spherical view's camera, the items drawn over it and
// the directions picked in it. Shared between the views, the operators and the project; it
// outlives any one view.
class ScanViewSceneGraph final
{
public:
    // What happened to the item that the change signal names.
    enum Change : unsigned int { ItemAdded = 1, ItemChanged = 2, ItemRemoved = 3 };
    using ChangeSignal = boost::signals2::signal<void(unsigned int, const ScanViewItem*)>;

    ScanViewSceneGraph();
    ScanViewSceneGraph(const ScanViewSceneGraph&) = delete;
    ScanViewSceneGraph& operator=(const ScanViewSceneGraph&) = delete;

    // Camera: angles in radians, the vertical opening angle in degrees, a position in the scan frame.
    // A new view looks at the horizon with the sky up: three quarter turns about X from the nadir.
    double angleX{4.71238898038469};
    double angleY{0.0};
    double angleZ{0.0};
    double fieldOfView{60.0};
    Vector3d cameraPosition;

    const std::vector<std::shared_ptr<ScanViewEllipse>>& ellipses() const { return m_ellipses; }
    const std::vector<std::shared_ptr<ScanViewPolygon>>& polygons() const { return m_polygons; }
    const std::vector<std::shared_ptr<ScanViewRectangle>>& rectangles() const { return m_rectangles; }
    const std::vector<std::shared_ptr<ScanViewTextItem>>& textItems() const { return m_textItems; }
    const std::vector<std::shared_ptr<ScanViewMeasurementItem>>& measurementItems() const { return m_measurements; }

    // Calls `visitor` with every item as its own class (const ScanViewEllipse& and so on), kind
    // by kind in the order of the lists above, each list in its order.
    template <typename Visitor>
    void forEachItem(Visitor&& visitor) const
    {
        for (const auto& item : m_ellipses)
            visitor(*item);
        for (const auto& item : m_polygons)
            visitor(*item);
        for (const auto& item : m_rectangles)
            visitor(*item);
        for (const auto& item : m_textItems)
            visitor(*item);
        for (const auto& item : m_measurements)
            visitor(*item);
    }

    // Adding appends to the kind's list and emits ItemAdded; removing emits ItemRemoved first and
    // returns false when the item is not in the list.
    void addItem(const std::shared_ptr<ScanViewEllipse>& item);
    void addItem(const std::shared_ptr<ScanViewPolygon>& item);
    void addItem(const std::shared_ptr<ScanViewRectangle>& item);
    void addItem(const std::shared_ptr<ScanViewTextItem>& item);
    void addItem(const std::shared_ptr<ScanViewMeasurementItem>& item);
    bool removeItem(const ScanViewItem* item);
    // Emits ItemChanged for an item whose points or text were changed in place.
    void notifyItemChanged(const ScanViewItem* item);
    // Number of items over all five lists.
    std::size_t itemCount() const;
    // Incremented by every add, remove or change notification: tells views and writers that the
    // annotations differ from what they last saw.
    quint32 changeCount() const { return m_changeCount; }

    // The first item hit by the ray along `direction`, visiting the kinds in the order text items,
    // measurement items, ellipses, rectangles, polygons (small targets first); empty when none.
    std::shared_ptr<ScanViewItem> hitTest(const Vector3d& direction) const;

    std::shared_ptr<ScanViewItem> currentItem() const { return m_currentItem; }
    void setCurrentItem(const std::shared_ptr<ScanViewItem>& item) { m_currentItem = item; }

    const std::vector<Vector3d>& selectedPoints() const { return m_selectedPoints; }
    void appendSelectedPoint(const Vector3d& direction) { m_selectedPoints.push_back(direction); }
    void clearSelectedPoints() { m_selectedPoints.clear(); }

    ChangeSignal& itemChanged() { return m_itemChanged; }

private:
    void announce(Change change, const ScanViewItem* item);

    std::vector<std::shared_ptr<ScanViewEllipse>> m_ellipses;
    std::vector<std::shared_ptr<ScanViewPolygon>> m_polygons;
    std::vector<std::shared_ptr<ScanViewRectangle>> m_rectangles;
    std::vector<std::shared_ptr<ScanViewTextItem>> m_textItems;
    std::vector<std::shared_ptr<ScanViewMeasurementItem>> m_measurements;
    std::shared_ptr<ScanViewItem> m_currentItem;
    std::vector<Vector3d> m_selectedPoints;
    quint32 m_changeCount{0};
    ChangeSignal m_itemChanged;
};

} // namespace TVX::CORE
