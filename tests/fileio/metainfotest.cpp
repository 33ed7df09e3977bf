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
        TVXFileMetaInfo info;
        info.setText(0x140101, QStringLiteral("not a text")); // the date-time tag
        QVERIFY(info.text(0x140101).isNull());
        info.setText(0x140302, QStringLiteral("eleven"));
        QCOMPARE(info.text(0x140302), QStringLiteral("eleven"));
    }

    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("result"); // "read", "refused" or the read error
        QTest::addColumn<QString>("text1");
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QVariant>("extra"); // under tag 0x149999
        const QString read = QStringLiteral("read");
        const QString refused = QStringLiteral("refused");
        const QString failed = QStringLiteral("file read error libs/core/src/fileio/tvxfilemetainfo, line 113");

        const QVariant none;
        const auto section = [](const std::function<void(QDataStream&)>& body) {
            return streamBytes([&](QDataStream& s) {
                s << quint32(0x140000);
                body(s);
                s << quint32(0x14FFFF);
            });
        };
        QTest::newRow("empty section leaves the defaults") << section([](QDataStream&) {}) << read << QString() << 0u
                                                           << none;
        QTest::newRow("text, number, unknown tag") << section([](QDataStream& s) {
            s << quint32(0x140001) << QStringLiteral("Station 4") << quint32(0x140301) << quint32(17);
            s << quint32(0x149999) << QVariant(2.5);
        }) << read << QStringLiteral("Station 4") << 17u << QVariant(2.5);
        QTest::newRow("a later value replaces the earlier") << section([](QDataStream& s) {
            s << quint32(0x149999) << QVariant(1) << quint32(0x149999) << QVariant(QStringLiteral("two"));
        }) << read << QString() << 0u << QVariant(QStringLiteral("two"));
        QTest::newRow("wrong begin tag") << streamBytes([](QDataStream& s) { s << quint32(0x150000); }) << refused
                                         << QString() << 0u << none;
        // After the last value the stream ends: the missing end tag reads as tag 0, whose value fails.
        QTest::newRow("no end tag") << streamBytes([](QDataStream& s) {
            s << quint32(0x140000) << quint32(0x140301) << quint32(5);
        }) << failed << QString() << 5u << none;
        QTest::newRow("text longer than the rest") << section([](QDataStream& s) {
            s << quint32(0x140001) << quint32(0x7FFFFFF0);
        }) << failed << QString() << 0u << none;
        // Type 65 (a pixmap) cannot be read without a GUI: the value is corrupt.
        QTest::newRow("unsupported variant type") << section([](QDataStream& s) {
            s << quint32(0x149999) << quint32(65) << qint8(0);
        }) << failed << QString() << 0u << none;
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, result);
        QFETCH(QString, text1);
        QFETCH(quint32, number);
        QFETCH(QVariant, extra);

        TVXFileMetaInfo info;
        info.number = 99;
        QCOMPARE(readSection(info, bytes), result);
        QCOMPARE(info.text(0x140001), text1);
        QCOMPARE(info.number, number);
        QVERIFY(info.dateTime.isNull());
        QCOMPARE(info.extra.value(0x149999), extra);
    }
};

TVX_TEST(MetaInfoTest)
#include "metainfotest.moc"
