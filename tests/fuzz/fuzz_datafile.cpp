// The point data file. A scan file pair is written once with the project's writer; each input then
// gives the scan a new geometry from its first 44 bytes, big-endian: columns and rows (u16 each),
// tile size (u32), horizontalMin, horizontalMax, verticalMin, verticalMax (doubles), and the types
// of the four channel entries (u8 each). The rest of the input is the data file. Every tile is read
// through TVXFile (the first and last 32 tile columns and rows of larger grids): each read must
// refuse, or deliver a tile inside the grid that agrees with the single-cell read of its last cell.
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtEndian>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ios>
#include <memory>

namespace {

using namespace TVX::CORE;

constexpr size_t geometrySize = 2 + 2 + 4 + 4 * 8 + 4;
constexpr quint32 edgeTiles = 32;

QByteArray sectionBytes(const TVXFileScanInfo& info)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(12);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    info.write(stream);
    return bytes;
}

// The written pair; the scan information section keeps its length whatever the geometry, so each
// input's section replaces it in place.
struct ScanTemplate {
    QTemporaryDir dir;
    QString scanPath = dir.filePath(QStringLiteral("fuzz.tvx"));
    QString dataPath = TVXFile::dataPathFor(scanPath);
    TVXFileScanInfo info;
    QByteArray scanFile;
    qsizetype infoAt = -1;
};

const ScanTemplate& scanTemplate()
{
    static const std::unique_ptr<ScanTemplate> made = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("tvx.*=false"));
        auto t = std::make_unique<ScanTemplate>();
        TVXFileWriter writer;
        TVXFileScanInfo& info = writer.scanInfo();
        info.columns = 10;
        info.rows = 7;
        info.tileSize = 4;
        info.horizontalMax = 2 * M_PI;
        info.verticalMin = -M_PI / 4;
        info.verticalMax = M_PI / 4;
        info.channels = {
            {TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 0}, {TVXFileScanInfo::Colour, 0}, {0, 0}};
        QFile scan(t->scanPath);
        if (!writer.write(t->scanPath) || !scan.open(QIODevice::ReadOnly))
            std::abort();
        t->info = info;
        t->scanFile = scan.readAll();
        t->infoAt = t->scanFile.indexOf(sectionBytes(info));
        if (t->infoAt < 0)
            std::abort();
        return t;
    }();
    return *made;
}

// The next tile index to read: all of them up to 2 × edgeTiles, else only both ends.
quint32 nextTile(quint32 index, quint32 count)
{
    return index + 1 == edgeTiles && count > 2 * edgeTiles ? count - edgeTiles : index + 1;
}

double doubleAt(const uint8_t* data)
{
    const quint64 bits = qFromBigEndian<quint64>(data);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const ScanTemplate& t = scanTemplate();
    if (size < geometrySize)
        return 0;
    TVXFileScanInfo info = t.info;
    info.columns = qFromBigEndian<quint16>(data);
    info.rows = qFromBigEndian<quint16>(data + 2);
    info.tileSize = qFromBigEndian<quint32>(data + 4);
    info.horizontalMin = doubleAt(data + 8);
    info.horizontalMax = doubleAt(data + 16);
    info.verticalMin = doubleAt(data + 24);
    info.verticalMax = doubleAt(data + 32);
    for (std::size_t i = 0; i < 4; ++i)
        info.channels[i].type = data[40 + i];
    const QByteArray section = sectionBytes(info);
    QByteArray scanFile = t.scanFile;
    scanFile.replace(t.infoAt, section.size(), section);
    if (scanFile.size() != t.scanFile.size())
        std::abort();

    QFile dataFile(t.dataPath);
    const auto records = qint64(size - geometrySize);
    if (!dataFile.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || dataFile.write(reinterpret_cast<const char*>(data + geometrySize), records) != records)
        std::abort();
    dataFile.close();

    TVXFile file(t.scanPath);
    QBuffer buffer(&scanFile);
    buffer.open(QIODevice::ReadOnly);
    try {
        if (!file.readHeader(buffer))
            return 0;
    } catch (const std::ios_base::failure&) {
        return 0;
    }
    const TVXFileScanInfo& read = file.scanInfo();
    const quint32 tilesX = read.tilesX();
    const quint32 tilesY = read.tilesY();
    file.openData();
    TVXFileTile tile;
    for (quint32 tx = 0; tx < tilesX; tx = nextTile(tx, tilesX)) {
        for (quint32 ty = 0; ty < tilesY; ty = nextTile(ty, tilesY)) {
            if (!file.readTile(tx, ty, tile))
                continue;
            const std::size_t cells = std::size_t(tile.width()) * tile.height();
            double metres = -1;
            if (tile.firstColumn != tx * read.tileSize || tile.firstRow != ty * read.tileSize
                || tile.lastColumn >= read.columns || tile.lastRow >= read.rows || tile.points.size() != cells
                || tile.distances.size() != cells || !file.readDistance(tile.lastColumn, tile.lastRow, metres)
                || metres != tile.distances.back())
                std::abort();
        }
    }
    file.closeData();
    return 0;
}
