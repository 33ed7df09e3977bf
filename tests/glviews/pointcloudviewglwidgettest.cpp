#include "testregistry.h"

#include "fileio/scangeometry.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"
#include "glviews/pointcloudviewglwidget.h"

#include <QMatrix4x4>
#include <QTemporaryDir>
#include <QTest>
#include <QTimerEvent>
#include <QWheelEvent>

#include <cmath>
#include <functional>
#include <ios>
#include <set>

using namespace TVX::CORE;

namespace {

// A fan of cells 2 m from the station, in front of the view's camera: 31 × 21 cells from −27° to
// 33° horizontally and −17° to 23° vertically, one tile. At step 5 the view shows columns 0, 5, …,
// 30 and rows 0, 5, …, 20: 7 × 5 = 35 points, in tile order column by column, the k-th picked
// column and l-th picked row being point 5k + l. No picked cell lies at 0° either way, where the
// axes are drawn.
constexpr quint32 fanColumns = 31;
constexpr quint32 fanRows = 21;
constexpr quint32 step = PointcloudViewGLWidget::readStep;
constexpr quint32 pickedRows = (fanRows + step - 1) / step;
constexpr int fanPoints = 35;
constexpr double fanDistance = 2.0;
constexpr quint8 fanBlue = 77; // no colour of the axes or reference points has it

// Every cell's colour differs by its column and row; its intensity too.
TVXFileCell fanCell(quint32 column, quint32 row)
{
    TVXFileCell cell;
    cell.distanceMm = quint32(fanDistance * 1000);
    cell.red = quint8(30 + 6 * column);
    cell.green = quint8(30 + 8 * row);
    cell.blue = fanBlue;
    cell.intensity = quint8(40 + 5 * column + row);
    return cell;
}

void setFanGrid(TVXFileScanInfo& info, quint32 columns)
{
    info.columns = columns;
    info.rows = fanRows;
    info.tileSize = 64;
    info.horizontalMin = qDegreesToRadians(-27.0);
    info.horizontalMax = qDegreesToRadians(33.0);
    info.verticalMin = qDegreesToRadians(-17.0);
    info.verticalMax = qDegreesToRadians(23.0);
    info.channels = {{TVXFileScanInfo::Distance, 0}, {TVXFileScanInfo::Intensity, 8}, {TVXFileScanInfo::Colour, 24}};
}

std::shared_ptr<TVXFile> openScan(const QString& path)
{
    auto file = std::make_shared<TVXFile>(path);
    if (!file->open() || !file->readHeader() || !file->close())
        return nullptr;
    return file;
}

QColor colourOf(const TVXFileCell& cell)
{
    return QColor(cell.red, cell.green, cell.blue);
}

// The picked cell of point `index`.
QPoint cellOfPoint(int index)
{
    return QPoint(int(index / pickedRows * step), int(index % pickedRows * step));
}

// Where a cell's point appears (y down), by Qt's matrices as the oracle for what gluPerspective
// and gluLookAt do with the widget's camera; the point by the direct formula of the format.
QPointF pixelOfCell(const PointcloudViewGLWidget& view, const QPoint& cell, const TVXFileScanInfo& info)
{
    const Vector3d p = pointFromAngles(columnAngle(quint32(cell.x()), info.gridAngles()),
                                       rowAngle(quint32(cell.y()), info.gridAngles()), fanDistance);
    QMatrix4x4 projection;
    projection.perspective(45.0f, float(view.width()) / float(view.height()), 0.1f, 100.0f);
    QMatrix4x4 camera;
    camera.lookAt(view.eye(), view.centre(), view.up());
    const QVector4D clip = projection * camera * QVector4D(float(p.x), float(p.y), float(p.z), 1.0f);
    return {(clip.x() / clip.w() + 1.0) / 2.0 * view.width(), (1.0 - clip.y() / clip.w()) / 2.0 * view.height()};
}

// Whether `colour` is found within a pixel of `at`.
bool colourNear(const QImage& frame, const QPointF& at, const QColor& colour)
{
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const QPoint p(int(std::floor(at.x())) + dx, int(std::floor(at.y())) + dy);
            if (frame.valid(p) && QColor(frame.pixel(p)) == colour)
                return true;
        }
    }
    return false;
}

