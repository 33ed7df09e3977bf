#pragma once

#include "scene/tvxscene2ditem.h"

#include <QRectF>

namespace TVX::CORE {

class TVXSEllipse final : public TVXScene2DItem
{
public:
    explicit TVXSEllipse(const QRectF& boundingRectangle, quint32 number = 0);
    ~TVXSEllipse() override;

    quint32 kind() const override { return Ellipse; }
    QRectF rectangle() const; // the bounding rectangle
    void setRectangle(const QRectF& boundingRectangle);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace TVX::CORE
