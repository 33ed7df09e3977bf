#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivegraphicsitem.h"
#include "scene/tvxsdimensioning.h"

namespace TVX::CORE {

// A measured segment between two grid positions of one scan, labelled with the distance of the
// scan's 3D points there: type 0 in 3D, 1 the height difference, 2 horizontally. The item does not
// measure: on every change of a point it asks the main windows to, and they hand the value back.
class InteractiveDimensioning final : public InteractiveGraphicsItem
{
    Q_OBJECT

public:
    // A new item: nothing placed, the value not yet measured, a record of its own.
    InteractiveDimensioning(quint32 type, const QPointF& pointA, const QPointF& pointB, double value,
                            QGraphicsItem* parent = nullptr);
    // An item of a record read from a file: finished, and measured once it can be.
    explicit InteractiveDimensioning(std::shared_ptr<TVXSDimensioning> record, QGraphicsItem* parent = nullptr);
    ~InteractiveDimensioning() override;

    int type() const override { return GraphicsView::DimensioningType; }
    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    bool isUnderConstruction() const override;
    void constructionMousePress(const QPointF& scenePos) override;
    void constructionMouseRelease(const QPointF& scenePos) override;
    void constructionMouseMove(const QPointF& scenePos) override;
    bool grabHandle(const QPointF& scenePos, const QTransform& viewTransform) override;
    void releaseHandle(const QPointF& scenePos) override;
    bool takeBackLastPoint() override;
    bool lastPoint(QPointF& scenePos) const override;

    quint32 dimensioningType() const;
    // Item coordinates; add the item's scene position for the grid position.
    QPointF pointA() const;
    QPointF pointB() const;
    void setValue(double value, bool valid);
    double value() const;
    bool isValueValid() const;
    // "12.346 m (XY)", or "-.-- m (XY)" while no valid value is known.
    QString labelText() const;

private:
    void setPoints(const QPointF& a, const QPointF& b);
    void reportChange();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
