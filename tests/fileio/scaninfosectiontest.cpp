#include "testregistry.h"

#include "scanfixture.h"

#include <QTest>

#include <cfloat>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
// Byte positions in a scan information section whose text is empty: begin tag (4), bounding box
// (48), the unnamed double (8), the matrix (128), the unnamed integer (8) → text length at 196;
// then 4 + 4 × 4 + 4 × 8 → channel count at 248.
constexpr int textLengthAt = 196;
constexpr int channelCountAt = 248;

QByteArray patched(QByteArray bytes, int at, quint32 value)
{
    const QByteArray v = streamBytes([&](QDataStream& s) { s << value; });
    bytes.replace(at, 4, v);
    return bytes;
}
} // namespace

// Defaults, record layout and the failures of the scan information section.
class ScanInfoSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults()
    {
        TVXFileScanInfo info;
        QCOMPARE(info.scanKind, 1u);
        QCOMPARE(info.tileSize, 64u);
        QCOMPARE(info.transformation, (std::array<double, 16>{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
        QCOMPARE(info.boundingBoxMin, Vector3d(DBL_MAX, DBL_MAX, DBL_MAX));
        QCOMPARE(info.boundingBoxMax, Vector3d(-DBL_MAX, -DBL_MAX, -DBL_MAX));
        QCOMPARE(info.recordSize(), 0u);
        QCOMPARE(info.tilesX(), 0u);
    }

    void pose()
    {
        TVXFileScanInfo info;
        // Row by row: a quarter turn about z (x → y, y → −x), then a shift by (10, 20, 30).
        info.transformation = {0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 30, 0, 0, 0, 1};
        QCOMPARE(info.translation(), Vector3d(10, 20, 30));
        // (1, 2, 3) → (−2, 1, 3) + (10, 20, 30) = (8, 21, 33).
        QCOMPARE(info.toProjectFrame({1, 2, 3}), Vector3d(8, 21, 33));
    }

    void recordLayout_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("recordSize");
        QTest::addColumn<quint32>("intensityOffset");
        QTest::addColumn<quint32>("colourOffset");

        // Distance 5 bytes, then intensity 1, then colour 3, each only with its channel.
        const int all = DistanceChannel | IntensityChannel | ColourChannel;
        QTest::newRow("distance + intensity + colour") << all << 9u << 5u << 6u;
        QTest::newRow("distance + colour") << int(DistanceChannel | ColourChannel) << 8u << 5u << 5u;
        QTest::newRow("distance + intensity") << int(DistanceChannel | IntensityChannel) << 6u << 5u << 6u;
        QTest::newRow("colour only") << int(ColourChannel) << 3u << 0u << 0u;
        QTest::newRow("intensity + colour") << int(IntensityChannel | ColourChannel) << 4u << 0u << 1u;
    }

    void recordLayout()
    {
        QFETCH(int, channels);
        QFETCH(quint32, recordSize);
        QFETCH(quint32, intensityOffset);
        QFETCH(quint32, colourOffset);
        TVXFileScanInfo info;
        setGrid(info, 130, 65, 64, channels);
        QCOMPARE(info.recordSize(), recordSize);
        QCOMPARE(info.intensityOffset(), intensityOffset);
        QCOMPARE(info.colourOffset(), colourOffset);
        QCOMPARE(info.tilesX(), 3u); // 130 = 2 × 64 + 2
        QCOMPARE(info.tilesY(), 2u); // 65 = 64 + 1
    }

    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("result"); // 1 read, 0 false, -1 the read error
        QTest::addColumn<qint64>("consumed");

        TVXFileScanInfo info;
        setGrid(info, 10, 7, 4, DistanceChannel | ColourChannel);
        info.text = QStringLiteral("");
        const QByteArray valid = sectionBytes(info);
        QCOMPARE(valid.mid(textLengthAt, 4), QByteArray(4, '\0'));
        QTest::newRow("valid") << valid << 1 << qint64(valid.size());
        QTest::newRow("wrong begin tag, nothing more consumed") << patched(valid, 0, 0x130000) << 0 << qint64(4);
        QTest::newRow("wrong end tag") << patched(valid, valid.size() - 4, 0x12FFFE) << 0 << qint64(valid.size());
        // Odd byte count: the stream is corrupt, everything after still lines up.
        QTest::newRow("odd text length") << patched(valid, textLengthAt, 1) << -1 << qint64(valid.size());
        QTest::newRow("text longer than the rest") << patched(valid, textLengthAt, 0x7FFFFFFE) << 0
                                                   << qint64(valid.size());
        QTest::newRow("channel count past the end") << patched(valid, channelCountAt, 0xFFFFFFFF) << 0
                                                    << qint64(valid.size());
        QTest::newRow("cut before the end tag") << valid.left(valid.size() - 2) << 0 << qint64(valid.size() - 2);
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, result);
        QFETCH(qint64, consumed);

        QBuffer buffer;
        QDataStream stream;
        openReadStream(buffer, stream, bytes);
        TVXFileScanInfo info;
        info.columns = 99;
        int outcome = 0;
        try {
            outcome = info.read(stream) ? 1 : 0;
        } catch (const std::ios_base::failure& failure) {
            QCOMPARE(QByteArray(failure.what()), QByteArray("file read error libs/core/src/fileio/tvxfilescaninfo, line 170"));
            outcome = -1;
        }
        QCOMPARE(outcome, result);
        QCOMPARE(buffer.pos(), consumed);
        if (result == 1)
            QCOMPARE(info.columns, 10u);
        if (consumed == 4)
            QCOMPARE(info.columns, 0u); // reset before the begin tag is checked
        QVERIFY(info.channels.size() <= 2);
    }
};

TVX_TEST(ScanInfoSectionTest)
#include "scaninfosectiontest.moc"
