#include "planarview/interactivetext.h"

#include "planarview/myqgraphicstextitem.h"

#include <QKeyEvent>
#include <QPainter>
#include <QTextDocument>

#include <algorithm>

namespace TVX::CORE {

namespace {
constexpr double anchorPixels = 4.0;
}

struct InteractiveText::Private {
    std::shared_ptr<TVXSSimpleText> record;
    MyQGraphicsTextItem* body{nullptr};
    bool placed{false};
};

InteractiveText::InteractiveText(std::shared_ptr<TVXSSimpleText> record, QGraphicsItem* parent)
    : InteractiveGraphicsItem(parent), d(std::make_unique<Private>())
{
    d->placed = bool(record);
    d->record = record ? std::move(record) : std::make_shared<TVXSSimpleText>(QString(), QPointF(), QPointF());
    setRecord(d->record);
    setFlags(ItemIsSelectable | ItemIsMovable | ItemIsFocusable);
    setPos(d->record->position());
    setZValue(3);
    d->body = new MyQGraphicsTextItem(d->record->text(), this);
    d->body->setPos(d->record->offset());
    d->body->setVisible(d->placed);
    connect(d->body->document(), &QTextDocument::contentsChanged, this, [this] {
        d->record->setText(d->body->toPlainText());
        prepareGeometryChange();
    });
}

InteractiveText::~InteractiveText() = default;

MyQGraphicsTextItem* InteractiveText::textItem() const
{
    return d->body;
}

QRectF InteractiveText::boundingRect() const
{
    const double margin = handleMargin();
    return QRectF(-margin, -margin, 2 * margin, 2 * margin);
}

QPainterPath InteractiveText::shape() const
{
    // The anchor and the body: the body keeps its screen size, so it is hit through its own
    // shape mapped at the view's scale.
    QPainterPath path;
    path.addRect(boundingRect());
    if (const GraphicsView* view = this->view()) {
        const QRectF body = view->viewportTransform().inverted().mapRect(d->body->boundingRect());
        path.addRect(QRectF(d->body->pos(), body.size()));
    }
    return path;
}

void InteractiveText::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    if (!d->placed)
        return;
    const double r = anchorPixels / std::max(1e-12, painter->worldTransform().m11());
    QPainterPath anchor;
    anchor.addEllipse(QPointF(), r, r);
    strokeOutline(painter, anchor);
    if (isSelected())
        paintHandles(painter, {QPointF()});
}

bool InteractiveText::isUnderConstruction() const
{
    return !d->placed;
}

void InteractiveText::constructionMousePress(const QPointF& scenePos)
{
    if (d->placed)
        return;
    setPos(scenePos);
    d->record->setPosition(scenePos);
    d->placed = true;
    d->body->setVisible(true);
}

void InteractiveText::constructionMouseRelease(const QPointF&) {}

void InteractiveText::constructionMouseMove(const QPointF&)
{
    prepareGeometryChange();
}

bool InteractiveText::grabHandle(const QPointF&, const QTransform&)
{
    return false;
}

void InteractiveText::releaseHandle(const QPointF&) {}

void InteractiveText::moveItemBy(const QPoint&, const QPointF& sceneDelta)
{
    moveBy(sceneDelta.x(), sceneDelta.y());
    d->record->setPosition(pos());
}

void InteractiveText::keyPressEvent(QKeyEvent* event)
{
    d->body->typeKey(event);
}

void InteractiveText::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
}

} // namespace TVX::CORE
