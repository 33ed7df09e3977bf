// GLEW must come before any GL header, and the widget's header brings Qt's.
#include <GL/glew.h>

#include "glviews/pointcloudviewglwidget.h"

#include "fileio/tvxfile.h"
#include "scene/pointcloudcamera.h"

#include <QBasicTimer>
#include <QColorDialog>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QTimerEvent>
#include <QWheelEvent>

#include <GL/glu.h>

// Qt's context header warns (fatal under -Werror, and no pragma silences #warning in g++ 12)
// that GLEW's definitions will be undone, which Qt 6 no longer does; its test is kept from
// seeing GLEW. GLEW's own include guard is another macro and stays.
#undef __GLEW_H__
#include <QOpenGLContext>
#define __GLEW_H__

#include <cmath>
#include <cstdint>
#include <ios>
#include <iostream>
#include <system_error>

namespace TVX::CORE {

Q_LOGGING_CATEGORY(lcPointcloudView, "tvx.glviews.pointcloud", QtWarningMsg)

namespace {

constexpr int interactionMilliseconds = 1000;
constexpr GLsizei vertexBytes = 3 * sizeof(GLfloat);
constexpr GLsizei colourBytes = 3 * sizeof(GLubyte);
// While interacting every tenth point is drawn: the vertex array read with a stride of ten
// points. The colour buffer is packed tightly (3 bytes a point), so the same ten points there
// are 30 bytes, not the vertex stride: with 120 the colours would be those of every fortieth point.
constexpr GLsizei interactionSubsample = 10;
constexpr GLsizei interactionVertexStride = interactionSubsample * vertexBytes;
constexpr GLsizei interactionColourStride = interactionSubsample * colourBytes;

// Colour modes of a cloud.
constexpr int uniformColours = 0;
constexpr int scanColours = 1;
constexpr int intensityColours = 2;

int colourModeOf(TVXFile::PointCloud::Colours colours)
{
    switch (colours) {
    case TVXFile::PointCloud::ScanColours:
        return scanColours;
    case TVXFile::PointCloud::IntensityGrey:
        return intensityColours;
    case TVXFile::PointCloud::NoColours:
        break;
    }
    return uniformColours;
}

const GLvoid* bufferOffset(quint64 bytes)
{
    return reinterpret_cast<const GLvoid*>(static_cast<std::uintptr_t>(bytes));
}

template <typename T>
void release(std::vector<T>& copy)
{
    std::vector<T>().swap(copy);
}

QVector3D toVector(const Vector3d& v)
{
    return QVector3D(float(v.x), float(v.y), float(v.z));
}

struct Cloud {
    std::shared_ptr<TVXFile> file; // the colours are read again from it when their kind changes
    quint64 pointCount = 0;
    quint64 first = 0; // index of its first point in the shared buffers
    int colourMode = uniformColours;
    QColor uniformColour;
    bool hasVertexData = false;
    float centre[3] = {};
    float radius = 0.0f;
    QVector3D boxMin;
    QVector3D boxMax;
    // Client copies, dropped once on the graphics card: the coordinates (kept without buffer
    // support, to draw from) and the colours of `coloursHeld`.
    std::vector<float> xyz;
    std::vector<quint8> rgb;
    int coloursHeld = uniformColours; // the mode whose colours the colour buffer or rgb hold

    QVector3D centreVector() const { return QVector3D(centre[0], centre[1], centre[2]); }
    quint64 clientBytes() const { return xyz.capacity() * sizeof(float) + rgb.capacity(); }
};

} // namespace

struct PointcloudViewGLWidget::Private {
    QString scanFilePath;
    std::vector<Cloud> clouds;
    std::size_t currentCloud = 0;
    GLuint vertexBuffer = 0;
    GLuint colourBuffer = 0;
    quint64 vertexBufferBytes = 0;
    quint64 colourBufferBytes = 0;
    bool initialised = false;
    bool buffersSupported = false;
    qint32 viewportWidth = 0;
    qint32 viewportHeight = 0;
    double nearPlane = 0.0;
    double farPlane = 0.0;
    PointcloudCamera camera; // up, side, eye, centre, pitchDelta, yawDelta
    QPoint lastMousePos;
    bool interacting = false;
    QBasicTimer interactionTimer;
    QColor clearColour = QColor::fromRgbF(1.0f, 1.0f, 1.0f, 0.5f);
    ColourAsker askClearColour;
    PaintRecord lastPaint;

