#include "testregistry.h"

#include "fileio/scangeometry.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"
#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
QByteArray chars(std::initializer_list<char> list)
{
    return QByteArray(list.begin(), qsizetype(list.size()));
}

// The records of one tile as the format stores them, column by column, made from the pattern.
QByteArray tileRecords(const TVXFileScanInfo& info, quint32 tileColumn, quint32 tileRow)
{
    const quint32 t = info.tileSize;
    const quint32 width = tileExtent(tileColumn, info.columns, t);
    const quint32 height = tileExtent(tileRow, info.rows, t);
    QByteArray bytes;
    for (quint32 c = tileColumn * t; c < tileColumn * t + width; ++c) {
        for (quint32 r = tileRow * t; r < tileRow * t + height; ++r) {
            const TVXFileCell cell = patternCell(c, r);
            if (info.hasDistance())
                bytes += chars({char(cell.dx), char(cell.dy), char(cell.distanceMm >> 16),
                                     char(cell.distanceMm >> 8), char(cell.distanceMm)});
            if (info.hasIntensity())
                bytes += char(cell.intensity);
            if (info.hasColour())
                bytes += chars({char(cell.red), char(cell.green), char(cell.blue)});
        }
    }
    return bytes;
}
} // namespace

// The decoder on byte buffers: layouts, invalid cells, tile bounds, and agreement of its
// angle-addition tables with the direct formula.
class TileDecoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesEveryLayout_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("tileColumn");
        QTest::addColumn<quint32>("tileRow");
        QTest::addColumn<quint32>("width");
        QTest::addColumn<quint32>("height");

        // 10 × 7 cells in tiles of 4: tile columns 4, 4, 2 wide; tile rows 4, 3 high.
        const int distance = DistanceChannel;
        QTest::newRow("distance + intensity, narrow strip") << (distance | IntensityChannel) << 2u << 0u << 2u << 4u;
        QTest::newRow("all channels, corner") << (distance | IntensityChannel | ColourChannel) << 2u << 1u << 2u << 3u;
    }

    void decodesEveryLayout()
    {
        QFETCH(int, channels);
        QFETCH(quint32, tileColumn);
        QFETCH(quint32, tileRow);
        QFETCH(quint32, width);
        QFETCH(quint32, height);

        TVXFileScanInfo info;
        setGrid(info, 10, 7, 4, channels);
        const QByteArray bytes = tileRecords(info, tileColumn, tileRow);
        QCOMPARE(quint64(bytes.size()), quint64(width) * height * info.recordSize());

        TVXFileTileDecoder decoder(info);
        TVXFileTile tile;
        QVERIFY(decoder.decode(tileColumn, tileRow, bytes.constData(), std::size_t(bytes.size()), tile));
        QCOMPARE(tile.firstColumn, tileColumn * 4);
        QCOMPARE(tile.lastColumn, tileColumn * 4 + width - 1);
        QCOMPARE(tile.firstRow, tileRow * 4);
        QCOMPARE(tile.lastRow, tileRow * 4 + height - 1);
        QCOMPARE(tile.points.size(), std::size_t(width * height));
        QCOMPARE(tile.intensities.size(), (channels & IntensityChannel) ? std::size_t(width * height) : 0u);
        QCOMPARE(tile.colours.size(), (channels & ColourChannel) ? std::size_t(3 * width * height) : 0u);

        const GridAngles grid = info.gridAngles();
        int invalid = 0;
        for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
            for (quint32 r = tile.firstRow; r <= tile.lastRow; ++r) {
                const std::size_t i = tile.indexOf(c, r);
                const TVXFileCell cell = patternCell(c, r);
                const bool valid = cell.distanceMm != 0;
                invalid += valid ? 0 : 1;
                // Expected: the direct formula; an invalid cell is all zeros.
                const Vector3d expected = valid ? pointOfCell(c, r, cell.dx, cell.dy, cell.distanceMm * 0.001, grid)
                                                : Vector3d();
                QVERIFY((tile.points[i] - expected).length() < 1e-9);
                QCOMPARE(tile.distances[i], cell.distanceMm * 0.001);
                if (channels & IntensityChannel)
                    QCOMPARE(tile.intensities[i], valid ? cell.intensity : quint8(0));
                if (channels & ColourChannel) {
                    QCOMPARE(tile.colours[3 * i], valid ? cell.red : quint8(0));
                    QCOMPARE(tile.colours[3 * i + 1], valid ? cell.green : quint8(0));
                    QCOMPARE(tile.colours[3 * i + 2], valid ? cell.blue : quint8(0));
                }
            }
        }
        QVERIFY(invalid > 0); // the pattern puts a cell without return in every tile
    }

    void refuses_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("tileSize");
        QTest::addColumn<quint32>("tileColumn");
        QTest::addColumn<quint32>("tileRow");
        QTest::addColumn<int>("missingBytes");

        const int all = DistanceChannel | IntensityChannel | ColourChannel;
        QTest::newRow("colour only: no points") << int(ColourChannel) << 4u << 0u << 0u << 0;
        QTest::newRow("tile column past the grid") << all << 4u << 3u << 0u << 0;
        QTest::newRow("one byte short") << all << 4u << 1u << 1u << 1;
        QTest::newRow("tile size 0") << all << 0u << 0u << 0u << 0;
    }

    void refuses()
    {
        QFETCH(int, channels);
        QFETCH(quint32, tileSize);
        QFETCH(quint32, tileColumn);
        QFETCH(quint32, tileRow);
        QFETCH(int, missingBytes);

        TVXFileScanInfo info;
        setGrid(info, 10, 7, tileSize, channels);
        QByteArray bytes(4 * 4 * 9, '\x01');
        bytes.chop(bytes.size() - (4 * 3 * 9 - missingBytes)); // tile (1, 1) is 4 × 3
        TVXFileTileDecoder decoder(info);
        TVXFileTile tile;
        QVERIFY(!decoder.decode(tileColumn, tileRow, bytes.constData(), std::size_t(bytes.size()), tile));
    }

    // Every sub-cell offset at the longest distance the format holds, against the direct formula.
    void tablesMatchDirectFormula()
    {
        TVXFileScanInfo info;
        setGrid(info, 4096, 2048, 256, DistanceChannel);
        info.horizontalMin = -3.0;
        info.horizontalMax = 3.1;
        info.verticalMin = -1.2;
        info.verticalMax = 1.5;
        const quint32 maxMm = 0xFFFFFF; // 16 777.215 m
        // Tile (15, 7): columns 3840..4095, rows 1792..2047; cell k gets dx = k mod 256 − 128 and
        // dy = (k / 256) mod 256 − 128, so every pair of offsets occurs.
        QByteArray bytes;
        for (int k = 0; k < 256 * 256; ++k)
            bytes += chars({char(k % 256 - 128), char((k / 256) % 256 - 128), char(maxMm >> 16), char(maxMm >> 8),
                                 char(maxMm)});
        TVXFileTileDecoder decoder(info);
        TVXFileTile tile;
        QVERIFY(decoder.decode(15, 7, bytes.constData(), std::size_t(bytes.size()), tile));
        const GridAngles grid = info.gridAngles();
        double worst = 0.0;
        for (int k = 0; k < 256 * 256; ++k) {
            const quint32 c = 3840 + quint32(k) / 256;
            const quint32 r = 1792 + quint32(k) % 256;
            const qint8 dx = qint8(k % 256 - 128);
            const qint8 dy = qint8((k / 256) % 256 - 128);
            const Vector3d direct = pointOfCell(c, r, dx, dy, maxMm * 0.001, grid);
            worst = std::max(worst, (tile.points[tile.indexOf(c, r)] - direct).length());
        }
        QVERIFY2(worst < 1e-9, qPrintable(QString::number(worst)));
    }
};

TVX_TEST(TileDecoderTest)
#include "tiledecodertest.moc"
