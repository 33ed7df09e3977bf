#include "testregistry.h"

#include "glviews/activeview.h"
#include "glviews/scanviewoperatormanager.h"
#include "glviews/sphericalviewglwidget.h"
#include "scene/scanviewscenegraph.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <cmath>

using namespace TVX::CORE;

namespace {

constexpr double degree = M_PI / 180.0;
const QSize viewSize(320, 240);
const QPoint centre(160, 120);

// 360 × 180 pixels, one per degree: red top left, green top right, blue bottom left, yellow
// bottom right. The left half holds the first half of the horizontal range, the top half the
// upper half of the vertical range.
QPixmap quadrants()
{
    QImage image(360, 180, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.fillRect(0, 0, 180, 90, Qt::red);
    painter.fillRect(180, 0, 180, 90, Qt::green);
    painter.fillRect(0, 90, 180, 90, Qt::blue);
    painter.fillRect(180, 90, 180, 90, Qt::yellow);
    return QPixmap::fromImage(image);
}

// Aims the camera at horizontal angle `azimuth` and elevation `elevation` (degrees). The view
// looks along −(third row of Rx(angleX)·Rz(angleZ)) = (−sin aX·sin aZ, −sin aX·cos aZ, −cos aX),
// which with aX = 90° + e and aZ = a − 90° is (cos e·cos a, −cos e·sin a, sin e): elevation e and a
// horizontal angle a that grows clockwise, as the scan counts it.
void aim(ScanViewSceneGraph& graph, double azimuth, double elevation)
{
    graph.angleX = (90.0 + elevation) * degree;
    graph.angleY = 0.0;
    graph.angleZ = std::fmod(azimuth - 90.0 + 360.0, 360.0) * degree;
}

// The sub window's stand-in: it records the context menu requests that reach it.
class MenuRecorder : public QWidget
{
public:
    QList<QPoint> menuPositions;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        if (event->reason() == QContextMenuEvent::Mouse)
            menuPositions << event->pos();
        event->accept();
    }
};

struct ShownView {
    explicit ShownView(double verticalMin = -M_PI / 2.0, double verticalMax = M_PI / 2.0,
                       double horizontalMin = 0.0, double horizontalMax = 2.0 * M_PI)
        : view(7, quadrants(), graph, horizontalMin, horizontalMax, verticalMin, verticalMax, &parent)
    {
        parent.resize(viewSize);
        view.setGeometry(QRect(QPoint(0, 0), viewSize));
        view.setGridSize(360, 180);
        parent.show();
    }

    bool exposed() { return QTest::qWaitForWindowExposed(&parent); }

    // The default operators, with this view as the active spherical view.
    void useDefaultOperators()
    {
        manager = ScanViewOperatorManager::createDefault();
        manager->setActiveViewProvider([this] {
            ActiveView active;
            active.subWindow = &parent;
            active.scanId = 7;
            active.type = ActiveView::Spherical;
            active.spherical = &view;
            return active;
        });
        manager->setMode(ScanViewOperatorManager::PickMode);
        view.setOperatorManager(manager.get());
    }

    std::shared_ptr<ScanViewSceneGraph> graph = std::make_shared<ScanViewSceneGraph>();
    MenuRecorder parent;
    SphericalViewGLWidget view;
    std::unique_ptr<ScanViewOperatorManager> manager;
};

// Extent and aim in degrees, and the colour at the centre.
struct PanoramaRow {
    const char* name;
    double verticalMin, verticalMax, horizontalMin, horizontalMax, azimuth, elevation;
    QColor colour;
};

} // namespace

Q_DECLARE_METATYPE(PanoramaRow)

class SphericalViewGLWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        SphericalViewGLWidget::setDriverErrorHandler(
            [](QWidget*, const QString& title, const QString&) { QFAIL(qPrintable(title)); });
    }

    void panoramaShowsWhereTheCameraLooks_data()
    {
        QTest::addColumn<PanoramaRow>("row");
        const PanoramaRow rows[] = {
            {"first half, above", -90, 90, 0, 360, 90, 30, Qt::red},
            // A band of ±30°: nothing shows beyond it.
            {"band, above", -30, 30, 0, 360, 90, 60, Qt::black},
            // Half a turn from 90° to 270°: after it the last column shows.
            {"half turn, after", -90, 90, 90, 270, 330, -20, Qt::yellow},
        };
        for (const PanoramaRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void panoramaShowsWhereTheCameraLooks()
    {
        QFETCH(PanoramaRow, row);
        const auto& [name, verticalMin, verticalMax, horizontalMin, horizontalMax, azimuth, elevation, colour] = row;
        ShownView shown(verticalMin * degree, verticalMax * degree, horizontalMin * degree, horizontalMax * degree);
        QVERIFY(shown.exposed());
        aim(*shown.graph, azimuth, elevation);
        const QImage frame = shown.view.grabFramebuffer();
        QCOMPARE(frame.size(), viewSize * shown.view.devicePixelRatioF());
        QCOMPARE(QColor(frame.pixel(centre)), colour);

        // Picking agrees with drawing: the cell under the centre has the colour shown there.
        const QPoint cell = shown.view.directionToCell(shown.view.screenToDirection(centre.x(), centre.y()));
        if (cell.x() >= 0 && cell.x() < 360 && cell.y() >= 0 && cell.y() < 180)
            QCOMPARE(QColor(quadrants().toImage().pixel(cell)), colour);
    }

    // A middle drag of (+40, −20) pixels turns by (−0.25·−20, 0, −0.25·40) = (5°, 0, −10°).
    void middleDragTurnsTheCamera()
    {
        ShownView shown;
        QVERIFY(shown.exposed());
        shown.useDefaultOperators();
        shown.graph->angleX = 80.0 * degree;
        shown.graph->angleZ = 30.0 * degree;
        QTest::mousePress(&shown.view, Qt::MiddleButton, {}, QPoint(100, 100));
        QTest::mouseMove(&shown.view, QPoint(140, 80));
        QTest::mouseRelease(&shown.view, Qt::MiddleButton, {}, QPoint(140, 80));
        QVERIFY(std::abs(shown.graph->angleX - 85.0 * degree) < 1e-12);
        QVERIFY(std::abs(shown.graph->angleZ - 20.0 * degree) < 1e-12);
        QCOMPARE(shown.graph->angleY, 0.0);
    }

    // The middle button is down when the menu opens; afterwards a move must not turn the view.
    void rightReleaseOpensTheMenuAndForgetsButtons()
    {
        ShownView shown;
        QVERIFY(shown.exposed());
        shown.useDefaultOperators();
        shown.graph->angleZ = 30.0 * degree;
        QTest::mousePress(&shown.view, Qt::MiddleButton, {}, QPoint(100, 100));
        QTest::mousePress(&shown.view, Qt::RightButton, {}, QPoint(100, 100));
        QTest::mouseRelease(&shown.view, Qt::RightButton, {}, QPoint(100, 100));
        QCOMPARE(shown.parent.menuPositions, QList<QPoint>{QPoint(100, 100)});
        QTest::mouseMove(&shown.view, QPoint(150, 100));
        QCOMPARE(shown.graph->angleZ, 30.0 * degree);
    }

    void stationMarkAnswersToolTipAndDoubleClick()
    {
        ShownView shown;
        QVERIFY(shown.exposed());
        aim(*shown.graph, 90.0, 0.0);
        // One mark straight ahead (horizontal angle 90° is −y), one behind the camera.
        SphericalViewGLWidget::StationMark ahead;
        ahead.scanId = 42;
        ahead.distance = 12.3456f;
        ahead.name = QStringLiteral("Scan 42");
        ahead.size = 17;
        ahead.y = -1.0f;
        SphericalViewGLWidget::StationMark behind = ahead;
        behind.scanId = 43;
        behind.y = 1.0f;
        shown.view.setStationMarks({ahead, behind});
        QCOMPARE(shown.view.stationMarks().at(0).size, 18u);
        shown.view.repaintNow();
        QVERIFY(shown.view.stationMarks().at(0).visible);
        QVERIFY(!shown.view.stationMarks().at(1).visible);

        QHelpEvent help(QEvent::ToolTip, centre, shown.view.mapToGlobal(centre));
        QVERIFY(QCoreApplication::sendEvent(&shown.view, &help));
        QTRY_COMPARE(QToolTip::text(), QStringLiteral("Scan 42\ndistance: 12.346 m"));

        QSignalSpy spy(&shown.view, &SphericalViewGLWidget::signalDBLClickStationMarkSphericalView);
        QTest::mouseDClick(&shown.view, Qt::LeftButton, {}, centre + QPoint(30, 0));
        QCOMPARE(spy.count(), 0);
        QTest::mouseDClick(&shown.view, Qt::LeftButton, {}, centre);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toUInt(), 42u);
    }

    // A text's label is found where it is drawn, though its anchor direction lies degrees away; a
    // polygon is found through its directions and tints the panorama under it.
    void itemsAreDrawnAndFound()
    {
        ShownView shown;
        QVERIFY(shown.exposed());
        aim(*shown.graph, 90.0, 30.0);
        const QColor plain = QColor(shown.view.grabFramebuffer().pixel(centre));
        const Vector3d a = shown.view.screenToDirection(140, 100);
        const Vector3d b = shown.view.screenToDirection(180, 100);
        const Vector3d c = shown.view.screenToDirection(180, 140);
        const Vector3d e = shown.view.screenToDirection(140, 140);
        const auto polygon = std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{a, b, c, e});
        shown.graph->addItem(polygon);
        const auto text = std::make_shared<ScanViewTextItem>(QStringLiteral("Label"),
                                                             shown.view.screenToDirection(40, 200));
        shown.graph->addItem(text);

        const QColor tinted = QColor(shown.view.grabFramebuffer().pixel(centre));
        QVERIFY2(tinted != plain, qPrintable(tinted.name()));
        QCOMPARE(shown.view.itemAt(centre.x(), centre.y()), std::shared_ptr<ScanViewItem>(polygon));
        // The label reaches right and up from its anchor at (40, 200).
        QCOMPARE(shown.view.itemAt(55, 195), std::shared_ptr<ScanViewItem>(text));
        QVERIFY(!shown.graph->hitTest(shown.view.screenToDirection(55, 195)));
        QCOMPARE(shown.view.itemAt(300, 20), std::shared_ptr<ScanViewItem>());
    }
};

TVX_GL_TEST(SphericalViewGLWidgetTest)

#include "sphericalviewglwidgettest.moc"
