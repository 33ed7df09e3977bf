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
    std::shared_ptr<ScanViewPolygon> polygon = std::make_shared<ScanViewPolygon>(
        std::vector<Vector3d>{{1, -0.2, -0.2}, {1, 0.2, -0.2}, {1, 0.2, 0.2}, {1, -0.2, 0.2}});

    const ScanViewItem* of(int kind) const
    {
        const ScanViewItem* items[KindCount] = {text.get(), measurement.get(), ellipse.get(), rectangle.get(),
                                                polygon.get()};
        return items[kind];
    }

    void add(ScanViewSceneGraph& graph, int kind) const
    {
        switch (kind) {
        case Text: return graph.addItem(text);
        case Measurement: return graph.addItem(measurement);
        case Ellipse: return graph.addItem(ellipse);
        case Rectangle: return graph.addItem(rectangle);
        default: return graph.addItem(polygon);
        }
    }
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
        QCOMPARE(graph.hitTest({1, 0, 0}).get(), expected < 0 ? nullptr : items.of(expected));
        QVERIFY(!graph.hitTest({-1, 0, 0}));
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
        graph.removeItem(wide.get());
        QCOMPARE(graph.hitTest({1, 0, 0}).get(), narrow.get());
        QVERIFY(!graph.hitTest({1, 0.2, 0}));
    }

    void changeSignal()
    {
        const int kind = Ellipse; // the announcements do not depend on the kind
        const Items items;
        ScanViewSceneGraph graph;
        QStringList heard; // change, whether it is the item, items listed as the slot saw them
        const ScanViewItem* item = items.of(kind);
        const boost::signals2::scoped_connection connection =
            graph.itemChanged().connect([&](unsigned int change, const ScanViewItem* about) {
                heard << QStringLiteral("%1 %2 %3").arg(change).arg(about == item).arg(graph.itemCount());
            });

        items.add(graph, kind);
        graph.notifyItemChanged(item);
        QVERIFY(!graph.removeItem(items.of((kind + 1) % KindCount))); // never added: no announcement
        QVERIFY(!graph.removeItem(nullptr));
        QVERIFY(graph.removeItem(item));
        QVERIFY(!graph.removeItem(item)); // already gone

        // The removal is announced while the item is still listed.
        QCOMPARE(heard, QStringList({QStringLiteral("%1 1 1").arg(ScanViewSceneGraph::ItemAdded),
                                     QStringLiteral("%1 1 1").arg(ScanViewSceneGraph::ItemChanged),
                                     QStringLiteral("%1 1 1").arg(ScanViewSceneGraph::ItemRemoved)}));
        QCOMPARE(graph.itemCount(), std::size_t(0));
        QCOMPARE(graph.changeCount(), quint32(3));
    }
};

TVX_TEST(ScanViewSceneGraphTest)

#include "scanviewscenegraphtest.moc"
