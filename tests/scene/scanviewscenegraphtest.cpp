#include "testregistry.h"

#include "scene/scanviewscenegraph.h"

#include <QTest>

using namespace TVX::CORE;

namespace {

enum Kind { Text, Measurement, Ellipse, Rectangle, Polygon, KindCount };

// One item of each kind, all covering the direction straight ahead (1, 0, 0).
struct Items {
    std::shared_ptr<ScanViewTextItem> text = std::make_shared<ScanViewTextItem>(QStringLiteral("A"), Vector3d(1, 0, 0));
    std::shared_ptr<ScanViewMeasurementItem> measurement =
        std::make_shared<ScanViewMeasurementItem>(0, Vector3d(1, -0.1, 0), Vector3d(1, 0.1, 0));
    std::shared_ptr<ScanViewEllipse> ellipse =
        std::make_shared<ScanViewEllipse>(Vector3d(1, 0, 0), Vector3d(1, 0.2, 0), Vector3d(1, 0, 0.2));
    std::shared_ptr<ScanViewRectangle> rectangle =
        std::make_shared<ScanViewRectangle>(Vector3d(1, -0.2, 0.2), Vector3d(1, -0.2, -0.2), Vector3d(1, 0.2, -0.2));
    std::shared_ptr<ScanViewPolygon> polygon = std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{
        {1, -0.2, -0.2}, {1, 0.2, -0.2}, {1, 0.2, 0.2}, {1, -0.2, 0.2}});

    const ScanViewItem* of(int kind) const
    {
        const ScanViewItem* items[KindCount] = {text.get(), measurement.get(), ellipse.get(), rectangle.get(),
                                                polygon.get()};
        return items[kind];
    }

    void add(ScanViewSceneGraph& graph, int kind) const
    {
        switch (kind) {
        case Text:
            graph.addItem(text);
            break;
        case Measurement:
            graph.addItem(measurement);
            break;
        case Ellipse:
            graph.addItem(ellipse);
            break;
        case Rectangle:
            graph.addItem(rectangle);
            break;
        default:
            graph.addItem(polygon);
            break;
        }
    }
};

struct Announcement {
    unsigned int change;
    const ScanViewItem* item;
    std::size_t itemCount; // as the slot saw it
};

} // namespace

class ScanViewSceneGraphTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Where items overlap, the small targets win: text, measurement, ellipse, rectangle, polygon.
    void hitTestOrder_data()
    {
        QTest::addColumn<QList<int>>("kinds"); // in the order added
        QTest::addColumn<int>("expected");     // -1: nothing

        QTest::newRow("all kinds, polygon added first")
            << QList<int>{Polygon, Rectangle, Ellipse, Measurement, Text} << int(Text);
        QTest::newRow("no text") << QList<int>{Polygon, Rectangle, Measurement, Ellipse} << int(Measurement);
        QTest::newRow("rectangle before polygon") << QList<int>{Polygon, Rectangle} << int(Rectangle);
        QTest::newRow("empty") << QList<int>{} << -1;
    }

    void hitTestOrder()
    {
        QFETCH(QList<int>, kinds);
        QFETCH(int, expected);

        const Items items;
        ScanViewSceneGraph graph;
        for (int kind : kinds)
            items.add(graph, kind);
        QCOMPARE(graph.itemCount(), std::size_t(kinds.size()));
        const std::shared_ptr<ScanViewItem> hit = graph.hitTest({1, 0, 0});
        QCOMPARE(hit.get(), expected < 0 ? nullptr : items.of(expected));
        QVERIFY(!graph.hitTest({-1, 0, 0}));
        QVERIFY(!graph.hitTest({0, 0, 1}));
    }

    void firstOfAKindInListOrder()
    {
        ScanViewSceneGraph graph;
        const auto wide = std::make_shared<ScanViewPolygon>(
            std::vector<Vector3d>{{1, -0.3, -0.3}, {1, 0.3, -0.3}, {1, 0.3, 0.3}, {1, -0.3, 0.3}});
        const auto narrow = std::make_shared<ScanViewPolygon>(
            std::vector<Vector3d>{{1, -0.1, -0.1}, {1, 0.1, -0.1}, {1, 0.1, 0.1}, {1, -0.1, 0.1}});
        graph.addItem(wide);
        graph.addItem(narrow);
        QCOMPARE(graph.hitTest({1, 0, 0}).get(), wide.get());
        QCOMPARE(graph.hitTest({1, 0.2, 0}).get(), wide.get());
        graph.removeItem(wide.get());
        QCOMPARE(graph.hitTest({1, 0, 0}).get(), narrow.get());
        QVERIFY(!graph.hitTest({1, 0.2, 0}));
    }

    void changeSignal_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("text") << int(Text);
        QTest::newRow("measurement") << int(Measurement);
        QTest::newRow("ellipse") << int(Ellipse);
        QTest::newRow("rectangle") << int(Rectangle);
        QTest::newRow("polygon") << int(Polygon);
    }

    void changeSignal()
    {
        QFETCH(int, kind);

        const Items items;
        ScanViewSceneGraph graph;
        std::vector<Announcement> heard;
        const boost::signals2::scoped_connection connection =
            graph.itemChanged().connect([&heard, &graph](unsigned int change, const ScanViewItem* item) {
                heard.push_back({change, item, graph.itemCount()});
            });
        const ScanViewItem* item = items.of(kind);
        const ScanViewItem* other = items.of((kind + 1) % KindCount);

        items.add(graph, kind);
        graph.notifyItemChanged(item);
        QVERIFY(!graph.removeItem(other)); // never added: no announcement
        QVERIFY(!graph.removeItem(nullptr));
        QVERIFY(graph.removeItem(item));
        QVERIFY(!graph.removeItem(item)); // already gone

        QCOMPARE(heard.size(), std::size_t(3));
        QCOMPARE(heard[0].change, unsigned(ScanViewSceneGraph::ItemAdded));
        QCOMPARE(heard[0].item, item);
        QCOMPARE(heard[0].itemCount, std::size_t(1));
        QCOMPARE(heard[1].change, unsigned(ScanViewSceneGraph::ItemChanged));
        QCOMPARE(heard[1].item, item);
        // The removal is announced while the item is still listed.
        QCOMPARE(heard[2].change, unsigned(ScanViewSceneGraph::ItemRemoved));
        QCOMPARE(heard[2].item, item);
        QCOMPARE(heard[2].itemCount, std::size_t(1));
        QCOMPARE(graph.itemCount(), std::size_t(0));
        QCOMPARE(graph.changeCount(), quint32(3));
    }
};

TVX_TEST(ScanViewSceneGraphTest)

#include "scanviewscenegraphtest.moc"
