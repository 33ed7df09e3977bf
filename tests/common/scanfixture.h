#pragma once

// Scan test data for every folder: streams set up as the scan and project files use them, small
// scans written with the project's own writer, section bytes, and scan files put together by hand
// from the format's table for what the writer cannot produce.

#include "fileio/tvxfile.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilesceneitems.h"
#include "fileio/tvxfilewriter.h"
#include "scene/tvxsreferencesphere.h"

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <array>
#include <cmath>
#include <functional>
#include <ios>
#include <vector>

namespace TVX::TEST {

// Stream version 12 (Qt 4.6), big-endian, 8-byte doubles: the settings of scan and project files.
inline QDataStream& setUp(QDataStream& stream)
{
    stream.setVersion(12);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    return stream;
}

// Bytes written by `fill` on such a stream.
inline QByteArray streamBytes(const std::function<void(QDataStream&)>& fill)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    fill(setUp(stream));
    return bytes;
}

template<typename... Values>
inline QByteArray bytesOf(const Values&... values)
{
    return streamBytes([&](QDataStream& stream) { (stream << ... << values); });
}

// The bytes a section's write() produces.
template<typename Section>
QByteArray sectionBytes(const Section& section)
{
    return streamBytes([&](QDataStream& stream) { section.write(stream); });
}

// A read stream over `bytes`; `buffer` must outlive it.
inline void openReadStream(QBuffer& buffer, QDataStream& stream, const QByteArray& bytes)
{
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    stream.setDevice(&buffer);
    setUp(stream);
}

// What reading `section` from `bytes` gives: "read", "refused", or the read error's message.
// `consumed` receives the bytes the read took.
template<typename Section>
QString readSection(Section& section, const QByteArray& bytes, qint64* consumed = nullptr)
{
    QBuffer buffer;
    QDataStream stream;
    openReadStream(buffer, stream, bytes);
    QString outcome;
    try {
        outcome = section.read(stream) ? QStringLiteral("read") : QStringLiteral("refused");
    } catch (const std::ios_base::failure& failure) {
        outcome = QString::fromLatin1(failure.what());
    }
    if (consumed)
        *consumed = buffer.pos();
    return outcome;
}

// Which channels a scan declares.
enum ChannelSet : int { NoChannel = 0, DistanceChannel = 1, IntensityChannel = 2, ColourChannel = 4, AllChannels = 7 };

// Cells whose colour, intensity and distance follow from column and row, so that a test can work
// out what any cell must show. No cell is without return and none has a sub-cell offset.
inline CORE::TVXFileCell testCell(quint32 column, quint32 row)
{
    CORE::TVXFileCell cell;
    cell.distanceMm = 1000 + 7 * column + 3 * row;
    cell.intensity = quint8((column + 2 * row) % 256);
    cell.red = quint8((5 * column) % 256);
    cell.green = quint8((11 * row) % 256);
    cell.blue = 200;
    return cell;
}

// Cells for the format tests: every channel derives from column and row, offsets cover both
// signs, and the cells with (3·column + row) mod 7 = 3 have no return (one at least in every tile
// of 4 × 4 or of 2 × 3).
inline CORE::TVXFileCell patternCell(quint32 column, quint32 row)
{
    CORE::TVXFileCell cell;
    cell.dx = qint8(int((column * 37 + row * 11) % 255) - 127);
    cell.dy = qint8(int((column * 13 + row * 29) % 255) - 127);
    cell.distanceMm = (column * 3 + row) % 7 == 3 ? 0 : 1000 + column * 100 + row;
    cell.intensity = quint8(column * 3 + row);
    cell.red = quint8(column);
    cell.green = quint8(row);
    cell.blue = quint8(column ^ row);
    return cell;
}

// A test grid over the full circle and −π/4 to +π/4 vertically, with the channels of `channels`
// (parameters 0, 8, 24).
inline void setGrid(CORE::TVXFileScanInfo& info, quint32 columns, quint32 rows, quint32 tileSize, int channels)
{
    info.columns = columns;
    info.rows = rows;
    info.tileSize = tileSize;
    info.horizontalMin = 0.0;
    info.horizontalMax = 2 * M_PI;
    info.verticalMin = -M_PI / 4;
    info.verticalMax = M_PI / 4;
    info.channels.clear();
    if (channels & DistanceChannel)
        info.channels.push_back({CORE::TVXFileScanInfo::Distance, 0});
    if (channels & IntensityChannel)
        info.channels.push_back({CORE::TVXFileScanInfo::Intensity, 8});
    if (channels & ColourChannel)
        info.channels.push_back({CORE::TVXFileScanInfo::Colour, 24});
}

