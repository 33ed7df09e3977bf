#pragma once

#include "scene/tvxsreferencepoint.h"

namespace TVX::CORE {

// A reference sphere: a reference point (its centre) whose fourth number is the radius in metres.
class TVXSReferenceSphere final : public TVXSReferencePoint
{
public:
    TVXSReferenceSphere(const QString& name, const Values& values);
    TVXSReferenceSphere(const TVXSReferenceSphere& other);
    ~TVXSReferenceSphere() override;

    std::shared_ptr<TVXSceneItem> clone() const override;
    quint32 kind() const override; // 2

    double radius() const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
