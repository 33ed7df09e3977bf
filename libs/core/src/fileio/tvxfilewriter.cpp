#include "fileio/tvxfilewriter.h"

#include "fileio/scangeometry.h"
#include "fileio/sectionstream.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilesceneitems.h"
#include "fileio/tvxfiletiledecoder.h"
#include "scene/scanviewscenegraph.h"

#include <QByteArray>
#include <QDataStream>
#include <QSaveFile>

#include <algorithm>
#include <limits>

namespace TVX::CORE {

namespace {
constexpr quint32 dataMagic = 0x54565844; // "TVXD"
constexpr quint32 dataLayoutVersion = 1;
constexpr quint32 maxMillimetres = 0xFFFFFF;
constexpr std::size_t flushBytes = 1 << 20;
constexpr quint64 progressCells = 1 << 20;

bool failWith(QString* error, const QString& why)
{
    if (error)
        *error = why;
    return false;
}

// Where the channels of a record go, worked out once rather than per cell.
struct RecordLayout {
    explicit RecordLayout(const TVXFileScanInfo& info)
        : hasDistance(info.hasDistance()),
          hasIntensity(info.hasIntensity()),
          hasColour(info.hasColour()),
          intensityOffset(info.intensityOffset()),
          colourOffset(info.colourOffset())
    {}
    bool hasDistance;
    bool hasIntensity;
    bool hasColour;
    quint32 intensityOffset;
    quint32 colourOffset;
};

void encode(const RecordLayout& layout, const TVXFileCell& cell, char* record)
{
    if (layout.hasDistance) {
        record[0] = char(cell.dx);
        record[1] = char(cell.dy);
        record[2] = char(cell.distanceMm >> 16); // 24 bits, big-endian
        record[3] = char(cell.distanceMm >> 8);
        record[4] = char(cell.distanceMm);
    }
    if (layout.hasIntensity)
        record[layout.intensityOffset] = char(cell.intensity);
    if (layout.hasColour) {
        char* rgb = record + layout.colourOffset;
        rgb[0] = char(cell.red);
        rgb[1] = char(cell.green);
        rgb[2] = char(cell.blue);
    }
}

bool writeAll(QSaveFile& file, const QByteArray& bytes, QString* error)
{
    if (!bytes.isEmpty() && file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return failWith(error, QStringLiteral("cannot write %1: %2").arg(file.fileName(), file.errorString()));
    }
    return true;
}
} // namespace

struct TVXFileWriter::Private {
    TVXFileScanInfo scanInfo;
    TVXFileLayerTable layerTable;
    TVXFileMetaInfo metaInfo;
    TVXFileReferenceInfo referenceInfo;
    TVXFileSceneItems sceneItems;
    std::shared_ptr<ScanViewSceneGraph> scene3D = std::make_shared<ScanViewSceneGraph>();
    std::function<TVXFileCell(quint32, quint32)> source;
    std::function<void(quint64, quint64)> progress;
    bool measureBoundingBox = false;

    bool buildScanFile(const TVXFileWriter& writer, QByteArray& bytes, QString* error) const;
    bool writeDataFile(const QString& path, QString* error);
};

bool TVXFileWriter::Private::buildScanFile(const TVXFileWriter& writer, QByteArray& bytes, QString* error) const
{
    const std::array<std::function<void(QDataStream&)>, 5> writers = {
        [&](QDataStream& stream) { scanInfo.write(stream); },
        [&](QDataStream& stream) { layerTable.write(stream); },
        [&](QDataStream& stream) { metaInfo.write(stream); },
        [&](QDataStream& stream) { referenceInfo.write(stream); },
        [&](QDataStream& stream) { sceneItems.write(stream, scene3D.get()); },
    };
    std::array<QByteArray, 5> sections;
    bytes.clear(); // a stream on a byte array writes over it from the start, without truncating
    for (std::size_t i = 0; i < sections.size(); ++i) {
        QDataStream stream(&sections[i], QIODevice::WriteOnly);
        prepareScanFileStream(stream);
        writers[i](stream);
        if (!streamOk(stream))
            return failWith(
                error,
                QStringLiteral("the %1 section holds what a scan file cannot store").arg(TVXFile::sectionName(i)));
    }

    QDataStream header(&bytes, QIODevice::WriteOnly);
    prepareScanFileStream(header);
    header << TVXFile::magic << TVXFile::latestFormatVersion << writer.writerMajor << writer.writerMinor
           << writer.writerPatch << TVXFile::streamVersion << TVXFile::fileBeginTag << TVXFile::directoryBeginTag;
    // The directory: five sections and the end entry, twelve bytes each.
    constexpr qint64 entryBytes = sizeof(quint32) + sizeof(qint64);
    qint64 offset = bytes.size() + qint64(sections.size() + 1) * entryBytes;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        header << TVXFile::sectionTags[i] << offset;
        offset += sections[i].size();
    }
    header << TVXFile::directoryEndTag << qint64(0);
    for (const QByteArray& section : sections)
        bytes.append(section);
    return true;
}

