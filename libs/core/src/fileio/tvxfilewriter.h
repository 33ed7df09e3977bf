#pragma once

#include "scene/softwareversion.h"
#include "scene/tvxsceneitem.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace TVX::CORE {

class ScanViewSceneGraph;
class TVXFileLayerTable;
class TVXFileMetaInfo;
class TVXFileReferenceInfo;
class TVXFileScanInfo;

// One grid cell as the writer stores it: sub-cell offsets, distance in millimetres (24 bits, 0 for
// no return), intensity and colour. Channels the scan information does not declare are not stored.
struct TVXFileCell {
    qint8 dx = 0;
    qint8 dy = 0;
    quint32 distanceMm = 0;
    quint8 intensity = 0;
    quint8 red = 0, green = 0, blue = 0;
};

// Writes a scan file pair that TVXFile reads back field for field: the scan file (format version
// 2, the writer's version as three 32-bit numbers, stream version 12, the directory and the five
// sections) and its data file (a 12-byte header: "TVXD", layout version 1 and the record size as
// 32-bit numbers; then the records in tile order). The viewer itself never writes scans; tests,
// benchmarks and tools do.
class TVXFileWriter final
{
public:
    TVXFileWriter();
    ~TVXFileWriter();
    TVXFileWriter(const TVXFileWriter&) = delete;
    TVXFileWriter& operator=(const TVXFileWriter&) = delete;

    quint32 writerMajor = SoftwareVersion::major, writerMinor = SoftwareVersion::minor, writerPatch = SoftwareVersion::patch;

    // The sections to write; the grid geometry and channels come from scanInfo().
    TVXFileScanInfo& scanInfo();
    TVXFileLayerTable& layerTable();
    TVXFileMetaInfo& metaInfo();
    TVXFileReferenceInfo& referenceInfo();
    std::vector<TVXSceneItemPtr>& sceneItems2D();
    std::shared_ptr<ScanViewSceneGraph> scene3D(); // its items are written as kinds 17 to 22

    // Called once per cell in data-file order (tile strips, tiles, columns, rows), so that huge grids
    // need no memory. Without a source every cell is written without return.
    void setCellSource(std::function<TVXFileCell(quint32 column, quint32 row)> source);
    // Called with (cells done, cells total) at the start, now and then, and at the end.
    void setProgress(std::function<void(quint64, quint64)> progress);
    // When set, write() gives the scan information the bounding box of the points that the written
    // records hold (cells with a return, decoded as TVXFile reads them), empty when there is none,
    // and leaves it in scanInfo().
    void setMeasureBoundingBox(bool measure);

    // Writes `scanPath` and the data file beside it (TVXFile::dataPathFor), each replaced only when
    // complete. False with a reason in `error` when a file cannot be written, the tile size is 0
    // while there are records, the records would pass the 4 GiB that record positions can address,
    // a distance needs more than 24 bits, or a section holds what a scan file cannot store.
    bool write(const QString& scanPath, QString* error = nullptr);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
