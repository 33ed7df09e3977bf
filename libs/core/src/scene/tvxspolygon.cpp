#include "scene/tvxspolygon.h"

namespace TVX::CORE {

struct TVXSPolygon::Data {
    QPolygonF polygon;
};

TVXSPolygon::TVXSPolygon(const QPolygonF& polygon, quint32 number)
    : TVXScene2DItem(number), d(std::make_unique<Data>(Data{polygon}))
{
}

TVXSPolygon::~TVXSPolygon() = default;

QPolygonF TVXSPolygon::polygon() const
{
    return d->polygon;
}

void TVXSPolygon::setPolygon(const QPolygonF& polygon)
{
    d->polygon = polygon;
}

} // namespace TVX::CORE
