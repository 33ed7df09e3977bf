#include "scanfixture.h"
#include "testregistry.h"

#include "fileio/scangeometry.h"
#include "fileio/tvxfiletiledecoder.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
struct DecodeRow {
    const char* name;
    int channels;
    quint32 tileSize;
    quint32 tileColumn;
    quint32 tileRow;
    int bytes; // given to the decoder
    bool decodes;
};
} // namespace
Q_DECLARE_METATYPE(DecodeRow)

// The decoder on byte buffers: what it refuses, and agreement of its angle-addition tables with the
// direct formula. What tiles hold is checked through the file's reads.
class TileDecoderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesOnlyWhatFits_data()
    {
        QTest::addColumn<DecodeRow>("row");
        // 10 × 7 cells in tiles of 4: a whole tile of 9-byte records is at most 4 · 4 · 9 = 144 bytes,
        // tile (1, 1) is 4 × 3 cells, 108 bytes.
        const DecodeRow rows[] = {
            {"exactly the tile's records", AllChannels, 4, 1, 1, 108, true},
            {"one byte short", AllChannels, 4, 1, 1, 107, false},
            {"colour only: no points", ColourChannel, 4, 0, 0, 144, false},
            {"tile column past the grid", AllChannels, 4, 3, 0, 144, false},
            {"tile size 0", AllChannels, 0, 0, 0, 144, false},
        };
        for (const DecodeRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void decodesOnlyWhatFits()
    {
        QFETCH(DecodeRow, row);
        TVXFileScanInfo info;
        setGrid(info, 10, 7, row.tileSize, row.channels);
        const QByteArray bytes(row.bytes, '\x01');
        TVXFileTileDecoder decoder(info);
        TVXFileTile tile;
        QCOMPARE(decoder.decode(row.tileColumn, row.tileRow, bytes.constData(), std::size_t(bytes.size()), tile),
                 row.decodes);
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
        for (int k = 0; k < 256 * 256; ++k) {
            const char record[] = {char(k % 256 - 128), char((k / 256) % 256 - 128), char(maxMm >> 16),
                                   char(maxMm >> 8), char(maxMm)};
            bytes.append(record, 5);
        }
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
