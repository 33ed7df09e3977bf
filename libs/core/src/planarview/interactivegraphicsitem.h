#pragma once

#include "scene/tvxsceneitem.h"

#include <QBrush>
#include <QPainterPath>
#include <QVector>
#include <QGraphicsObject>
#include <QPointer>

#include <memory>

namespace TVX::CORE {

class GraphicsView;

// Base of the annotation items of the planar view. Its virtual operations are the whole contract
// between the view and an item: the view forwards presses, moves, releases and double clicks and
// asks the item whether it is finished, never which kind it is. Each item keeps its geometry in
// its scene record, shared with the scan's annotation set, so that what is drawn is what is saved.
class InteractiveGraphicsItem : public QGraphicsObject
{
    Q_OBJECT

public:
    explicit InteractiveGraphicsItem(QGraphicsItem* parent = nullptr);
    ~InteractiveGraphicsItem() override;

public Q_SLOTS:
    virtual bool isUnderConstruction() const = 0;
    virtual void constructionMousePress(const QPointF& scenePos) = 0;
    virtual void constructionMouseRelease(const QPointF& scenePos) = 0;
    // Also drags the active handle.
    virtual void constructionMouseMove(const QPointF& scenePos) = 0;
    virtual void constructionMouseDoubleClick(const QPointF& scenePos);
    // True when a handle lies within 11 × 11 view pixels of the position.
    virtual bool grabHandle(const QPointF& scenePos, const QTransform& viewTransform) = 0;
    virtual void releaseHandle(const QPointF& scenePos) = 0;
    virtual void moveItemBy(const QPoint& viewDelta, const QPointF& sceneDelta);
    // True when a placed point was taken back.
    virtual bool takeBackLastPoint();
    // The scene position of the point that is now last; false when none is left.
    virtual bool lastPoint(QPointF& scenePos) const;

public:
    // The view that shows the item; setting the same view again does nothing.
    void setView(GraphicsView* view);
    GraphicsView* view() const;
    TVXSceneItemPtr record() const;
    void setRecord(const TVXSceneItemPtr& record);

    // The fill of an area item: translucent green when highlighted, translucent blue otherwise.
    static QBrush highlightBrush(bool highlighted);

protected:
    // Draws a path so that it shows on any photo: a dark line under a bright one, both a fixed
    // number of screen pixels wide.
    static void strokeOutline(QPainter* painter, const QPainterPath& path);
    // The handle squares of a selected item at its shape points (item coordinates).
    void paintHandles(QPainter* painter, const QVector<QPointF>& points) const;
    // Half a handle square in scene units under the view's transform (a cell without a view), for
    // bounding rectangles that must hold the handles and the screen-wide pens.
    double handleMargin() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
