#include "mainwindow/cursorid.h"

#include <QCursor>
#include <QPixmap>

namespace TVX::CORE {

QCursor cursorFor(CursorId id)
{
    const QString path = id == SteelModulCursor ? QStringLiteral(":/tvxcore/resources/cursor_steelmodul.png")
                                                : QStringLiteral(":/tvxcore/resources/cursor_cross.png");
    return QCursor(QPixmap(path), 15, 15);
}

} // namespace TVX::CORE
