#include "fileio/tvxfile.h"

#include "fileio/filereaderror.h"
#include "fileio/scanfilelog.h"
#include "fileio/sectionstream.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilesceneitems.h"
#include "fileio/tvxfiletiledecoder.h"
#include "scene/scanviewscenegraph.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace TVX::CORE {

namespace {
constexpr const char* module = "libs/core/src/fileio/tvxfile";
constexpr int directoryErrorLine = 243;
constexpr qint64 minimumScanFileSize = 12;
constexpr qint64 maximumBufferedScanFile = 64 << 20;
constexpr auto dataOpenMode = QIODevice::ReadOnly | QIODevice::Unbuffered;

// Neighbouring tiles are read together up to this many bytes (a single tile may be larger).
constexpr quint64 tileRunBytes = 4 << 20;
} // namespace

struct TVXFile::Private {
    QString path;
    QString dataPath;
    QFile scanFile;
    QFile dataFile;

    std::unique_ptr<TVXFileScanInfo> scanInfo = std::make_unique<TVXFileScanInfo>();
    std::unique_ptr<TVXFileLayerTable> layerTable = std::make_unique<TVXFileLayerTable>();
    std::unique_ptr<TVXFileMetaInfo> metaInfo = std::make_unique<TVXFileMetaInfo>();
    std::unique_ptr<TVXFileReferenceInfo> referenceInfo = std::make_unique<TVXFileReferenceInfo>();
    std::unique_ptr<TVXFileSceneItems> sceneItems = std::make_unique<TVXFileSceneItems>();
    std::array<qint64, 5> offsets{};
    std::shared_ptr<ScanViewSceneGraph> sceneGraph = std::make_shared<ScanViewSceneGraph>();

    quint32 formatVersion = 0;
    quint32 writerMajor = 0;
    quint32 writerMinor = 0;
    quint32 writerPatch = 0;
    QString error;

    std::unique_ptr<TVXFileTileDecoder> decoder; // for the scan information read last
    std::vector<char> records;                   // reused by every tile read
    qint64 dataSize = -1;                        // of the open data file once asked; -1: not yet

    void recreate();
    bool fail(const QString& why);
    void readDirectory(QDataStream& stream);
    bool readSections(QIODevice& device, qint64 size, QDataStream& stream);
    TVXFileTileDecoder& tileDecoder();

    bool openDataFile(QIODevice::OpenMode mode);
    // The open data file's size, asked of the system once per opening.
    quint64 dataFileSize();
    // Runs `read` on the data file, opening and closing it around when it is not open.
    template <typename Read>
    bool withDataFile(Read read);
    bool readBytes(quint64 offset, void* bytes, qint64 count);
    // Position of a cell's record; false when the grid cannot have one (tile size 0).
    bool recordOf(quint32 column, quint32 row, quint64& offset) const;
    bool inGrid(quint32 column, quint32 row) const;

    // How many cells lie on a step, for reserving: 0 when the open data file is too short to hold
    // the grid, so that a corrupt geometry reserves nothing.
    std::size_t cellsOnStep(quint32 step);
    // visit(x, y, z, record) for every cell of readPointCloud, with its record (for the colours).
    template <typename Visit>
    bool forEachCloudPoint(TVXFile& file, quint32 step, Visit visit);
};

void TVXFile::Private::recreate()
{
    scanInfo = std::make_unique<TVXFileScanInfo>();
    layerTable = std::make_unique<TVXFileLayerTable>();
    metaInfo = std::make_unique<TVXFileMetaInfo>();
    referenceInfo = std::make_unique<TVXFileReferenceInfo>();
    sceneItems = std::make_unique<TVXFileSceneItems>();
    offsets.fill(0);
    sceneGraph = std::make_shared<ScanViewSceneGraph>();
    formatVersion = writerMajor = writerMinor = writerPatch = 0;
    error.clear();
    decoder.reset();
}

bool TVXFile::Private::fail(const QString& why)
{
    error = why;
    qCDebug(lcScanFile).noquote() << path << why;
    return false;
}

