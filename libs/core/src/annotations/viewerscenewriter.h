#pragma once

#include <QString>
#include <QStringList>

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
    // dimensionings are left out, and so are items that the file cannot carry (a dimensioning or
    // measurement of an unknown type, a spherical item short of its points); skippedItems() names
    // them. `graph` may be null: then only the planar records are written. False when the device
    // failed to take the text or anything was left out, so that a caller never replaces a file
    // with one that lost an annotation.
    bool write(const SceneItemsTableModel& model, const ScanViewSceneGraph* graph);
    // What the last write left out, one description per item.
    QStringList skippedItems() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

// Text content as written: "&", "<" and ">" replaced, in this order, by their entities. A carriage
// return is written as "&#13;" so that it reads back as itself, and the control characters that
// XML cannot hold (below U+0020 except tab and line feed) as U+FFFD, so that the file stays
// readable.
QString escapeViewerSceneText(const QString& text);
// An attribute value as written, without its enclosing quotes: escaped as text, then each
// double quote replaced by "&quot;".
QString escapeViewerSceneAttribute(const QString& value);

} // namespace TVX::CORE
