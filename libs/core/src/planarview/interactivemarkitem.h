#pragma once

#include "planarview/interactivegraphicsitem.h"

namespace TVX::CORE {

// A mark of a fixed screen size at a grid position, with a text beside it: the base of the
// symbol, reference point and station mark items. Marks have no handles and no record; one
// press places a mark that was made without a position.
class InteractiveMarkItem : public InteractiveGraphicsItem
{
    Q_OBJECT

public:
    ~InteractiveMarkItem() override;

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    bool isUnderConstruction() const override;
    void constructionMousePress(const QPointF& scenePos) override;
    void constructionMouseRelease(const QPointF& scenePos) override;
    void constructionMouseMove(const QPointF& scenePos) override;
    bool grabHandle(const QPointF& scenePos, const QTransform& viewTransform) override;
    void releaseHandle(const QPointF& scenePos) override;
    void moveItemBy(const QPoint& viewDelta, const QPointF& sceneDelta) override;

    // The mark's size in screen pixels and its text (lines separated by line feeds).
    int size() const;
    QString text() const;

protected:
    InteractiveMarkItem(const QPointF& scenePos, bool placed, int size, const QString& text, QGraphicsItem* parent);
    // Draws the symbol into `box` (screen pixels, centred on the position).
    virtual void paintSymbol(QPainter* painter, const QRectF& box) const = 0;

private:
    QRectF textRect() const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
