#pragma once

// Helpers shared by the scan file tests: small scans made by the project's own writer, section
// bytes, and hand-built scan files for the cases the writer cannot produce.

#include "fileio/sectionstream.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilesceneitems.h"
#include "fileio/tvxfilewriter.h"

#include <QBuffer>
#include <QByteArray>
#include <QDataStream>
#include <QFile>
#include <QString>

#include <cmath>
#include <functional>
#include <vector>

namespace TVX::TEST {

using namespace TVX::CORE;

// Which channels a scan declares.
enum ChannelSet : int { NoChannel = 0, DistanceChannel = 1, IntensityChannel = 2, ColourChannel = 4 };

inline void setGrid(TVXFileScanInfo& info, quint32 columns, quint32 rows, quint32 tileSize, int channels)
{
    info.columns = columns;
    info.rows = rows;
    info.tileSize = tileSize;
    // A half turn across, ±45° up and down.
    info.horizontalMin = 0.0;
    info.horizontalMax = M_PI;
    info.verticalMin = -M_PI / 4;
    info.verticalMax = M_PI / 4;
    info.channels.clear();
    if (channels & DistanceChannel)
        info.channels.push_back({TVXFileScanInfo::Distance, 0});
    if (channels & IntensityChannel)
        info.channels.push_back({TVXFileScanInfo::Intensity, 8});
    if (channels & ColourChannel)
        info.channels.push_back({TVXFileScanInfo::Colour, 24});
}

// A cell that tells where it is: every channel derives from column and row, and the cells with
// (3·column + row) mod 7 = 3 have no return (at least one in every tile of 4 × 4 or of 2 × 3).
inline TVXFileCell patternCell(quint32 column, quint32 row)
{
    TVXFileCell cell;
    cell.dx = qint8(int((column * 37 + row * 11) % 255) - 127);
    cell.dy = qint8(int((column * 13 + row * 29) % 255) - 127);
    cell.distanceMm = (column * 3 + row) % 7 == 3 ? 0 : 1000 + column * 100 + row;
    cell.intensity = quint8(column * 3 + row);
    cell.red = quint8(column);
    cell.green = quint8(row);
    cell.blue = quint8(column ^ row);
    return cell;
}

// Writes a pattern scan and returns its path; empty on failure (with the reason in `error`).
inline QString writePatternScan(const QString& folder, const QString& name, quint32 columns, quint32 rows,
                                quint32 tileSize, int channels, QString* error = nullptr)
{
    TVXFileWriter writer;
    setGrid(writer.scanInfo(), columns, rows, tileSize, channels);
    writer.setCellSource(patternCell);
    const QString path = folder + QLatin1Char('/') + name + QStringLiteral(".tvx");
    return writer.write(path, error) ? path : QString();
}

// The bytes a section's write() produces.
template <typename Section>
QByteArray sectionBytes(const Section& section)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    prepareScanFileStream(stream);
    section.write(stream);
    return bytes;
}

// Bytes written by `fill` on a scan file stream.
inline QByteArray streamBytes(const std::function<void(QDataStream&)>& fill)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    prepareScanFileStream(stream);
    fill(stream);
    return bytes;
}

// A stream over `bytes` for reading a section; `buffer` must outlive it.
inline void openReadStream(QBuffer& buffer, QDataStream& stream, const QByteArray& bytes)
{
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    stream.setDevice(&buffer);
    prepareScanFileStream(stream);
}

// What reading `section` from `bytes` gives: "read", "refused", or the read error's message.
// `consumed` receives the bytes the read took.
template <typename Section>
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

// The five default sections, as a writer with nothing set would store them.
inline std::vector<QByteArray> defaultSections()
{
    return {sectionBytes(TVXFileScanInfo()), sectionBytes(TVXFileLayerTable()), sectionBytes(TVXFileMetaInfo()),
            sectionBytes(TVXFileReferenceInfo()), sectionBytes(TVXFileSceneItems())};
}

// A hand-built scan file. `writerVersion` is written as it stands (4 bytes for format versions 0
// and 1, 12 for version 2); `extraEntries` (tag, offset) come before the section entries; the
// sections follow the directory and their offsets are computed.
struct ScanFileBytes {
    quint32 magic = TVXFile::magic;
    quint32 formatVersion = 2;
    QByteArray writerVersion = streamBytes([](QDataStream& s) { s << quint32(2021) << quint32(1) << quint32(151); });
    quint32 streamVersion = 12;
    quint32 fileBeginTag = TVXFile::fileBeginTag;
    quint32 directoryBeginTag = TVXFile::directoryBeginTag;
    std::vector<std::pair<quint32, qint64>> extraEntries;
    std::vector<QByteArray> sections = defaultSections();
    std::vector<bool> omitSection = std::vector<bool>(5, false);

    QByteArray build() const
    {
        QByteArray head = streamBytes([&](QDataStream& s) {
            s << magic << formatVersion;
            s.writeRawData(writerVersion.constData(), int(writerVersion.size()));
            s << streamVersion << fileBeginTag << directoryBeginTag;
        });
        const qint64 entries = qint64(extraEntries.size()) + 5 + 1;
        qint64 offset = head.size() + entries * 12;
        QByteArray directory = streamBytes([&](QDataStream& s) {
            for (const auto& [tag, value] : extraEntries)
                s << tag << value;
            for (std::size_t i = 0; i < 5; ++i) {
                s << TVXFile::sectionTags[i] << (omitSection[i] ? qint64(0) : offset);
                offset += sections[i].size();
            }
            s << TVXFile::directoryEndTag << qint64(0);
        });
        QByteArray bytes = head + directory;
        for (const QByteArray& section : sections)
            bytes += section;
        return bytes;
    }
};

// Reads a scan file's header from memory; false when it was rejected, and `thrown` holds the read
// error's message when one was thrown.
inline bool readHeaderBytes(const QByteArray& bytes, TVXFile& file, QString* thrown = nullptr)
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
