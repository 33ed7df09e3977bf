#pragma once

#include <QMetaType>

class QCursor;

namespace TVX::CORE {

// The cursor contexts that the main window hands to its views.
enum CursorId {
    CrossCursor = 0,     // ":/tvxcore/resources/cursor_cross.png"
    SteelModulCursor = 1 // ":/tvxcore/resources/cursor_steelmodul.png"
};

// The cursor of a context, its hot spot at (15, 15).
QCursor cursorFor(CursorId id);

} // namespace TVX::CORE

Q_DECLARE_METATYPE(TVX::CORE::CursorId)
