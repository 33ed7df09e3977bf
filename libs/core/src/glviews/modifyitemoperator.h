#pragma once

#include "glviews/lensenabledoperator.h"
#include "scene/vector3d.h"

#include <memory>
#include <vector>

namespace TVX::CORE {

class ScanViewItem;
class ScanViewSceneGraph;
class SphericalViewControl;

// What the modify operators share: a left press near a handle of an item of the operator's kind
// grabs it, moves drag it, the release puts it down and marks the scan's annotations as modified;
// the right button while dragging puts the item back as it was. A press on an item away from its
// handles selects it, so that its handles show.
class ModifyItemOperator : public LensEnabledOperator
{
public:
    ~ModifyItemOperator() override;

    // Leaving the mode puts back a dragged item and drops the selection.
    void cancel() override;
    void reset() override;
    bool mousePress(const ScanViewEvent& event) override;
    bool mouseMove(const ScanViewEvent& event) override;
    bool mouseRelease(const ScanViewEvent& event) override;

    bool isDragging() const { return m_item != nullptr; }

    // How far from a handle, in pixels, a press still grabs it.
    static constexpr double grabRadius = 8.0;

protected:
    ModifyItemOperator();

    // The items of the operator's kind, in drawing order.
    virtual std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const = 0;
    // The handles of an item; by default its points.
    virtual std::vector<Vector3d> handles(const ScanViewItem& item) const;
    // Handle `index` of `item` is dragged to `direction`; by default that point moves.
    virtual void moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const;

private:
    void putBack();

    std::shared_ptr<ScanViewItem> m_item;
    std::shared_ptr<ScanViewSceneGraph> m_graph;
    std::size_t m_handle{0};
    std::vector<Vector3d> m_original;
    bool m_moved{false};
    std::weak_ptr<ScanViewSceneGraph> m_selectedIn; // where the press made an item current
};

} // namespace TVX::CORE