    const Cloud* current() const { return currentCloud < clouds.size() ? &clouds[currentCloud] : nullptr; }
    quint64 totalPoints() const;
    void project(qreal devicePixelRatio);
    void reread(Cloud& cloud) const;
    void uploadPoints();
    void uploadColours();
    void drawAxes() const;
    void drawClouds();
    void drawReferencePoints() const;
};

quint64 PointcloudViewGLWidget::Private::totalPoints() const
{
    quint64 points = 0;
    for (const Cloud& cloud : clouds)
        points += cloud.pointCount;
    return points;
}

void PointcloudViewGLWidget::Private::project(qreal devicePixelRatio)
{
    const int height = viewportHeight == 0 ? 1 : viewportHeight;
    glViewport(0, 0, GLsizei(std::lround(viewportWidth * devicePixelRatio)),
               GLsizei(std::lround(height * devicePixelRatio)));
    if (const Cloud* cloud = current()) {
        const PointcloudCamera::ClipPlanes planes = camera.clipPlanes(cloud->centreVector(), cloud->radius);
        nearPlane = planes.nearPlane;
        farPlane = planes.farPlane;
    }
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(PointcloudCamera::fieldOfView, double(viewportWidth) / height, nearPlane, farPlane);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

void PointcloudViewGLWidget::Private::reread(Cloud& cloud) const
{
    TVXFile::PointCloud points;
    const auto wanted = cloud.coloursHeld == intensityColours ? TVXFile::PointCloud::IntensityGrey
                        : cloud.coloursHeld == scanColours    ? TVXFile::PointCloud::ScanColours
                                                              : TVXFile::PointCloud::NoColours;
    // The same cells as at the start, unless the file changed since.
    if (!cloud.file->readPointCloud(readStep, wanted, points) || points.size() != cloud.pointCount) {
        qCWarning(lcPointcloudView).noquote() << "cannot read the points of" << scanFilePath << "again";
        cloud.pointCount = 0;
        return;
    }
    cloud.xyz = std::move(points.xyz);
    cloud.rgb = std::move(points.rgb);
    cloud.hasVertexData = true;
}

void PointcloudViewGLWidget::Private::uploadPoints()
{
    quint64 points = 0;
    for (Cloud& cloud : clouds) {
        cloud.first = points;
        points += cloud.pointCount;
    }
    if (points == 0)
        return;
    glGenBuffersARB(1, &vertexBuffer);
    glBindBufferARB(GL_ARRAY_BUFFER_ARB, vertexBuffer);
    vertexBufferBytes = points * vertexBytes;
    glBufferDataARB(GL_ARRAY_BUFFER_ARB, GLsizeiptrARB(vertexBufferBytes), nullptr, GL_STATIC_DRAW_ARB);
    for (Cloud& cloud : clouds) {
        glBufferSubDataARB(GL_ARRAY_BUFFER_ARB, GLintptrARB(cloud.first * vertexBytes),
                           GLsizeiptrARB(cloud.xyz.size() * sizeof(float)), cloud.xyz.data());
        release(cloud.xyz);
        cloud.hasVertexData = false;
    }
    glBindBufferARB(GL_ARRAY_BUFFER_ARB, 0);
}

void PointcloudViewGLWidget::Private::uploadColours()
{
    glBindBufferARB(GL_ARRAY_BUFFER_ARB, colourBuffer);
    for (Cloud& cloud : clouds) {
        if (cloud.rgb.empty())
            continue;
        if (colourBuffer == 0) {
            // Each cloud has its place at its first point, whether it has colours or not.
            glGenBuffersARB(1, &colourBuffer);
            glBindBufferARB(GL_ARRAY_BUFFER_ARB, colourBuffer);
            colourBufferBytes = totalPoints() * colourBytes;
            glBufferDataARB(GL_ARRAY_BUFFER_ARB, GLsizeiptrARB(colourBufferBytes), nullptr, GL_STATIC_DRAW_ARB);
        }
        glBufferSubDataARB(GL_ARRAY_BUFFER_ARB, GLintptrARB(cloud.first * colourBytes), GLsizeiptrARB(cloud.rgb.size()),
                           cloud.rgb.data());
        release(cloud.rgb);
    }
    glBindBufferARB(GL_ARRAY_BUFFER_ARB, 0);
}

void PointcloudViewGLWidget::Private::drawAxes() const
{
    glBegin(GL_LINES);
    glColor4f(0.0f, 0.0f, 1.0f, 0.5f);
    glVertex3f(0.0f, 0.0f, 0.0f);
    glVertex3f(0.0f, 0.0f, 1.0f);
    glColor4f(0.0f, 1.0f, 0.0f, 0.5f);
    glVertex3f(0.0f, 0.0f, 0.0f);
    glVertex3f(0.0f, 1.0f, 0.0f);
    glColor4f(1.0f, 0.0f, 0.0f, 0.5f);
    glVertex3f(0.0f, 0.0f, 0.0f);
    glVertex3f(1.0f, 0.0f, 0.0f);
    glEnd();
}

void PointcloudViewGLWidget::Private::drawClouds()
{
    glPointSize(1.0f);
    glColor4f(0.0f, 0.0f, 0.0f, 0.5f);
    lastPaint = PaintRecord();
    const GLsizei vertexStride = interacting ? interactionVertexStride : 0;
    const GLsizei colourStride = interacting ? interactionColourStride : 0;
    for (const Cloud& cloud : clouds) {
        if (cloud.pointCount == 0)
            continue;
        if (!buffersSupported) {
            // Drawn from client memory: all points, without colours.
            if (!cloud.hasVertexData)
                continue;
            glEnableClientState(GL_VERTEX_ARRAY);
            glVertexPointer(3, GL_FLOAT, 0, cloud.xyz.data());
            glDrawArrays(GL_POINTS, 0, GLsizei(cloud.pointCount));
            glDisableClientState(GL_VERTEX_ARRAY);
            lastPaint.drawnPoints += cloud.pointCount;
            continue;
        }
        glEnableClientState(GL_VERTEX_ARRAY);
        glBindBufferARB(GL_ARRAY_BUFFER_ARB, vertexBuffer);
        glVertexPointer(3, GL_FLOAT, vertexStride, bufferOffset(cloud.first * vertexBytes));
        const bool perPoint = cloud.colourMode != uniformColours && colourBuffer != 0;
        if (perPoint) {
            glEnableClientState(GL_COLOR_ARRAY);
            glBindBufferARB(GL_ARRAY_BUFFER_ARB, colourBuffer);
            glColorPointer(3, GL_UNSIGNED_BYTE, colourStride, bufferOffset(cloud.first * colourBytes));
        } else {
            glColor3ub(GLubyte(cloud.uniformColour.red()), GLubyte(cloud.uniformColour.green()),
                       GLubyte(cloud.uniformColour.blue()));
        }
        // Ten points a stride: a tenth of the count, truncated, stays inside the buffer.
        const quint64 count = interacting ? quint64(double(cloud.pointCount) * 0.1) : cloud.pointCount;
        glDrawArrays(GL_POINTS, 0, GLsizei(count));
        glDisableClientState(GL_COLOR_ARRAY);
        glDisableClientState(GL_VERTEX_ARRAY);
        glBindBufferARB(GL_ARRAY_BUFFER_ARB, 0);
        lastPaint.drawnPoints += count;
        lastPaint.vertexStride = vertexStride;
        lastPaint.colourStride = perPoint ? colourStride : 0;
    }
}

void PointcloudViewGLWidget::Private::drawReferencePoints() const
{
    const Cloud* cloud = current();
    if (!cloud)
        return;
    glPointSize(1.0f);
    glBegin(GL_POINTS);
    glColor4f(1.0f, 0.0f, 1.0f, 0.5f);
    glVertex3f(cloud->boxMin.x(), cloud->boxMin.y(), cloud->boxMin.z());
    glColor4f(0.0f, 1.0f, 1.0f, 0.5f);
    glVertex3f(cloud->boxMax.x(), cloud->boxMax.y(), cloud->boxMax.z());
    glColor4f(1.0f, 0.0f, 0.0f, 0.5f);
    glVertex3f(camera.centre.x(), camera.centre.y(), camera.centre.z());
    glEnd();
}

PointcloudViewGLWidget::PointcloudViewGLWidget(const QString& scanFilePath, std::shared_ptr<TVXFile> file,
                                               QWidget* parent, const QColor& uniformColour)
    : QOpenGLWidget(parent), d(std::make_unique<Private>())
{
    d->scanFilePath = scanFilePath;
    d->askClearColour = [this](const QColor& current) {
        return QColorDialog::getColor(current, this, tr("Background Color"));
    };

    TVXFile::PointCloud points;
    if (!file || !file->readPointCloud(readStep, TVXFile::PointCloud::ScanColours, points))
        throw std::ios_base::failure(
            QStringLiteral("cannot read the points of %1").arg(scanFilePath).toStdString(), std::io_errc::stream);
    Cloud cloud;
    cloud.file = std::move(file);
    cloud.pointCount = points.size();
    cloud.colourMode = colourModeOf(points.colours);
    cloud.coloursHeld = cloud.colourMode;
    cloud.uniformColour = uniformColour;
    cloud.hasVertexData = cloud.pointCount > 0;
    const Vector3d centre = points.centre();
    cloud.centre[0] = float(centre.x);
    cloud.centre[1] = float(centre.y);
    cloud.centre[2] = float(centre.z);
    cloud.radius = float(points.radius());
    cloud.boxMin = toVector(points.boxMin);
    cloud.boxMax = toVector(points.boxMax);
    cloud.xyz = std::move(points.xyz);
    cloud.rgb = std::move(points.rgb);
    d->clouds.push_back(std::move(cloud));
    d->currentCloud = d->clouds.size() - 1;
    d->camera = PointcloudCamera(d->current()->centreVector());
}

PointcloudViewGLWidget::~PointcloudViewGLWidget()
{
    cleanup();
}

const std::vector<PointcloudViewGLWidget::PaletteEntry>& PointcloudViewGLWidget::palette()
{
    // Translated once, when first asked: after start-up has installed the language.
    static const std::vector<PaletteEntry> entries = [] {
        const std::pair<const char*, QColor> sources[] = {
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Scan Colours"), QColor(176, 128, 80)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Intensity"), QColor(192, 192, 192)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Black"), QColor(0, 0, 0)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Dark Grey"), QColor(64, 64, 64)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Red"), QColor(255, 0, 0)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Green"), QColor(0, 160, 0)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Blue"), QColor(0, 0, 255)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Yellow"), QColor(255, 255, 0)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Magenta"), QColor(255, 0, 255)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Cyan"), QColor(0, 255, 255)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "Orange"), QColor(255, 165, 0)},
            {QT_TRANSLATE_NOOP("TVX::CORE::PointcloudViewGLWidget", "White"), QColor(255, 255, 255)},
        };
        std::vector<PaletteEntry> palette;
        for (const auto& [name, swatch] : sources)
            palette.push_back({tr(name), swatch});
        return palette;
    }();
    return entries;
}

