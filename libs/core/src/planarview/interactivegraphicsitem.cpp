#include "planarview/interactivegraphicsitem.h"

#include "planarview/graphicsview.h"

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

} // namespace TVX::CORE
