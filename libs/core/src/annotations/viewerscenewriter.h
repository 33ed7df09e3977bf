#pragma once

#include <QString>

#include <memory>

class QIODevice;

namespace TVX::CORE {

class SceneItemsTableModel;
class ScanViewSceneGraph;

// Writes a scan's annotations as a viewer scene document (UTF-8 XML, line feeds only): the planar
// records of the scene item model row by row, then the spherical items kind by kind in the order
// in which the scene graph keeps its lists (ellipses, polygons, rectangles, text items,
// measurement items). Numbers keep 6 significant digits, so the file rounds what it stores.
class ViewerSceneWriter final
{
public:
    // `device` must be open for writing; it is not owned and must outlive the writer.
    explicit ViewerSceneWriter(QIODevice* device);
    ~ViewerSceneWriter();
    ViewerSceneWriter(const ViewerSceneWriter&) = delete;
    ViewerSceneWriter& operator=(const ViewerSceneWriter&) = delete;

    // Writes the whole document. Records other than polygons, rectangles, ellipses, texts and
    // dimensionings are not written, nor are items that the file cannot carry (a dimensioning or
    // measurement of an unknown type, a spherical item short of its points). `graph` may be null:
    // then only the planar records are written. False when the device failed to take the text.
    bool write(const SceneItemsTableModel& model, const ScanViewSceneGraph* graph);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

// Text content as written: "&", "<" and ">" replaced, in this order, by their entities.
QString escapeViewerSceneText(const QString& text);
// An attribute value as written, without its enclosing quotes: escaped as text, then each
// double quote replaced by "&quot;".
QString escapeViewerSceneAttribute(const QString& value);

} // namespace TVX::CORE
