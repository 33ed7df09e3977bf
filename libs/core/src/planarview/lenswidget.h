#pragma once

#include <QWidget>

#include <memory>

class QPixmap;

namespace TVX::CORE {

// The magnifier of the lens dock: shows the 51 by 51 cells around one position of a scan (one
// image pixel per cell, centre cell at pixel (25, 25)), always fitted to the widget with the
// aspect ratio kept. The main window makes the image and keeps the coordinate text beside it.
class LensWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(LensWidget)

public:
    // Starts with a white 51 by 51 image.
    explicit LensWidget(QWidget* mainWindow = nullptr);
    ~LensWidget() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Replaces the shown image. The fit stays as it is; only a resize refits.
    void setPixmap(const QPixmap& pixmap);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fitToImage();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