void TVXFile::Private::readDirectory(QDataStream& stream)
{
    for (;;) {
        quint32 tag = 0;
        qint64 offset = 0;
        stream >> tag >> offset;
        if (!streamOk(stream))
            throw fileReadError(module, directoryErrorLine);
        if (tag == directoryEndTag)
            return;
        for (std::size_t i = 0; i < sectionTags.size(); ++i)
            if (tag == sectionTags[i])
                offsets[i] = offset;
        // Any other tag is skipped with its offset.
    }
}

bool TVXFile::Private::readSections(QIODevice& device, qint64 size, QDataStream& stream)
{
    const std::array<std::function<bool()>, 5> readers = {
        [&] { return scanInfo->read(stream); },
        [&] { return layerTable->read(stream); },
        [&] { return metaInfo->read(stream); },
        [&] { return referenceInfo->read(stream); },
        // A scene items offset of 0 is not caught before: reading at 0 meets the magic and fails.
        [&] { return sceneItems->read(stream, sceneGraph.get()); },
    };
    for (std::size_t section = 0; section < readers.size(); ++section) {
        // Past the end the section tag reads as 0 and fails all the same, only without a warning.
        const qint64 offset = offsets[section];
        if (offset < 0 || offset > size || !device.seek(offset) || !readers[section]())
            return fail(
                QStringLiteral("the %1 section at offset %2 is unreadable").arg(sectionName(section)).arg(offset));
    }
    return true;
}

TVXFileTileDecoder& TVXFile::Private::tileDecoder()
{
    if (!decoder)
        decoder = std::make_unique<TVXFileTileDecoder>(*scanInfo);
    return *decoder;
}

bool TVXFile::Private::openDataFile(QIODevice::OpenMode mode)
{
    dataSize = -1;
    return dataFile.open(mode);
}

quint64 TVXFile::Private::dataFileSize()
{
    if (dataSize < 0)
        dataSize = dataFile.size();
    return quint64(dataSize);
}

template <typename Read>
bool TVXFile::Private::withDataFile(Read read)
{
    const bool wasOpen = dataFile.isOpen();
    if (!wasOpen && !openDataFile(dataOpenMode))
        return false;
    const bool ok = read();
    if (!wasOpen)
        dataFile.close();
    return ok;
}

bool TVXFile::Private::readBytes(quint64 offset, void* bytes, qint64 count)
{
    const quint64 size = dataFileSize();
    if (offset > size || quint64(count) > size - offset)
        return false;
    return dataFile.seek(qint64(offset)) && dataFile.read(static_cast<char*>(bytes), count) == count;
}

bool TVXFile::Private::recordOf(quint32 column, quint32 row, quint64& offset) const
{
    const TVXFileScanInfo& info = *scanInfo;
    if (info.tileSize == 0)
        return false;
    offset = recordOffset(column, row, info.columns, info.rows, info.tileSize, info.recordSize());
    return true;
}

bool TVXFile::Private::inGrid(quint32 column, quint32 row) const
{
    return column < scanInfo->columns && row < scanInfo->rows;
}

std::size_t TVXFile::Private::cellsOnStep(quint32 step)
{
    const TVXFileScanInfo& info = *scanInfo;
    const quint64 cells = quint64(info.columns) * info.rows;
    if (info.recordSize() == 0 || cells > dataFileSize() / info.recordSize())
        return 0;
    return std::size_t((quint64(info.columns) + step - 1) / step * ((quint64(info.rows) + step - 1) / step));
}

template <typename Visit>
bool TVXFile::Private::forEachCloudPoint(TVXFile& file, quint32 step, Visit visit)
{
    TVXFileTileDecoder& decoder = tileDecoder();
    return file.forEachTileRecords([&](quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size) {
        return decoder.decodeEveryStep(
            tileColumn, tileRow, records, size, step,
            [&visit](const Vector3d& point, bool hasReturn, const unsigned char* record) {
                // Checked as floats: a point beyond the float range would become infinite there.
                const float x = float(point.x);
                const float y = float(point.y);
                const float z = float(point.z);
                if (hasReturn && std::isfinite(x) && std::isfinite(y) && std::isfinite(z))
                    visit(x, y, z, record);
            });
    });
}

TVXFile::TVXFile(const QString& path) : d(std::make_unique<Private>())
{
    d->path = path;
    d->dataPath = dataPathFor(path);
    d->scanFile.setFileName(d->path);
    d->dataFile.setFileName(d->dataPath);
}

