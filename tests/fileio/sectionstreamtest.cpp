#include "testregistry.h"

#include "scanfixture.h"

#include "fileio/sectionstream.h"

#include <QBitArray>
#include <QColor>
#include <QDateTime>
#include <QLine>
#include <QLocale>
#include <QRect>
#include <QTest>
#include <QUrl>
#include <QUuid>

using namespace TVX::CORE;
using namespace TVX::TEST;

// The guarded reads: variants as Qt writes them at stream version 12, and lengths and counts
// that the bytes left cannot hold.
class SectionStreamTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void variantRoundTrip_data()
    {
        QTest::addColumn<QVariant>("value");

        QTest::newRow("invalid") << QVariant();
        QTest::newRow("bool") << QVariant(true);
        QTest::newRow("int") << QVariant(qint32(-5));
        QTest::newRow("qlonglong") << QVariant(qint64(-1099511627776));
        QTest::newRow("double") << QVariant(-2.25);
        QTest::newRow("float") << QVariant::fromValue(1.5f);
        QTest::newRow("short") << QVariant::fromValue(short(-300));
        QTest::newRow("char") << QVariant::fromValue(char('c'));
        QTest::newRow("long") << QVariant::fromValue(long(-123456));
        QTest::newRow("QChar") << QVariant(QChar(u'ß'));
        QTest::newRow("string") << QVariant(QStringLiteral("Stütze"));
        QTest::newRow("null string") << QVariant(QString());
        QTest::newRow("string list") << QVariant(QStringList{QStringLiteral("a"), QString()});
        QTest::newRow("byte array") << QVariant(QByteArray("\0\1\2", 3));
        QTest::newRow("bit array") << QVariant(QBitArray(11, true));
        QTest::newRow("date") << QVariant(QDate(2021, 3, 4));
        QTest::newRow("date time") << QVariant(QDateTime(QDate(2021, 3, 4), QTime(5, 6, 7), Qt::UTC));
        QTest::newRow("url") << QVariant(QUrl(QStringLiteral("file:///scans/a.tvx")));
        QTest::newRow("locale") << QVariant(QLocale(QLocale::German, QLocale::Germany));
        QTest::newRow("rect") << QVariant(QRect(1, 2, 3, 4));
        QTest::newRow("rectF") << QVariant(QRectF(1.5, 2, 3, 4));
        QTest::newRow("colour") << QVariant(QColor(10, 20, 30, 40));
        QTest::newRow("null int") << QVariant(QMetaType::fromType<int>());
        QTest::newRow("nested list and maps")
            << QVariant(QVariantList{1, QVariantMap{{QStringLiteral("k"), QVariantList{2.5, QStringLiteral("x")}}},
                                     QVariantHash{{QStringLiteral("h"), true}}});
    }

    void variantRoundTrip()
    {
        QFETCH(QVariant, value);
        QVERIFY(isStorableVariant(value));
        // Written by Qt itself at stream version 12, then a sentinel.
        const QByteArray bytes = streamBytes([&](QDataStream& s) { s << value << quint32(0xABCDEF); });
        QBuffer buffer;
        QDataStream stream;
        openReadStream(buffer, stream, bytes);
        QVariant read;
        readVariant(stream, read);
        quint32 sentinel = 0;
        stream >> sentinel;
        QCOMPARE(stream.status(), QDataStream::Ok);
        QCOMPARE(sentinel, 0xABCDEFu);
        QCOMPARE(read.metaType(), value.metaType());
        QCOMPARE(read, value);
        QCOMPARE(read.isNull(), value.isNull());
    }

    void refusedVariants_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("atEnd"); // read to the end, as if the stream had run out

        QTest::newRow("list count past the end") << streamBytes([](QDataStream& s) {
            s << quint32(9) << qint8(0) << quint32(0xFFFFFFFF) << quint32(0);
        }) << int(QDataStream::ReadPastEnd) << true;
        QTest::newRow("string longer than the rest") << streamBytes([](QDataStream& s) {
            s << quint32(10) << qint8(0) << quint32(0x7FFFFFFE) << quint32(0);
        }) << int(QDataStream::ReadPastEnd) << true;
        QTest::newRow("fixed-size value cut short") << streamBytes([](QDataStream& s) {
            s << quint32(20) << qint8(0) << 1.0;
        }) << int(QDataStream::ReadPastEnd) << true;
        QTest::newRow("odd string length") << streamBytes([](QDataStream& s) {
            s << quint32(10) << qint8(0) << quint32(3) << quint32(0);
        }) << int(QDataStream::ReadCorruptData) << false;
        // 127 is a user type: it cannot be read here.
        QTest::newRow("user type") << streamBytes([](QDataStream& s) { s << QVariant(QUuid()); })
                                   << int(QDataStream::ReadCorruptData) << false;
        QTest::newRow("nested deeper than 32") << streamBytes([](QDataStream& s) {
            for (int i = 0; i < 40; ++i)
                s << quint32(9) << qint8(0) << quint32(1);
            s << quint32(2) << qint8(0) << qint32(1);
        }) << int(QDataStream::ReadCorruptData) << false;
    }

    void refusedVariants()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, status);
        QFETCH(bool, atEnd);

        QBuffer buffer;
        QDataStream stream;
        openReadStream(buffer, stream, bytes);
        QVariant read;
        readVariant(stream, read);
        QCOMPARE(int(stream.status()), status);
        QCOMPARE(buffer.atEnd(), atEnd);
    }
};

TVX_TEST(SectionStreamTest)
#include "sectionstreamtest.moc"
