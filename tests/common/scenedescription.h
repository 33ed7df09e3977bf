#pragma once

#include "scene/tvxsceneitem.h"

#include <QString>
#include <QStringList>

namespace TVX::CORE {
class ScanViewSceneGraph;
}

namespace TVX::TEST {

// Scene records and spherical items as one line of text each, with every digit of each number's
// double: a reader that kept double precision would show 0.1 as 0.10000000000000001 instead of
// float's 0.100000001490116119. A record reads e.g. "polygon 1,2 3,4" or "text [t] at 1,2 offset 0,0".
QString describeRecord(const CORE::TVXSceneItem& record);
// Ellipses, polygons, rectangles, texts, then measurements, e.g. "measurement3d 1 1,0,0 0,1,0".
QStringList describeGraph(const CORE::ScanViewSceneGraph& graph);

} // namespace TVX::TEST
