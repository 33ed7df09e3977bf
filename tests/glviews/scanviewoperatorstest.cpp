#include "testregistry.h"

#include "fakesphericalview.h"

#include "glviews/createmeasurmenttemoperator.h"
#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatorhost.h"
#include "glviews/scanviewoperatormanager.h"

#include <QTest>
#include <QWidget>

#include <functional>

using namespace TVX::CORE;

namespace {

using E = ScanViewEvent;

E press(quint32 code, qint32 x, qint32 y)
{
    return E::mouse(E::MouseButton, code, x, y);
}
E move(qint32 x, qint32 y)
{
    return E::mouse(E::MouseMove, 0, x, y);
}
E doubleClick(qint32 x, qint32 y)
{
    return E::mouse(E::MouseDoubleClick, E::LeftPress, x, y);
}
E key(quint32 code, bool press = true)
{
    return E::key(press ? E::KeyPress : E::KeyRelease, code, false);
}

constexpr quint32 shift = 0x10000000;
constexpr quint32 del = 0x10000100;

// Logs what the operators ask of the main window.
class RecordingHost : public ScanViewOperatorHost
{
public:
    void pickCell(quint32 scanId, qint32 column, qint32 row) override
    {
        log << QStringLiteral("pick %1 %2 %3").arg(scanId).arg(column).arg(row);
    }
    void showLens(bool shown) override { log << (shown ? QStringLiteral("lens on") : QStringLiteral("lens off")); }
    void showLensAt(quint32 scanId, qint32 column, qint32 row) override
    {
        log << QStringLiteral("lens %1 %2 %3").arg(scanId).arg(column).arg(row);
    }
    void annotationsModified(quint32 scanId) override { log << QStringLiteral("modified %1").arg(scanId); }
    void clearItemSelection() override { log << QStringLiteral("clear selection"); }
    bool askItemText(QString& text) override
    {
        text = answer;
        return !answer.isNull();
    }

    QStringList log;
    QString answer;
};

// The default operator table on a fake spherical view (or a planar one), scan 7.
struct Fixture {
    explicit Fixture(quint32 viewType = ActiveView::Spherical)
    {
        manager->setHost(&host);
        manager->setActiveViewProvider([this, viewType] {
            ActiveView active;
            active.subWindow = &subWindow;
            active.scanId = 7;
            active.type = viewType;
            active.spherical = viewType == ActiveView::Spherical ? &view : nullptr;
            return active;
        });
    }

    QList<bool> run(quint32 mode, const std::vector<E>& events)
    {
        manager->setMode(mode);
        QList<bool> consumed;
        for (const E& event : events)
            consumed << manager->dispatch(event);
        return consumed;
    }

    QWidget subWindow;
    FakeSphericalView view;
    RecordingHost host;
    std::unique_ptr<ScanViewOperatorManager> manager = ScanViewOperatorManager::createDefault();
};

struct GestureRow {
    quint32 mode;
    std::vector<E> events;
    QList<bool> consumed;
    QStringList hostLog;
    std::function<void(const ScanViewSceneGraph&, Fixture&)> check;
};

bool near(const Vector3d& a, const Vector3d& b)
{
    return (a - b).length() < 1e-9;
}

} // namespace

Q_DECLARE_METATYPE(GestureRow)

class ScanViewOperatorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void gestures_data()
    {
        QTest::addColumn<GestureRow>("row");
        const auto nothing = [](const ScanViewSceneGraph& g, Fixture&) {
            QCOMPARE(g.itemCount(), std::size_t(0));
            QVERIFY(!g.currentItem());
        };
        QTest::newRow("pick: a row and a selected point")
            << GestureRow{1, {press(1, 150, 60)}, {true}, {"pick 7 150 60"},
                          [](const ScanViewSceneGraph& g, Fixture& f) {
                              QCOMPARE(g.selectedPoints().size(), std::size_t(1));
                              QVERIFY(near(g.selectedPoints()[0], f.view.screenToDirection(150, 60)));
                          }};
        QTest::newRow("Shift shows the lens, moves feed it, the release hides it")
            << GestureRow{1, {key(shift), move(30, 40), key(shift, false), move(50, 50)},
                          {true, false, true, false}, {"lens on", "lens 7 30 40", "lens off"}, nothing};
        QTest::newRow("rectangle: click, move, click")
            << GestureRow{36, {press(1, 50, 50), move(120, 80), press(1, 150, 150)}, {true, false, true},
                          {"modified 7"},
                          [](const ScanViewSceneGraph& g, Fixture& f) {
                              QCOMPARE(g.rectangles().size(), std::size_t(1));
                              QVERIFY(!g.currentItem());
                              const auto corners = g.rectangles()[0]->corners();
                              // Aligned with the camera: corner 1 is level with 0 and above 2.
                              double x = 0, y = 0;
                              QVERIFY(f.view.directionToScreen(corners[1], x, y));
                              QCOMPARE(qRound(x), 150);
                              QCOMPARE(qRound(y), 50);
                              QVERIFY(near(corners[2], f.view.screenToDirection(150, 150)));
                          }};
        QTest::newRow("rectangle: the right button abandons it")
            << GestureRow{36, {press(1, 50, 50), move(120, 80), press(5, 120, 80)}, {true, false, true}, {}, nothing};
        QTest::newRow("polygon: double click finishes without its own extra vertex")
            << GestureRow{32,
                          {press(1, 50, 50), press(1, 150, 50), press(1, 150, 150), doubleClick(150, 150)},
                          {true, true, true, true}, {"modified 7"},
                          [](const ScanViewSceneGraph& g, Fixture&) {
                              QCOMPARE(g.polygons().size(), std::size_t(1));
                              QCOMPARE(g.polygons()[0]->points().size(), std::size_t(3));
                              QVERIFY(!g.currentItem());
                          }};
        QTest::newRow("polygon: two vertices have no area and are dropped")
            << GestureRow{32, {press(1, 50, 50), press(1, 150, 50), doubleClick(150, 50)}, {true, true, true}, {},
                          nothing};
        QTest::newRow("measurement of the kind set")
            << GestureRow{38, {press(1, 50, 50), press(1, 150, 50)}, {true, true}, {"modified 7"},
                          [](const ScanViewSceneGraph& g, Fixture&) {
                              QCOMPARE(g.measurementItems().size(), std::size_t(1));
                              QCOMPARE(g.measurementItems()[0]->type(), 1);
                          }};
        QTest::newRow("ellipse: axes end level with and above the centre")
            << GestureRow{34, {press(1, 100, 100), press(1, 140, 70)}, {true, true}, {"modified 7"},
                          [](const ScanViewSceneGraph& g, Fixture& f) {
                              const auto& p = g.ellipses().at(0)->points();
                              QVERIFY(near(p[1], f.view.screenToDirection(140, 100)));
                              QVERIFY(near(p[2], f.view.screenToDirection(100, 70)));
                          }};
        QTest::newRow("text: the answer is placed")
            << GestureRow{40, {press(1, 60, 60)}, {true}, {"modified 7"},
                          [](const ScanViewSceneGraph& g, Fixture&) {
                              QCOMPARE(g.textItems().size(), std::size_t(1));
                              QCOMPARE(g.textItems()[0]->text(), QStringLiteral("pillar"));
                          }};
    }

    void gestures()
    {
        QFETCH(GestureRow, row);
        Fixture f;
        f.host.answer = QStringLiteral("pillar");
        const auto measurement = f.manager->operatorFor(38);
        static_cast<CreateMeasurmenttemOperator&>(*measurement).setMeasurementKind(1);
        QCOMPARE(f.run(row.mode, row.events), row.consumed);
        QCOMPARE(f.host.log, row.hostLog);
        row.check(*f.view.graph, f);
    }

    // With a planar or point cloud sub window active, no operator acts and nothing is consumed
    // (but the camera's left press, which is consumed wherever it lands).
    void otherViewsAreLeftAlone()
    {
        for (const quint32 mode : {1u, 16u, 32u, 36u, 40u, 37u, 4102u}) {
            Fixture f(ActiveView::Planar);
            const QList<bool> consumed =
                f.run(mode, {press(3, 10, 10), move(20, 20), E::wheel(120), key(shift), key(del)});
            QCOMPARE(consumed, QList<bool>({false, false, false, false, false}));
            QVERIFY(f.host.log.isEmpty());
            QCOMPARE(f.view.graph->itemCount(), std::size_t(0));
        }
    }

    void modifyDragsAHandleAndTheRightButtonPutsItBack()
    {
        Fixture f;
        const auto polygon = std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{
            f.view.screenToDirection(50, 50), f.view.screenToDirection(150, 50), f.view.screenToDirection(100, 150)});
        f.view.graph->addItem(polygon);
        const auto before = polygon->points();

        // A press 5 pixels off the second vertex grabs it.
        QCOMPARE(f.run(33, {press(1, 154, 53), move(160, 70), press(4, 160, 70)}), QList<bool>({true, true, false}));
        f.manager->dispatch(press(2, 160, 70));
        QVERIFY(near(polygon->points()[1], f.view.screenToDirection(160, 70)));
        QCOMPARE(f.host.log, QStringList({"modified 7"}));

        f.run(33, {press(1, 160, 70), move(10, 10), press(5, 10, 10)});
        QVERIFY(near(polygon->points()[1], f.view.screenToDirection(160, 70)));
        QVERIFY(polygon->points() != before);
        QCOMPARE(f.host.log.size(), 1);
    }

    void objectSelectionDeletesAndLeavingClearsTheSelection()
    {
        Fixture f;
        const auto text = std::make_shared<ScanViewTextItem>(QStringLiteral("a"), f.view.screenToDirection(80, 80));
        f.view.graph->addItem(text);
        QCOMPARE(f.run(4102, {press(1, 80, 80)}), QList<bool>{true});
        QCOMPARE(f.view.graph->currentItem(), std::shared_ptr<ScanViewItem>(text));
        f.manager->setMode(1);
        QVERIFY(!f.view.graph->currentItem());
        QCOMPARE(f.host.log, QStringList({"clear selection"}));

        QCOMPARE(f.run(4102, {key(del), press(1, 80, 80), key(del)}), QList<bool>({false, true, true}));
        QCOMPARE(f.view.graph->itemCount(), std::size_t(0));
        QCOMPARE(f.host.log.last(), QStringLiteral("modified 7"));
    }

    void areaSelectionTakesWhatLiesInside()
    {
        Fixture f;
        const auto inside = std::make_shared<ScanViewMeasurementItem>(0, f.view.screenToDirection(40, 40),
                                                                      f.view.screenToDirection(60, 60));
        const auto across = std::make_shared<ScanViewMeasurementItem>(0, f.view.screenToDirection(40, 40),
                                                                      f.view.screenToDirection(160, 60));
        f.view.graph->addItem(inside);
        f.view.graph->addItem(across);
        QCOMPARE(f.run(3, {press(1, 20, 20), move(80, 80), press(2, 80, 80), key(del)}),
                 QList<bool>({true, true, true, true}));
        QCOMPARE(f.view.graph->measurementItems().size(), std::size_t(1));
        QCOMPARE(f.view.graph->measurementItems()[0], across);
    }
};

TVX_TEST(ScanViewOperatorsTest)

#include "scanviewoperatorstest.moc"
