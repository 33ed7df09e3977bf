#include "scanfixture.h"
#include "testregistry.h"

#include "fileio/scangeometry.h"
#include "scene/scanviewscenegraph.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

struct HeaderRow {
    const char* name;
    QByteArray bytes;
    bool accepted;
    const char* thrown; // start of the read error's message; null: none
    std::array<quint32, 3> writer; // major, minor, patch; checked when accepted or when set
};

QByteArray scanFile(const std::function<void(ScanFileBytes&)>& change)
{
    ScanFileBytes file;
    change(file);
    return file.build();
}

// A scan file with one field spoilt.
template<typename Field>
QByteArray with(Field ScanFileBytes::*field, Field value)
{
    return scanFile([&](ScanFileBytes& f) { f.*field = value; });
}

QByteArray withoutSection(std::size_t section)
{
    return scanFile([&](ScanFileBytes& f) { f.omitSection[section] = true; });
}

struct CellsRow {
    const char* name;
    int channels;
    quint32 recordSize;
    quint32 cloudStep;
};

} // namespace
Q_DECLARE_METATYPE(HeaderRow)
Q_DECLARE_METATYPE(CellsRow)

// The header, the directory, and every way of reading cells of TVXFile.
class ScanFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void header_data()
    {
        QTest::addColumn<HeaderRow>("row");
        const QByteArray smallWriterVersion = bytesOf(quint8(7), quint8(3), quint16(300));
        const QByteArray valid = ScanFileBytes().build();
        const HeaderRow rows[] = {
            {"format 2, three 32-bit writer numbers", valid, true, nullptr, {2021, 1, 151}},
            {"format 1, writer version in 4 bytes", scanFile([&](ScanFileBytes& f) {
                 f.formatVersion = 1;
                 f.writerVersion = smallWriterVersion;
             }), true, nullptr, {7, 3, 300}},
            // Read as 4 bytes, the first u32 (2021) gives major 0, minor 0, patch 2021, and the
            // minor (1) lands where the stream version goes.
            {"format 1 with a 12-byte writer version", with(&ScanFileBytes::formatVersion, 1u), false, nullptr,
             {0, 0, 2021}},
            {"format 3", with(&ScanFileBytes::formatVersion, 3u), false, nullptr, {}},
            {"wrong magic", with(&ScanFileBytes::magic, 0x54565847u), false, nullptr, {}},
            {"stream version 13", with(&ScanFileBytes::streamVersion, 13u), false, nullptr, {}},
            {"unknown directory tags are skipped",
             with(&ScanFileBytes::extraEntries, {{0x110006, 4242}, {0x7FFFFFFF, -1}}), true, nullptr, {2021, 1, 151}},
            {"a later entry replaces an earlier", with(&ScanFileBytes::extraEntries, {{0x110001, 1 << 20}}), true,
             nullptr, {2021, 1, 151}},
            {"offset 0 for the scan information", withoutSection(0), false, nullptr, {}},
            // Reading the scene items at 0 meets the magic instead of their begin tag.
            {"offset 0 for the scene items", withoutSection(4), false, nullptr, {}},
            // The header is 32 bytes; two whole entries and half of a third, then the end.
            {"directory cut short", valid.left(32 + 24 + 6), false,
             "file read error libs/core/src/fileio/tvxfile, line 243", {}},
            {"section failing with its module's line",
             scanFile([](ScanFileBytes& f) { f.sections[2] = bytesOf(quint32(0x140000), quint32(0x14FFFE)); }), false,
             "file read error libs/core/src/fileio/tvxfilemetainfo, line 113", {}},
        };
        for (const HeaderRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void header()
    {
        QFETCH(HeaderRow, row);
        TVXFile file(QStringLiteral("/nowhere/scan.tvx"));
        QString thrown;
        QCOMPARE(readHeaderBytes(row.bytes, file, &thrown), row.accepted);
        QVERIFY2(row.thrown ? thrown.startsWith(QLatin1String(row.thrown)) : thrown.isEmpty(), qPrintable(thrown));
        if (!row.accepted && !row.thrown)
            QVERIFY(!file.errorString().isEmpty());
        if (row.accepted || row.writer != std::array<quint32, 3>{})
            QCOMPARE((std::array<quint32, 3>{file.writerMajor(), file.writerMinor(), file.writerPatch()}), row.writer);
    }

    // Every channel combination on a 10 × 7 grid in tiles of 4, whose last tile column (2 wide) and
    // last tile row (3 high) are narrower: single reads, tiles and the point cloud agree with the
    // pattern the scan was written from.
    void cells_data()
    {
        QTest::addColumn<CellsRow>("row");
        const CellsRow rows[] = {
            {"no channel", NoChannel, 0, 1},
            {"intensity + colour", IntensityChannel | ColourChannel, 4, 1},
            {"distance + intensity", DistanceChannel | IntensityChannel, 6, 2},
            {"distance + colour", DistanceChannel | ColourChannel, 8, 3},
            {"all channels", AllChannels, 9, 1},
        };
        for (const CellsRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void cells()
    {
        QFETCH(CellsRow, row);
        const bool hasDistance = row.channels & DistanceChannel;
        const bool hasIntensity = row.channels & IntensityChannel;
        const bool hasColour = row.channels & ColourChannel;

        QTemporaryDir dir;
        TVXFile file(writePatternScan(dir.path(), QStringLiteral("scan"), 10, 7, 4, row.channels));
        QVERIFY(file.open() && file.readHeader());
        file.close();
        QCOMPARE(QFileInfo(file.dataPath()).size(), qint64(12 + 10 * 7 * row.recordSize));

        const GridAngles grid = file.scanInfo().gridAngles();
        const auto pointOf = [&grid](quint32 c, quint32 r) {
            const TVXFileCell cell = patternCell(c, r);
            return cell.distanceMm ? pointOfCell(c, r, cell.dx, cell.dy, cell.distanceMm * 0.001, grid) : Vector3d();
        };
        for (quint32 c = 0; c < 10; ++c) {
            for (quint32 r = 0; r < 7; ++r) {
                const TVXFileCell cell = patternCell(c, r);
                double x = 0, y = 0, z = 0, metres = -1;
                bool valid = false;
                quint8 red = 0, green = 0, blue = 0, intensity = 0;
                QCOMPARE(file.readPoint(c, r, x, y, z, valid), hasDistance);
                QCOMPARE(file.readDistance(c, r, metres), hasDistance);
                if (hasDistance) {
                    QCOMPARE(valid, cell.distanceMm != 0);
                    QVERIFY((Vector3d(x, y, z) - pointOf(c, r)).length() < 1e-9);
                    QCOMPARE(metres, cell.distanceMm * 0.001);
                }
                // Single reads give colour and intensity as stored, also where there is no return.
                QCOMPARE(file.readColour(c, r, red, green, blue), hasColour);
                if (hasColour)
                    QVERIFY(red == cell.red && green == cell.green && blue == cell.blue);
                QCOMPARE(file.readIntensity(c, r, intensity), hasIntensity);
                if (hasIntensity)
                    QCOMPARE(intensity, cell.intensity);
                // Colour first, else grey from the intensity, else false although the point was read.
                red = green = blue = 0;
                QCOMPARE(file.readPointAndColour(c, r, x, y, z, red, green, blue, valid),
                         hasDistance && (hasColour || hasIntensity));
                const quint8 grey = hasDistance && !hasColour && hasIntensity ? cell.intensity : 0;
                if (hasDistance && hasColour)
                    QVERIFY(red == cell.red && green == cell.green && blue == cell.blue);
                else
                    QVERIFY(red == grey && green == grey && blue == grey);
            }
        }
        double metres = 0;
        quint8 rgb[3];
        QVERIFY(!file.readDistance(10, 0, metres));
        QVERIFY(!file.readColour(0, 7, rgb[0], rgb[1], rgb[2]));

        // Tiles in the point cloud's order: tile columns outer, tile rows inner, one past the grid each.
        std::vector<float> cloud;
        for (quint32 tc = 0; tc < 4; ++tc) {
            for (quint32 tr = 0; tr < 3; ++tr) {
                TVXFileTile tile;
                QCOMPARE(file.readTile(tc, tr, tile), hasDistance && tc < 3 && tr < 2);
                if (!hasDistance || tc == 3 || tr == 2)
                    continue;
                QCOMPARE(tile.firstColumn, 4 * tc);
                QCOMPARE(tile.lastColumn, std::min(9u, 4 * tc + 3));
                QCOMPARE(tile.firstRow, 4 * tr);
                QCOMPARE(tile.lastRow, std::min(6u, 4 * tr + 3));
                const std::size_t cells = std::size_t(tile.width()) * tile.height();
                QCOMPARE(tile.intensities.size(), hasIntensity ? cells : 0);
                QCOMPARE(tile.colours.size(), hasColour ? 3 * cells : 0);
                for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
                    for (quint32 r = tile.firstRow; r <= tile.lastRow; ++r) {
                        const std::size_t i = tile.indexOf(c, r);
                        const TVXFileCell cell = patternCell(c, r);
                        const bool valid = cell.distanceMm != 0;
                        const Vector3d p = pointOf(c, r);
                        QVERIFY((tile.points[i] - p).length() < 1e-9);
                        QCOMPARE(tile.distances[i], cell.distanceMm * 0.001);
                        // A tile reports intensity and colour 0 where there is no return.
                        if (hasIntensity)
                            QCOMPARE(tile.intensities[i], valid ? cell.intensity : quint8(0));
                        if (hasColour)
                            QVERIFY(tile.colours[3 * i] == (valid ? cell.red : 0)
                                    && tile.colours[3 * i + 1] == (valid ? cell.green : 0)
                                    && tile.colours[3 * i + 2] == (valid ? cell.blue : 0));
                        if (c % row.cloudStep == 0 && r % row.cloudStep == 0)
                            cloud.insert(cloud.end(), {float(p.x), float(p.y), float(p.z)});
                    }
                }
            }
        }
        std::vector<float> xyz;
        QVERIFY(!file.extractPointCloud(0, xyz));
        QCOMPARE(file.extractPointCloud(row.cloudStep, xyz), hasDistance);
        QCOMPARE(xyz.size(), cloud.size());
        for (std::size_t i = 0; i < xyz.size(); ++i)
            QVERIFY(std::abs(xyz[i] - cloud[i]) < 1e-5f);
    }

    void shortDataFile()
    {
        QTemporaryDir dir;
        TVXFile file(writePatternScan(dir.path(), QStringLiteral("short"), 10, 7, 4, AllChannels));
        QVERIFY(file.open() && file.readHeader());
        file.close();
        // Drop the last record: the last tile (2, 1) is short, the others are whole.
        QVERIFY(QFile::resize(file.dataPath(), 12 + 69 * 9));
        TVXFileTile tile;
        QVERIFY(file.readTile(2, 0, tile));
        QVERIFY(!file.readTile(2, 1, tile));
        double metres = 0;
        QVERIFY(file.readDistance(9, 5, metres));
        QVERIFY(!file.readDistance(9, 6, metres));
        std::vector<float> xyz;
        QVERIFY(!file.extractPointCloud(1, xyz));
    }

    void openAndClose()
    {
        QTemporaryDir dir;
        const QString path = writePatternScan(dir.path(), QStringLiteral("scan.2021"), 3, 3, 64, DistanceChannel);
        QCOMPARE(TVXFile::dataPathFor(path), dir.path() + QStringLiteral("/scan.2021.tvxsd"));
        TVXFile file(path);
        QVERIFY(!file.readHeader()); // nothing open yet
        QVERIFY(file.open());
        QVERIFY(file.open()); // both open: true at once
        QVERIFY(file.readHeader());
        const auto firstGraph = file.sceneGraph();
        QVERIFY(file.readHeader());
        QVERIFY(file.sceneGraph() != firstGraph); // recreated by every header read
        file.close();

        // A missing data file fails the open and is not created, not even read-write.
        QVERIFY(QFile::remove(file.dataPath()));
        QVERIFY(!file.open(0));
        QVERIFY(!file.open(1));
        QVERIFY(!QFile::exists(file.dataPath()));
        QVERIFY(!file.readHeader()); // the scan file stays open, the data file is missing
        file.close();
        double x, y, z;
        bool valid;
        QVERIFY(!file.readPoint(0, 0, x, y, z, valid));
    }
};

TVX_TEST(ScanFileTest)
#include "tvxfiletest.moc"
