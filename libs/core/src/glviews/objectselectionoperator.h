#pragma once

#include "glviews/scanviewoperator.h"

#include <memory>

namespace TVX::CORE {

class ScanViewSceneGraph;

// Selects the annotation item under a left click on a spherical view (it becomes the scene
// graph's current item and shows its handles); Delete removes the selected item.
class ObjectSelectionOperator : public ScanViewOperator
{
public:
    ObjectSelectionOperator();
    ~ObjectSelectionOperator() override;

    // Clears the main window's item selection and this operator's, then resets.
    void cancel() override;
    bool mousePress(const ScanViewEvent& event) override;
    bool keyPress(const ScanViewEvent& event) override;

private:
    std::weak_ptr<ScanViewSceneGraph> m_selectedIn;
};

} // namespace TVX::CORE
