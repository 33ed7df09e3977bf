#pragma once

#include "scene/tvxsceneitem.h"

namespace TVX::CORE {

// Base of the 2D records. Coordinates are planar scene coordinates: x = grid column, y = grid row.
class TVXScene2DItem : public TVXSceneItem
{
public:
    // The item kind of the scan file's scene items section.
    enum Kind : quint32 { Polygon = 1, Rectangle = 2, Ellipse = 3, SimpleText = 4, Dimensioning = 6 };

    quint32 category() const override;
    virtual quint32 kind() const = 0;

protected:
    explicit TVXScene2DItem(quint32 number);
};

} // namespace TVX::CORE
