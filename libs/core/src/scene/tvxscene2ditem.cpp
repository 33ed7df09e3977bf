#include "scene/tvxscene2ditem.h"

namespace TVX::CORE {

TVXScene2DItem::TVXScene2DItem(quint32 number)
{
    data().number = number;
}

quint32 TVXScene2DItem::category() const
{
    return 2;
}

} // namespace TVX::CORE
