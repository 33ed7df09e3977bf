#include "scene/tvxsreferencepoint.h"

namespace TVX::CORE {

struct TVXSReferencePoint::Data {
    Values values{};
};

TVXSReferencePoint::TVXSReferencePoint(const QString& name, const Values& values)
    : d(std::make_unique<Data>(Data{values}))
{
    setName(name);
}

TVXSReferencePoint::TVXSReferencePoint(const TVXSReferencePoint& other)
    : TVXSReferenceObject(other), d(std::make_unique<Data>(*other.d))
{
}

TVXSReferencePoint::~TVXSReferencePoint() = default;

std::shared_ptr<TVXSceneItem> TVXSReferencePoint::clone() const
{
    return std::make_shared<TVXSReferencePoint>(*this);
}

quint32 TVXSReferencePoint::kind() const
{
    return 1;
}

const TVXSReferencePoint::Values& TVXSReferencePoint::values() const
{
    return d->values;
}

} // namespace TVX::CORE
