#include "testregistry.h"

#include "scanfixture.h"

#include <QTest>

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

// Record layout, pose and the failures of the scan information section.
class ScanInfoSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pose()
    {
        TVXFileScanInfo info;
        // Row by row: a quarter turn about z (x → y, y → −x), then a shift by (10, 20, 30).
        info.transformation = {0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 30, 0, 0, 0, 1};
        QCOMPARE(info.translation(), Vector3d(10, 20, 30));
        // (1, 2, 3) → (−2, 1, 3) + (10, 20, 30) = (8, 21, 33).
        QCOMPARE(info.toProjectFrame({1, 2, 3}), Vector3d(8, 21, 33));
    }

    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("result"); // "read", "refused" or the read error
        QTest::addColumn<qint64>("consumed");
        const QString read = QStringLiteral("read");
        const QString refused = QStringLiteral("refused");
        const QString failed = QStringLiteral("file read error libs/core/src/fileio/tvxfilescaninfo, line 170");

        TVXFileScanInfo info;
        setGrid(info, 10, 7, 4, DistanceChannel | ColourChannel);
        info.text = QStringLiteral("");
        const QByteArray valid = sectionBytes(info);
        QCOMPARE(valid.mid(textLengthAt, 4), QByteArray(4, '\0'));
        QTest::newRow("valid") << valid << read << qint64(valid.size());
        QTest::newRow("wrong begin tag, nothing more consumed") << patched(valid, 0, 0x130000) << refused << qint64(4);
        QTest::newRow("wrong end tag") << patched(valid, valid.size() - 4, 0x12FFFE) << refused << qint64(valid.size());
        // Odd byte count: the stream is corrupt, everything after still lines up.
        QTest::newRow("odd text length") << patched(valid, textLengthAt, 1) << failed << qint64(valid.size());
        QTest::newRow("text longer than the rest") << patched(valid, textLengthAt, 0x7FFFFFFE) << refused
                                                   << qint64(valid.size());
        QTest::newRow("channel count past the end") << patched(valid, channelCountAt, 0xFFFFFFFF) << refused
                                                    << qint64(valid.size());
        QTest::newRow("cut before the end tag") << valid.left(valid.size() - 2) << refused << qint64(valid.size() - 2);
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, result);
        QFETCH(qint64, consumed);

        TVXFileScanInfo info;
        info.columns = 99;
        qint64 read = 0;
        QCOMPARE(readSection(info, bytes, &read), result);
        QCOMPARE(read, consumed);
        if (result == QLatin1String("read"))
            QCOMPARE(info.columns, 10u);
        if (consumed == 4)
            QCOMPARE(info.columns, 0u); // reset before the begin tag is checked
        QVERIFY(info.channels.size() <= 2);
    }
};

TVX_TEST(ScanInfoSectionTest)
#include "scaninfosectiontest.moc"
