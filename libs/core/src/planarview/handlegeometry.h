#pragma once

#include <QPointF>
#include <QSizeF>
#include <QTransform>
#include <QVector>

namespace TVX::CORE {

// The square around an item's shape points that grabs them: 11 × 11 view pixels.
constexpr double handlePixels = 11.0;

// The handle square's size in scene units under a view transform (through its inverse).
QSizeF handleSizeInScene(const QTransform& viewTransform);

// The index of the first point that a square of `size` centred on `at` contains; -1 when none.
int firstPointInSquare(const QVector<QPointF>& points, const QPointF& at, const QSizeF& size);

} // namespace TVX::CORE
