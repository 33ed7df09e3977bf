#pragma once

// Small PTX and E57 writers for tests and benchmarks: they turn points (usually read from scan
// files made by the project's own writer) into the files that the importer reads. Header-only.
#include "fileio/crc32c.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletile.h"
#include "fileio/tvxfilewriter.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QtEndian>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <vector>

namespace TVX::TEST {

struct ExportPoint {
    double x{0}, y{0}, z{0}; // scan frame, metres
    bool valid{true};         // false: written as a cell without return
    double intensity{0};      // 0 … 1
    quint8 red{0}, green{0}, blue{0};
};

struct ExportScan {
    QString name;
    // Gridded: columns × rows points, index = column × rows + row (column by column). Without a
    // grid (columns 0): `count` points.
    quint32 columns{0};
    quint32 rows{0};
    quint64 count{0};
    bool colour{false};
    // Pose as scan information stores it: rotation row by row in m[0..2], m[4..6], m[8..10],
    // translation m[3], m[7], m[11].
    std::array<double, 16> transformation{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    std::function<ExportPoint(quint64 index)> point;
    QByteArray panorama; // E57 only: an encoded JPEG written as the scan's spherical image

    quint64 size() const { return columns ? quint64(columns) * rows : count; }
};

// A scan file made by the project's writer to be exported: a partial panorama (azimuth 0.3 to 2.0,
// elevation −0.5 to 0.6 rad) whose cells lie up to 60 offset units off their centres, 2 to 12 m
// away, every seventh cell without return, intensity and colour from a hash of the cell.
inline bool writeSourceScan(const QString& path, quint32 columns, quint32 rows, quint64 seed = 1,
                            const std::array<double, 16>& pose = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1})
{
    CORE::TVXFileWriter writer;
    CORE::TVXFileScanInfo& info = writer.scanInfo();
    info.columns = columns;
    info.rows = rows;
    info.horizontalMin = 0.3;
    info.horizontalMax = 2.0;
    info.verticalMin = -0.5;
    info.verticalMax = 0.6;
    info.transformation = pose;
    info.text = QStringLiteral("source");
    info.channels = {{CORE::TVXFileScanInfo::Distance, 0}, {CORE::TVXFileScanInfo::Intensity, 0},
                     {CORE::TVXFileScanInfo::Colour, 0}};
    writer.setCellSource([seed](quint32 column, quint32 row) {
        quint64 h = (quint64(column) * 0x9E3779B97F4A7C15ull) ^ (quint64(row) * 0xC2B2AE3D27D4EB4Full) ^ seed;
        const auto next = [&h] {
            h ^= h >> 31;
            h *= 0xBF58476D1CE4E5B9ull;
            h ^= h >> 29;
            return h;
        };
        CORE::TVXFileCell cell;
        if ((quint64(column) * 31 + row) % 7 == 3)
            return cell;
        cell.dx = qint8(int(next() % 121) - 60);
        cell.dy = qint8(int(next() % 121) - 60);
        cell.distanceMm = 2000 + quint32(next() % 10000);
        cell.intensity = quint8(next());
        cell.red = quint8(next());
        cell.green = quint8(next());
        cell.blue = quint8(next());
        return cell;
    });
    return writer.write(path);
}

// A scan file as points to export, column by column; with `mirrorColumns` / `mirrorRows` the
// exported grid runs the other way round (export column c is the scan's column columns − 1 − c).
// Tiles are read one strip of columns at a time, so that large scans need little memory.
inline ExportScan exportOf(const QString& scanPath, bool mirrorColumns = false, bool mirrorRows = false)
{
    auto file = std::make_shared<CORE::TVXFile>(scanPath);
    if (!file->open() || !file->readHeader())
        return {};
    const CORE::TVXFileScanInfo& info = file->scanInfo();
    ExportScan scan;
    scan.name = info.text;
    scan.columns = info.columns;
    scan.rows = info.rows;
    scan.colour = info.hasColour();
    scan.transformation = info.transformation;
    struct Strip {
        qint64 index{-1};
        std::vector<CORE::TVXFileTile> tiles;
    };
    auto strip = std::make_shared<Strip>();
    const quint32 columns = info.columns, rows = info.rows, tileSize = info.tileSize;
    const bool hasIntensity = info.hasIntensity();
    scan.point = [=](quint64 index) {
        const quint32 exportColumn = quint32(index / rows), exportRow = quint32(index % rows);
        const quint32 column = mirrorColumns ? columns - 1 - exportColumn : exportColumn;
        const quint32 row = mirrorRows ? rows - 1 - exportRow : exportRow;
        if (strip->index != qint64(column / tileSize)) {
            strip->index = column / tileSize;
            strip->tiles.assign(file->scanInfo().tilesY(), CORE::TVXFileTile());
            file->openData();
            for (quint32 t = 0; t < strip->tiles.size(); ++t)
                file->readTile(quint32(strip->index), t, strip->tiles[t]);
            file->closeData();
        }
        const CORE::TVXFileTile& tile = strip->tiles[row / tileSize];
        const std::size_t i = std::size_t(column - tile.firstColumn) * (tile.lastRow - tile.firstRow + 1) + (row - tile.firstRow);
        ExportPoint p;
        p.x = tile.points[i].x;
        p.y = tile.points[i].y;
        p.z = tile.points[i].z;
        p.valid = tile.distances[i] != 0;
        p.intensity = hasIntensity ? tile.intensities[i] / 255.0 : 0.0;
        if (!tile.colours.empty()) {
            p.red = tile.colours[3 * i];
            p.green = tile.colours[3 * i + 1];
            p.blue = tile.colours[3 * i + 2];
        }
        return p;
    };
    return scan;
}

// PTX: header, then "x y z i" or "x y z i r g b" per point with the intensity as 0 … 1.
inline bool writePtx(QIODevice& out, const std::vector<ExportScan>& scans)
{
    QByteArray text;
    const auto flush = [&](bool force) {
        if (!force && text.size() < (1 << 20))
            return true;
        const bool ok = out.write(text) == text.size();
        text.clear();
        return ok;
    };
    char line[160];
    for (const ExportScan& scan : scans) {
        const auto& m = scan.transformation;
        // Row vectors: the matrix is the rotation transposed, the translation in its last row.
        std::snprintf(line, sizeof line, "%u\n%u\n%.9g %.9g %.9g\n", scan.columns, scan.rows, m[3], m[7], m[11]);
        text += line;
        for (int i = 0; i < 3; ++i) {
            std::snprintf(line, sizeof line, "%.12g %.12g %.12g\n", m[std::size_t(i)], m[std::size_t(4 + i)],
                          m[std::size_t(8 + i)]);
            text += line;
        }
        for (int i = 0; i < 3; ++i) {
            std::snprintf(line, sizeof line, "%.12g %.12g %.12g 0\n", m[std::size_t(i)], m[std::size_t(4 + i)],
                          m[std::size_t(8 + i)]);
            text += line;
        }
        std::snprintf(line, sizeof line, "%.12g %.12g %.12g 1\n", m[3], m[7], m[11]);
        text += line;
        for (quint64 i = 0; i < scan.size(); ++i) {
            const ExportPoint p = scan.point(i);
            const double x = p.valid ? p.x : 0, y = p.valid ? p.y : 0, z = p.valid ? p.z : 0;
            int n = std::snprintf(line, sizeof line, "%.6f %.6f %.6f %.6f", x, y, z, p.intensity);
            if (scan.colour)
                n += std::snprintf(line + n, sizeof line - std::size_t(n), " %u %u %u", p.red, p.green, p.blue);
            line[n++] = '\n';
            text.append(line, n);
            if (!flush(false))
                return false;
        }
    }
    return flush(true);
}

struct E57Options {
    enum Coordinates { CartesianDouble, CartesianSingle, CartesianScaled, Spherical };
    Coordinates coordinates{CartesianScaled};
    double scale{0.0001};     // of scaled integers, metres
    bool indexes{true};       // rowIndex and columnIndex for gridded scans
    quint64 pageSize{1024};
    quint32 recordsPerPacket{1024};
    bool otherPackets{false}; // an empty packet before each data packet, an index packet at the end
    // For tests of bad files: a change to the XML, and bytes added to each section's length.
    std::function<QString(const QString&)> editXml;
    qint64 sectionLengthChange{0};
};

// The logical byte stream of an E57 file, cut into checked pages as it goes; patch() changes bytes
// already written (their pages are read back and checked again).
class E57PageWriter
{
public:
    E57PageWriter(QIODevice& out, quint64 pageSize) : m_out(out), m_pageSize(pageSize) {}

