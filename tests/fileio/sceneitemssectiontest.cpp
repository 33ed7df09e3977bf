#include "scenedescription.h"
#include "testregistry.h"

#include "scene/scanviewscenegraph.h"
#include "scanfixture.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
void trailer(QDataStream& s)
{
    s << QStringLiteral("note") << quint32(1) << qint32(42) << quint32(0) << quint32(0);
}

void doubles(QDataStream& s, std::initializer_list<double> values)
{
    for (double v : values)
        s << v;
}

// A section of `count` items written by `items`; a 2D rectangle follows them as a sentinel that
// only reads right when everything before it was consumed exactly.
QByteArray section(quint32 count, const std::function<void(QDataStream&)>& items)
{
    return streamBytes([&](QDataStream& s) {
        s << quint32(0x160000) << count + 1;
        items(s);
        s << quint32(2);
        doubles(s, {7, 7, 7, 7});
        trailer(s);
        s << quint32(0x16FFFF);
    });
}

} // namespace

// What each item kind of the scene items section consumes and builds.
class SceneItemsSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("read");
        QTest::addColumn<QStringList>("items2D"); // ending with the sentinel
        QTest::addColumn<QStringList>("items3D");

        const QString sentinel = QStringLiteral("rectangle 7,7,7,7");
        // Polygon x then y; rectangle and ellipse x, y, width, height; text position, then offset;
        // dimensioning type, first, second.
        QTest::newRow("2D records") << section(5, [](QDataStream& s) {
            s << quint32(1) << quint32(3);
            doubles(s, {1, 2, 3, 4, 5, 6});
            trailer(s);
            s << quint32(2);
            doubles(s, {1, 2, 30, 40});
            trailer(s);
            s << quint32(3);
            doubles(s, {5, 6, 7, 8});
            trailer(s);
            s << quint32(4) << QStringLiteral("hello");
            doubles(s, {10, 20, -3, 4});
            trailer(s);
            s << quint32(6) << qint32(2);
            doubles(s, {1, 2, 3, 4});
            trailer(s);
        }) << true << QStringList{"polygon 1,2 3,4 5,6", "rectangle 1,2,30,40", "ellipse 5,6,7,8",
                                  "text [hello] at 10,20 offset -3,4", "dimensioning 2 1,2 3,4", sentinel} << QStringList();
        QTest::newRow("3D items, none of them with a trailer") << section(5, [](QDataStream& s) {
            s << quint32(17) << quint32(2);
            doubles(s, {0, 0, 1, 0, 1, 9});
            s << quint32(18);
            doubles(s, {1, 0, 0, 0, 1, 0, 0, 0, 8});
            s << quint32(19);
            doubles(s, {2, 0, 0, 0, 1, 0, 0, 0, 7});
            s << quint32(20) << QStringLiteral("T");
            doubles(s, {0, 6, 0});
            // The second point comes first in the file.
            s << quint32(22) << qint32(1);
            doubles(s, {5, 0, 0, 4, 0, 0});
        }) << true << QStringList{sentinel}
           << QStringList{"ellipse3d 2,0,0 0,1,0 0,0,7", "polygon3d 0,0,1 0,1,9", "rectangle3d 1,0,0 0,1,0 0,0,8",
                          "text3d [T] at 0,6,0", "measurement3d 1 4,0,0 5,0,0"};
        QTest::newRow("kind 5 fails the section") << section(1, [](QDataStream& s) { s << quint32(5); }) << false
                                                  << QStringList() << QStringList();
        QTest::newRow("wrong end tag") << streamBytes([](QDataStream& s) {
            s << quint32(0x160000) << quint32(0) << quint32(0x15FFFF);
        }) << false << QStringList() << QStringList();
        QTest::newRow("vertex count past the end") << section(1, [](QDataStream& s) {
            s << quint32(17) << quint32(0x10000000);
        }) << false << QStringList() << QStringList();
    }

    void kinds()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, read);
        QFETCH(QStringList, items2D);
        QFETCH(QStringList, items3D);

        for (const bool withGraph : {true, false}) {
            QBuffer buffer;
            QDataStream stream;
            openReadStream(buffer, stream, bytes);
            ScanViewSceneGraph graph;
            TVXFileSceneItems section;
            QCOMPARE(section.read(stream, withGraph ? &graph : nullptr), read);
            if (!read)
                continue;
            QStringList read2D;
            for (const auto& item : section.items)
                read2D << describeRecord(*item);
            QCOMPARE(read2D, items2D);
            for (const auto& item : section.items) {
                QCOMPARE(item->data().text, QStringLiteral("note"));
                QCOMPARE(item->data().integers, QList<qint32>{42});
            }
            // Without a graph the 3D items are read and dropped.
            QCOMPARE(describeGraph(graph), withGraph ? items3D : QStringList());
        }
    }
};

TVX_TEST(SceneItemsSectionTest)
#include "sceneitemssectiontest.moc"
