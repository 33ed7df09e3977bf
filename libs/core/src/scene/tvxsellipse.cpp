#include "scene/tvxsellipse.h"

namespace TVX::CORE {

struct TVXSEllipse::Data {
    QRectF boundingRectangle;
};

TVXSEllipse::TVXSEllipse(const QRectF& boundingRectangle, quint32 number)
    : TVXScene2DItem(number), d(std::make_unique<Data>(Data{boundingRectangle}))
{
}

TVXSEllipse::~TVXSEllipse() = default;

QRectF TVXSEllipse::rectangle() const
{
    return d->boundingRectangle;
}

void TVXSEllipse::setRectangle(const QRectF& boundingRectangle)
{
    d->boundingRectangle = boundingRectangle;
}

} // namespace TVX::CORE
