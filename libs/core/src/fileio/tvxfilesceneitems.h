#pragma once

#include "scene/tvxsceneitem.h"

#include <QDataStream>

#include <vector>

namespace TVX::CORE {

class ScanViewSceneGraph;

// The scene items section: the scan's 2D annotation records (planar scene coordinates: x = column,
// y = row) and its 3D items, which go into the scan's spherical scene graph (directions from the
// station in the scan frame).
class TVXFileSceneItems final
{
public:
    static constexpr quint32 beginTag = 0x160000;
    static constexpr quint32 endTag = 0x16FFFF;
    // Item kinds of the section. Kind 5 exists in files but cannot be read: it fails the section.
    enum ItemKind : quint32 {
        Polygon2D = 1,
        Rectangle2D = 2,
        Ellipse2D = 3,
        Text2D = 4,
        Unreadable = 5,
        Dimensioning2D = 6,
        Polygon3D = 17,
        Rectangle3D = 18,
        Ellipse3D = 19,
        Text3D = 20,
        Measurement3D = 22,
    };

    TVXFileSceneItems();
    ~TVXFileSceneItems();

    // Resets, then reads the section at the stream's position. 2D records go to `items` with their
    // trailer in data(); 3D items are added to `graph`, or read and dropped when it is null.
    // False on a wrong begin or end tag, an item kind it cannot read, or a failing stream.
    bool read(QDataStream& stream, ScanViewSceneGraph* graph = nullptr);
    // Writes `items` and the items of `graph` (kinds 17 to 22). A record that is no 2D record, a 3D
    // rectangle or ellipse without exactly three points or a value that the section cannot store
    // sets the stream's status to WriteFailed.
    void write(QDataStream& stream, const ScanViewSceneGraph* graph = nullptr) const;
    void reset();

    std::vector<TVXSceneItemPtr> items;
};

} // namespace TVX::CORE