    quint64 logical() const { return m_written * (m_pageSize - 4) + quint64(m_page.size()); }
    quint64 physical() const { return m_written * m_pageSize + quint64(m_page.size()); }
    quint64 physicalOf(quint64 logical) const
    {
        return logical / (m_pageSize - 4) * m_pageSize + logical % (m_pageSize - 4);
    }

    void append(const char* data, std::size_t size)
    {
        while (size > 0) {
            const std::size_t take = std::min<std::size_t>(size, std::size_t(m_pageSize - 4) - std::size_t(m_page.size()));
            m_page.append(data, qsizetype(take));
            data += take;
            size -= take;
            if (quint64(m_page.size()) == m_pageSize - 4)
                flushPage();
        }
    }
    void append(const QByteArray& bytes) { append(bytes.constData(), std::size_t(bytes.size())); }
    void pad(quint64 multiple)
    {
        while (logical() % multiple)
            append("\0", 1);
    }
    // Ends the last page with zeros.
    void finish()
    {
        if (!m_page.isEmpty()) {
            m_page.append(QByteArray(qsizetype(m_pageSize - 4) - m_page.size(), '\0'));
            flushPage();
        }
    }
    void patch(quint64 logicalOffset, const QByteArray& bytes)
    {
        for (qsizetype i = 0; i < bytes.size();) {
            const quint64 at = logicalOffset + quint64(i);
            const quint64 page = at / (m_pageSize - 4);
            if (page == m_written) { // still being filled
                m_page[qsizetype(at % (m_pageSize - 4))] = bytes[i++];
                continue;
            }
            QByteArray data(qsizetype(m_pageSize), '\0');
            m_out.seek(qint64(page * m_pageSize));
            m_out.read(data.data(), qint64(m_pageSize));
            for (quint64 k = at % (m_pageSize - 4); k < m_pageSize - 4 && i < bytes.size(); ++k, ++i)
                data[qsizetype(k)] = bytes[i];
            qToBigEndian(CORE::crc32c(data.constData(), std::size_t(m_pageSize - 4)), data.data() + m_pageSize - 4);
            m_out.seek(qint64(page * m_pageSize));
            m_out.write(data);
            m_out.seek(qint64(m_written * m_pageSize));
        }
    }

private:
    void flushPage()
    {
        char crc[4];
        qToBigEndian(CORE::crc32c(m_page.constData(), std::size_t(m_page.size())), crc);
        m_page.append(crc, 4);
        m_out.write(m_page);
        m_page.clear();
        ++m_written;
    }

