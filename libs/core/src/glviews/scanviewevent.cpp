#include "glviews/scanviewevent.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace TVX::CORE {

ScanViewEvent ScanViewEvent::mouse(quint32 kind, quint32 code, qint32 x, qint32 y)
{
    ScanViewEvent event;
    event.kind = kind;
    event.code = code;
    event.x = x;
    event.y = y;
    return event;
}

ScanViewEvent ScanViewEvent::wheel(qint32 delta)
{
    ScanViewEvent event;
    event.kind = Wheel;
    event.code = quint32(delta);
    return event;
}

ScanViewEvent ScanViewEvent::key(quint32 kind, quint32 code, bool anyModifier)
{
    ScanViewEvent event;
    event.kind = kind;
    event.code = code;
    event.modifiers = anyModifier ? modifierHeld : 0;
    return event;
}

quint32 scanViewKeyCode(int qtKey)
{
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9)
        return quint32(qtKey - Qt::Key_0) + 1;
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z)
        return quint32(qtKey - Qt::Key_A) + 11;
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12)
        return quint32(qtKey - Qt::Key_F1) + 39;
    switch (qtKey) {
    case Qt::Key_Space:
        return 37;
    case Qt::Key_Escape:
        return 38;
    case Qt::Key_Shift:
        return ScanViewEvent::ShiftKey;
    case Qt::Key_Alt:
        return ScanViewEvent::AltKey;
    case Qt::Key_Meta:
    case Qt::Key_AltGr:
        return ScanViewEvent::MetaKey;
    case Qt::Key_Delete:
        return ScanViewEvent::DeleteKey;
    default:
        return 0;
    }
}

quint32 scanViewButtonCode(Qt::MouseButton button, bool press)
{
    quint32 code = 0;
    switch (button) {
    case Qt::LeftButton:
        code = ScanViewEvent::LeftPress;
        break;
    case Qt::MiddleButton:
        code = ScanViewEvent::MiddlePress;
        break;
    case Qt::RightButton:
        code = ScanViewEvent::RightPress;
        break;
    default:
        return ScanViewEvent::OtherButton;
    }
    return press ? code : code + 1;
}

ScanViewEvent scanViewEvent(const QMouseEvent& event)
{
    const QPoint position = event.position().toPoint();
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return ScanViewEvent::mouse(ScanViewEvent::MouseButton, scanViewButtonCode(event.button(), true),
                                    position.x(), position.y());
    case QEvent::MouseButtonRelease:
        return ScanViewEvent::mouse(ScanViewEvent::MouseButton, scanViewButtonCode(event.button(), false),
                                    position.x(), position.y());
    case QEvent::MouseButtonDblClick:
        return ScanViewEvent::mouse(ScanViewEvent::MouseDoubleClick, scanViewButtonCode(event.button(), true),
                                    position.x(), position.y());
    default:
        return ScanViewEvent::mouse(ScanViewEvent::MouseMove, 0, position.x(), position.y());
    }
}

ScanViewEvent scanViewEvent(const QWheelEvent& event)
{
    const QPoint delta = event.angleDelta();
    return ScanViewEvent::wheel(delta.y() != 0 ? delta.y() : delta.x());
}

ScanViewEvent scanViewEvent(const QKeyEvent& event)
{
    // The keypad flag says where a key sits, not that a modifier is held.
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier
                                                            | Qt::MetaModifier | Qt::GroupSwitchModifier);
    const quint32 kind = event.type() == QEvent::KeyRelease ? ScanViewEvent::KeyRelease : ScanViewEvent::KeyPress;
    return ScanViewEvent::key(kind, scanViewKeyCode(event.key()), held != Qt::NoModifier);
}

} // namespace TVX::CORE
