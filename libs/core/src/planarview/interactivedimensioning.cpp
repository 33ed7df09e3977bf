#include "planarview/interactivedimensioning.h"

#include "planarview/handlegeometry.h"
#include "planarview/interactivegraphicsitemevent.h"
#include "scene/pointdistance.h"

#include <QApplication>
#include <QGraphicsSimpleTextItem>
#include <QMainWindow>
#include <QPainter>
#include <QPainterPathStroker>

namespace TVX::CORE {

namespace {

// The label on a dark plate, so that it reads on any photo.
class LabelItem final : public QGraphicsSimpleTextItem
{
public:
    using QGraphicsSimpleTextItem::QGraphicsSimpleTextItem;

    QRectF boundingRect() const override { return QGraphicsSimpleTextItem::boundingRect().adjusted(-3, -1, 3, 1); }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(0, 0, 0, 160));
        painter->drawRoundedRect(boundingRect(), 3, 3);
        QGraphicsSimpleTextItem::paint(painter, option, widget);
    }
};

} // namespace

struct InteractiveDimensioning::Private {
    std::shared_ptr<TVXSDimensioning> record;
    quint32 type{0};
    QPointF a;
    QPointF b;
    double value{0.0};
    bool valid{false};
    int state{-1}; // -1 nothing placed, 0 A placed and B following, 1 finished
    int handle{-1};
    QGraphicsSimpleTextItem* label{nullptr};
};

InteractiveDimensioning::InteractiveDimensioning(quint32 type, const QPointF& pointA, const QPointF& pointB,
                                                 double value, QGraphicsItem* parent)
    : InteractiveGraphicsItem(parent), d(std::make_unique<Private>())
{
    d->type = type;
    d->a = pointA;
    d->b = pointB;
    d->value = value;
    d->record = std::make_shared<TVXSDimensioning>(type, pointA, pointB);
    setRecord(d->record);
    setFlags(ItemIsSelectable);
    setZValue(2); // over the area items it measures
    d->label = new LabelItem(this);
    d->label->setFlag(ItemIgnoresTransformations);
    d->label->setBrush(QColor(255, 240, 60));
    QFont font = d->label->font();
    font.setBold(true);
    d->label->setFont(font);
    setValue(value, false);
}

InteractiveDimensioning::InteractiveDimensioning(std::shared_ptr<TVXSDimensioning> record, QGraphicsItem* parent)
    : InteractiveDimensioning(record->type(), record->first(), record->second(), 0.0, parent)
{
    d->record = std::move(record);
    setRecord(d->record);
    d->state = 1;
    reportChange();
}

InteractiveDimensioning::~InteractiveDimensioning()
{
    delete d->label;
}

quint32 InteractiveDimensioning::dimensioningType() const
{
    return d->type;
}

QPointF InteractiveDimensioning::pointA() const
{
    return d->a;
}

QPointF InteractiveDimensioning::pointB() const
{
    return d->b;
}

double InteractiveDimensioning::value() const
{
    return d->value;
}

bool InteractiveDimensioning::isValueValid() const
{
    return d->valid;
}

QString InteractiveDimensioning::labelText() const
{
    return dimensioningLabel(quint32(d->type), d->value, d->valid);
}

void InteractiveDimensioning::setValue(double value, bool valid)
{
    d->value = value;
    d->valid = valid;
    prepareGeometryChange();
    d->label->setText(labelText());
    // Centred on the midpoint, in screen pixels whatever the zoom.
    const QRectF text = d->label->boundingRect();
    d->label->setTransform(QTransform::fromTranslate(-text.width() / 2, -text.height() / 2));
    d->label->setPos((d->a + d->b) / 2);
}

void InteractiveDimensioning::setPoints(const QPointF& a, const QPointF& b)
{
    prepareGeometryChange();
    d->a = a;
    d->b = b;
    d->record->setPoints(a, b);
    d->label->setPos((a + b) / 2);
    update();
}

void InteractiveDimensioning::reportChange()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (qobject_cast<QMainWindow*>(widget))
            QCoreApplication::postEvent(widget, new InteractiveGraphicsItemEvent(0, this));
    }
}

