#include "glviews/sphericalviewglwidget.h"

#include "glviews/scanviewevent.h"
#include "glviews/scanviewoperatormanager.h"
#include "glviews/sphericaloverlaypainter.h"
#include "mainwindow/cursorid.h"
#include "scene/scanviewscenegraph.h"
#include "scene/sphericalprojection.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHelpEvent>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QToolTip>
#include <QWheelEvent>

#include <GL/gl.h>
#include <GL/glu.h>

#include <FTGL/ftgl.h>

#include <algorithm>

Q_LOGGING_CATEGORY(lcSphericalView, "tvx.glviews.spherical", QtWarningMsg)

namespace TVX::CORE {

namespace {

// Larger panoramas are scaled down to this before they become a texture.
constexpr GLint textureSizeCap = 4096;
constexpr double nearPlane = 0.001;
constexpr double farPlane = 10.0;

void showDriverError(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox::critical(parent, title, text);
}

SphericalViewGLWidget::DriverErrorHandler& driverErrorHandler()
{
    static SphericalViewGLWidget::DriverErrorHandler handler = showDriverError;
    return handler;
}

// A texture of `image` with nearest filtering and a black border outside [0, 1] (along t, and
// along s unless `wrapS` says otherwise); the image's bottom row becomes t = 0, as GL counts rows.
GLuint uploadTexture(const QImage& image, GLint wrapS = GL_CLAMP_TO_BORDER)
{
    const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888).mirrored();
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, rgba.width(), rgba.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 rgba.constBits());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrapS);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_BORDER);
    const GLfloat border[4] = {0.0f, 0.0f, 0.0f, 1.0f};
    glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_BORDER_COLOR, border);
    return texture;
}

void deleteTexture(GLuint& texture)
{
    if (texture != 0)
        glDeleteTextures(1, &texture);
    texture = 0;
}

// The item of the scene graph that `item` points to, shared.
std::shared_ptr<ScanViewItem> owning(const ScanViewSceneGraph& graph, const ScanViewItem* item)
{
    std::shared_ptr<ScanViewItem> found;
    const auto search = [&](const auto& list) {
        for (const auto& candidate : list) {
            if (candidate.get() == item)
                found = candidate;
        }
    };
    search(graph.ellipses());
    search(graph.polygons());
    search(graph.rectangles());
    search(graph.textItems());
    search(graph.measurementItems());
    return found;
}

} // namespace

struct SphericalViewGLWidget::Private {
    quint32 scanId{0};
    QPixmap panorama;
    double horizontalMin{0.0};
    double horizontalMax{0.0};
    double verticalMin{0.0};
    double verticalMax{0.0};
    quint32 cursorMode{0};
    GLuint panoramaTexture{0};
    SphereMesh sphere;
    GLuint logoTexture{0};
    QPixmap logo;
    std::vector<StationMark> stationMarks;
    std::shared_ptr<ScanViewSceneGraph> camera;
    std::shared_ptr<FTBufferFont> font;
    SphericalOverlayPainter::HitAreas itemHitAreas;

    quint32 columns{0};
    quint32 rows{0};
    ScanViewOperatorManager* operators{nullptr};
    MeasurementLabeler labeler;
    bool initialised{false};
    QMetaObject::Connection contextDestruction;

    AngularExtent extent() const { return {horizontalMin, horizontalMax, verticalMin, verticalMax}; }
};

SphericalViewGLWidget::SphericalViewGLWidget(quint32 scanId, QPixmap panorama,
                                             std::shared_ptr<ScanViewSceneGraph> viewState, double horizontalMin,
                                             double horizontalMax, double verticalMin, double verticalMax,
                                             QWidget* parent)
    : QOpenGLWidget(parent), d(std::make_unique<Private>())
{
    d->scanId = scanId;
    d->panorama = std::move(panorama);
    d->horizontalMin = horizontalMin;
    d->horizontalMax = horizontalMax;
    d->verticalMin = verticalMin;
    d->verticalMax = verticalMax;
    d->camera = std::move(viewState);
    if (!d->camera) {
        qCWarning(lcSphericalView) << "scan" << scanId << "has no view state; the view shows an empty scene";
        d->camera = std::make_shared<ScanViewSceneGraph>();
    }
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The widget opens its parent's menu itself, on a right release that no operator took.
    setContextMenuPolicy(Qt::PreventContextMenu);
    setCursor(cursorFor(CrossCursor));
}

