#pragma once

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxssimpletext.h"

namespace TVX::CORE {

// Lets a set of lambdas act as one visitor: visit2DRecord(record, Overloaded{[](const TVXSPolygon&)
// {...}, ...}).
template <typename... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

// Calls `visitor` with the record as its 2D class (polygon, rectangle, ellipse, simple text or
// dimensioning), chosen by its kind. False, without a call, for a record that is not one of them.
template <typename Visitor>
bool visit2DRecord(const TVXSceneItem& record, Visitor&& visitor)
{
    if (record.category() != 2)
        return false;
    const auto& item = static_cast<const TVXScene2DItem&>(record);
    switch (item.kind()) {
    case TVXScene2DItem::Polygon:
        visitor(static_cast<const TVXSPolygon&>(item));
        return true;
    case TVXScene2DItem::Rectangle:
        visitor(static_cast<const TVXSRectangle&>(item));
        return true;
    case TVXScene2DItem::Ellipse:
        visitor(static_cast<const TVXSEllipse&>(item));
        return true;
    case TVXScene2DItem::SimpleText:
        visitor(static_cast<const TVXSSimpleText&>(item));
        return true;
    case TVXScene2DItem::Dimensioning:
        visitor(static_cast<const TVXSDimensioning&>(item));
        return true;
    default:
        return false;
    }
}

} // namespace TVX::CORE
