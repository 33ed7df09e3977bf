#pragma once

#include "glviews/modifyitemoperator.h"

namespace TVX::CORE {

// Drags the corners of the rectangles of a spherical view; the opposite corner stays and the edges keep their directions (the class name's spelling is kept).
class ModifyRegtangleOperator : public ModifyItemOperator
{
public:
    ModifyRegtangleOperator();
    ~ModifyRegtangleOperator() override;

protected:
    std::vector<std::shared_ptr<ScanViewItem>> items(const ScanViewSceneGraph& graph) const override;
    // All four corners, the fourth included.
    std::vector<Vector3d> handles(const ScanViewItem& item) const override;
    void moveHandle(ScanViewItem& item, std::size_t index, const Vector3d& direction) const override;
};

} // namespace TVX::CORE
