#pragma once

#include <QColor>
#include <QOpenGLWidget>
#include <QString>
#include <QVector3D>

#include <functional>
#include <memory>
#include <vector>

namespace TVX::CORE {

class TVXFile;

// A scan's points as a 3D cloud that the user orbits (left button), pans (middle button) and
// zooms (wheel). The points stay on the graphics card: 12 bytes of coordinates and 3 of colour
// each. While a button is held, and for a second after a wheel step, only every tenth point is
// drawn. Fixed-function GL in a compatibility context; extensions through GLEW.
class PointcloudViewGLWidget final : public QOpenGLWidget
{
    Q_OBJECT

public:
    // One choice of the view's colour menu: its (translated) name and a colour for its icon.
    struct PaletteEntry {
        QString name;
        QColor swatch;
    };
    // Asks the user for a background colour, starting from `current`; an invalid colour cancels.
    using ColourAsker = std::function<QColor(const QColor& current)>;

    // Every readStep-th column and row of the scan is shown.
    static constexpr quint32 readStep = 5;

    // Reads the points of `file` (its header read) into the view's cloud, coloured by the scan's
    // colours, else its intensity, else `uniformColour`. Throws std::ios_base::failure naming the
    // scan when its points cannot be read (no file, no distance channel, a short data file). An
    // empty cloud (no return, no finite point) is no failure.
    PointcloudViewGLWidget(const QString& scanFilePath, std::shared_ptr<TVXFile> file, QWidget* parent,
                           const QColor& uniformColour);
    ~PointcloudViewGLWidget() override;

    // Entry 0 shows the scan's colours, entry 1 its intensity as grey, the others one colour.
    static const std::vector<PaletteEntry>& palette();

    QString scanFilePath() const;
    // The default opens a colour dialog.
    void setClearColourAsker(ColourAsker asker);

    // State for tests and benchmarks.
    QVector3D eye() const;
    QVector3D centre() const;
    QVector3D up() const;
    QVector3D side() const;
    double nearPlane() const;
    double farPlane() const;
    bool isInteracting() const;
    int interactionTimerId() const; // 0 while the timer does not run
    quint64 pointCount() const;     // of every cloud
    int colourMode() const;         // of the current cloud: 0 uniform, 1 scan colours, 2 intensity
    QColor clearColour() const;
    // Graphics card buffers plus the client copies still held, in bytes.
    quint64 bytesHeld() const;
    struct PaintRecord {
        quint64 drawnPoints = 0;
        int vertexStride = 0; // bytes; 0 is tightly packed
        int colourStride = 0;
    };
    // What the last paintGL drew.
    PaintRecord lastPaint() const;

public Q_SLOTS:
    // Back to the camera of the start.
    void initialView();
    // Colours every cloud as palette()[index] says; other indices are ignored.
    void setColor(const int& index);
    // Asks for a background colour and sets it.
    void setClearColor();
    void setClearColor(const QColor& colour);

protected:
    void initializeGL() override;
    void resizeGL(int w, int h) override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void cleanup();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
