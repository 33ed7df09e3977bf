#include "testregistry.h"

#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QSurfaceFormat>
#include <QTest>

#include <GL/gl.h>

namespace {

// Draws one red triangle with the fixed-function pipeline over a black background.
class FixedFunctionWidget : public QOpenGLWidget
{
protected:
    void paintGL() override
    {
        glClearColor(0, 0, 0, 1);
        glClear(GL_COLOR_BUFFER_BIT);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-1, 1, -1, 1, -1, 1);
        glColor3f(1, 0, 0);
        glBegin(GL_TRIANGLES);
        glVertex2f(-0.9f, -0.9f);
        glVertex2f(0.9f, -0.9f);
        glVertex2f(0.0f, 0.9f);
        glEnd();
    }
};

} // namespace

// The views draw with the fixed-function pipeline, which a core profile does not have.
class GLSurfaceFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedFunctionPipelineDraws()
    {
        QCOMPARE(QSurfaceFormat::defaultFormat().profile(), QSurfaceFormat::CompatibilityProfile);
        FixedFunctionWidget widget;
        widget.resize(64, 64);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
        const QImage frame = widget.grabFramebuffer();
        QVERIFY(widget.context() && widget.context()->format().profile() != QSurfaceFormat::CoreProfile);
        QCOMPARE(QColor(frame.pixel(32, 40)), QColor(Qt::red));
        QCOMPARE(QColor(frame.pixel(2, 2)), QColor(Qt::black));
    }
};

TVX_GL_TEST(GLSurfaceFormatTest)

#include "glsurfaceformattest.moc"
