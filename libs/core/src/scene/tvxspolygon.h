#pragma once

#include "scene/tvxscene2ditem.h"

#include <QPolygonF>

namespace TVX::CORE {

class TVXSPolygon final : public TVXScene2DItem
{
public:
    explicit TVXSPolygon(const QPolygonF& polygon, quint32 number = 0);
    ~TVXSPolygon() override;

    quint32 kind() const override { return Polygon; }
    QPolygonF polygon() const;
    void setPolygon(const QPolygonF& polygon);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
