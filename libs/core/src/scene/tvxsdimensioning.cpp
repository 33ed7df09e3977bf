#include "scene/tvxsdimensioning.h"

namespace TVX::CORE {

struct TVXSDimensioning::Data {
    quint32 type = 0;
    QPointF first;
    QPointF second;
};

TVXSDimensioning::TVXSDimensioning(quint32 type, const QPointF& first, const QPointF& second, quint32 number)
    : TVXScene2DItem(number), d(std::make_unique<Data>(Data{type, first, second}))
{
}

TVXSDimensioning::~TVXSDimensioning() = default;

quint32 TVXSDimensioning::type() const
{
    return d->type;
}

QPointF TVXSDimensioning::first() const
{
    return d->first;
}

QPointF TVXSDimensioning::second() const
{
    return d->second;
}

void TVXSDimensioning::setPoints(const QPointF& first, const QPointF& second)
{
    d->first = first;
    d->second = second;
}

} // namespace TVX::CORE
