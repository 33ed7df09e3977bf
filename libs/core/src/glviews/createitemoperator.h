#pragma once

#include "glviews/lensenabledoperator.h"
#include "scene/matrix3d.h"
#include "scene/vector3d.h"

#include <memory>

namespace TVX::CORE {

class ScanViewItem;
class ScanViewSceneGraph;
class SphericalViewControl;

// What the create operators share: the item under construction on the view where it began, the
// right button that abandons it, and the end that marks the scan's annotations as modified.
// By default an item is made by click, move, click (rectangle, ellipse, measurement): the first
// left press starts it at a point, moves follow the cursor, the second left press fixes it.
class CreateItemOperator : public LensEnabledOperator
{
public:
    ~CreateItemOperator() override;

    // Leaving the mode abandons an item under construction.
    void cancel() override;
    void reset() override;
    bool mousePress(const ScanViewEvent& event) override;
    bool mouseMove(const ScanViewEvent& event) override;

    bool isCreating() const { return m_item != nullptr; }

protected:
    CreateItemOperator();

    // A new item at the first press, added to `graph`.
    virtual std::shared_ptr<ScanViewItem> startItem(ScanViewSceneGraph& graph, const Vector3d& first);
    // The cursor is at `direction` while the item is made.
    virtual void followCursor(const Vector3d& direction);

    // The direction of the first press and the camera's axes then.
    const Vector3d& first() const { return m_first; }
    const Matrix3d& axes() const { return m_axes; }

    // Makes `item` (already in the view's scene graph) the one under construction.
    void begin(SphericalViewControl& view, const std::shared_ptr<ScanViewItem>& item);
    // The finished item stays; the scan's annotations are modified.
    void finish(SphericalViewControl& view);
    // The half-made item leaves the scene graph.
    void abandon(SphericalViewControl& view);
    // Right press: abandons on the gesture's view, is consumed and does nothing while idle over a
    // spherical view, and is not consumed on another view.
    bool rightPress();

    ScanViewItem* item() const { return m_item.get(); }
    // The direction under an event's position in the gesture's view; false when there is none.
    bool directionAt(const ScanViewEvent& event, Vector3d& direction) const;

private:
    Vector3d m_first;
    Matrix3d m_axes;
    std::shared_ptr<ScanViewItem> m_item;
    std::shared_ptr<ScanViewSceneGraph> m_graph;
};

} // namespace TVX::CORE
