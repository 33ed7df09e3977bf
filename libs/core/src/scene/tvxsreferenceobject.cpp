#include "scene/tvxsreferenceobject.h"

namespace TVX::CORE {

struct TVXSReferenceObject::Data {
    QString name;
    bool flag = false;
};

TVXSReferenceObject::TVXSReferenceObject() : d(std::make_unique<Data>()) {}

TVXSReferenceObject::TVXSReferenceObject(const TVXSReferenceObject& other)
    : TVXSceneItem(other), d(std::make_unique<Data>(*other.d))
{
}

TVXSReferenceObject::~TVXSReferenceObject() = default;

quint32 TVXSReferenceObject::category() const
{
    return 1;
}

std::shared_ptr<TVXSceneItem> TVXSReferenceObject::clone() const
{
    return std::make_shared<TVXSReferenceObject>(*this);
}

quint32 TVXSReferenceObject::kind() const
{
    return 0;
}

QString TVXSReferenceObject::name() const
{
    return d->name;
}

void TVXSReferenceObject::setName(const QString& name)
{
    d->name = name;
}

bool TVXSReferenceObject::flag() const
{
    return d->flag;
}

void TVXSReferenceObject::setFlag(bool flag)
{
    d->flag = flag;
}

} // namespace TVX::CORE