QRectF InteractiveDimensioning::boundingRect() const
{
    QRectF r = QRectF(d->a, d->b).normalized();
    // Room for the end marks and pens, and for the handles of a selected item.
    const double margin = handleMargin();
    r.adjust(-margin, -margin, margin, margin);
    if (const GraphicsView* view = this->view()) {
        const QRectF text = view->viewportTransform().inverted().mapRect(d->label->boundingRect());
        r |= QRectF(QPointF(), text.size()).translated((d->a + d->b) / 2 - QPointF(text.width(), text.height()) / 2);
    }
    return r;
}

QPainterPath InteractiveDimensioning::shape() const
{
    QPainterPath line(d->a);
    line.lineTo(d->b);
    QPainterPathStroker stroker;
    stroker.setWidth(std::max(1.0, handleMargin()));
    return stroker.createStroke(line);
}

void InteractiveDimensioning::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    if (d->state < 0)
        return;
    QPainterPath path(d->a);
    path.lineTo(d->b);
    // End marks across the segment, a fixed screen size.
    const QLineF segment(d->a, d->b);
    const double mark = handleSizeInScene(painter->worldTransform()).width() * 0.6;
    if (segment.length() > 0.0) {
        const QLineF normal = segment.normalVector().unitVector();
        const QPointF across = (normal.p2() - normal.p1()) * mark;
        for (const QPointF& end : {d->a, d->b}) {
            path.moveTo(end - across);
            path.lineTo(end + across);
        }
    }
    strokeOutline(painter, path);
    paintHandles(painter, {d->a, d->b});
}

bool InteractiveDimensioning::isUnderConstruction() const
{
    return d->state < 1;
}

void InteractiveDimensioning::constructionMousePress(const QPointF& scenePos)
{
    if (d->state == -1) {
        d->state = 0;
        setPoints(scenePos, scenePos);
    } else if (d->state == 0) {
        d->state = 1;
        setPoints(d->a, scenePos);
        reportChange();
    }
}

void InteractiveDimensioning::constructionMouseRelease(const QPointF&) {}

void InteractiveDimensioning::constructionMouseMove(const QPointF& scenePos)
{
    if (d->state == 0) {
        setPoints(d->a, scenePos);
        reportChange();
    } else if (d->handle == 0 || d->handle == 1) {
        const QPointF p = scenePos - this->scenePos();
        setPoints(d->handle == 0 ? p : d->a, d->handle == 1 ? p : d->b);
        reportChange();
    } else {
        d->record->setPoints(d->a, d->b);
    }
}

bool InteractiveDimensioning::grabHandle(const QPointF& scenePos, const QTransform& viewTransform)
{
    // The square's side is truncated to whole cells and centred by integer halves, so that a tie
    // between the two ends goes to A.
    const int w = int(handleSizeInScene(viewTransform).width());
    const QRectF square(scenePos.x() - w / 2, scenePos.y() - w / 2, w, w);
    if (square.contains(d->a + this->scenePos()))
        d->handle = 0;
    else if (square.contains(d->b + this->scenePos()))
        d->handle = 1;
    else
        d->handle = -1;
    return d->handle >= 0;
}

void InteractiveDimensioning::releaseHandle(const QPointF& scenePos)
{
    const QPointF p = scenePos - this->scenePos();
    if (d->handle == 0)
        setPoints(p, d->b);
    else if (d->handle == 1)
        setPoints(d->a, p);
    d->handle = -1;
}

bool InteractiveDimensioning::takeBackLastPoint()
{
    if (d->state == 1) {
        d->state = 0;
        setPoints(d->a, d->a);
        return true;
    }
    if (d->state == 0) {
        d->state = -1;
        setPoints(QPointF(), QPointF());
        return true;
    }
    return false;
}

bool InteractiveDimensioning::lastPoint(QPointF& scenePos) const
{
    if (d->state == 0)
        scenePos = d->a + this->scenePos();
    else if (d->state == 1)
        scenePos = d->b + this->scenePos();
    else
        return false;
    return true;
}

} // namespace TVX::CORE
