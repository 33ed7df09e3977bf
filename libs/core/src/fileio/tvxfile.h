#pragma once

#include "fileio/tvxfiletile.h"

#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <vector>

class QIODevice;

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
    // The scan file's header and section directory.
    static constexpr quint32 magic = 0x54565846; // "TVXF"
    static constexpr quint32 latestFormatVersion = 2;
    static constexpr quint32 streamVersion = 12;
    static constexpr quint32 fileBeginTag = 0x100000;
    static constexpr quint32 directoryBeginTag = 0x110000;
    static constexpr quint32 directoryEndTag = 0x11FFFF;
    // Directory tags of the five sections, in the order they are read.
    static constexpr std::array<quint32, 5> sectionTags = {0x110001, 0x110002, 0x110003, 0x110004, 0x110005};
    // "scan information", "layer table", "meta information", "reference information", "scene items"
    // for the sections in that order; used in diagnostics.
    static QString sectionName(std::size_t section);

    // `path` is the scan file; the data file is derived from it (see dataPathFor).
    explicit TVXFile(const QString& path);
    ~TVXFile();
    TVXFile(const TVXFile&) = delete;
    TVXFile& operator=(const TVXFile&) = delete;

    QString path() const;     // the scan file
    QString dataPath() const; // the point data file
    // The data file of a scan file: its folder, "/", its complete base name, ".tvxsd".
    static QString dataPathFor(const QString& scanPath);

    // Opens the scan file, then the data file; read-only when mode is 0, else read-write (existing
    // files only). True at once when both are open; false as soon as one fails (a scan file opened
    // before a failing data file stays open).
    bool open(int mode = 0);
    // Closes both files; always true.
    bool close();
    // Reads the header and all five sections; needs both files open. Every section object and the
    // scene graph are recreated first. False for a file that is not a scan file this reader knows
    // (see errorString); throws the read error when the stream fails inside the directory
    // ("libs/core/src/fileio/tvxfile", line 243) or a section.
    bool readHeader();
    // The same from a device holding a scan file (tests, fuzzing); the data file is not touched.
    bool readHeader(QIODevice& scanFile);
    // Why the last readHeader returned false.
    QString errorString() const;
    // Open the data file read-only and close it, around lazy reads. Point, tile and point cloud
    // reads open and close the data file themselves when it is not open.
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
    // The undecoded records of a tile, as stored (column by column), in one read. False as readTile.
    bool readTileRecords(quint32 tileColumn, quint32 tileRow, std::vector<char>& records);

    // The undecoded records of every tile in tile order (tile columns outer), handed to
    // visit(tileColumn, tileRow, records, size). Neighbouring tiles of a strip lie one after the
    // other in the data file and are read together, a few MiB at a time. False as readTile when a
    // read fails (the tiles of that read are not visited), or when visit returns false.
    using TileRecordsVisit =
        std::function<bool(quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size)>;
    bool forEachTileRecords(const TileRecordsVisit& visit);

    // Every cell whose column and row are multiples of `step`, in tile order (tile columns outer),
    // as x, y, z single-precision triples; invalid cells as (0, 0, 0). Only those cells are
    // decoded. False without a distance channel, for a step of 0 or when a tile read fails.
    bool extractPointCloud(quint32 step, std::vector<float>& xyz);

    // A scan's points as the point cloud view shows them: 12 bytes of coordinates and 3 of colour
    // per point, nothing else.
    struct PointCloud {
        // Where the per-point colours come from.
        enum Colours { NoColours, ScanColours, IntensityGrey };

        std::vector<float> xyz;  // x, y, z per point: scan frame, metres
        std::vector<quint8> rgb; // r, g, b per point; empty with NoColours
        Colours colours = NoColours;
        // The scan information's bounding box; the points' own when that one is empty or not
        // finite; all zero without either.
        Vector3d boxMin;
        Vector3d boxMax;

        std::size_t size() const { return xyz.size() / 3; }
        Vector3d centre() const;
        double radius() const; // of the box's circumscribed sphere
    };
    // The cells with a return whose column and row are multiples of `step`, in tile order (as
    // extractPointCloud), and of these only the points with finite coordinates: a degenerate angle
    // range gives none. Colours from `wanted`, else from the other per-point channel (colour or
    // intensity as grey), else none. False as extractPointCloud; `cloud` is then empty.
    bool readPointCloud(quint32 step, PointCloud::Colours wanted, PointCloud& cloud);
    // The colours that readPointCloud gives for `wanted`, from the channels alone.
    PointCloud::Colours pointCloudColours(PointCloud::Colours wanted) const;
    // The colours alone of the points that readPointCloud gives, chosen the same way; `given`
    // says which came. For switching the colours of a cloud whose copies were dropped.
    bool readPointCloudColours(quint32 step, PointCloud::Colours wanted, std::vector<quint8>& rgb,
                               PointCloud::Colours& given);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
