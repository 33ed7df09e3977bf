#pragma once

#include "planarview/graphicsview.h"
#include "planarview/interactivemarkitem.h"

namespace TVX::CORE {

// A target symbol placed by one press. The annotation file has no kind for it, so it carries no
// record and stays in its view only.
class InteractiveSymbol final : public InteractiveMarkItem
{
    Q_OBJECT

public:
    explicit InteractiveSymbol(QGraphicsItem* parent = nullptr);

    int type() const override { return GraphicsView::SymbolType; }

protected:
    void paintSymbol(QPainter* painter, const QRectF& box) const override;
};

} // namespace TVX::CORE