struct TestScan {
    quint32 columns = 40;
    quint32 rows = 30;
    quint32 tileSize = 8; // small, so that a lens picture spans several tiles
    bool intensity = true;
    bool colour = true;
    std::array<double, 16> transformation{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    std::function<CORE::TVXFileCell(quint32, quint32)> cells = testCell;
    bool distance = true; // false only for the format tests: such a scan has no points
};

// Writes the scan pair with one reference sphere "S1" at (1.25, −2.5, 0.75), radius 0.0725.
inline bool writeTestScan(const QString& path, const TestScan& scan, QString* error = nullptr)
{
    CORE::TVXFileWriter writer;
    setGrid(writer.scanInfo(), scan.columns, scan.rows, scan.tileSize,
            (scan.distance ? DistanceChannel : 0) | (scan.intensity ? IntensityChannel : 0)
                | (scan.colour ? ColourChannel : 0));
    writer.scanInfo().transformation = scan.transformation;
    writer.referenceInfo().appendObject(std::make_shared<CORE::TVXSReferenceSphere>(
        QStringLiteral("S1"), CORE::TVXSReferencePoint::Values{1.25, -2.5, 0.75, 0.0725}));
    writer.setCellSource(scan.cells);
    return writer.write(path, error);
}

// A scan of pattern cells, `folder`/`name`.tvx; its path, or empty when it could not be written.
inline QString writePatternScan(const QString& folder, const QString& name, quint32 columns, quint32 rows,
                                quint32 tileSize, int channels)
{
    TestScan scan;
    scan.columns = columns;
    scan.rows = rows;
    scan.tileSize = tileSize;
    scan.distance = channels & DistanceChannel;
    scan.intensity = channels & IntensityChannel;
    scan.colour = channels & ColourChannel;
    scan.cells = patternCell;
    const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".tvx");
    return writeTestScan(path, scan) ? path : QString();
}

// A scan file put together field by field from the format's table. `writerVersion` is written as
// it stands (4 bytes for format versions 0 and 1, 12 for version 2); `extraEntries` (tag, offset)
// come before the section entries; the sections follow the directory at computed offsets.
struct ScanFileBytes {
    quint32 magic = 0x54565846; // "TVXF"
    quint32 formatVersion = 2;
    QByteArray writerVersion = bytesOf(quint32(2021), quint32(1), quint32(151));
    quint32 streamVersion = 12;
    quint32 fileBeginTag = 0x100000;
    quint32 directoryBeginTag = 0x110000;
    std::vector<std::pair<quint32, qint64>> extraEntries;
    std::vector<QByteArray> sections{sectionBytes(CORE::TVXFileScanInfo()), sectionBytes(CORE::TVXFileLayerTable()),
                                     sectionBytes(CORE::TVXFileMetaInfo()), sectionBytes(CORE::TVXFileReferenceInfo()),
                                     sectionBytes(CORE::TVXFileSceneItems())};
    std::vector<bool> omitSection = std::vector<bool>(5, false);

    QByteArray build() const
    {
        const QByteArray head = bytesOf(magic, formatVersion) + writerVersion
                                + bytesOf(streamVersion, fileBeginTag, directoryBeginTag);
        const qint64 entries = qint64(extraEntries.size()) + 5 + 1;
        qint64 offset = head.size() + entries * 12;
        QByteArray directory;
        for (const auto& [tag, value] : extraEntries)
            directory += bytesOf(tag, value);
        for (std::size_t i = 0; i < 5; ++i) {
            directory += bytesOf(quint32(0x110001 + i), omitSection[i] ? qint64(0) : offset);
            offset += sections[i].size();
        }
        QByteArray bytes = head + directory + bytesOf(quint32(0x11FFFF), qint64(0));
        for (const QByteArray& section : sections)
            bytes += section;
        return bytes;
    }
};

// Reads a scan file's header from memory; false when it was rejected, and `thrown` holds the read
// error's message when one was thrown.
inline bool readHeaderBytes(const QByteArray& bytes, CORE::TVXFile& file, QString* thrown = nullptr)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    try {
        return file.readHeader(buffer);
    } catch (const std::ios_base::failure& failure) {
        if (thrown)
            *thrown = QString::fromLatin1(failure.what());
        return false;
    }
}

} // namespace TVX::TEST
