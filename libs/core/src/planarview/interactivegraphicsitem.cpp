#include "planarview/interactivegraphicsitem.h"

#include "planarview/graphicsview.h"
#include "planarview/handlegeometry.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace TVX::CORE {

struct InteractiveGraphicsItem::Private {
    QPointer<GraphicsView> view;
    TVXSceneItemPtr record;
};

InteractiveGraphicsItem::InteractiveGraphicsItem(QGraphicsItem* parent)
    : QGraphicsObject(parent), d(std::make_unique<Private>())
{
}

InteractiveGraphicsItem::~InteractiveGraphicsItem() = default;

void InteractiveGraphicsItem::constructionMouseDoubleClick(const QPointF&) {}

void InteractiveGraphicsItem::moveItemBy(const QPoint&, const QPointF&) {}

bool InteractiveGraphicsItem::takeBackLastPoint()
{
    return false;
}

bool InteractiveGraphicsItem::lastPoint(QPointF&) const
{
    return false;
}

void InteractiveGraphicsItem::setView(GraphicsView* view)
{
    if (d->view != view)
        d->view = view;
}

GraphicsView* InteractiveGraphicsItem::view() const
{
    return d->view;
}

TVXSceneItemPtr InteractiveGraphicsItem::record() const
{
    return d->record;
}

void InteractiveGraphicsItem::setRecord(const TVXSceneItemPtr& record)
{
    d->record = record;
}

QBrush InteractiveGraphicsItem::highlightBrush(bool highlighted)
{
    return QBrush(highlighted ? QColor(10, 200, 50, 100) : QColor(10, 50, 200, 100), Qt::SolidPattern);
}

void InteractiveGraphicsItem::strokeOutline(QPainter* painter, const QPainterPath& path)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    for (const auto& [colour, width] : {std::pair{QColor(0, 0, 0, 200), 3.5}, std::pair{QColor(255, 220, 40), 1.5}}) {
        QPen pen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        pen.setCosmetic(true);
        painter->setPen(pen);
        painter->drawPath(path);
    }
    painter->restore();
}

void InteractiveGraphicsItem::paintHandles(QPainter* painter, const QVector<QPointF>& points) const
{
    if (!isSelected())
        return;
    const QSizeF size = handleSizeInScene(painter->worldTransform());
    painter->save();
    QPen pen(Qt::black, 1.0);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::white);
    for (const QPointF& p : points)
        painter->drawRect(QRectF(p.x() - size.width() / 2, p.y() - size.height() / 2, size.width(), size.height()));
    painter->restore();
}

double InteractiveGraphicsItem::handleMargin() const
{
    if (!d->view)
        return 1.0;
    const QSizeF size = handleSizeInScene(d->view->viewportTransform());
    return std::max(size.width(), size.height()) / 2 + 1.0;
}

} // namespace TVX::CORE