bool TVXFileWriter::Private::writeDataFile(const QString& path, QString* error)
{
    const quint32 columns = scanInfo.columns;
    const quint32 rows = scanInfo.rows;
    const quint32 tileSize = scanInfo.tileSize;
    const quint32 recordSize = scanInfo.recordSize();
    const quint64 total = quint64(columns) * rows;
    if (recordSize > 0 && total > 0 && tileSize == 0)
        return failWith(error, QStringLiteral("a tile size of 0 leaves the records no place"));
    constexpr quint64 addressable = (quint64(1) << 32) - 1;
    if (recordSize > 0 && total > addressable / recordSize)
        return failWith(error, QStringLiteral("the records would take %1 bytes; record positions reach 4 GiB only")
                                   .arg(double(total) * recordSize, 0, 'g', 12));

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failWith(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    QByteArray chunk;
    {
        QDataStream header(&chunk, QIODevice::WriteOnly);
        prepareScanFileStream(header);
        header << dataMagic << dataLayoutVersion << recordSize;
    }
    if (progress)
        progress(0, total);
    quint64 done = 0;
    quint64 reported = 0;
    const quint32 tilesX = recordSize == 0 ? 0 : scanInfo.tilesX();
    const quint32 tilesY = recordSize == 0 ? 0 : scanInfo.tilesY();
    const RecordLayout layout(scanInfo);
    std::vector<char> record(recordSize);
    chunk.reserve(qsizetype(2 * flushBytes));
    TVXFileTileDecoder decoder(scanInfo);
    constexpr double huge = std::numeric_limits<double>::max();
    Vector3d low(huge, huge, huge);
    Vector3d high(-huge, -huge, -huge);
    const auto extend = [&low, &high](const Vector3d& point, bool hasReturn, const unsigned char*) {
        if (!hasReturn)
            return;
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    };
    for (quint32 tileColumn = 0; tileColumn < tilesX; ++tileColumn) {
        const quint32 width = tileExtent(tileColumn, columns, tileSize);
        for (quint32 tileRow = 0; tileRow < tilesY; ++tileRow) {
            const quint32 height = tileExtent(tileRow, rows, tileSize);
            const qsizetype tileStart = chunk.size();
            for (quint32 column = tileColumn * tileSize; column < tileColumn * tileSize + width; ++column) {
                for (quint32 row = tileRow * tileSize; row < tileRow * tileSize + height; ++row) {
                    const TVXFileCell cell = source ? source(column, row) : TVXFileCell();
                    if (cell.distanceMm > maxMillimetres) {
                        file.cancelWriting();
                        return failWith(error, QStringLiteral("cell (%1, %2): %3 mm needs more than 24 bits")
                                                   .arg(column)
                                                   .arg(row)
                                                   .arg(cell.distanceMm));
                    }
                    encode(layout, cell, record.data());
                    chunk.append(record.data(), qsizetype(recordSize));
                }
            }
            if (measureBoundingBox)
                decoder.decodeEveryStep(tileColumn, tileRow, chunk.constData() + tileStart,
                                        std::size_t(chunk.size() - tileStart), 1, extend);
            done += quint64(width) * height;
            if (std::size_t(chunk.size()) >= flushBytes) {
                if (!writeAll(file, chunk, error))
                    return false;
                chunk.resize(0); // keeps the capacity
            }
            if (progress && done - reported >= progressCells) {
                progress(done, total);
                reported = done;
            }
        }
    }
    if (!writeAll(file, chunk, error))
        return false;
    if (!file.commit())
        return failWith(error, QStringLiteral("cannot write %1: %2").arg(path, file.errorString()));
    if (measureBoundingBox) {
        scanInfo.boundingBoxMin = low;
        scanInfo.boundingBoxMax = high;
    }
    if (progress)
        progress(total, total);
    return true;
}

TVXFileWriter::TVXFileWriter() : d(std::make_unique<Private>())
{}

TVXFileWriter::~TVXFileWriter() = default;

TVXFileScanInfo& TVXFileWriter::scanInfo()
{
    return d->scanInfo;
}

TVXFileLayerTable& TVXFileWriter::layerTable()
{
    return d->layerTable;
}

TVXFileMetaInfo& TVXFileWriter::metaInfo()
{
    return d->metaInfo;
}

TVXFileReferenceInfo& TVXFileWriter::referenceInfo()
{
    return d->referenceInfo;
}

std::vector<TVXSceneItemPtr>& TVXFileWriter::sceneItems2D()
{
    return d->sceneItems.items;
}

std::shared_ptr<ScanViewSceneGraph> TVXFileWriter::scene3D()
{
    return d->scene3D;
}

void TVXFileWriter::setCellSource(std::function<TVXFileCell(quint32, quint32)> source)
{
    d->source = std::move(source);
}

void TVXFileWriter::setProgress(std::function<void(quint64, quint64)> progress)
{
    d->progress = std::move(progress);
}

void TVXFileWriter::setMeasureBoundingBox(bool measure)
{
    d->measureBoundingBox = measure;
}

bool TVXFileWriter::write(const QString& scanPath, QString* error)
{
    // Built before the data too, so that a section the file cannot store fails before anything is written.
    QByteArray scanBytes;
    if (!d->buildScanFile(*this, scanBytes, error))
        return false;
    if (!d->writeDataFile(TVXFile::dataPathFor(scanPath), error))
        return false;
    if (d->measureBoundingBox && !d->buildScanFile(*this, scanBytes, error))
        return false;
    QSaveFile scanFile(scanPath);
    if (!scanFile.open(QIODevice::WriteOnly))
        return failWith(error, QStringLiteral("cannot write %1: %2").arg(scanPath, scanFile.errorString()));
    if (!writeAll(scanFile, scanBytes, error))
        return false;
    if (!scanFile.commit())
        return failWith(error, QStringLiteral("cannot write %1: %2").arg(scanPath, scanFile.errorString()));
    return true;
}

} // namespace TVX::CORE
