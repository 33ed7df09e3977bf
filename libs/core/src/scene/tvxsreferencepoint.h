#pragma once

#include "scene/tvxsreferenceobject.h"

#include <array>

namespace TVX::CORE {

// A reference point: the ten numbers of its reference entry, in file order. The first three are
// its position x, y, z in the scan frame (metres); the others are carried as they are.
class TVXSReferencePoint : public TVXSReferenceObject
{
public:
    using Values = std::array<double, 10>;

    TVXSReferencePoint(const QString& name, const Values& values);
    TVXSReferencePoint(const TVXSReferencePoint& other);
    ~TVXSReferencePoint() override;

    std::shared_ptr<TVXSceneItem> clone() const override;
    quint32 kind() const override; // 1

    const Values& values() const;
    double x() const { return values()[0]; }
    double y() const { return values()[1]; }
    double z() const { return values()[2]; }

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
