#pragma once

#include "planarview/interactivegraphicsitem.h"

#include <QEvent>
#include <QPointer>

namespace TVX::CORE {

// Posted by a planar item to every main window when it changed in a way that the window must
// answer (kind 0: a dimensioning's points moved, so it is measured again).
class InteractiveGraphicsItemEvent final : public QEvent
{
public:
    static constexpr QEvent::Type EventType = QEvent::Type(1257);

    InteractiveGraphicsItemEvent(quint32 kind, InteractiveGraphicsItem* item)
        : QEvent(EventType), m_kind(kind), m_item(item)
    {
    }

    quint32 kind() const { return m_kind; }
    // Null once the item is gone.
    InteractiveGraphicsItem* item() const { return m_item; }

private:
    quint32 m_kind;
    QPointer<InteractiveGraphicsItem> m_item;
};

} // namespace TVX::CORE