TVXFile::~TVXFile() = default;

QString TVXFile::path() const
{
    return d->path;
}

QString TVXFile::dataPath() const
{
    return d->dataPath;
}

QString TVXFile::sectionName(std::size_t section)
{
    static const char* const names[] = {"scan information", "layer table", "meta information", "reference information",
                                        "scene items"};
    return section < std::size(names) ? QLatin1String(names[section]) : QString();
}

QString TVXFile::dataPathFor(const QString& scanPath)
{
    const QFileInfo info(scanPath);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".tvxsd");
}

bool TVXFile::open(int mode)
{
    if (d->scanFile.isOpen() && d->dataFile.isOpen())
        return true;
    // Read-write never creates a missing file: the viewer does not write scans.
    const QIODevice::OpenMode openMode =
        mode == 0 ? QIODevice::ReadOnly : QIODevice::ReadWrite | QIODevice::ExistingOnly;
    if (!d->scanFile.isOpen() && !d->scanFile.open(openMode))
        return false;
    return d->dataFile.isOpen() || d->openDataFile(openMode | QIODevice::Unbuffered);
}

bool TVXFile::close()
{
    if (d->scanFile.isOpen() || d->dataFile.isOpen()) {
        d->scanFile.close();
        d->dataFile.close();
    }
    return true;
}

bool TVXFile::openData()
{
    return d->dataFile.isOpen() || d->openDataFile(dataOpenMode);
}

void TVXFile::closeData()
{
    d->dataFile.close();
}

bool TVXFile::readHeader()
{
    if (!d->scanFile.isOpen() || !d->dataFile.isOpen())
        return d->fail(QStringLiteral("the scan file and its data file are not open"));
    // The data file is not sought to its start: every read of it seeks to its own position, and
    // opening a project of many scans feels each system call. For the same reason the scan file
    // is read whole into memory: the section readers ask their device's size before every count
    // and string, a system call each on a file. One too short or too large for that is read as is.
    const qint64 size = d->scanFile.size();
    if (size < minimumScanFileSize || size > maximumBufferedScanFile || !d->scanFile.seek(0))
        return readHeader(d->scanFile);
    QBuffer buffer;
    buffer.setData(d->scanFile.read(size));
    buffer.open(QIODevice::ReadOnly);
    return readHeader(buffer);
}

bool TVXFile::readHeader(QIODevice& scanFile)
{
    d->recreate();
    // Asked once: every size query is a system call.
    const qint64 size = scanFile.size();
    if (size < minimumScanFileSize)
        return d->fail(QStringLiteral("shorter than %1 bytes").arg(minimumScanFileSize));
    if (!scanFile.seek(0))
        return d->fail(QStringLiteral("cannot seek to the start"));

    QDataStream stream(&scanFile);
    prepareScanFileStream(stream);
    quint32 fileMagic = 0;
    stream >> fileMagic >> d->formatVersion;
    if (fileMagic != magic)
        return d->fail(QStringLiteral("no scan file: magic 0x%1").arg(fileMagic, 8, 16, QLatin1Char('0')));
    if (d->formatVersion > latestFormatVersion)
        return d->fail(QStringLiteral("unsupported format version %1").arg(d->formatVersion));
    if (d->formatVersion < 2) {
        // Versions 0 and 1 keep the writer's version in four bytes.
        quint8 major = 0;
        quint8 minor = 0;
        quint16 patch = 0;
        stream >> major >> minor >> patch;
        d->writerMajor = major;
        d->writerMinor = minor;
        d->writerPatch = patch;
    } else {
        stream >> d->writerMajor >> d->writerMinor >> d->writerPatch;
    }
    quint32 fileStreamVersion = 0;
    quint32 beginTag = 0;
    quint32 directoryTag = 0;
    stream >> fileStreamVersion >> beginTag >> directoryTag;
    if (fileStreamVersion != streamVersion)
        return d->fail(QStringLiteral("unsupported stream version %1").arg(fileStreamVersion));
    if (beginTag != fileBeginTag || directoryTag != directoryBeginTag)
        return d->fail(QStringLiteral("missing begin tags (0x%1, 0x%2)").arg(beginTag, 0, 16).arg(directoryTag, 0, 16));

    d->readDirectory(stream);
    for (std::size_t i = 0; i < 4; ++i)
        if (d->offsets[i] == 0)
            return d->fail(QStringLiteral("the directory lacks section 0x%1").arg(sectionTags[i], 0, 16));
    return d->readSections(scanFile, size, stream);
}

