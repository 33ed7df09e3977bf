#pragma once

#include <QString>

namespace TVX::CORE {

class SceneItemsTableModel;
class ScanViewSceneGraph;

// The annotation file beside a scan file: "<folder>/<complete base name>-viewer.xml", holding the
// scan's planar records and spherical items as a viewer scene document.
class AnnotationFile final
{
public:
    AnnotationFile() = delete;

    // The annotation file of the scan file at `scanPath`, as an absolute path.
    static QString path(const QString& scanPath);

    // Reads the scan's annotation file into `model` and `graph` (null: spherical items skipped).
    // A missing file is no error: true with nothing added. On failure `error` gets the reason:
    // for a document that does not parse "<message>\nLine <line>, column <column>", whatever was
    // read before the fault stays added.
    static bool load(const QString& scanPath, SceneItemsTableModel& model, ScanViewSceneGraph* graph, QString* error = nullptr);
    // Writes the scan's annotation file from `model` and `graph` (may be null). The text goes to a
    // temporary file that replaces the annotation file only once it is complete, so a failed or
    // interrupted save leaves the previous file as it was. An item that the file cannot hold fails
    // the save (`error` names it) rather than dropping it silently.
    static bool save(const QString& scanPath, const SceneItemsTableModel& model, const ScanViewSceneGraph* graph, QString* error = nullptr);

    // As load and save, for an annotation file named directly.
    static bool read(const QString& filePath, SceneItemsTableModel& model, ScanViewSceneGraph* graph, QString* error = nullptr);
    static bool write(const QString& filePath, const SceneItemsTableModel& model, const ScanViewSceneGraph* graph, QString* error = nullptr);
};

} // namespace TVX::CORE
