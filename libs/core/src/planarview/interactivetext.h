#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivegraphicsitem.h"
#include "scene/tvxssimpletext.h"

namespace TVX::CORE {

class MyQGraphicsTextItem;

// An editable text anchored at a grid position: one press places it, then the keys typed while
// it holds the keyboard go into its body and from there into its record.
class InteractiveText final : public InteractiveGraphicsItem
{
    Q_OBJECT

public:
    // Without a record the item makes an empty one and waits to be placed; an item made from a
    // record (read from a file) stands at the record's position.
    explicit InteractiveText(std::shared_ptr<TVXSSimpleText> record = {}, QGraphicsItem* parent = nullptr);
    ~InteractiveText() override;

    int type() const override { return GraphicsView::TextType; }
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    bool isUnderConstruction() const override;
    void constructionMousePress(const QPointF& scenePos) override;
    void constructionMouseRelease(const QPointF& scenePos) override;
    void constructionMouseMove(const QPointF& scenePos) override;
    bool grabHandle(const QPointF& scenePos, const QTransform& viewTransform) override;
    void releaseHandle(const QPointF& scenePos) override;
    void moveItemBy(const QPoint& viewDelta, const QPointF& sceneDelta) override;

    MyQGraphicsTextItem* textItem() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
