#pragma once

#include <QGraphicsTextItem>

namespace TVX::CORE {

// The editable body of an InteractiveText: typed into while its item holds the keyboard, a fixed
// screen size at every zoom.
class MyQGraphicsTextItem final : public QGraphicsTextItem
{
    Q_OBJECT

public:
    explicit MyQGraphicsTextItem(const QString& text, QGraphicsItem* parent = nullptr);

    // Types a key that reached the owning item.
    void typeKey(QKeyEvent* event);

protected:
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
};

} // namespace TVX::CORE
