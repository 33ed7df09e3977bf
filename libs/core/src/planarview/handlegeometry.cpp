#include "planarview/handlegeometry.h"

#include <QRectF>

namespace TVX::CORE {

QSizeF handleSizeInScene(const QTransform& viewTransform)
{
    return viewTransform.inverted().mapRect(QRectF(0, 0, handlePixels, handlePixels)).size();
}

int firstPointInSquare(const QVector<QPointF>& points, const QPointF& at, const QSizeF& size)
{
    const QRectF square(at.x() - size.width() / 2, at.y() - size.height() / 2, size.width(), size.height());
    for (int i = 0; i < points.size(); ++i) {
        if (square.contains(points[i]))
            return i;
    }
    return -1;
}

} // namespace TVX::CORE
