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

#include <QDataStream>
#include <QFile>
#include <QFileInfo>

#include <functional>

namespace TVX::CORE {

namespace {
constexpr const char* module = "libs/core/src/fileio/tvxfile";
constexpr int directoryErrorLine = 243;
constexpr qint64 minimumScanFileSize = 12;
constexpr auto dataOpenMode = QIODevice::ReadOnly | QIODevice::Unbuffered;

// Distance in millimetres of a record starting with dx, dy: 24 bits, big-endian.
quint32 recordMillimetres(const unsigned char* record)
{
    return quint32(record[2]) << 16 | quint32(record[3]) << 8 | record[4];
}

// The points of the tile's cells whose column and row are multiples of `step`, in tile order.
void appendEveryStep(const TVXFileTile& tile, quint32 step, std::vector<float>& xyz)
{
    const quint32 width = tile.width();
    const quint32 height = tile.height();
    // Rows and columns of the tile that are multiples of step: from the first one on, every step-th.
    const quint32 firstRow = (step - tile.firstRow % step) % step;
    const quint32 firstColumn = (step - tile.firstColumn % step) % step;
    if (firstRow >= height || firstColumn >= width)
        return;
    const std::size_t picked = std::size_t((width - firstColumn - 1) / step + 1) * ((height - firstRow - 1) / step + 1);
    std::size_t at = xyz.size();
    xyz.resize(at + 3 * picked);
    // 64-bit indices: adding a huge step must not wrap.
    for (quint64 i = firstColumn; i < width; i += step) {
        const Vector3d* column = tile.points.data() + i * height;
        for (quint64 j = firstRow; j < height; j += step) {
            xyz[at++] = float(column[j].x);
            xyz[at++] = float(column[j].y);
            xyz[at++] = float(column[j].z);
        }
    }
}

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

    void recreate();
    bool fail(const QString& why);
    void readDirectory(QDataStream& stream);
    bool readSections(QIODevice& device, QDataStream& stream);
    TVXFileTileDecoder& tileDecoder();

    // Runs `read` on the data file, opening and closing it around when it is not open.
    template <typename Read>
    bool withDataFile(Read read);
    bool readBytes(quint64 offset, void* bytes, qint64 count);
    // Position of a cell's record; false when the grid cannot have one (tile size 0).
    bool recordOf(quint32 column, quint32 row, quint64& offset) const;
    bool inGrid(quint32 column, quint32 row) const;
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

bool TVXFile::Private::readSections(QIODevice& device, QDataStream& stream)
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
        if (offset < 0 || offset > device.size() || !device.seek(offset) || !readers[section]())
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

template <typename Read>
bool TVXFile::Private::withDataFile(Read read)
{
    const bool wasOpen = dataFile.isOpen();
    if (!wasOpen && !dataFile.open(dataOpenMode))
        return false;
    const bool ok = read();
    if (!wasOpen)
        dataFile.close();
    return ok;
}

bool TVXFile::Private::readBytes(quint64 offset, void* bytes, qint64 count)
{
    const qint64 size = dataFile.size();
    if (offset > quint64(size) || count > size - qint64(offset))
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
    return d->dataFile.isOpen() || d->dataFile.open(openMode | QIODevice::Unbuffered);
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
    return d->dataFile.isOpen() || d->dataFile.open(dataOpenMode);
}

void TVXFile::closeData()
{
    d->dataFile.close();
}

bool TVXFile::readHeader()
{
    if (!d->scanFile.isOpen() || !d->dataFile.isOpen())
        return d->fail(QStringLiteral("the scan file and its data file are not open"));
    d->dataFile.seek(0);
    return readHeader(d->scanFile);
}

bool TVXFile::readHeader(QIODevice& scanFile)
{
    d->recreate();
    if (scanFile.size() < minimumScanFileSize)
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
    return d->readSections(scanFile, stream);
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
    const quint32 millimetres = recordMillimetres(record);
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
    metres = recordMillimetres(record) * 0.001;
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
        const qint64 size = d->dataFile.size();
        if (bounds.offset > quint64(size) || bounds.bytes > quint64(size) - bounds.offset)
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

bool TVXFile::extractPointCloud(quint32 step, std::vector<float>& xyz)
{
    const TVXFileScanInfo& info = *d->scanInfo;
    xyz.clear();
    if (!info.hasDistance() || step == 0 || info.tileSize == 0)
        return false;
    return d->withDataFile([&] {
        // Reserve only what the data file really holds.
        const quint64 cells = quint64(info.columns) * info.rows;
        if (cells <= quint64(d->dataFile.size()) / info.recordSize())
            xyz.reserve(
                std::size_t((quint64(info.columns) + step - 1) / step * ((quint64(info.rows) + step - 1) / step) * 3));
        TVXFileTile tile;
        for (quint32 tileColumn = 0; tileColumn < info.tilesX(); ++tileColumn) {
            for (quint32 tileRow = 0; tileRow < info.tilesY(); ++tileRow) {
                if (!readTile(tileColumn, tileRow, tile))
                    return false;
                appendEveryStep(tile, step, xyz);
            }
        }
        return true;
    });
}

} // namespace TVX::CORE