SphericalViewGLWidget::~SphericalViewGLWidget()
{
    QObject::disconnect(d->contextDestruction);
    if (d->initialised) {
        makeCurrent();
        releaseGLResources();
        doneCurrent();
    }
}

void SphericalViewGLWidget::releaseGLResources()
{
    deleteTexture(d->panoramaTexture);
    deleteTexture(d->logoTexture);
    // The font's glyph textures belong to this context too.
    d->font.reset();
    d->initialised = false;
}

void SphericalViewGLWidget::setDriverErrorHandler(DriverErrorHandler handler)
{
    driverErrorHandler() = handler ? std::move(handler) : showDriverError;
}

void SphericalViewGLWidget::setGridSize(quint32 columns, quint32 rows)
{
    d->columns = columns;
    d->rows = rows;
}

void SphericalViewGLWidget::setOperatorManager(ScanViewOperatorManager* manager)
{
    d->operators = manager;
}

void SphericalViewGLWidget::setMeasurementLabeler(MeasurementLabeler labeler)
{
    d->labeler = std::move(labeler);
}

void SphericalViewGLWidget::setStationMarks(std::vector<StationMark> marks)
{
    for (StationMark& mark : marks) {
        mark.size = stationMarkDrawSize(mark.size);
        mark.visible = false;
    }
    d->stationMarks = std::move(marks);
}

const std::vector<SphericalViewGLWidget::StationMark>& SphericalViewGLWidget::stationMarks() const
{
    return d->stationMarks;
}

void SphericalViewGLWidget::setCursorMode(int mode)
{
    if ((mode != CrossCursor && mode != SteelModulCursor) || quint32(mode) == d->cursorMode)
        return;
    d->cursorMode = quint32(mode);
    setCursor(cursorFor(CursorId(mode)));
}

int SphericalViewGLWidget::cursorMode() const
{
    return int(d->cursorMode);
}

void SphericalViewGLWidget::initializeGL()
{
    if (!context() || !context()->isValid()) {
        driverErrorHandler()(this, tr("Error Initializing Display Driver"),
                             tr("OpenGL driver could not be initialized without errors."));
        return;
    }
    // A new context (after reparenting, say) starts without our objects.
    QObject::disconnect(d->contextDestruction);
    d->contextDestruction = connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] {
        makeCurrent();
        releaseGLResources();
        doneCurrent();
    });

    glDisable(GL_LIGHTING);
    glDisable(GL_CULL_FACE);
    glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_TEXTURE_2D);

    GLint maxSize = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &maxSize);
    const int cap = maxSize > 0 ? std::min(maxSize, textureSizeCap) : textureSizeCap;
    if (d->panorama.width() > cap || d->panorama.height() > cap) {
        d->panorama = d->panorama.scaled(std::min(d->panorama.width(), cap), std::min(d->panorama.height(), cap),
                                         Qt::IgnoreAspectRatio, Qt::FastTransformation);
    }
    // Along s the mesh clamps u to [0, 1] itself, so that the first and last columns continue
    // beyond the scanned turn; u = 1 would fetch the border there (and along the seam), so s
    // clamps to the edge texels instead. Along t the border is the black outside the band.
    d->panoramaTexture = uploadTexture(d->panorama.toImage(), GL_CLAMP_TO_EDGE);

    if (d->sphere.vertices.empty())
        d->sphere = buildSphereMesh(d->extent(), sphereRings, 1.0);

    d->logo = QPixmap(QStringLiteral(":/tvxcore/resources/tvx32.png"));
    if (!d->logo.isNull())
        d->logoTexture = uploadTexture(d->logo.toImage());

    if (!d->font) {
        const QString path = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + QDir::separator()
                                                      + QStringLiteral("OpenSans-Regular.ttf"));
        if (QFileInfo::exists(path)) {
            auto font = std::make_shared<FTBufferFont>(QFile::encodeName(path).constData());
            if (font->Error() == 0 && font->FaceSize(14, 72))
                d->font = std::move(font);
            else
                qCWarning(lcSphericalView) << "labels are off: the font" << path << "could not be read";
        }
    }
    d->initialised = true;
}