QString PointcloudViewGLWidget::scanFilePath() const
{
    return d->scanFilePath;
}

void PointcloudViewGLWidget::setClearColourAsker(ColourAsker asker)
{
    d->askClearColour = std::move(asker);
}

QVector3D PointcloudViewGLWidget::eye() const
{
    return d->camera.eye;
}

QVector3D PointcloudViewGLWidget::centre() const
{
    return d->camera.centre;
}

QVector3D PointcloudViewGLWidget::up() const
{
    return d->camera.up;
}

QVector3D PointcloudViewGLWidget::side() const
{
    return d->camera.side;
}

double PointcloudViewGLWidget::nearPlane() const
{
    return d->nearPlane;
}

double PointcloudViewGLWidget::farPlane() const
{
    return d->farPlane;
}

bool PointcloudViewGLWidget::isInteracting() const
{
    return d->interacting;
}

int PointcloudViewGLWidget::interactionTimerId() const
{
    return d->interactionTimer.timerId() > 0 ? d->interactionTimer.timerId() : 0;
}

quint64 PointcloudViewGLWidget::pointCount() const
{
    return d->totalPoints();
}

int PointcloudViewGLWidget::colourMode() const
{
    const Cloud* cloud = d->current();
    return cloud ? cloud->colourMode : uniformColours;
}

