#pragma once

#include <QtGlobal>
#include <qnamespace.h>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace TVX::CORE {

// The neutral record in which the GL views and the main window hand input to the operators.
// Mouse records carry a position (widget pixels, y from the top); key records carry the modifier
// flag instead; wheel records carry only the delta, in `code`.
struct ScanViewEvent {
    enum Kind : quint32 {
        MouseMove = 1,
        MouseButton = 2, // press or release, told apart by the button code
        MouseDoubleClick = 4,
        Wheel = 8,
        KeyPress = 16,
        KeyRelease = 32,
    };
    enum ButtonCode : quint32 {
        OtherButton = 0,
        LeftPress = 1,
        LeftRelease = 2,
        MiddlePress = 3,
        MiddleRelease = 4,
        RightPress = 5,
        RightRelease = 6,
    };
    // The modifier flag of key records when any keyboard modifier is held.
    static constexpr quint32 modifierHeld = 0x10000007;
    // Key codes of the modifier and editing keys (scanViewKeyCode).
    enum KeyCode : quint32 {
        ShiftKey = 0x10000000,
        AltKey = 0x10000002,
        MetaKey = 0x10000003,
        DeleteKey = 0x10000100,
    };

    quint32 kind{0};
    quint32 code{0}; // button code, key code, or the wheel delta as signed 32 bits
    qint32 x{0};
    qint32 y{0};
    quint32 modifiers{0};

    static ScanViewEvent mouse(quint32 kind, quint32 code, qint32 x, qint32 y);
    // Positive delta: the wheel turned away from the user (120 per usual notch).
    static ScanViewEvent wheel(qint32 delta);
    // `code` is a key code of scanViewKeyCode; `anyModifier` sets the modifier flag.
    static ScanViewEvent key(quint32 kind, quint32 code, bool anyModifier);

    qint32 wheelDelta() const { return qint32(code); }
    // Button records with an odd code are presses; code 0 (another button) counts as a release,
    // since the record cannot tell, and no operator acts on it.
    bool isPress() const { return kind == MouseButton && (code & 1u) != 0; }

    friend bool operator==(const ScanViewEvent& a, const ScanViewEvent& b)
    {
        return a.kind == b.kind && a.code == b.code && a.x == b.x && a.y == b.y && a.modifiers == b.modifiers;
    }
    friend bool operator!=(const ScanViewEvent& a, const ScanViewEvent& b) { return !(a == b); }
};

// The operators' key code of a Qt key: digits 0..9 give 1..10, letters A..Z 11..36, space 37,
// Escape 38, F1..F12 39..50, Shift 0x10000000, Alt 0x10000002, Meta and AltGr 0x10000003,
// Delete 0x10000100, every other key 0. Control is left out on purpose and gives 0.
quint32 scanViewKeyCode(int qtKey);

// 1/2 left press/release, 3/4 middle, 5/6 right, 0 any other button.
quint32 scanViewButtonCode(Qt::MouseButton button, bool press);

// Records of Qt events. A double click carries the press code of its button; a wheel event its
// vertical delta (the horizontal one when there is no vertical turn).
ScanViewEvent scanViewEvent(const QMouseEvent& event);
ScanViewEvent scanViewEvent(const QWheelEvent& event);
ScanViewEvent scanViewEvent(const QKeyEvent& event);

} // namespace TVX::CORE
