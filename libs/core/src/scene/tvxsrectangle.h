#pragma once

#include "scene/tvxscene2ditem.h"

#include <QRectF>

namespace TVX::CORE {

class TVXSRectangle final : public TVXScene2DItem
{
public:
    explicit TVXSRectangle(const QRectF& rectangle, quint32 number = 0);
    ~TVXSRectangle() override;

    quint32 kind() const override { return Rectangle; }
    QRectF rectangle() const;
    void setRectangle(const QRectF& rectangle);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
