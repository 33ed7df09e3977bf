#pragma once

#include "planarview/interactivegraphicsitem.h"

namespace TVX::CORE {

// The shared behaviour of the items given by an axis-parallel rectangle (rectangle and ellipse):
// press at one corner, drag or move to the other, release with a size; two corner handles; the
// rectangle normalised after every change.
class InteractiveBoxItem : public InteractiveGraphicsItem
{
    Q_OBJECT

public:
    ~InteractiveBoxItem() override;

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
    bool takeBackLastPoint() override;
    bool lastPoint(QPointF& scenePos) const override;

protected:
    // `finished`: the item comes from a file and is not constructed.
    InteractiveBoxItem(bool finished, QGraphicsItem* parent);

    // The rectangle as the record holds it, and its writing back.
    virtual QRectF rectangle() const = 0;
    virtual void storeRectangle(const QRectF& rectangle) = 0;
    // The drawn shape inside the rectangle.
    virtual QPainterPath outline(const QRectF& rectangle) const = 0;

private:
    void setRectangle(const QRectF& rectangle);

    struct Private;
    std::unique_ptr<Private> d;
};

// The box item of a record kind with setRectangle and rectangle (rectangle and ellipse records).
template <typename Record>
class InteractiveBoxItemOf : public InteractiveBoxItem
{
public:
    explicit InteractiveBoxItemOf(std::shared_ptr<Record> record, QGraphicsItem* parent)
        : InteractiveBoxItem(bool(record), parent),
          m_record(record ? std::move(record) : std::make_shared<Record>(QRectF()))
    {
        setRecord(m_record);
    }

protected:
    QRectF rectangle() const override { return m_record->rectangle(); }
    void storeRectangle(const QRectF& rectangle) override { m_record->setRectangle(rectangle); }

private:
    std::shared_ptr<Record> m_record;
};

} // namespace TVX::CORE