void SphericalViewGLWidget::resizeGL(int w, int h)
{
    const qreal ratio = devicePixelRatioF();
    glClear(GL_DEPTH_BUFFER_BIT);
    glViewport(0, 0, GLsizei(w * ratio), GLsizei(h * ratio));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(d->camera->fieldOfView, double(w) / double(h == 0 ? 1 : h), nearPlane, farPlane);
    glMatrixMode(GL_MODELVIEW);
    const Matrix4d rotation = cameraMatrixArray(d->camera->angleX, d->camera->angleY, d->camera->angleZ);
    glLoadMatrixd(rotation.data());
}

void SphericalViewGLWidget::paintGL()
{
    if (!d->initialised) {
        glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        return;
    }
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_DEPTH_TEST);
    glDisable(GL_BLEND);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    resizeGL(width(), height());

    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    glBindTexture(GL_TEXTURE_2D, d->panoramaTexture);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
    glVertexPointer(3, GL_FLOAT, 0, d->sphere.vertices.data());
    glTexCoordPointer(2, GL_FLOAT, 0, d->sphere.texCoords.data());
    glDrawArrays(GL_TRIANGLE_STRIP, 0, GLsizei(d->sphere.vertices.size()));
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);

    // Everything after lies over the panorama, drawn in widget pixels.
    glClear(GL_DEPTH_BUFFER_BIT);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_TEXTURE_2D);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, width(), 0.0, height(), -1.0, 1.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);

    const ScanViewSceneGraph& graph = *d->camera;
    SphericalOverlayPainter painter(cameraView(), d->font.get());
    d->itemHitAreas = painter.drawItems(graph, d->labeler);
    if (const auto current = graph.currentItem())
        painter.drawHandles(*current);
    painter.drawSelectedPoints(graph.selectedPoints());
    painter.drawStationMarks(d->stationMarks);
    painter.drawLogo(d->logoTexture, d->logo.width(), d->logo.height());
    glDisable(GL_BLEND);
}

CameraView SphericalViewGLWidget::cameraView() const
{
    const ScanViewSceneGraph& c = *d->camera;
    return {c.angleX, c.angleY, c.angleZ, c.fieldOfView, c.cameraPosition, width(), height()};
}

void SphericalViewGLWidget::rotate(double dAngleX, double dAngleY, double dAngleZ)
{
    ScanViewSceneGraph& c = *d->camera;
    c.angleX = rotatedAngle(c.angleX, dAngleX);
    c.angleY = rotatedAngle(c.angleY, dAngleY);
    c.angleZ = rotatedAngle(c.angleZ, dAngleZ);
    update();
}

void SphericalViewGLWidget::zoomIn()
{
    d->camera->fieldOfView = zoomedIn(d->camera->fieldOfView);
    applyZoom();
}

void SphericalViewGLWidget::zoomOut()
{
    d->camera->fieldOfView = zoomedOut(d->camera->fieldOfView);
    applyZoom();
}

void SphericalViewGLWidget::applyZoom()
{
    if (d->initialised) {
        makeCurrent();
        resizeGL(width(), height());
        doneCurrent();
    }
    update();
}

void SphericalViewGLWidget::update()
{
    QOpenGLWidget::update();
}

void SphericalViewGLWidget::repaintNow()
{
    // repaint() of a GL widget only schedules the frame's composition; the frame itself (and with
    // it the marks' screen positions and the hit areas) is drawn here, before returning.
    if (d->initialised) {
        makeCurrent();
        paintGL();
        doneCurrent();
    }
    update();
}