QString TVXFile::errorString() const
{
    return d->error;
}

quint32 TVXFile::formatVersion() const
{
    return d->formatVersion;
}

quint32 TVXFile::writerMajor() const
{
    return d->writerMajor;
}

quint32 TVXFile::writerMinor() const
{
    return d->writerMinor;
}

quint32 TVXFile::writerPatch() const
{
    return d->writerPatch;
}

const TVXFileScanInfo& TVXFile::scanInfo() const
{
    return *d->scanInfo;
}

const TVXFileLayerTable& TVXFile::layerTable() const
{
    return *d->layerTable;
}

const TVXFileMetaInfo& TVXFile::metaInfo() const
{
    return *d->metaInfo;
}

const TVXFileReferenceInfo& TVXFile::referenceInfo() const
{
    return *d->referenceInfo;
}

TVXFileReferenceInfo& TVXFile::referenceInfo()
{
    return *d->referenceInfo;
}

const TVXFileSceneItems& TVXFile::sceneItems() const
{
    return *d->sceneItems;
}

std::shared_ptr<ScanViewSceneGraph> TVXFile::sceneGraph() const
{
    return d->sceneGraph;
}

bool TVXFile::readPoint(quint32 column, quint32 row, double& x, double& y, double& z, bool& valid)
{
    quint64 offset = 0;
    if (!d->scanInfo->hasDistance() || !d->recordOf(column, row, offset))
        return false;
    unsigned char record[5];
    if (!d->withDataFile([&] { return d->readBytes(offset, record, sizeof(record)); }))
        return false;
    const quint32 millimetres = TVXFileTileDecoder::millimetres(record);
    valid = millimetres != 0;
    const Vector3d point = valid ? pointOfCell(column, row, qint8(record[0]), qint8(record[1]), millimetres * 0.001,
                                               d->scanInfo->gridAngles())
                                 : Vector3d();
    x = point.x;
    y = point.y;
    z = point.z;
    return true;
}

bool TVXFile::readDistance(quint32 column, quint32 row, double& metres)
{
    quint64 offset = 0;
    if (!d->inGrid(column, row) || !d->scanInfo->hasDistance() || !d->recordOf(column, row, offset))
        return false;
    unsigned char record[5];
    if (!d->withDataFile([&] { return d->readBytes(offset, record, sizeof(record)); }))
        return false;
    metres = TVXFileTileDecoder::millimetres(record) * 0.001;
    return true;
}

bool TVXFile::readColour(quint32 column, quint32 row, quint8& r, quint8& g, quint8& b)
{
    quint64 offset = 0;
    if (!d->inGrid(column, row) || !d->scanInfo->hasColour() || !d->recordOf(column, row, offset))
        return false;
    quint8 rgb[3];
    if (!d->withDataFile([&] { return d->readBytes(offset + d->scanInfo->colourOffset(), rgb, sizeof(rgb)); }))
        return false;
    r = rgb[0];
    g = rgb[1];
    b = rgb[2];
    return true;
}

bool TVXFile::readIntensity(quint32 column, quint32 row, quint8& intensity)
{
    quint64 offset = 0;
    if (!d->inGrid(column, row) || !d->scanInfo->hasIntensity() || !d->recordOf(column, row, offset))
        return false;
    return d->withDataFile(
        [&] { return d->readBytes(offset + d->scanInfo->intensityOffset(), &intensity, sizeof(intensity)); });
}

bool TVXFile::readPointAndColour(quint32 column, quint32 row, double& x, double& y, double& z, quint8& r, quint8& g,
                                 quint8& b, bool& valid)
{
    if (!readPoint(column, row, x, y, z, valid))
        return false;
    quint8 colour[3] = {};
    quint8 intensity = 0;
    const bool hasColour = d->scanInfo->hasColour();
    const bool hasIntensity = !hasColour && d->scanInfo->hasIntensity();
    if ((hasColour && !readColour(column, row, colour[0], colour[1], colour[2]))
        || (hasIntensity && !readIntensity(column, row, intensity)))
        return false;
    return colourOrGrey(hasColour ? colour : nullptr, hasIntensity ? &intensity : nullptr, r, g, b);
}

