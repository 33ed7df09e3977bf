#include "testregistry.h"

#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

// The layer table keeps its three defaults unless a whole table with its end tag was read.
class LayerTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("read");
        QTest::addColumn<QStringList>("names");

        const QStringList defaults{QStringLiteral("Standard"), QStringLiteral("Dimensioning"),
                                   QStringLiteral("References")};
        const auto layer = [](QDataStream& s, quint32 id, const QString& name) { s << id << name << true << false; };
        QTest::newRow("two layers") << streamBytes([&](QDataStream& s) {
            s << quint32(0x130000) << quint32(2);
            layer(s, 7, QStringLiteral("Walls"));
            layer(s, 9, QStringLiteral("Pipes"));
            s << quint32(0x13FFFF);
        }) << true << QStringList{QStringLiteral("Walls"), QStringLiteral("Pipes")};
        QTest::newRow("wrong end tag keeps the defaults") << streamBytes([&](QDataStream& s) {
            s << quint32(0x130000) << quint32(1);
            layer(s, 7, QStringLiteral("Walls"));
            s << quint32(0x14FFFF);
        }) << false << defaults;
        QTest::newRow("wrong begin tag") << streamBytes([&](QDataStream& s) { s << quint32(0x120000); }) << false
                                         << defaults;
        // 0xFFFFFFFF layers of at least 10 bytes cannot be in 12 bytes: nothing is allocated.
        QTest::newRow("count past the end") << streamBytes([&](QDataStream& s) {
            s << quint32(0x130000) << quint32(0xFFFFFFFF) << quint32(0x13FFFF);
        }) << false << defaults;
        QTest::newRow("name longer than the rest") << streamBytes([&](QDataStream& s) {
            s << quint32(0x130000) << quint32(1) << quint32(7) << quint32(0x00FFFFFE) << quint32(0x13FFFF);
        }) << false << defaults;
    }

    void read()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, read);
        QFETCH(QStringList, names);

        QBuffer buffer;
        QDataStream stream;
        openReadStream(buffer, stream, bytes);
        TVXFileLayerTable table;
        table.layers.clear();
        QCOMPARE(table.read(stream), read);
        QStringList got;
        for (const auto& layer : table.layers) {
            got << layer.name;
            // Flags as read: the defaults have both set, the written layers (true, false).
            QCOMPARE(layer.flag2, !read);
        }
        QCOMPARE(got, names);
    }
};

TVX_TEST(LayerTableTest)
#include "layertabletest.moc"
