#pragma once

#include "scene/tvxsceneitem.h"

namespace TVX::CORE {

class InteractiveGraphicsItem;

// Makes the planar items: a new one for a create mode, or the item of a record read from a file.
class PlanarItemFactory final
{
public:
    PlanarItemFactory() = delete;

    // 0 rectangle, 1 polygon, 2 ellipse, 3 text, 4 symbol, 5 to 7 dimensioning 3D, DZ, XY; null
    // for any other sub-mode.
    static InteractiveGraphicsItem* createItemForSubMode(int subMode);
    // A finished item sharing the record (polygon, rectangle, ellipse, simple text, dimensioning);
    // null for any other record.
    static InteractiveGraphicsItem* createItemForRecord(const TVXSceneItemPtr& record);
};

} // namespace TVX::CORE