bool TVXFile::readTileRecords(quint32 tileColumn, quint32 tileRow, std::vector<char>& records)
{
    TVXFileTileDecoder::TileBounds bounds;
    if (!d->tileDecoder().tileBounds(tileColumn, tileRow, bounds))
        return false;
    return d->withDataFile([&] {
        // The size is checked against the file before the buffer grows to it.
        const quint64 size = d->dataFileSize();
        if (bounds.offset > size || bounds.bytes > size - bounds.offset)
            return false;
        records.resize(std::size_t(bounds.bytes));
        return d->readBytes(bounds.offset, records.data(), qint64(bounds.bytes));
    });
}

bool TVXFile::readTile(quint32 tileColumn, quint32 tileRow, TVXFileTile& tile)
{
    return readTileRecords(tileColumn, tileRow, d->records)
           && d->tileDecoder().decode(tileColumn, tileRow, d->records.data(), d->records.size(), tile);
}

bool TVXFile::forEachTileRecords(const TileRecordsVisit& visit)
{
    const TVXFileTileDecoder& decoder = d->tileDecoder();
    const quint32 tilesX = d->scanInfo->tilesX();
    const quint32 tilesY = d->scanInfo->tilesY();
    return d->withDataFile([&] {
        const quint64 size = d->dataFileSize();
        std::vector<char> records; // not the tile reads' buffer: visit may read tiles
        for (quint32 tileColumn = 0; tileColumn < tilesX; ++tileColumn) {
            for (quint32 tileRow = 0; tileRow < tilesY;) {
                // A run of tiles that follow each other in the file (positions wrap at 4 GiB).
                std::vector<TVXFileTileDecoder::TileBounds> run(1);
                if (!decoder.tileBounds(tileColumn, tileRow, run[0]))
                    return false;
                quint64 bytes = run[0].bytes;
                TVXFileTileDecoder::TileBounds next;
                while (tileRow + run.size() < tilesY
                       && decoder.tileBounds(tileColumn, tileRow + quint32(run.size()), next)
                       && next.offset == run[0].offset + bytes && bytes + next.bytes <= tileRunBytes) {
                    bytes += next.bytes;
                    run.push_back(next);
                }
                // Checked against the file before the buffer grows to it.
                if (run[0].offset > size || bytes > size - run[0].offset)
                    return false;
                records.resize(std::size_t(bytes));
                if (!d->readBytes(run[0].offset, records.data(), qint64(bytes)))
                    return false;
                for (const TVXFileTileDecoder::TileBounds& tile : run) {
                    if (!visit(tileColumn, tileRow++, records.data() + (tile.offset - run[0].offset),
                               std::size_t(tile.bytes)))
                        return false;
                }
            }
        }
        return true;
    });
}

bool TVXFile::extractPointCloud(quint32 step, std::vector<float>& xyz)
{
    const TVXFileScanInfo& info = *d->scanInfo;
    xyz.clear();
    if (!info.hasDistance() || step == 0 || info.tileSize == 0)
        return false;
    TVXFileTileDecoder& decoder = d->tileDecoder();
    return d->withDataFile([&] {
        xyz.reserve(3 * d->cellsOnStep(step));
        return forEachTileRecords([&](quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size) {
            return decoder.decodeEveryStep(tileColumn, tileRow, records, size, step,
                                           [&xyz](const Vector3d& point, bool, const unsigned char*) {
                                               xyz.push_back(float(point.x));
                                               xyz.push_back(float(point.y));
                                               xyz.push_back(float(point.z));
                                           });
        });
    });
}

namespace {

// The bytes of a record's colour as the cloud shows it: three colour bytes, or the intensity
// repeated as grey.
struct ColourPick {
    quint32 offset = 0;
    bool grey = false;

