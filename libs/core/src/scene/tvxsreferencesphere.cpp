#include "scene/tvxsreferencesphere.h"

namespace TVX::CORE {

// The sphere's own block: its radius, taken from the fourth number of the reference entry.
struct TVXSReferenceSphere::Data {
    double radius = 0.0;
};

TVXSReferenceSphere::TVXSReferenceSphere(const QString& name, const Values& values)
    : TVXSReferencePoint(name, values), d(std::make_unique<Data>(Data{values[3]}))
{
}

TVXSReferenceSphere::TVXSReferenceSphere(const TVXSReferenceSphere& other)
    : TVXSReferencePoint(other), d(std::make_unique<Data>(*other.d))
{
}

TVXSReferenceSphere::~TVXSReferenceSphere() = default;

std::shared_ptr<TVXSceneItem> TVXSReferenceSphere::clone() const
{
    return std::make_shared<TVXSReferenceSphere>(*this);
}

quint32 TVXSReferenceSphere::kind() const
{
    return 2;
}

double TVXSReferenceSphere::radius() const
{
    return d->radius;
}

} // namespace TVX::CORE
