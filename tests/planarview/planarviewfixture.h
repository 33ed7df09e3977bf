#pragma once

#include "planarview/graphicsview.h"

#include <QGraphicsScene>
#include <QMouseEvent>
#include <QTest>

namespace TVX::TEST {

// A planar view of scan 7 over a 400 × 200 cell scene, shown at four pixels per cell, so that
// quarter cells map onto whole pixels and back.
struct Fixture {
    QGraphicsScene scene{QRectF(0, 0, 400, 200)};
    CORE::GraphicsView view{7};

    Fixture()
    {
        view.setScene(&scene);
        view.resize(420, 220);
        view.setTransform(QTransform::fromScale(4, 4));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.centerOn(100, 50);
    }

    QPoint at(double x, double y) const { return view.mapFromScene(QPointF(x, y)); }
    // Sent directly: the platform's cursor may already stand at the position.
    void move(const QPoint& p)
    {
        QMouseEvent event(QEvent::MouseMove, QPointF(p), view.viewport()->mapToGlobal(QPointF(p)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
};

} // namespace TVX::TEST