    void append(const unsigned char* record, std::vector<quint8>& rgb) const
    {
        const unsigned char* at = record + offset;
        if (grey)
            rgb.insert(rgb.end(), 3, at[0]);
        else
            rgb.insert(rgb.end(), at, at + 3);
    }
};

ColourPick colourPick(const TVXFileScanInfo& info, TVXFile::PointCloud::Colours colours)
{
    const bool grey = colours == TVXFile::PointCloud::IntensityGrey;
    return {grey ? info.intensityOffset() : info.colourOffset(), grey};
}

bool finite(const Vector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace

Vector3d TVXFile::PointCloud::centre() const
{
    return (boxMin + boxMax) * 0.5;
}

double TVXFile::PointCloud::radius() const
{
    return (boxMax - boxMin).length() * 0.5;
}

bool TVXFile::readPointCloud(quint32 step, PointCloud::Colours wanted, PointCloud& cloud)
{
    cloud = PointCloud();
    const TVXFileScanInfo& info = *d->scanInfo;
    if (!info.hasDistance() || step == 0 || info.tileSize == 0)
        return false;
    cloud.colours = pointCloudColours(wanted);
    const ColourPick pick = colourPick(info, cloud.colours);
    constexpr float huge = std::numeric_limits<float>::max();
    float low[3] = {huge, huge, huge};
    float high[3] = {-huge, -huge, -huge};
    const bool read = d->withDataFile([&] {
        const std::size_t cells = d->cellsOnStep(step);
        cloud.xyz.reserve(3 * cells);
        if (cloud.colours != PointCloud::NoColours)
            cloud.rgb.reserve(3 * cells);
        return d->forEachCloudPoint(*this, step, [&](float x, float y, float z, const unsigned char* record) {
            const float p[3] = {x, y, z};
            for (int i = 0; i < 3; ++i) {
                low[i] = std::min(low[i], p[i]);
                high[i] = std::max(high[i], p[i]);
            }
            cloud.xyz.insert(cloud.xyz.end(), p, p + 3);
            if (cloud.colours != PointCloud::NoColours)
                pick.append(record, cloud.rgb);
        });
    });
    if (!read) {
        cloud = PointCloud();
        return false;
    }
    // A box that is inverted (the empty default), not finite, or too large to measure is not used.
    cloud.boxMin = info.boundingBoxMin;
    cloud.boxMax = info.boundingBoxMax;
    const bool storedBoxUsable = finite(cloud.centre()) && std::isfinite(cloud.radius())
                                 && cloud.boxMin.x <= cloud.boxMax.x && cloud.boxMin.y <= cloud.boxMax.y
                                 && cloud.boxMin.z <= cloud.boxMax.z;
    if (!storedBoxUsable) {
        const bool anyPoint = cloud.size() > 0;
        cloud.boxMin = anyPoint ? Vector3d(low[0], low[1], low[2]) : Vector3d();
        cloud.boxMax = anyPoint ? Vector3d(high[0], high[1], high[2]) : Vector3d();
    }
    return true;
}

TVXFile::PointCloud::Colours TVXFile::pointCloudColours(PointCloud::Colours wanted) const
{
    const bool colour = d->scanInfo->hasColour();
    const bool intensity = d->scanInfo->hasIntensity();
    if (wanted == PointCloud::NoColours || (!colour && !intensity))
        return PointCloud::NoColours;
    if ((wanted == PointCloud::ScanColours && colour) || !intensity)
        return PointCloud::ScanColours;
    return PointCloud::IntensityGrey;
}

bool TVXFile::readPointCloudColours(quint32 step, PointCloud::Colours wanted, std::vector<quint8>& rgb,
                                    PointCloud::Colours& given)
{
    rgb.clear();
    const TVXFileScanInfo& info = *d->scanInfo;
    given = pointCloudColours(wanted);
    if (!info.hasDistance() || step == 0 || info.tileSize == 0)
        return false;
    if (given == PointCloud::NoColours)
        return true;
    const ColourPick pick = colourPick(info, given);
    const bool read = d->withDataFile([&] {
        rgb.reserve(3 * d->cellsOnStep(step));
        return d->forEachCloudPoint(
            *this, step, [&](float, float, float, const unsigned char* record) { pick.append(record, rgb); });
    });
    if (!read)
        rgb.clear();
    return read;
}

} // namespace TVX::CORE
