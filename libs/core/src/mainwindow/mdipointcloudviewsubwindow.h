#pragma once

#include "mainwindow/mdisubwindow.h"

#include <QColor>

#include <memory>

namespace TVX::CORE {

class PointcloudViewGLWidget;
class TVXFile;

// The sub window of a point cloud view. Its context menu gets the view's own entries: the initial
// view, the colours of the points and the background colour.
class MDIPointcloudViewSubWindow final : public MdiSubWindow
{
    Q_OBJECT

public:
    // Reads the scan's points; throws as the scan file does when that fails.
    MDIPointcloudViewSubWindow(quint32 scanId, const QString& scanFilePath, std::shared_ptr<TVXFile> file,
                               const QColor& uniformColour, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~MDIPointcloudViewSubWindow() override;

    MdiSubWindowType subWindowType() const override { return PointcloudView; }
    // Adds "Reset up-vector", "Color" and "Background Color" before it keeps the menu.
    void setContextMenu(QMenu* menu) override;
    PointcloudViewGLWidget* glWidget() const { return m_view; }

private:
    PointcloudViewGLWidget* m_view;
};

} // namespace TVX::CORE
