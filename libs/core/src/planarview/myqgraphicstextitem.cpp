#include "planarview/myqgraphicstextitem.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace TVX::CORE {

MyQGraphicsTextItem::MyQGraphicsTextItem(const QString& text, QGraphicsItem* parent) : QGraphicsTextItem(parent)
{
    setPlainText(text);
    setFlag(ItemIgnoresTransformations);
    setTextInteractionFlags(Qt::TextEditorInteraction);
    setDefaultTextColor(QColor(255, 240, 60));
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void MyQGraphicsTextItem::typeKey(QKeyEvent* event)
{
    keyPressEvent(event);
}

void MyQGraphicsTextItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    // A dark plate keeps the text readable on any photo; no focus frame.
    painter->fillRect(boundingRect(), QColor(0, 0, 0, 150));
    QStyleOptionGraphicsItem plain(*option);
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    QGraphicsTextItem::paint(painter, &plain, widget);
}

} // namespace TVX::CORE
