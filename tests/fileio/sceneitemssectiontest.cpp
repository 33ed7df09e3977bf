#include "testregistry.h"

#include "annotations/tvxsdimensioning.h"
#include "annotations/tvxsellipse.h"
#include "annotations/tvxspolygon.h"
#include "annotations/tvxsrectangle.h"
#include "annotations/tvxssimpletext.h"
#include "glviews/scanviewscenegraph.h"
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

// A name and numbers, as describe() lists them.
QString line(const QString& name, std::initializer_list<double> numbers)
{
    QStringList parts{name};
    for (double n : numbers)
        parts << QString::number(n);
    return parts.join(QLatin1Char(' '));
}

// A short description of what was built, checked field by field against the file's numbers.
QString describe(const TVXSceneItem& item)
{
    if (const auto* p = dynamic_cast<const TVXSPolygon*>(&item)) {
        const QPolygonF polygon = p->polygon();
        return line(QStringLiteral("polygon"), {double(polygon.size()), polygon.at(1).x(), polygon.at(1).y()});
    }
    if (const auto* r = dynamic_cast<const TVXSRectangle*>(&item)) {
        const QRectF rect = r->rectangle();
        return line(QStringLiteral("rectangle"), {rect.x(), rect.y(), rect.width(), rect.height()});
    }
    if (const auto* e = dynamic_cast<const TVXSEllipse*>(&item)) {
        const QRectF rect = e->rectangle();
        return line(QStringLiteral("ellipse"), {rect.x(), rect.y(), rect.width(), rect.height()});
    }
    if (const auto* t = dynamic_cast<const TVXSSimpleText*>(&item)) {
        const QPointF at = t->position();
        const QPointF offset = t->offset();
        return line(QStringLiteral("text ") + t->text(), {at.x(), at.y(), offset.x(), offset.y()});
    }
    if (const auto* d = dynamic_cast<const TVXSDimensioning*>(&item)) {
        const QPointF a = d->first();
        const QPointF b = d->second();
        return line(QStringLiteral("dimensioning"), {double(d->type()), a.x(), a.y(), b.x(), b.y()});
    }
    return QStringLiteral("plain");
}

QString describe(const ScanViewSceneGraph& graph)
{
    QStringList parts;
    for (const auto& p : graph.polygons())
        parts << QStringLiteral("polygon %1 %2").arg(p->points().size()).arg(p->points().back().z);
    for (const auto& r : graph.rectangles())
        parts << QStringLiteral("rectangle %1 %2").arg(r->points()[0].x).arg(r->points()[2].z);
    for (const auto& e : graph.ellipses())
        parts << QStringLiteral("ellipse %1 %2").arg(e->points()[0].x).arg(e->points()[2].z);
    for (const auto& t : graph.textItems())
        parts << QStringLiteral("text %1 %2").arg(t->text()).arg(t->position().y);
    for (const auto& m : graph.measurementItems())
        parts << QStringLiteral("measurement %1 %2 %3").arg(m->type()).arg(m->first().x).arg(m->second().x);
    return parts.join(QLatin1String(", "));
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
        QTest::addColumn<QString>("item2D"); // the first 2D record, before the sentinel
        QTest::addColumn<QString>("items3D");

        const QString sentinel = QStringLiteral("rectangle 7 7 7 7");
        QTest::newRow("polygon: x then y") << section(1, [](QDataStream& s) {
            s << quint32(1) << quint32(3);
            doubles(s, {1, 2, 3, 4, 5, 6});
            trailer(s);
        }) << true << QStringLiteral("polygon 3 3 4") << QString();
        QTest::newRow("rectangle: x, y, width, height") << section(1, [](QDataStream& s) {
            s << quint32(2);
            doubles(s, {1, 2, 30, 40});
            trailer(s);
        }) << true << QStringLiteral("rectangle 1 2 30 40") << QString();
        QTest::newRow("ellipse: bounding x, y, width, height") << section(1, [](QDataStream& s) {
            s << quint32(3);
            doubles(s, {5, 6, 7, 8});
            trailer(s);
        }) << true << QStringLiteral("ellipse 5 6 7 8") << QString();
        QTest::newRow("text: position, then offset") << section(1, [](QDataStream& s) {
            s << quint32(4) << QStringLiteral("hello");
            doubles(s, {10, 20, -3, 4});
            trailer(s);
        }) << true << QStringLiteral("text hello 10 20 -3 4") << QString();
        QTest::newRow("dimensioning: type, first, second") << section(1, [](QDataStream& s) {
            s << quint32(6) << qint32(2);
            doubles(s, {1, 2, 3, 4});
            trailer(s);
        }) << true << QStringLiteral("dimensioning 2 1 2 3 4") << QString();
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
        }) << true << sentinel
           << QStringLiteral("polygon 2 9, rectangle 1 8, ellipse 2 7, text T 6, measurement 1 4 5");
        QTest::newRow("kind 5 fails the section") << section(1, [](QDataStream& s) { s << quint32(5); }) << false
                                                  << QString() << QString();
        QTest::newRow("unknown kind 21") << section(1, [](QDataStream& s) { s << quint32(21); }) << false << QString()
                                         << QString();
        QTest::newRow("wrong end tag") << streamBytes([](QDataStream& s) {
            s << quint32(0x160000) << quint32(0) << quint32(0x15FFFF);
        }) << false << QString() << QString();
        QTest::newRow("vertex count past the end") << section(1, [](QDataStream& s) {
            s << quint32(17) << quint32(0x10000000);
        }) << false << QString() << QString();
    }

    void kinds()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, read);
        QFETCH(QString, item2D);
        QFETCH(QString, items3D);

        for (const bool withGraph : {true, false}) {
            QBuffer buffer;
            QDataStream stream;
            openReadStream(buffer, stream, bytes);
            ScanViewSceneGraph graph;
            TVXFileSceneItems section;
            QCOMPARE(section.read(stream, withGraph ? &graph : nullptr), read);
            if (!read)
                continue;
            QVERIFY(!section.items.empty());
            QCOMPARE(describe(*section.items.front()), item2D);
            QCOMPARE(describe(*section.items.back()), QStringLiteral("rectangle 7 7 7 7"));
            for (const auto& item : section.items) {
                QCOMPARE(item->data().text, QStringLiteral("note"));
                QCOMPARE(item->data().integers, QList<qint32>{42});
            }
            // Without a graph the 3D items are read and dropped.
            QCOMPARE(describe(graph), withGraph ? items3D : QString());
        }
    }
};

TVX_TEST(SceneItemsSectionTest)
#include "sceneitemssectiontest.moc"
