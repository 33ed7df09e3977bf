#pragma once

#include <QEvent>

namespace TVX::CORE {

// Posted by a planar view to every main window when construction begins or ends, the selection
// changes or Delete removed items.
class NotifyEvent final : public QEvent
{
public:
    static constexpr QEvent::Type EventType = QEvent::Type(1258);

    NotifyEvent(quint32 kind, quint32 scanId) : QEvent(EventType), m_kind(kind), m_scanId(scanId) {}

    quint32 kind() const { return m_kind; }
    quint32 scanId() const { return m_scanId; }

private:
    quint32 m_kind;
    quint32 m_scanId;
};

} // namespace TVX::CORE