// The cloud's colours in a frame: those with the fan's blue.
std::set<QRgb> cloudColours(const QImage& frame)
{
    std::set<QRgb> colours;
    for (int y = 0; y < frame.height(); ++y)
        for (int x = 0; x < frame.width(); ++x)
            if (qBlue(frame.pixel(x, y)) == fanBlue)
                colours.insert(QColor(frame.pixel(x, y)).rgb());
    return colours;
}

// The colours of `count` points, `every` points apart from the first.
std::set<QRgb> fanColours(int every, int count)
{
    std::set<QRgb> colours;
    for (int k = 0; k < count; ++k) {
        const QPoint cell = cellOfPoint(k * every);
        colours.insert(colourOf(fanCell(quint32(cell.x()), quint32(cell.y()))).rgb());
    }
    return colours;
}

void wheel(PointcloudViewGLWidget& view, int delta)
{
    const QPointF at(view.width() / 2.0, view.height() / 2.0);
    QWheelEvent event(at, view.mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view, &event);
}

void expireTimer(PointcloudViewGLWidget& view)
{
    QTimerEvent event(view.interactionTimerId());
    QCoreApplication::sendEvent(&view, &event);
}

struct InteractionRow {
    const char* name;
    std::function<void(PointcloudViewGLWidget&)> act;
    bool interacting;
};

} // namespace
Q_DECLARE_METATYPE(InteractionRow)

class PointcloudViewGLWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        TVXFileWriter writer;
        setFanGrid(writer.scanInfo(), fanColumns);
        writer.setCellSource(fanCell);
        m_fanPath = m_dir.filePath(QStringLiteral("fan.tvx"));
        QVERIFY(writer.write(m_fanPath));
        m_fan = openScan(m_fanPath);
        QVERIFY(m_fan);
    }

    // Each point of the cloud at the pixel where it projects, in its own colour.
    void pointsWhereTheyProject()
    {
        PointcloudViewGLWidget view(m_fanPath, m_fan, nullptr, Qt::black);
        QVERIFY(show(view));
        const QImage frame = view.grabFramebuffer();
        QCOMPARE(view.pointCount(), quint64(fanPoints));
        QCOMPARE(view.colourMode(), 1);
        QCOMPARE(QColor(frame.pixel(2, 2)), QColor(Qt::black));
        for (int i = 0; i < fanPoints; ++i) {
            const QPoint cell = cellOfPoint(i);
            const QPointF at = pixelOfCell(view, cell, m_fan->scanInfo());
            QVERIFY2(colourNear(frame, at, colourOf(fanCell(quint32(cell.x()), quint32(cell.y())))),
                     qPrintable(QStringLiteral("cell (%1, %2) at (%3, %4)")
                                    .arg(cell.x()).arg(cell.y()).arg(at.x()).arg(at.y())));
        }
    }

    // While the user turns, pans or zooms, a tenth of the points, each in its own colour; all of
    // them again once the wheel's second is over.
    void densityWhileInteracting_data()
    {
        QTest::addColumn<InteractionRow>("row");
        const QPoint middle(150, 150);
        const InteractionRow rows[] = {
            {"left button held", [=](PointcloudViewGLWidget& v) { QTest::mousePress(&v, Qt::LeftButton, {}, middle); },
             true},
            {"right button: no interaction",
             [=](PointcloudViewGLWidget& v) { QTest::mousePress(&v, Qt::RightButton, {}, middle); }, false},
            {"wheel turned", [](PointcloudViewGLWidget& v) { wheel(v, -120); }, true},
            {"wheel, then its second over",
             [](PointcloudViewGLWidget& v) {
                 wheel(v, -120);
                 expireTimer(v);
             },
             false},
        };
        for (const InteractionRow& row : rows)
            QTest::newRow(row.name) << row;
    }
    void densityWhileInteracting()
    {
        QFETCH(InteractionRow, row);
        PointcloudViewGLWidget view(m_fanPath, m_fan, nullptr, Qt::black);
        QVERIFY(show(view));
        row.act(view);
        QCOMPARE(view.isInteracting(), row.interacting);
        const QImage frame = view.grabFramebuffer();
        const PointcloudViewGLWidget::PaintRecord paint = view.lastPaint();
        // A tenth of 35, truncated: points 0, 10 and 20, ten points (120 and 30 bytes) apart.
        QCOMPARE(paint.drawnPoints, row.interacting ? 3u : quint64(fanPoints));
        QCOMPARE(paint.vertexStride, row.interacting ? 120 : 0);
        QCOMPARE(paint.colourStride, row.interacting ? 30 : 0);
        QCOMPARE(cloudColours(frame), row.interacting ? fanColours(10, 3) : fanColours(1, fanPoints));
    }

    // Turning keeps the distance to the centre; the initial view is back at once.
    void cameraFollowsTheMouse()
    {
        PointcloudViewGLWidget view(m_fanPath, m_fan, nullptr, Qt::black);
        QVERIFY(show(view));
        const QVector3D eye = view.eye();
        const QVector3D centre = view.centre();
        QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(100, 100));
        QTest::mouseMove(&view, QPoint(130, 110));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(130, 110));
        view.grabFramebuffer(); // the turn is applied when the frame is drawn
        QVERIFY((view.eye() - eye).length() > 0.1f);
        QCOMPARE(view.centre(), centre);
        QVERIFY(std::abs((view.eye() - view.centre()).length() - (eye - centre).length()) < 1e-4f);
        view.initialView();
        QCOMPARE(view.eye(), eye);
        QCOMPARE(view.up(), QVector3D(0, 0, 1));
    }

    // A cloud without a finite point (one column: the horizontal step is infinite) shows and takes
    // input; a scan without distances is refused.
    void emptyClouds_data()
    {
        QTest::addColumn<bool>("distance");
        QTest::newRow("one column: NaN points") << true;
        QTest::newRow("no distance channel: refused") << false;
    }
    void emptyClouds()
    {
        QFETCH(bool, distance);
        TVXFileWriter writer;
        setFanGrid(writer.scanInfo(), 1);
        if (!distance)
            writer.scanInfo().channels.erase(writer.scanInfo().channels.begin());
        writer.setCellSource(fanCell);
        const QString path = m_dir.filePath(QStringLiteral("empty%1.tvx").arg(int(distance)));
        QVERIFY(writer.write(path));
        const auto file = openScan(path);
        QVERIFY(file);
        if (!distance) {
            QVERIFY_THROWS_EXCEPTION(std::ios_base::failure, PointcloudViewGLWidget(path, file, nullptr, Qt::black));
            return;
        }
        PointcloudViewGLWidget view(path, file, nullptr, Qt::black);
        QCOMPARE(view.pointCount(), quint64(0));
        QVERIFY(show(view));
        QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(100, 100));
        QTest::mouseMove(&view, QPoint(120, 90));
        view.grabFramebuffer();
        const QImage frame = view.grabFramebuffer();
        QCOMPARE(view.lastPaint().drawnPoints, quint64(0));
        QVERIFY(cloudColours(frame).empty());
    }

private:
    static bool show(PointcloudViewGLWidget& view)
    {
        view.setClearColor(Qt::black);
        view.resize(300, 300);
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

    QTemporaryDir m_dir;
    QString m_fanPath;
    std::shared_ptr<TVXFile> m_fan;
};

TVX_GL_TEST(PointcloudViewGLWidgetTest)

#include "pointcloudviewglwidgettest.moc"
