#pragma once

#include "scene/tvxscene2ditem.h"

#include <QPointF>

namespace TVX::CORE {

class TVXSSimpleText final : public TVXScene2DItem
{
public:
    TVXSSimpleText(const QString& text, const QPointF& position, const QPointF& offset, quint32 number = 0);
    ~TVXSSimpleText() override;

    quint32 kind() const override { return SimpleText; }
    QString text() const;
    QPointF position() const; // the anchor
    QPointF offset() const;   // of the label from the anchor
    void setText(const QString& text);
    void setPosition(const QPointF& position);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
