#pragma once

#include "glviews/scanviewoperator.h"

#include <QPoint>
#include <QPointer>

#include <memory>
#include <vector>

class QRubberBand;

namespace TVX::CORE {

class ScanViewItem;
class ScanViewSceneGraph;

// Selects the items that lie wholly inside a rectangle dragged with the left button on a
// spherical view; Delete removes them. The first of them becomes the scene graph's current item.
class AreaSelectionOperator : public ScanViewOperator
{
public:
    AreaSelectionOperator();
    ~AreaSelectionOperator() override;

    // Drops the band and the selection.
    void cancel() override;
    void reset() override;
    bool mousePress(const ScanViewEvent& event) override;
    bool mouseMove(const ScanViewEvent& event) override;
    bool mouseRelease(const ScanViewEvent& event) override;
    bool keyPress(const ScanViewEvent& event) override;

    std::size_t selectedCount() const { return m_selected.size(); }

private:
    QPoint m_start;
    bool m_dragging{false};
    QPointer<QRubberBand> m_band;
    std::vector<std::weak_ptr<ScanViewItem>> m_selected;
    std::weak_ptr<ScanViewSceneGraph> m_selectedIn;
};

} // namespace TVX::CORE
