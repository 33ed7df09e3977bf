#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivemarkitem.h"

namespace TVX::CORE {

// Where the scanner stood for another scan of the project, with that scan's name and distance;
// a double click opens the marked scan. Never deleted by the user and never saved.
class InteractiveStationMark final : public InteractiveMarkItem
{
    Q_OBJECT

public:
    InteractiveStationMark(quint32 scanId, const QPointF& scenePos, int size, const QString& text,
                           QGraphicsItem* parent = nullptr);

    int type() const override { return GraphicsView::StationMarkType; }
    quint32 scanId() const;

protected:
    void paintSymbol(QPainter* painter, const QRectF& box) const override;

private:
    quint32 m_scanId;
};

} // namespace TVX::CORE