quint32 SphericalViewGLWidget::scanId() const
{
    return d->scanId;
}

std::shared_ptr<ScanViewSceneGraph> SphericalViewGLWidget::sceneGraph() const
{
    return d->camera;
}

Vector3d SphericalViewGLWidget::screenToDirection(qint32 x, qint32 y) const
{
    return TVX::CORE::screenToDirection(cameraView(), x, y);
}

QPoint SphericalViewGLWidget::directionToCell(const Vector3d& direction) const
{
    return TVX::CORE::directionToCell(direction, d->extent(), d->columns, d->rows);
}

bool SphericalViewGLWidget::directionToScreen(const Vector3d& direction, double& x, double& y) const
{
    ScreenPoint screen;
    if (!viewToScreen(cameraView(), direction, screen))
        return false;
    x = screen.x;
    y = height() - screen.y;
    return true;
}

Matrix3d SphericalViewGLWidget::cameraRotation() const
{
    return TVX::CORE::cameraRotation(d->camera->angleX, d->camera->angleY, d->camera->angleZ);
}

std::shared_ptr<ScanViewItem> SphericalViewGLWidget::itemAt(qint32 x, qint32 y) const
{
    const int area = hitAreaAt(d->itemHitAreas.rects, x, height() - y);
    if (area >= 0) {
        if (auto item = owning(*d->camera, d->itemHitAreas.items[std::size_t(area)]))
            return item;
    }
    const Vector3d direction = screenToDirection(x, y);
    if (direction == Vector3d())
        return nullptr;
    return d->camera->hitTest(direction);
}

const SphericalViewGLWidget::StationMark* SphericalViewGLWidget::markAt(const QPoint& position) const
{
    const double row = height() - position.y() + 1;
    for (const StationMark& mark : d->stationMarks) {
        if (mark.visible && stationMarkHolds(mark.screenX, mark.screenY, mark.size, position.x(), row))
            return &mark;
    }
    return nullptr;
}

bool SphericalViewGLWidget::dispatch(const ScanViewEvent& event)
{
    return d->operators && d->operators->dispatch(event);
}

bool SphericalViewGLWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (const StationMark* mark = markAt(help->pos())) {
            QToolTip::showText(help->globalPos(),
                               tr("%1\ndistance: %2 m").arg(mark->name).arg(double(mark->distance), 0, 'f', 3),
                               this);
            event->accept();
            return true;
        }
    }
    return QOpenGLWidget::event(event);
}

void SphericalViewGLWidget::mousePressEvent(QMouseEvent* event)
{
    event->setAccepted(dispatch(scanViewEvent(*event)));
}

void SphericalViewGLWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (dispatch(scanViewEvent(*event))) {
        event->accept();
        return;
    }
    if (event->button() != Qt::RightButton) {
        event->ignore();
        return;
    }
    openContextMenu(event);
    event->accept();
}

void SphericalViewGLWidget::openContextMenu(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (QWidget* parent = parentWidget()) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, position, event->globalPosition().toPoint(),
                               event->modifiers());
        QCoreApplication::sendEvent(parent, &menu);
    }
    // The menu may have swallowed other releases: every operator forgets its pressed buttons.
    for (const quint32 code : {ScanViewEvent::LeftRelease, ScanViewEvent::MiddleRelease, ScanViewEvent::RightRelease})
        dispatch(ScanViewEvent::mouse(ScanViewEvent::MouseButton, code, position.x(), position.y()));
}

void SphericalViewGLWidget::mouseMoveEvent(QMouseEvent* event)
{
    event->setAccepted(dispatch(scanViewEvent(*event)));
}

void SphericalViewGLWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        if (const StationMark* mark = markAt(event->position().toPoint())) {
            emit signalDBLClickStationMarkSphericalView(mark->scanId);
            event->accept();
            return;
        }
    }
    // Not handed to the base, which would take the double click for a second press.
    event->setAccepted(dispatch(scanViewEvent(*event)));
}

void SphericalViewGLWidget::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(dispatch(scanViewEvent(*event)));
}

} // namespace TVX::CORE
