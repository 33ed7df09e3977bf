#pragma once

#include "fileio/tvxfiletile.h"

#include <QString>

#include <memory>
#include <vector>

namespace TVX::CORE {

class ScanViewSceneGraph;
class TVXFileScanInfo;
class TVXFileLayerTable;
class TVXFileMetaInfo;
class TVXFileReferenceInfo;
class TVXFileSceneItems;

// Reader of one scan: the scan file (".tvx": header, section directory, five sections) and its
// point data file (".tvxsd" beside it, tiled point records). The header and sections are read at
// once by readHeader(); points are read lazily, opening the data file for each read.
// Reads never throw except where a stream fails inside the directory or a section (the read
// error: std::ios_base::failure "file read error <module>, line <n>").
class TVXFile final
{
public:
    explicit TVXFile(const QString& path);
    ~TVXFile();
    TVXFile(const TVXFile&) = delete;
    TVXFile& operator=(const TVXFile&) = delete;

    QString path() const;     // the scan file
    QString dataPath() const; // the point data file

    // Opens the scan file, then the data file; read-only when mode is 0.
    bool open(int mode = 0);
    bool close();
    bool readHeader();
    bool openData();
    void closeData();

    // Header facts (valid after readHeader).
    quint32 formatVersion() const;
    quint32 writerMajor() const;
    quint32 writerMinor() const;
    quint32 writerPatch() const;

    const TVXFileScanInfo& scanInfo() const;
    const TVXFileLayerTable& layerTable() const;
    const TVXFileMetaInfo& metaInfo() const;
    const TVXFileReferenceInfo& referenceInfo() const;
    TVXFileReferenceInfo& referenceInfo();
    const TVXFileSceneItems& sceneItems() const;
    std::shared_ptr<ScanViewSceneGraph> sceneGraph() const;

    // Point reads; see the scan file format for what each returns. Points in the scan frame, metres.
    bool readPoint(quint32 column, quint32 row, double& x, double& y, double& z, bool& valid);
    bool readDistance(quint32 column, quint32 row, double& metres);
    bool readColour(quint32 column, quint32 row, quint8& r, quint8& g, quint8& b);
    bool readIntensity(quint32 column, quint32 row, quint8& intensity);
    bool readPointAndColour(quint32 column, quint32 row, double& x, double& y, double& z, quint8& r, quint8& g,
                            quint8& b, bool& valid);
    bool readTile(quint32 tileColumn, quint32 tileRow, TVXFileTile& tile);

    // Every cell whose column and row are multiples of `step`, in tile order (tile columns outer),
    // as x, y, z single-precision triples; invalid cells as (0, 0, 0). False without a distance
    // channel, for a step of 0 or when a tile read fails.
    bool extractPointCloud(quint32 step, std::vector<float>& xyz);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
