#pragma once

#include "scene/tvxscene2ditem.h"

#include <QPointF>

namespace TVX::CORE {

// Two picked grid positions whose 3D points are measured. Type 0 "3D", 1 "DZ", 2 "XY".
class TVXSDimensioning final : public TVXScene2DItem
{
public:
    TVXSDimensioning(quint32 type, const QPointF& first, const QPointF& second, quint32 number = 0);
    ~TVXSDimensioning() override;

    quint32 kind() const override { return Dimensioning; }
    quint32 type() const;
    QPointF first() const;
    QPointF second() const;
    void setPoints(const QPointF& first, const QPointF& second);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
