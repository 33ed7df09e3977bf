#include "testregistry.h"

#include "fileio/scangeometry.h"
#include "scene/scanviewscenegraph.h"
#include "scanfixture.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
QByteArray bytesOf(std::initializer_list<quint32> values)
{
    return streamBytes([&](QDataStream& s) {
        for (quint32 v : values)
            s << v;
    });
}

QByteArray smallWriterVersion(quint8 major, quint8 minor, quint16 patch)
{
    return streamBytes([&](QDataStream& s) { s << major << minor << patch; });
}
} // namespace

// The header, the directory and the point reads of TVXFile.
class ScanFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void header_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<QString>("thrown");
        QTest::addColumn<quint32>("writerMajor");
        QTest::addColumn<quint32>("writerMinor");
        QTest::addColumn<quint32>("writerPatch");

        const QString none;
        ScanFileBytes file;
        QTest::newRow("format 2, three 32-bit writer numbers") << file.build() << true << none << 2021u << 1u << 151u;
        file.formatVersion = 1;
        file.writerVersion = smallWriterVersion(7, 3, 300);
        QTest::newRow("format 1, writer version in 4 bytes") << file.build() << true << none << 7u << 3u << 300u;
        file.formatVersion = 0;
        QTest::newRow("format 0, writer version in 4 bytes") << file.build() << true << none << 7u << 3u << 300u;
        // Read as version 1 the 12-byte writer version puts its minor (1) where the stream version goes.
        file = ScanFileBytes();
        file.formatVersion = 1;
        // Its first u32 (2021) then reads as major 0, minor 0, patch 2021.
        QTest::newRow("format 1 with a 12-byte writer version") << file.build() << false << none << 0u << 0u << 2021u;
        file = ScanFileBytes();
        file.formatVersion = 3;
        QTest::newRow("format 3") << file.build() << false << none << 0u << 0u << 0u;

        file = ScanFileBytes();
        file.magic = 0x54565847;
        QTest::newRow("wrong magic") << file.build() << false << none << 0u << 0u << 0u;
        file = ScanFileBytes();
        file.streamVersion = 13;
        QTest::newRow("stream version 13") << file.build() << false << none << 2021u << 1u << 151u;
        file = ScanFileBytes();
        file.fileBeginTag = 0x100001;
        QTest::newRow("wrong file begin tag") << file.build() << false << none << 2021u << 1u << 151u;

        file = ScanFileBytes();
        file.extraEntries = {{0x110006, 4242}, {0x7FFFFFFF, -1}};
        QTest::newRow("unknown directory tags are skipped") << file.build() << true << none << 2021u << 1u << 151u;
        for (int i = 0; i < 4; ++i) {
            file = ScanFileBytes();
            file.omitSection[std::size_t(i)] = true;
            QTest::newRow(qPrintable(QStringLiteral("offset 0 for section %1").arg(i + 1)))
                << file.build() << false << none << 2021u << 1u << 151u;
        }
        // Reading the scene items at 0 meets the magic instead of their begin tag.
        file = ScanFileBytes();
        file.omitSection[4] = true;
        QTest::newRow("offset 0 for the scene items") << file.build() << false << none << 2021u << 1u << 151u;
        file = ScanFileBytes();
        file.extraEntries = {{TVXFile::sectionTags[0], 1 << 20}}; // overridden by the later entry
        QTest::newRow("a later entry replaces an earlier") << file.build() << true << none << 2021u << 1u << 151u;

        const QByteArray valid = ScanFileBytes().build();
        QTest::newRow("11 bytes") << valid.left(11) << false << none << 0u << 0u << 0u;
        // The header is 32 bytes; two whole entries and half of a third, then the end.
        QTest::newRow("directory cut short") << valid.left(32 + 24 + 6) << false
                                             << QStringLiteral("file read error libs/core/src/fileio/tvxfile, line 243")
                                             << 2021u << 1u << 151u;
        file = ScanFileBytes();
        file.sections[2] = bytesOf({0x140000, 0x14FFFE});
        QTest::newRow("section failing with its module's line") << file.build() << false
            << QStringLiteral("file read error libs/core/src/fileio/tvxfilemetainfo, line 113") << 2021u << 1u << 151u;
    }

    void header()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, accepted);
        QFETCH(QString, thrown);
        QFETCH(quint32, writerMajor);
        QFETCH(quint32, writerMinor);
        QFETCH(quint32, writerPatch);

        TVXFile file(QStringLiteral("/nowhere/scan.tvx"));
        QString message;
        QCOMPARE(readHeaderBytes(bytes, file, &message), accepted);
        if (thrown.isEmpty())
            QVERIFY2(message.isEmpty(), qPrintable(message));
        else
            QVERIFY2(message.startsWith(thrown), qPrintable(message));
        if (!accepted && thrown.isEmpty())
            QVERIFY(!file.errorString().isEmpty());
        QCOMPARE(file.writerMajor(), writerMajor);
        QCOMPARE(file.writerMinor(), writerMinor);
        QCOMPARE(file.writerPatch(), writerPatch);
    }

    // Every channel combination, read cell by cell and tile by tile on a 10 × 7 grid in tiles of 4,
    // whose last tile column (2 wide) and last tile row (3 high) are narrower.
    void pointReads_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("recordSize");

        QTest::newRow("no channel") << int(NoChannel) << 0u;
        QTest::newRow("intensity") << int(IntensityChannel) << 1u;
        QTest::newRow("colour") << int(ColourChannel) << 3u;
        QTest::newRow("intensity + colour") << int(IntensityChannel | ColourChannel) << 4u;
        QTest::newRow("distance") << int(DistanceChannel) << 5u;
        QTest::newRow("distance + intensity") << int(DistanceChannel | IntensityChannel) << 6u;
        QTest::newRow("distance + colour") << int(DistanceChannel | ColourChannel) << 8u;
        QTest::newRow("all channels") << int(DistanceChannel | IntensityChannel | ColourChannel) << 9u;
    }

    void pointReads()
    {
        QFETCH(int, channels);
        QFETCH(quint32, recordSize);
        const bool hasDistance = channels & DistanceChannel;
        const bool hasIntensity = channels & IntensityChannel;
        const bool hasColour = channels & ColourChannel;

        QTemporaryDir dir;
        QString error;
        const QString path = writePatternScan(dir.path(), QStringLiteral("scan"), 10, 7, 4, channels, &error);
        QVERIFY2(!path.isEmpty(), qPrintable(error));
        TVXFile file(path);
        QVERIFY(file.open());
        QVERIFY(file.readHeader());
        QVERIFY(file.close());
        QCOMPARE(file.scanInfo().recordSize(), recordSize);
        QCOMPARE(QFileInfo(file.dataPath()).size(), qint64(12 + 10 * 7 * recordSize));

        const GridAngles grid = file.scanInfo().gridAngles();
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
                    const Vector3d expected = valid ? pointOfCell(c, r, cell.dx, cell.dy, cell.distanceMm * 0.001, grid)
                                                    : Vector3d();
                    QCOMPARE(Vector3d(x, y, z), expected);
                    QCOMPARE(metres, cell.distanceMm * 0.001);
                }
                // Colour and intensity are reported as stored, for invalid cells too.
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
                if (hasDistance && hasColour)
                    QVERIFY(red == cell.red && green == cell.green && blue == cell.blue);
                else if (hasDistance && hasIntensity)
                    QVERIFY(red == cell.intensity && green == cell.intensity && blue == cell.intensity);
            }
        }
        double metres = 0;
        quint8 r = 0, g = 0, b = 0;
        QVERIFY(!file.readDistance(10, 0, metres));
        QVERIFY(!file.readColour(0, 7, r, g, b));

        // Tiles agree with the point reads, including the narrow last strip and row.
        for (quint32 tc = 0; tc < 4; ++tc) {
            for (quint32 tr = 0; tr < 3; ++tr) {
                TVXFileTile tile;
                const bool inGrid = tc < 3 && tr < 2;
                QCOMPARE(file.readTile(tc, tr, tile), hasDistance && inGrid);
                if (!hasDistance || !inGrid)
                    continue;
                QCOMPARE(tile.width(), tc == 2 ? 2u : 4u);
                QCOMPARE(tile.height(), tr == 1 ? 3u : 4u);
                for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
                    for (quint32 row = tile.firstRow; row <= tile.lastRow; ++row) {
                        double x = 0, y = 0, z = 0;
                        bool valid = false;
                        QVERIFY(file.readPoint(c, row, x, y, z, valid));
                        QVERIFY((tile.points[tile.indexOf(c, row)] - Vector3d(x, y, z)).length() < 1e-9);
                    }
                }
            }
        }
    }

    void pointCloud_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("step");
        QTest::addColumn<bool>("extracted");

        QTest::newRow("every cell") << int(DistanceChannel) << 1u << true;
        QTest::newRow("every third cell") << int(DistanceChannel | ColourChannel) << 3u << true;
        QTest::newRow("step 0") << int(DistanceChannel) << 0u << false;
        QTest::newRow("no distance channel") << int(ColourChannel) << 1u << false;
    }

    void pointCloud()
    {
        QFETCH(int, channels);
        QFETCH(quint32, step);
        QFETCH(bool, extracted);

        QTemporaryDir dir;
        TVXFile file(writePatternScan(dir.path(), QStringLiteral("cloud"), 10, 7, 4, channels));
        QVERIFY(file.open() && file.readHeader() && file.close());
        std::vector<float> xyz;
        QCOMPARE(file.extractPointCloud(step, xyz), extracted);
        if (!extracted)
            return;
        // Tile columns outer, tile rows inner, then column by column inside each tile.
        std::vector<float> expected;
        const GridAngles grid = file.scanInfo().gridAngles();
        for (quint32 tc = 0; tc < 3; ++tc)
            for (quint32 tr = 0; tr < 2; ++tr)
                for (quint32 c = tc * 4; c < std::min(10u, tc * 4 + 4); ++c)
                    for (quint32 r = tr * 4; r < std::min(7u, tr * 4 + 4); ++r)
                        if (c % step == 0 && r % step == 0) {
                            const TVXFileCell cell = patternCell(c, r);
                            const Vector3d p = cell.distanceMm == 0 ? Vector3d()
                                               : pointOfCell(c, r, cell.dx, cell.dy, cell.distanceMm * 0.001, grid);
                            expected.insert(expected.end(), {float(p.x), float(p.y), float(p.z)});
                        }
        QCOMPARE(xyz.size(), expected.size());
        for (std::size_t i = 0; i < xyz.size(); ++i)
            QVERIFY(std::abs(xyz[i] - expected[i]) < 1e-5f);
    }

    void shortDataFile()
    {
        QTemporaryDir dir;
        const int all = DistanceChannel | IntensityChannel | ColourChannel;
        TVXFile file(writePatternScan(dir.path(), QStringLiteral("short"), 10, 7, 4, all));
        QVERIFY(file.open() && file.readHeader() && file.close());
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
        QVERIFY(file.close());
        QVERIFY(file.close());

        // A missing data file fails the open and is not created, not even read-write.
        QVERIFY(QFile::remove(file.dataPath()));
        QVERIFY(!file.open(0));
        QVERIFY(!file.open(1));
        QVERIFY(!QFile::exists(file.dataPath()));
        QVERIFY(!file.readHeader()); // the scan file stays open, the data file is missing
        QVERIFY(file.close());
        double x, y, z;
        bool valid;
        QVERIFY(!file.readPoint(0, 0, x, y, z, valid));
    }
};

TVX_TEST(ScanFileTest)
#include "tvxfiletest.moc"