QColor PointcloudViewGLWidget::clearColour() const
{
    return d->clearColour;
}

quint64 PointcloudViewGLWidget::bytesHeld() const
{
    quint64 bytes = d->vertexBufferBytes + d->colourBufferBytes;
    for (const Cloud& cloud : d->clouds)
        bytes += cloud.clientBytes();
    return bytes;
}

PointcloudViewGLWidget::PaintRecord PointcloudViewGLWidget::lastPaint() const
{
    return d->lastPaint;
}

void PointcloudViewGLWidget::initialView()
{
    if (const Cloud* cloud = d->current())
        d->camera = PointcloudCamera(cloud->centreVector());
    update();
}

void PointcloudViewGLWidget::setColor(const int& index)
{
    if (index < 0 || std::size_t(index) >= palette().size())
        return;
    // Entries past the first two are single colours.
    const bool uniform = index > 1;
    const auto wanted = index == 0 ? TVXFile::PointCloud::ScanColours : TVXFile::PointCloud::IntensityGrey;
    // Without buffer support colours are never drawn, so they are not read either.
    const bool colouredDrawing = !d->initialised || d->buffersSupported;
    for (Cloud& cloud : d->clouds) {
        if (uniform) {
            cloud.colourMode = uniformColours;
            cloud.uniformColour = palette()[std::size_t(index)].swatch;
            continue;
        }
        const int mode = colourModeOf(cloud.file->pointCloudColours(wanted));
        if (mode != uniformColours && mode != cloud.coloursHeld && colouredDrawing) {
            std::vector<quint8> rgb;
            TVXFile::PointCloud::Colours given = TVXFile::PointCloud::NoColours;
            // The same cells as at the start, unless the file changed since.
            if (!cloud.file->readPointCloudColours(readStep, wanted, rgb, given)
                || rgb.size() != cloud.pointCount * colourBytes) {
                qCWarning(lcPointcloudView).noquote() << "cannot read the colours of" << d->scanFilePath;
                continue;
            }
            cloud.rgb = std::move(rgb);
            cloud.coloursHeld = mode;
        }
        cloud.colourMode = mode;
    }
    if (d->initialised && d->buffersSupported) {
        makeCurrent();
        d->uploadColours();
        doneCurrent();
    }
    update();
}

