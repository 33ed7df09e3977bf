#include "testregistry.h"

#include "planarviewfixture.h"

#include "planarview/graphicsview.h"
#include "planarview/interactivegraphicsitem.h"
#include "planarview/panoramaitem.h"
#include "planarview/pickedpointgfxitem.h"

#include <QGraphicsScene>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace TVX::CORE;
using TVX::TEST::Fixture;

class GraphicsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pickSendsTheTruncatedCell()
    {
        Fixture f;
        QSignalSpy picked(&f.view, &GraphicsView::signalLMBClick);
        QSignalSpy moved(&f.view, &GraphicsView::signalRowAndColumnMouseMove);
        f.move(f.at(120.5, 40.75));
        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, f.at(120.5, 40.75));
        QCOMPARE(picked.count(), 1);
        QCOMPARE(picked.at(0), (QList<QVariant>{7u, 120, 40}));
        QCOMPARE(moved.last().at(0).toPoint(), QPoint(120, 40));
        int marks = 0;
        for (QGraphicsItem* item : f.scene.items())
            marks += item->type() == PickedPointGFXItem::Type ? 1 : 0;
        QCOMPARE(marks, 1);
        // A double click on the mark takes it away and asks to remove the point.
        QSignalSpy removed(&f.view, &GraphicsView::signalRemovePointFromLMBClick);
        QTest::mouseDClick(f.view.viewport(), Qt::LeftButton, {}, f.at(120.5, 40.75));
        QCOMPARE(removed.count(), 1);
    }

    // With Shift held the lens walks one cell per event along each moved axis, however far the
    // mouse went; releasing any key but Control ends lens mode.
    void lensWalksOneCellPerEvent()
    {
        Fixture f;
        QSignalSpy lens(&f.view, &GraphicsView::qsig_UpdateLens);
        QSignalSpy enabled(&f.view, &GraphicsView::signalLensModeEnabled);
        f.move(f.at(100.5, 50.5));
        QTest::keyPress(&f.view, Qt::Key_Shift, Qt::ShiftModifier);
        QVERIFY(f.view.isLensMode());
        f.move(f.at(140.5, 70.5)); // far right and down
        f.move(f.at(60.5, 70.5)); // far left, still below the lens
        QCOMPARE(lens.count(), 2);
        QCOMPARE(lens.at(0), (QList<QVariant>{7u, 101, 51}));
        QCOMPARE(lens.at(1), (QList<QVariant>{7u, 100, 52}));
        QKeyEvent letter(QEvent::KeyRelease, Qt::Key_A, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&f.view, &letter);
        QVERIFY(!f.view.isLensMode());
        QCOMPARE(enabled.last().at(0).toBool(), false);
        const int announced = int(enabled.count());
        QKeyEvent controlPress(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
        QKeyEvent controlRelease(QEvent::KeyRelease, Qt::Key_Control, Qt::NoModifier);
        QCoreApplication::sendEvent(&f.view, &controlPress);
        QCoreApplication::sendEvent(&f.view, &controlRelease);
        QCOMPARE(enabled.count(), announced);
    }

    void zoomModeSteps()
    {
        Fixture f;
        f.view.graphicsViewModeChanged(GraphicsView::Zoom, 1);
        const QPoint centre = f.at(100, 50);
        QTest::mousePress(f.view.viewport(), Qt::LeftButton, {}, centre);
        QVERIFY(std::abs(f.view.transform().m11() - 4 * 0.8) < 1e-12);
        // The double click itself zooms twice more.
        QMouseEvent doubleClick(QEvent::MouseButtonDblClick, QPointF(centre), f.view.viewport()->mapToGlobal(QPointF(centre)),
                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(f.view.viewport(), &doubleClick);
        QVERIFY(std::abs(f.view.transform().m11() - 4 * 0.8 * 0.8 * 0.8) < 1e-12);
    }

    // A mode change drops an unfinished dimensioning; the same mode and sub-mode again keeps it.
    void modeChangeDuringConstruction_data()
    {
        QTest::addColumn<QString>("gesture");
        QTest::addColumn<int>("added");
        QTest::newRow("other sub-mode drops the unfinished item") << "LM" << 0;
        QTest::newRow("same mode and sub-mode keeps it") << "LSL" << 1;
    }

    void modeChangeDuringConstruction()
    {
        QFETCH(QString, gesture);
        QFETCH(int, added);
        Fixture f;
        f.view.graphicsViewModeChanged(GraphicsView::CreateItem, 5);
        QSignalSpy spy(&f.view, &GraphicsView::signalSceneElementAdded);
        double x = 60;
        for (const QChar step : gesture) {
            x += 10;
            f.move(f.at(x, 60));
            if (step == QLatin1Char('L'))
                QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, f.at(x, 60));
            else
                f.view.graphicsViewModeChanged(GraphicsView::CreateItem, step == QLatin1Char('M') ? 1 : 5);
        }
        QCOMPARE(spy.count(), added);
        int items = 0;
        for (QGraphicsItem* item : f.scene.items())
            items += dynamic_cast<InteractiveGraphicsItem*>(item) ? 1 : 0;
        QCOMPARE(items, added);
    }

    // The pyramid level follows the zoom, and all levels together stay within 1.5 × the image.
    void panoramaLevels()
    {
        QImage image(1000, 500, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        const PanoramaItem item(image, 2000, 1000);
        QCOMPARE(item.boundingRect(), QRectF(0, 0, 2000, 1000));
        QCOMPARE(item.levelFor(0.5), 0);
        QCOMPARE(item.levelFor(1.0), 0);
        QCOMPARE(item.levelFor(2.5), 1);
        QCOMPARE(item.levelFor(1e9), item.levelCount() - 1);
        QVERIFY(item.byteCount() <= qint64(1.5 * image.sizeInBytes()));
    }
};

TVX_TEST(GraphicsViewTest)

#include "graphicsviewtest.moc"
