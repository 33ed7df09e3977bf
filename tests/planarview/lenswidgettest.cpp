#include "testregistry.h"

#include "planarview/lensgraphicsview.h"
#include "planarview/lenswidget.h"

#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
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
    void refitsOnResize_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("beforeShown");
        const FitRow rows[] = {
            {"wide dock", {420, 130}, false},
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
        QVERIFY(blueNear({0, -4}));   // end of the vertical line
        QVERIFY(!blueNear({3, 5}));   // inside, off the lines
    }
};

TVX_TEST(LensWidgetTest)

#include "lenswidgettest.moc"