void PointcloudViewGLWidget::setClearColor()
{
    const QColor colour = d->askClearColour(d->clearColour);
    if (colour.isValid())
        setClearColor(colour);
}

void PointcloudViewGLWidget::setClearColor(const QColor& colour)
{
    d->clearColour = colour;
    if (d->initialised) {
        makeCurrent();
        glClearColor(colour.redF(), colour.greenF(), colour.blueF(), colour.alphaF());
        doneCurrent();
    }
    update();
}

void PointcloudViewGLWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &PointcloudViewGLWidget::cleanup);
    d->initialised = true;
    // A widget moved to another window gets a new context, and the points went with the old one.
    for (Cloud& cloud : d->clouds)
        if (cloud.pointCount > 0 && cloud.xyz.empty())
            d->reread(cloud);

    glShadeModel(GL_SMOOTH);
    glClearColor(d->clearColour.redF(), d->clearColour.greenF(), d->clearColour.blueF(), d->clearColour.alphaF());
    glClearDepth(1.0);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);

    const GLenum glew = glewInit();
    if (glew != GLEW_OK)
        std::cerr << "GLEW: " << reinterpret_cast<const char*>(glewGetErrorString(glew)) << std::endl;
    d->buffersSupported = GLEW_ARB_vertex_buffer_object;
    if (!d->buffersSupported) {
        std::cerr << "GLEW_ARB_vertex_buffer_object unsupported : " << std::endl;
        for (Cloud& cloud : d->clouds) {
            // Drawn from these, without colours.
            cloud.xyz.shrink_to_fit();
            release(cloud.rgb);
        }
        return;
    }
    d->uploadPoints();
    d->uploadColours();
}

