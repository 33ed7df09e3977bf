#include "testregistry.h"

#include "planarviewfixture.h"

#include "planarview/interactivedimensioning.h"
#include "planarview/interactivegraphicsitemevent.h"
#include "planarview/interactivepolygon.h"
#include "planarview/interactiverectangle.h"
#include "planarview/interactivestationmark.h"
#include "planarview/planaritemfactory.h"
#include "scene/tvxsellipse.h"
#include "scene/visit2drecord.h"
#include "scene/tvxsreferencepoint.h"

#include <QCursor>
#include <QMainWindow>
#include <QSignalSpy>

using namespace TVX::CORE;
using TVX::TEST::Fixture;

namespace {

// The one interactive item of a kind in the view's scene; null when there is none.
template<typename Item>
Item* onlyItem(const Fixture& f)
{
    Item* found = nullptr;
    for (QGraphicsItem* item : f.scene.items()) {
        if (auto* typed = dynamic_cast<Item*>(item))
            found = typed;
    }
    return found;
}

// Plays a gesture in cells: "c x y" click, "d x y" double click (as platforms send it: press,
// release, double click, release), "m x y" move, "p x y" press,
// "r x y" release, "R x y" right press.
void play(Fixture& f, const QString& gesture)
{
    for (const QString& step : gesture.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList parts = step.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QPoint p = f.at(parts[1].toDouble(), parts[2].toDouble());
        f.move(p);
        const QChar kind = parts[0].at(0);
        if (kind == QLatin1Char('c'))
            QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, p);
        else if (kind == QLatin1Char('d')) {
            QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, p);
            QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(p), f.view.viewport()->mapToGlobal(QPointF(p)),
                                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(f.view.viewport(), &doubleClick);
            QTest::mouseRelease(f.view.viewport(), Qt::LeftButton, {}, p);
        }
        else if (kind == QLatin1Char('p'))
            QTest::mousePress(f.view.viewport(), Qt::LeftButton, {}, p);
        else if (kind == QLatin1Char('r'))
            QTest::mouseRelease(f.view.viewport(), Qt::LeftButton, {}, p);
        else if (kind == QLatin1Char('R'))
            QTest::mousePress(f.view.viewport(), Qt::RightButton, {}, p);
    }
}

class MeasuringWindow final : public QMainWindow
{
public:
    QList<InteractiveGraphicsItem*> asked;

protected:
    void customEvent(QEvent* event) override
    {
        if (event->type() == InteractiveGraphicsItemEvent::EventType)
            asked << static_cast<InteractiveGraphicsItemEvent*>(event)->item();
    }
};

} // namespace

class InteractiveItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Construction with the mouse: what is added, and what the record holds afterwards.
    void construction_data()
    {
        QTest::addColumn<int>("subMode");
        QTest::addColumn<QString>("gesture");
        QTest::addColumn<int>("added");
        QTest::addColumn<QString>("record");
        QTest::newRow("polygon ended by a double click right after its first click")
            << 1 << "d 10 10" << 1 << "10,10";
        QTest::newRow("polygon of four") << 1 << "c 10 10;c 20 10;c 20 20;d 10 20" << 1 << "10,10 20,10 20,20 10,20";
        QTest::newRow("polygon: right press with three vertices leaves two")
            << 1 << "c 10 10;c 20 10;m 20 20;R 30 30" << 0 << "10,10 20,10";
        QTest::newRow("rectangle: a click without size keeps constructing")
            << 0 << "c 20 20;m 12 30;c 12 30" << 1 << "12,20 8x10";
        QTest::newRow("rectangle by a drag") << 0 << "p 10 10;m 15 14;r 16 15" << 1 << "10,10 6x5";
        QTest::newRow("ellipse, dragged up and left") << 2 << "p 30 30;r 20 25" << 1 << "20,25 10x5";
        QTest::newRow("dimensioning: two clicks") << 5 << "c 10 10;c 30 12" << 1 << "10,10 30,12";
        QTest::newRow("dimensioning: a right press after the first point aborts") << 6 << "c 10 10;R 20 20" << 0 << "";
    }

    void construction()
    {
        QFETCH(int, subMode);
        QFETCH(QString, gesture);
        QFETCH(int, added);
        QFETCH(QString, record);
        Fixture f;
        f.view.graphicsViewModeChanged(GraphicsView::CreateItem, subMode);
        QSignalSpy spy(&f.view, &GraphicsView::signalSceneElementAdded);
        play(f, gesture);
        QCOMPARE(spy.count(), added);
        InteractiveGraphicsItem* item = onlyItem<InteractiveGraphicsItem>(f);
        QString shape;
        if (item) {
            visit2DRecord(*item->record(), Overloaded{
                [&](const TVXSPolygon& p) {
                    QStringList points;
                    for (const QPointF& v : p.polygon())
                        points << QStringLiteral("%1,%2").arg(v.x()).arg(v.y());
                    shape = points.join(QLatin1Char(' '));
                },
                [&](const TVXSRectangle& r) { shape = QStringLiteral("%1,%2 %3x%4").arg(r.rectangle().x()).arg(r.rectangle().y()).arg(r.rectangle().width()).arg(r.rectangle().height()); },
                [&](const TVXSEllipse& e) { shape = QStringLiteral("%1,%2 %3x%4").arg(e.rectangle().x()).arg(e.rectangle().y()).arg(e.rectangle().width()).arg(e.rectangle().height()); },
                [&](const TVXSSimpleText&) {},
                [&](const TVXSDimensioning& d) { shape = QStringLiteral("%1,%2 %3,%4").arg(d.first().x()).arg(d.first().y()).arg(d.second().x()).arg(d.second().y()); },
            });
        }
        QCOMPARE(shape, record);
        if (subMode == 1 && added == 0 && !record.isEmpty()) // the cursor went onto the second vertex
            QCOMPARE(QCursor::pos(), f.view.viewport()->mapToGlobal(f.at(20, 10)));
    }

    // Editing a finished item: a corner dragged across the opposite one normalises the
    // rectangle; a press between two close end points grabs A.
    void handles()
    {
        Fixture f;
        auto* rectangle = new InteractiveRectangle(std::make_shared<TVXSRectangle>(QRectF(10, 10, 10, 10)));
        auto* dimensioning = new InteractiveDimensioning(std::make_shared<TVXSDimensioning>(0, QPointF(50, 10), QPointF(51, 10)));
        for (InteractiveGraphicsItem* item : {static_cast<InteractiveGraphicsItem*>(rectangle), static_cast<InteractiveGraphicsItem*>(dimensioning)})
            f.view.addGraphicsItem(item);
        f.view.graphicsViewModeChanged(GraphicsView::EditItem, 0);
        play(f, QStringLiteral("c 15 15;p 20 20;m 12 14;m 5 5;r 5 5"));
        QCOMPARE(std::static_pointer_cast<TVXSRectangle>(rectangle->record())->rectangle(), QRectF(5, 5, 5, 5));
        // 11 pixels are 2.75 cells here, truncated to 2: both ends lie in the square round 50.5.
        QVERIFY(dimensioning->grabHandle(QPointF(50.5, 10), f.view.viewportTransform()));
        dimensioning->constructionMouseMove(QPointF(40, 12));
        dimensioning->releaseHandle(QPointF(40, 12));
        QCOMPARE(dimensioning->pointA(), QPointF(40, 12));
        QCOMPARE(std::static_pointer_cast<TVXSDimensioning>(dimensioning->record())->first(), QPointF(40, 12));
    }

    // Until measured, the label shows no number.
    void unmeasuredLabel()
    {
        InteractiveDimensioning item(1, QPointF(), QPointF(), 0.0);
        QCOMPARE(item.labelText(), QStringLiteral("-.-- m (DZ)"));
        item.setValue(12.34567, false);
        QCOMPARE(item.labelText(), QStringLiteral("-.-- m (DZ)"));
    }

    // Every change of a point asks the main windows to measure the item.
    void changesAskTheMainWindows()
    {
        MeasuringWindow window;
        Fixture f;
        f.view.graphicsViewModeChanged(GraphicsView::CreateItem, 5);
        play(f, QStringLiteral("c 10 10;c 30 12"));
        QCoreApplication::sendPostedEvents();
        QVERIFY(!window.asked.isEmpty());
        QCOMPARE(window.asked.last(), onlyItem<InteractiveGraphicsItem>(f));
    }

    // Items made from records share them; other records make none.
    void itemsOfRecords()
    {
        const QList<TVXSceneItemPtr> records{
            std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 1), QPointF(5, 1), QPointF(3, 4)})),
            std::make_shared<TVXSRectangle>(QRectF(1, 1, 3, 2)), std::make_shared<TVXSEllipse>(QRectF(1, 1, 3, 2)),
            std::make_shared<TVXSSimpleText>(QStringLiteral("Valve"), QPointF(2, 2), QPointF()),
            std::make_shared<TVXSDimensioning>(2, QPointF(1, 1), QPointF(4, 5))};
        for (const TVXSceneItemPtr& record : records) {
            std::unique_ptr<InteractiveGraphicsItem> item(PlanarItemFactory::createItemForRecord(record));
            QVERIFY(item);
            QCOMPARE(item->record(), record);
            QVERIFY(!item->isUnderConstruction());
        }
        QVERIFY(!PlanarItemFactory::createItemForRecord(
            std::make_shared<TVXSReferencePoint>(QStringLiteral("R"), TVXSReferencePoint::Values{})));
        QVERIFY(!PlanarItemFactory::createItemForSubMode(8));
    }

    // A double click on a station mark asks for the marked scan; Delete leaves marks alone.
    void stationMarks()
    {
        Fixture f;
        f.view.addGraphicsItem(new InteractiveStationMark(3, QPointF(100, 50), 24, QStringLiteral("North\ndistance: 4.000 m")));
        QSignalSpy hop(&f.view, &GraphicsView::signalDBLClickScanPositionPlanarView);
        play(f, QStringLiteral("d 100 50"));
        QCOMPARE(hop.count(), 1);
        QCOMPARE(hop.at(0).at(0).toUInt(), 3u);
        f.view.graphicsViewModeChanged(GraphicsView::EditItem, 0);
        play(f, QStringLiteral("c 100 50"));
        QTest::keyClick(&f.view, Qt::Key_Delete);
        QVERIFY(onlyItem<InteractiveStationMark>(f));
        f.view.removeAndDeleteAllInteractiveStationMarks();
        QVERIFY(!onlyItem<InteractiveStationMark>(f));
    }
};

TVX_TEST(InteractiveItemsTest)

#include "interactiveitemstest.moc"
