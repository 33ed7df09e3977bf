#pragma once

#include <QString>

#include <memory>

class QIODevice;

namespace TVX::CORE {

class SceneItemsTableModel;
class ScanViewSceneGraph;

// Reads a viewer scene document (versions "1.0" and "2.0") and adds its items to a scan's two
// annotation sets: planar records to the scene item model, spherical items to the scene graph.
// Unknown elements are skipped with everything inside them. Every number is read in single
// precision; one that does not convert reads as 0.
//
// Documents that declare entities in their DOCTYPE are refused (no entity expansion at all), and
// elements nested deeper than a fixed limit end the read, so a crafted file costs memory and time
// in proportion to its size only.
class ViewerSceneReader final
{
public:
    // `device` must be open for reading; it is not owned and must outlive the reader.
    explicit ViewerSceneReader(QIODevice* device);
    ~ViewerSceneReader();
    ViewerSceneReader(const ViewerSceneReader&) = delete;
    ViewerSceneReader& operator=(const ViewerSceneReader&) = delete;

    // Reads the whole document. `graph` may be null: spherical items are then skipped. The first
    // error ends the read and yields false; items added before it stay in their sets.
    bool read(SceneItemsTableModel& model, ScanViewSceneGraph* graph);

    // After a failed read: the fault, "<message>\nLine <line>, column <column>" (translated).
    QString errorString() const;
    // The parts of the fault: the message alone and its position (line from 1, column from 0).
    QString message() const;
    qint64 lineNumber() const;
    qint64 columnNumber() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
