#pragma once

#include "glviews/sphericalstationmark.h"
#include "glviews/sphericalviewcontrol.h"

#include <QOpenGLWidget>
#include <QPixmap>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace TVX::CORE {

class ScanViewMeasurementItem;
class ScanViewOperatorManager;
struct CameraView;
struct ScanViewEvent;

// One scan as a panorama seen from its station: the panorama image on the inside of a unit sphere,
// the camera at the centre, annotations and the marks of other stations drawn over it. Mouse input
// goes as view events to the operator manager; the widget itself answers only tool tips and double
// clicks on station marks, and opens its parent's context menu on a right release that no operator
// took.
class SphericalViewGLWidget final : public QOpenGLWidget, public SphericalViewControl
{
    Q_OBJECT

public:
    using StationMark = SphericalStationMark;

    // The text beside a measurement line, such as "12.345 m (3D)"; the main window knows the
    // scan's points and installs one.
    using MeasurementLabeler = std::function<QString(const ScanViewMeasurementItem&)>;
    // Shows the driver failure to the user; tests install one that shows nothing, and an empty one
    // brings the message box back.
    using DriverErrorHandler = std::function<void(QWidget* parent, const QString& title, const QString& text)>;

    // The view state is the scan's scene graph from the scene registry, shared with the operators.
    // Angles in radians as the scan's information gives them.
    SphericalViewGLWidget(quint32 scanId, QPixmap panorama, std::shared_ptr<ScanViewSceneGraph> viewState,
                          double horizontalMin, double horizontalMax, double verticalMin, double verticalMax,
                          QWidget* parent = nullptr);
    ~SphericalViewGLWidget() override;

    // The scan's grid, for mapping directions to cells; 0 × 0 until set.
    void setGridSize(quint32 columns, quint32 rows);
    // Events go to this manager (not owned); without one nothing is dispatched.
    void setOperatorManager(ScanViewOperatorManager* manager);
    void setMeasurementLabeler(MeasurementLabeler labeler);
    static void setDriverErrorHandler(DriverErrorHandler handler);

    // Replaces the marks; each size is made even, then clamped to 16 … 32 pixels.
    void setStationMarks(std::vector<StationMark> marks);
    const std::vector<StationMark>& stationMarks() const;

    // 0 the cross cursor, 1 the alternative cursor; other values are ignored.
    void setCursorMode(int mode);
    int cursorMode() const;

    // SphericalViewControl
    void rotate(double dAngleX, double dAngleY, double dAngleZ) override;
    void zoomIn() override;
    void zoomOut() override;
    void update() override;
    using QOpenGLWidget::update;
    // Draws the frame before returning (marks and hit areas are then current); its composition
    // on screen follows with the event loop.
    void repaintNow() override;
    quint32 scanId() const override;
    std::shared_ptr<ScanViewSceneGraph> sceneGraph() const override;
    Vector3d screenToDirection(qint32 x, qint32 y) const override;
    QPoint directionToCell(const Vector3d& direction) const override;
    bool directionToScreen(const Vector3d& direction, double& x, double& y) const override;
    Matrix3d cameraRotation() const override;
    std::shared_ptr<ScanViewItem> itemAt(qint32 x, qint32 y) const override;

Q_SIGNALS:
    void signalDBLClickStationMarkSphericalView(quint32 newScanPositionId);

protected:
    void initializeGL() override;
    void resizeGL(int w, int h) override;
    void paintGL() override;

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct Private;

    CameraView cameraView() const;
    // Ends a zoom: the projection again, then a repaint.
    void applyZoom();
    bool dispatch(const ScanViewEvent& event);
    void openContextMenu(QMouseEvent* event);
    // The visible mark under widget pixel (x, y from the top), or null.
    const StationMark* markAt(const QPoint& position) const;
    void releaseGLResources();

    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
