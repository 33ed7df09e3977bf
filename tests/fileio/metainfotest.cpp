#include "testregistry.h"

#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
struct MetaRow {
    const char* name;
    QByteArray bytes;
    const char* result; // "read", "refused" or the read error
    const char* text1;  // of tag 0x140001
    quint32 number;
    QVariant extra; // under tag 0x149999
};

QByteArray section(const QByteArray& body)
{
    return bytesOf(quint32(0x140000)) + body + bytesOf(quint32(0x14FFFF));
}
} // namespace
Q_DECLARE_METATYPE(MetaRow)

// Tags, defaults and failures of the meta information section.
class MetaInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<MetaRow>("row");
        const char* failed = "file read error libs/core/src/fileio/tvxfilemetainfo, line 113";
        const MetaRow rows[] = {
            {"empty section leaves the defaults", section({}), "read", nullptr, 0, {}},
            {"text, number, unknown tag",
             section(bytesOf(quint32(0x140001), QStringLiteral("Station 4"), quint32(0x140301), quint32(17),
                             quint32(0x149999), QVariant(2.5))),
             "read", "Station 4", 17, 2.5},
            {"a later value replaces the earlier",
             section(bytesOf(quint32(0x149999), QVariant(1), quint32(0x149999), QVariant(QStringLiteral("two")))),
             "read", nullptr, 0, QStringLiteral("two")},
            {"wrong begin tag", bytesOf(quint32(0x150000)), "refused", nullptr, 0, {}},
            // After the last value the stream ends: the missing end tag reads as tag 0, whose value fails.
            {"no end tag", bytesOf(quint32(0x140000), quint32(0x140301), quint32(5)), failed, nullptr, 5, {}},
            {"text longer than the rest", section(bytesOf(quint32(0x140001), quint32(0x7FFFFFF0))), failed, nullptr, 0,
             {}},
            // Type 65 (a pixmap) cannot be read without a GUI: the value is corrupt.
            {"unsupported variant type", section(bytesOf(quint32(0x149999), quint32(65), qint8(0))), failed, nullptr, 0,
             {}},
        };
        for (const MetaRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void read()
    {
        QFETCH(MetaRow, row);
        TVXFileMetaInfo info;
        info.number = 99;
        QCOMPARE(readSection(info, row.bytes), QString::fromLatin1(row.result));
        QCOMPARE(info.text(0x140001), QString::fromUtf8(row.text1));
        QCOMPARE(info.number, row.number);
        QVERIFY(info.dateTime.isNull());
        QCOMPARE(info.extra.value(0x149999), row.extra);
    }
};

TVX_TEST(MetaInfoTest)
#include "metainfotest.moc"