void PointcloudViewGLWidget::resizeGL(int w, int h)
{
    d->viewportWidth = w;
    d->viewportHeight = h;
    d->project(devicePixelRatioF());
}

void PointcloudViewGLWidget::paintGL()
{
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glLoadIdentity();
    PointcloudCamera& camera = d->camera;
    camera.orbit();
    gluLookAt(camera.eye.x(), camera.eye.y(), camera.eye.z(), camera.centre.x(), camera.centre.y(),
              camera.centre.z(), camera.up.x(), camera.up.y(), camera.up.z());
    d->drawAxes();
    d->drawClouds();
    d->drawReferencePoints();
    glEnable(GL_DEPTH_TEST);
    d->project(devicePixelRatioF());
}

void PointcloudViewGLWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)
        return;
    d->interactionTimer.stop();
    d->lastMousePos = event->position().toPoint();
    d->interacting = true;
}

void PointcloudViewGLWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)
        return;
    d->interacting = false;
    repaint();
}

void PointcloudViewGLWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    const QPoint delta = position - d->lastMousePos;
    if (event->buttons() & Qt::LeftButton) {
        d->camera.pitchDelta = PointcloudCamera::accumulatedTurn(d->camera.pitchDelta, delta.y());
        update();
        d->camera.yawDelta = PointcloudCamera::accumulatedTurn(d->camera.yawDelta, delta.x());
        update();
    } else if (event->buttons() & Qt::MiddleButton) {
        d->camera.pan(delta.x(), delta.y(), d->viewportHeight);
        update();
    }
    d->lastMousePos = position;
}

void PointcloudViewGLWidget::wheelEvent(QWheelEvent* event)
{
    if (d->interactionTimer.isActive())
        d->interactionTimer.stop();
    else
        d->interacting = true;
    d->interactionTimer.start(interactionMilliseconds, this);
    const int delta = event->angleDelta().y();
    if (delta != 0) {
        d->camera.zoom(PointcloudCamera::wheelSteps(delta));
        update();
    }
}

void PointcloudViewGLWidget::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != d->interactionTimer.timerId()) {
        QOpenGLWidget::timerEvent(event);
        return;
    }
    d->interacting = false;
    d->interactionTimer.stop();
    repaint();
}

void PointcloudViewGLWidget::cleanup()
{
    if (!d->initialised || !context())
        return;
    makeCurrent();
    if (d->buffersSupported) {
        glDeleteBuffersARB(1, &d->vertexBuffer);
        glDeleteBuffersARB(1, &d->colourBuffer);
    }
    d->vertexBuffer = 0;
    d->colourBuffer = 0;
    d->vertexBufferBytes = 0;
    d->colourBufferBytes = 0;
    doneCurrent();
    d->initialised = false;
    disconnect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &PointcloudViewGLWidget::cleanup);
}

} // namespace TVX::CORE
