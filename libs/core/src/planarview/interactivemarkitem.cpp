#include "planarview/interactivemarkitem.h"

#include <QFontMetricsF>
#include <QPainter>

namespace TVX::CORE {

struct InteractiveMarkItem::Private {
    bool placed{false};
    int size{24};
    QString text;
    QFont font;
};

InteractiveMarkItem::InteractiveMarkItem(const QPointF& scenePos, bool placed, int size, const QString& text,
                                         QGraphicsItem* parent)
    : InteractiveGraphicsItem(parent), d(std::make_unique<Private>())
{
    d->placed = placed;
    d->size = size;
    d->text = text;
    d->font.setBold(true);
    setPos(scenePos);
    setFlag(ItemIgnoresTransformations);
    setZValue(5);
    if (!text.isEmpty())
        setToolTip(text);
}

InteractiveMarkItem::~InteractiveMarkItem() = default;

int InteractiveMarkItem::size() const
{
    return d->size;
}

QString InteractiveMarkItem::text() const
{
    return d->text;
}

QRectF InteractiveMarkItem::textRect() const
{
    if (d->text.isEmpty())
        return QRectF();
    const QFontMetricsF metrics(d->font);
    const QRectF text = metrics.boundingRect(QRectF(0, 0, 1000, 1000), Qt::AlignLeft | Qt::AlignTop, d->text);
    return QRectF(d->size / 2.0 + 4, -text.height() / 2, text.width() + 8, text.height());
}

QRectF InteractiveMarkItem::boundingRect() const
{
    const double half = d->size / 2.0 + 2;
    return QRectF(-half, -half, 2 * half, 2 * half) | textRect();
}

void InteractiveMarkItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    if (!d->placed)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    const double half = d->size / 2.0;
    paintSymbol(painter, QRectF(-half, -half, d->size, d->size));
    const QRectF text = textRect();
    if (text.isEmpty())
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0, 0, 0, 150));
    painter->drawRoundedRect(text, 3, 3);
    painter->setFont(d->font);
    painter->setPen(isSelected() ? QColor(120, 255, 140) : QColor(255, 255, 255));
    painter->drawText(text.adjusted(4, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, d->text);
}

bool InteractiveMarkItem::isUnderConstruction() const
{
    return !d->placed;
}

void InteractiveMarkItem::constructionMousePress(const QPointF& scenePos)
{
    if (d->placed)
        return;
    setPos(scenePos);
    d->placed = true;
    update();
}

void InteractiveMarkItem::constructionMouseRelease(const QPointF&) {}

void InteractiveMarkItem::constructionMouseMove(const QPointF&)
{
    update();
}

bool InteractiveMarkItem::grabHandle(const QPointF&, const QTransform&)
{
    return false;
}

void InteractiveMarkItem::releaseHandle(const QPointF&) {}

void InteractiveMarkItem::moveItemBy(const QPoint&, const QPointF& sceneDelta)
{
    moveBy(sceneDelta.x(), sceneDelta.y());
}

} // namespace TVX::CORE
