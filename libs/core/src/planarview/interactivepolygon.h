#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivegraphicsitem.h"
#include "scene/tvxspolygon.h"

namespace TVX::CORE {

// A polygon (an area), built vertex by vertex: each press fixes the floating vertex under the
// cursor and starts a new one; a double click ends it.
class InteractivePolygon final : public InteractiveGraphicsItem
{
    Q_OBJECT

public:
    // Without a record the item makes an empty one and starts under construction; an item made
    // from a record with vertices (read from a file) is finished.
    explicit InteractivePolygon(std::shared_ptr<TVXSPolygon> record = {}, QGraphicsItem* parent = nullptr);
    ~InteractivePolygon() override;

    int type() const override { return GraphicsView::PolygonType; }
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    bool isUnderConstruction() const override;
    void constructionMousePress(const QPointF& scenePos) override;
    void constructionMouseRelease(const QPointF& scenePos) override;
    void constructionMouseMove(const QPointF& scenePos) override;
    void constructionMouseDoubleClick(const QPointF& scenePos) override;
    bool grabHandle(const QPointF& scenePos, const QTransform& viewTransform) override;
    void releaseHandle(const QPointF& scenePos) override;
    void moveItemBy(const QPoint& viewDelta, const QPointF& sceneDelta) override;
    bool takeBackLastPoint() override;
    bool lastPoint(QPointF& scenePos) const override;

private:
    QPolygonF polygon() const;
    void setPolygon(const QPolygonF& polygon);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