    QIODevice& m_out;
    quint64 m_pageSize;
    quint64 m_written{0};
    QByteArray m_page;
};

// Packs unsigned values of `bits` bits from the least significant bit up into bytes.
class BitPacker
{
public:
    void put(quint64 value, int bits)
    {
        for (int done = 0; done < bits;) {
            const int take = std::min(bits - done, 64 - m_bits); // m_bits < 8 here
            const quint64 part = take == 64 ? value : (value >> done) & ((quint64(1) << take) - 1);
            m_word |= part << m_bits;
            m_bits += take;
            done += take;
            while (m_bits >= 8) {
                m_bytes.append(char(m_word & 0xFF));
                m_word >>= 8;
                m_bits -= 8;
            }
        }
    }
    void putDouble(double v) { char b[8]; qToLittleEndian(v, b); m_bytes.append(b, 8); }
    void putFloat(float v) { char b[4]; qToLittleEndian(v, b); m_bytes.append(b, 4); }
    // The whole bytes made so far; with `all` also the last bits, padded with zeros.
    QByteArray take(bool all)
    {
        if (all && m_bits > 0) {
            m_bytes.append(char(m_word & 0xFF));
            m_word = 0;
            m_bits = 0;
        }
        QByteArray out;
        out.swap(m_bytes);
        return out;
    }

private:
    QByteArray m_bytes;
    quint64 m_word{0};
    int m_bits{0};
};

inline int bitsFor(quint64 range)
{
    int bits = 0;
    for (; range; range >>= 1)
        ++bits;
    return bits;
}

inline bool writeE57(QIODevice& out, const std::vector<ExportScan>& scans, const E57Options& options = {})
{
    E57PageWriter pages(out, options.pageSize);
    pages.append(QByteArray(48, '\0')); // the file header, patched at the end
    QString data3D, images2D;
    for (std::size_t s = 0; s < scans.size(); ++s) {
        const ExportScan& scan = scans[s];
        const bool indexes = options.indexes && scan.columns > 0;
        const qint64 range = 1'000'000; // scaled coordinates: ±100 m at 0.1 mm
        struct Field {
            QString xml;
            int kind; // 0 double, 1 single, 2 integer
            qint64 minimum, maximum;
        };
        std::vector<Field> fields;
        const auto coordinate = [&](const char* name) {
            if (options.coordinates == E57Options::CartesianScaled)
                fields.push_back({QStringLiteral("<%1 type=\"ScaledInteger\" minimum=\"%2\" maximum=\"%3\" scale=\"%4\" offset=\"0\"/>")
                                      .arg(QLatin1String(name)).arg(-range).arg(range).arg(options.scale, 0, 'g', 17),
                                  2, -range, range});
            else if (options.coordinates == E57Options::CartesianSingle)
                fields.push_back({QStringLiteral("<%1 type=\"Float\" precision=\"single\"/>").arg(QLatin1String(name)), 1, 0, 0});
            else
                fields.push_back({QStringLiteral("<%1 type=\"Float\"/>").arg(QLatin1String(name)), 0, 0, 0});
        };
        const bool spherical = options.coordinates == E57Options::Spherical;
        for (const char* name : spherical ? std::array<const char*, 3>{"sphericalRange", "sphericalAzimuth", "sphericalElevation"}
                                          : std::array<const char*, 3>{"cartesianX", "cartesianY", "cartesianZ"})
            coordinate(name);
        const auto integerField = [&](const QString& name, qint64 minimum, qint64 maximum) {
            fields.push_back({QStringLiteral("<%1 type=\"Integer\" minimum=\"%2\" maximum=\"%3\"/>").arg(name).arg(minimum).arg(maximum),
                              2, minimum, maximum});
        };
        integerField(spherical ? QStringLiteral("sphericalInvalidState") : QStringLiteral("cartesianInvalidState"), 0, 2);
        if (indexes) {
            integerField(QStringLiteral("rowIndex"), 0, scan.rows - 1);
            integerField(QStringLiteral("columnIndex"), 0, scan.columns - 1);
        }
        fields.push_back({QStringLiteral("<intensity type=\"Float\" precision=\"single\" minimum=\"0\" maximum=\"1\"/>"), 1, 0, 0});
        if (scan.colour) {
            integerField(QStringLiteral("colorRed"), 0, 255);
            integerField(QStringLiteral("colorGreen"), 0, 255);
            integerField(QStringLiteral("colorBlue"), 0, 255);
        }

        pages.pad(4);
        const quint64 sectionStart = pages.logical();
        pages.append(QByteArray(32, '\0')); // section header, patched below
        const quint64 dataStart = pages.logical();
        std::vector<BitPacker> packers(fields.size());
        const quint64 total = scan.size();
        for (quint64 first = 0; first < total || first == 0; first += options.recordsPerPacket) {
            const quint64 last = std::min<quint64>(total, first + options.recordsPerPacket);
            for (quint64 i = first; i < last; ++i) {
                const ExportPoint p = scan.point(i);
                std::vector<double> values;
                // A point without return keeps numbers that only its invalid state makes void.
                const double x = p.valid ? p.x : 1, y = p.valid ? p.y : 2, z = p.valid ? p.z : 3;
                if (spherical) {
                    const double r = std::sqrt(x * x + y * y + z * z);
                    values = {r, std::atan2(y, x), std::asin(z / r)};
                } else {
                    values = {x, y, z};
                }
                values.push_back(p.valid ? 0 : 2);
                if (indexes) {
                    values.push_back(double(i % scan.rows));
                    values.push_back(double(i / scan.rows));
                }
                values.push_back(p.intensity);
                if (scan.colour) {
                    values.push_back(p.red);
                    values.push_back(p.green);
                    values.push_back(p.blue);
                }
                for (std::size_t f = 0; f < fields.size(); ++f) {
                    const Field& field = fields[f];
                    if (field.kind == 0) {
                        packers[f].putDouble(values[f]);
                    } else if (field.kind == 1) {
                        packers[f].putFloat(float(values[f]));
                    } else {
                        const bool scaled = f < 3;
                        const qint64 raw = scaled ? qint64(std::llround(values[f] / options.scale)) : qint64(values[f]);
                        packers[f].put(quint64(raw - field.minimum), bitsFor(quint64(field.maximum - field.minimum)));
                    }
                }
            }
            const bool lastPacket = last >= total;
            std::vector<QByteArray> streams;
            qsizetype body = 0;
            for (BitPacker& packer : packers) {
                streams.push_back(packer.take(lastPacket));
                body += streams.back().size();
            }
            QByteArray packet(6 + 2 * qsizetype(fields.size()), '\0');
            packet[0] = 1;
            qToLittleEndian(quint16(fields.size()), packet.data() + 4);
            for (std::size_t f = 0; f < streams.size(); ++f)
                qToLittleEndian(quint16(streams[f].size()), packet.data() + 6 + 2 * f);
            for (const QByteArray& stream : streams)
                packet += stream;
            while (packet.size() % 4)
                packet.append('\0');
            qToLittleEndian(quint16(packet.size() - 1), packet.data() + 2);
            if (options.otherPackets) {
                const char empty[8] = {2, 0, 7, 0, 0, 0, 0, 0}; // type, reserved, length − 1, padding
                pages.append(empty, sizeof empty);
            }
            pages.append(packet);
            if (lastPacket)
                break;
        }
        if (options.otherPackets) { // one entry: record 0 in the first data packet
            QByteArray index(32, '\0');
            index[0] = 0;
            qToLittleEndian(quint16(index.size() - 1), index.data() + 2);
            qToLittleEndian(quint16(1), index.data() + 4);
            qToLittleEndian(pages.physicalOf(dataStart), index.data() + 24);
            pages.append(index);
        }
        QByteArray header(32, '\0');
        header[0] = 1;
        qToLittleEndian(quint64(qint64(pages.logical() - sectionStart) + options.sectionLengthChange), header.data() + 8);
        qToLittleEndian(pages.physicalOf(dataStart), header.data() + 16);
        pages.patch(sectionStart, header);

        const auto& m = scan.transformation;
        // Rotation matrix to quaternion (w, x, y, z); the matrices of tests are proper rotations.
        const double trace = m[0] + m[5] + m[10];
        double w, x, y, z;
        if (trace > 0) {
            const double t = std::sqrt(1 + trace) * 2;
            w = t / 4, x = (m[9] - m[6]) / t, y = (m[2] - m[8]) / t, z = (m[4] - m[1]) / t;
        } else if (m[0] > m[5] && m[0] > m[10]) {
            const double t = std::sqrt(1 + m[0] - m[5] - m[10]) * 2;
            w = (m[9] - m[6]) / t, x = t / 4, y = (m[1] + m[4]) / t, z = (m[2] + m[8]) / t;
        } else if (m[5] > m[10]) {
            const double t = std::sqrt(1 + m[5] - m[0] - m[10]) * 2;
            w = (m[2] - m[8]) / t, x = (m[1] + m[4]) / t, y = t / 4, z = (m[6] + m[9]) / t;
        } else {
            const double t = std::sqrt(1 + m[10] - m[0] - m[5]) * 2;
            w = (m[4] - m[1]) / t, x = (m[2] + m[8]) / t, y = (m[6] + m[9]) / t, z = t / 4;
        }
        const QString guid = QStringLiteral("scan-guid-%1").arg(s);
        QString prototype;
        for (const Field& field : fields)
            prototype += field.xml;
        QString bounds;
        if (indexes)
            bounds = QStringLiteral("<indexBounds type=\"Structure\"><rowMinimum type=\"Integer\">0</rowMinimum><rowMaximum type=\"Integer\">%1</rowMaximum>"
                                    "<columnMinimum type=\"Integer\">0</columnMinimum><columnMaximum type=\"Integer\">%2</columnMaximum></indexBounds>")
                         .arg(scan.rows - 1)
                         .arg(scan.columns - 1);
        data3D += QStringLiteral("<vectorChild type=\"Structure\"><guid type=\"String\"><![CDATA[%1]]></guid><name type=\"String\"><![CDATA[%2]]></name>"
                                 "<pose type=\"Structure\"><rotation type=\"Structure\"><w type=\"Float\">%3</w><x type=\"Float\">%4</x><y type=\"Float\">%5</y><z type=\"Float\">%6</z></rotation>"
                                 "<translation type=\"Structure\"><x type=\"Float\">%7</x><y type=\"Float\">%8</y><z type=\"Float\">%9</z></translation></pose>")
                      .arg(guid, scan.name)
                      .arg(w, 0, 'g', 17).arg(x, 0, 'g', 17).arg(y, 0, 'g', 17).arg(z, 0, 'g', 17)
                      .arg(m[3], 0, 'g', 17).arg(m[7], 0, 'g', 17).arg(m[11], 0, 'g', 17)
                  + bounds
                  + QStringLiteral("<points type=\"CompressedVector\" fileOffset=\"%1\" recordCount=\"%2\"><prototype type=\"Structure\">%3</prototype>"
                                   "<codecs type=\"Vector\" allowHeterogeneousChildren=\"1\"/></points></vectorChild>")
                        .arg(pages.physicalOf(sectionStart))
                        .arg(total)
                        .arg(prototype);
        if (!scan.panorama.isEmpty()) {
            const quint64 blobStart = pages.logical();
            QByteArray blob(16, '\0');
            qToLittleEndian(quint64(16 + scan.panorama.size()), blob.data() + 8);
            pages.append(blob);
            pages.append(scan.panorama);
            pages.pad(4);
            images2D += QStringLiteral("<vectorChild type=\"Structure\"><guid type=\"String\">image-%1</guid><associatedData3DGuid type=\"String\">%2</associatedData3DGuid>"
                                       "<sphericalRepresentation type=\"Structure\"><jpegImage type=\"Blob\" fileOffset=\"%3\" length=\"%4\"/>"
                                       "<imageWidth type=\"Integer\">%5</imageWidth><imageHeight type=\"Integer\">%6</imageHeight></sphericalRepresentation></vectorChild>")
                            .arg(s)
                            .arg(guid)
                            .arg(pages.physicalOf(blobStart))
                            .arg(scan.panorama.size())
                            .arg(scan.columns)
                            .arg(scan.rows);
        }
    }
    QString xmlText = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<e57Root type=\"Structure\" xmlns=\"http://www.astm.org/COMMIT/E57/2010-e57-v1.0\">"
                                          "<formatName type=\"String\"><![CDATA[ASTM E57 3D Imaging Data File]]></formatName>"
                                          "<versionMajor type=\"Integer\">1</versionMajor><versionMinor type=\"Integer\">0</versionMinor>"
                                          "<data3D type=\"Vector\" allowHeterogeneousChildren=\"1\">%1</data3D>"
                                          "<images2D type=\"Vector\" allowHeterogeneousChildren=\"1\">%2</images2D></e57Root>\n")
                          .arg(data3D, images2D);
    if (options.editXml)
        xmlText = options.editXml(xmlText);
    const QByteArray xml = xmlText.toUtf8();
    const quint64 xmlStart = pages.logical();
    pages.append(xml);
    pages.finish();
    QByteArray header(48, '\0');
    std::memcpy(header.data(), "ASTM-E57", 8);
    qToLittleEndian(quint32(1), header.data() + 8);
    qToLittleEndian(quint32(0), header.data() + 12);
    qToLittleEndian(pages.physical(), header.data() + 16);
    qToLittleEndian(pages.physicalOf(xmlStart), header.data() + 24);
    qToLittleEndian(quint64(xml.size()), header.data() + 32);
    qToLittleEndian(options.pageSize, header.data() + 40);
    pages.patch(0, header);
    return true;
}

} // namespace TVX::TEST
