#include "scene/tvxsrectangle.h"

namespace TVX::CORE {

struct TVXSRectangle::Data {
    QRectF rectangle;
};

TVXSRectangle::TVXSRectangle(const QRectF& rectangle, quint32 number)
    : TVXScene2DItem(number), d(std::make_unique<Data>(Data{rectangle}))
{
}

TVXSRectangle::~TVXSRectangle() = default;

QRectF TVXSRectangle::rectangle() const
{
    return d->rectangle;
}

void TVXSRectangle::setRectangle(const QRectF& rectangle)
{
    d->rectangle = rectangle;
}

} // namespace TVX::CORE
