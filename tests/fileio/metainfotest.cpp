#include "testregistry.h"

#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

// Tags, defaults and failures of the meta information section.
class MetaInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textTags()
    {
        const auto& tags = TVXFileMetaInfo::textTags();
        QCOMPARE(tags.size(), 16u);
        QCOMPARE(tags.front(), 0x140001u);
        QCOMPARE(tags.back(), 0x140F05u);
        TVXFileMetaInfo info;
        info.setText(0x140101, QStringLiteral("not a text")); // the date-time tag
        QVERIFY(info.text(0x140101).isNull());
        info.setText(0x140302, QStringLiteral("eleven"));
        QCOMPARE(info.text(0x140302), QStringLiteral("eleven"));
    }

    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("result"); // 1 read, 0 false, -1 the read error
        QTest::addColumn<QString>("text1");
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QVariant>("extra"); // under tag 0x149999

        const QVariant none;
        const auto section = [](const std::function<void(QDataStream&)>& body) {
            return streamBytes([&](QDataStream& s) {
                s << quint32(0x140000);
                body(s);
                s << quint32(0x14FFFF);
            });
        };
        QTest::newRow("empty section leaves the defaults") << section([](QDataStream&) {}) << 1 << QString() << 0u
                                                           << none;
        QTest::newRow("text, number, unknown tag") << section([](QDataStream& s) {
            s << quint32(0x140001) << QStringLiteral("Station 4") << quint32(0x140301) << quint32(17);
            s << quint32(0x149999) << QVariant(2.5);
        }) << 1 << QStringLiteral("Station 4") << 17u << QVariant(2.5);
        QTest::newRow("a later value replaces the earlier") << section([](QDataStream& s) {
            s << quint32(0x149999) << QVariant(1) << quint32(0x149999) << QVariant(QStringLiteral("two"));
        }) << 1 << QString() << 0u << QVariant(QStringLiteral("two"));
        QTest::newRow("wrong begin tag") << streamBytes([](QDataStream& s) { s << quint32(0x150000); }) << 0
                                         << QString() << 0u << none;
        // After the last value the stream ends: the missing end tag reads as tag 0, whose value fails.
        QTest::newRow("no end tag") << streamBytes([](QDataStream& s) {
            s << quint32(0x140000) << quint32(0x140301) << quint32(5);
        }) << -1 << QString() << 5u << none;
        QTest::newRow("text longer than the rest") << section([](QDataStream& s) {
            s << quint32(0x140001) << quint32(0x7FFFFFF0);
        }) << -1 << QString() << 0u << none;
        // Type 65 (a pixmap) cannot be read without a GUI: the value is corrupt.
        QTest::newRow("unsupported variant type") << section([](QDataStream& s) {
            s << quint32(0x149999) << quint32(65) << qint8(0);
        }) << -1 << QString() << 0u << none;
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, result);
        QFETCH(QString, text1);
        QFETCH(quint32, number);
        QFETCH(QVariant, extra);

        QBuffer buffer;
        QDataStream stream;
        openReadStream(buffer, stream, bytes);
        TVXFileMetaInfo info;
        info.number = 99;
        int outcome = 0;
        try {
            outcome = info.read(stream) ? 1 : 0;
        } catch (const std::ios_base::failure& failure) {
            QCOMPARE(QByteArray(failure.what()), QByteArray("file read error libs/core/src/fileio/tvxfilemetainfo, line 113"));
            outcome = -1;
        }
        QCOMPARE(outcome, result);
        QCOMPARE(info.text(0x140001), text1);
        QCOMPARE(info.number, number);
        QVERIFY(info.dateTime.isNull());
        QCOMPARE(info.extra.value(0x149999), extra);
    }
};

TVX_TEST(MetaInfoTest)
#include "metainfotest.moc"
