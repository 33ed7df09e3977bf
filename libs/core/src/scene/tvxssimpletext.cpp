#include "scene/tvxssimpletext.h"

namespace TVX::CORE {

struct TVXSSimpleText::Data {
    QString text;
    QPointF position;
    QPointF offset;
};

TVXSSimpleText::TVXSSimpleText(const QString& text, const QPointF& position, const QPointF& offset, quint32 number)
    : TVXScene2DItem(number), d(std::make_unique<Data>(Data{text, position, offset}))
{
}

TVXSSimpleText::~TVXSSimpleText() = default;

QString TVXSSimpleText::text() const
{
    return d->text;
}

QPointF TVXSSimpleText::position() const
{
    return d->position;
}

QPointF TVXSSimpleText::offset() const
{
    return d->offset;
}

void TVXSSimpleText::setText(const QString& text)
{
    d->text = text;
}

void TVXSSimpleText::setPosition(const QPointF& position)
{
    d->position = position;
}

} // namespace TVX::CORE
