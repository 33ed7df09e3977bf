#include "testregistry.h"

#include "planarview/lensgraphicsview.h"
#include "planarview/lenswidget.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QPixmap>
#include <QScrollBar>
#include <QTest>

using namespace TVX::CORE;

namespace {

QGraphicsPixmapItem* imageItem(const LensWidget& lens)
{
    const auto* view = lens.findChild<LensGraphicsView*>();
    if (!view || view->scene()->items().size() != 1)
        return nullptr;
    return qgraphicsitem_cast<QGraphicsPixmapItem*>(view->scene()->items().first());
}

// Where the image lands in the viewport, in viewport pixels.
QRect shownImage(const LensWidget& lens)
{
    const auto* view = lens.findChild<LensGraphicsView*>();
    return view->mapFromScene(imageItem(lens)->sceneBoundingRect()).boundingRect();
}

struct FitRow {
    const char* name;
    QSize size;
    bool beforeShown; // a dock lays its widget out before it first shows it
};

} // namespace

class LensWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWhiteAndCentred()
    {
        LensWidget lens;
        QCOMPARE(lens.sizeHint(), QSize(200, 200));
        QCOMPARE(lens.minimumSizeHint(), QSize(100, 100));
        auto* view = lens.findChild<LensGraphicsView*>();
        QVERIFY(view);
        QCOMPARE(view->viewportUpdateMode(), QGraphicsView::FullViewportUpdate);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QGraphicsPixmapItem* item = imageItem(lens);
        QVERIFY(item);
        QCOMPARE(item->pos(), QPointF(-25.5, -25.5));
        const QImage image = item->pixmap().toImage();
        QCOMPARE(image.size(), QSize(51, 51));
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(50, 50), QColor(Qt::white));
        // Pixel (25, 25) spans the scene square (-0.5, -0.5) to (0.5, 0.5).
        QCOMPARE(item->sceneBoundingRect().center(), QPointF(0, 0));
    }

    void refitsOnResize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("beforeShown");
        const FitRow rows[] = {
            {"size hint", {200, 200}, false},
            {"wide dock", {420, 130}, false},
            {"tall dock", {130, 420}, false},
            {"one pixel off square", {201, 200}, false},
            {"wide dock sized while hidden", {420, 130}, true},
        };
        for (const FitRow& row : rows)
            QTest::newRow(row.name) << row.size << row.beforeShown;
    }

    void refitsOnResize()
    {
        QFETCH(QSize, size);
        QFETCH(bool, beforeShown);
        LensWidget lens;
        if (beforeShown)
            lens.resize(size);
        lens.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lens));
        lens.resize(size);
        const auto* view = lens.findChild<LensGraphicsView*>();
        const QRect viewport = view->viewport()->rect();
        const QRect shown = shownImage(lens);
        // Square, centred, and as large as the shorter side allows (the fit leaves a few pixels).
        QVERIFY2(qAbs(shown.width() - shown.height()) <= 1,
                 qPrintable(QStringLiteral("%1x%2").arg(shown.width()).arg(shown.height())));
        QVERIFY(qAbs(shown.center().x() - viewport.center().x()) <= 1);
        QVERIFY(qAbs(shown.center().y() - viewport.center().y()) <= 1);
        const int side = qMin(viewport.width(), viewport.height());
        QVERIFY2(shown.width() <= side + 1 && shown.width() >= side - 6,
                 qPrintable(QStringLiteral("image %1 in a viewport side %2").arg(shown.width()).arg(side)));
    }

    void newImageKeepsTheFitUntilResized()
    {
        LensWidget lens;
        lens.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lens));
        lens.resize(300, 200);
        const auto* view = lens.findChild<LensGraphicsView*>();
        const QTransform fitted = view->transform();
        QPixmap larger(101, 101);
        larger.fill(Qt::red);
        lens.setPixmap(larger);
        QCOMPARE(view->transform(), fitted);
        QCOMPARE(imageItem(lens)->pos(), QPointF(-25.5, -25.5));

        lens.resize(300, 201);
        QVERIFY(view->transform() != fitted);
        const int side = qMin(view->viewport()->width(), view->viewport()->height());
        QVERIFY(qAbs(shownImage(lens).width() - side) <= 6);
    }

    void crossHairIsDrawnAroundTheCentreCell()
    {
        LensWidget lens;
        lens.show();
        QVERIFY(QTest::qWaitForWindowExposed(&lens));
        lens.resize(255, 255);
        auto* view = lens.findChild<LensGraphicsView*>();
        const QImage shot = view->viewport()->grab().toImage();
        // Looks for the pen's colour within one pixel of where a scene point lands.
        const auto blueNear = [&](QPointF scenePoint) {
            const QPoint at = view->mapFromScene(scenePoint);
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (shot.pixelColor(at + QPoint(dx, dy)) == QColor(Qt::blue))
                        return true;
                }
            }
            return false;
        };
        // The integer rectangle from (-7, -7) to (6, 6) is 14 cells wide, so its outline runs
        // from -7 to -7 + 14 = 7 on both axes: symmetric about the centre cell.
        QVERIFY(blueNear({-7, -3}));  // left side
        QVERIFY(blueNear({7, 3}));    // right side
        QVERIFY(blueNear({-1, 7}));   // bottom side
        QVERIFY(blueNear({0, -4}));   // end of the vertical line
        QVERIFY(!blueNear({-12, -12}));
        QVERIFY(!blueNear({3, 5}));   // inside, off the lines
    }
};

TVX_TEST(LensWidgetTest)

#include "lenswidgettest.moc"
