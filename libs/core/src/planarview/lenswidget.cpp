#include "planarview/lenswidget.h"

#include "planarview/lensgraphicsview.h"

#include <QGraphicsPixmapItem>
#include <QPixmap>
#include <QVBoxLayout>

namespace TVX::CORE {

namespace {
constexpr int lensCells = 51;
} // namespace

struct LensWidget::Private {
    LensGraphicsView* view{nullptr};
    QGraphicsPixmapItem* item{nullptr};
};

LensWidget::LensWidget(QWidget* mainWindow) : QWidget(mainWindow), d(std::make_unique<Private>())
{
    d->view = new LensGraphicsView(this);
    d->view->setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    d->view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    d->view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    QPixmap white(lensCells, lensCells);
    white.fill(Qt::white);
    d->item = d->view->scene()->addPixmap(white);
    // Puts the centre of the centre pixel at the scene origin, where the cross-hair is drawn.
    d->item->setPos(-lensCells / 2.0, -lensCells / 2.0);
    fitToImage();

    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    layout->addWidget(d->view);
}

LensWidget::~LensWidget() = default;

QSize LensWidget::sizeHint() const
{
    return {200, 200};
}

QSize LensWidget::minimumSizeHint() const
{
    return {100, 100};
}

void LensWidget::setPixmap(const QPixmap& pixmap)
{
    d->item->setPixmap(pixmap);
}

void LensWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitToImage();
}

void LensWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // A hidden widget passes its first size on to the view only while it is being shown, after
    // its own resize event; fit again once the view knows its size.
    fitToImage();
}

void LensWidget::fitToImage()
{
    d->view->fitInView(d->item, Qt::KeepAspectRatio);
}

} // namespace TVX::CORE
