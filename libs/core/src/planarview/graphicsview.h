#pragma once

#include "mainwindow/cursorid.h"

#include <QGraphicsItem>
#include <QGraphicsView>

#include <functional>
#include <memory>

namespace TVX::CORE {

class InteractiveGraphicsItem;

// The widget of a planar view: the scan's panorama with the grid as scene coordinates (x = column,
// y = row, one unit per cell) and its annotation items over it. It turns mouse, wheel and key input
// into zooming, panning, picking, area selection and the construction and editing of items,
// according to the interaction mode that the main window sets on every view, and reports what the
// user did through signals; it owns no annotation data.
class GraphicsView : public QGraphicsView
{
    Q_OBJECT

public:
    enum Mode { PickPoint = 0, CreateItem = 1, EditItem = 2, Zoom = 3, AreaSelection = 5 };
    // The item types of the annotation family, for qgraphicsitem_cast and the view's kind tests.
    enum ItemType {
        PolygonType = QGraphicsItem::UserType + 1,
        RectangleType,
        EllipseType,
        TextType,
        DimensioningType,
        SymbolType,
        RefPointType,
        StationMarkType,
    };
    // Makes the item of a create sub-mode (0 rectangle … 7 dimensioning XY); null when the kind is
    // not available. The planar item factory by default; tests put their own items in.
    using ItemFactory = std::function<InteractiveGraphicsItem*(int subMode)>;

    GraphicsView(quint32 scanId, QWidget* parent = nullptr);
    ~GraphicsView() override;

    quint32 scanId() const;
    int mode() const;
    bool isLensMode() const;
    void setItemFactory(ItemFactory factory);

Q_SIGNALS:
    void signalRowAndColumnMouseMove(QPoint position);
    void signalLensModeEnabled(bool flag);
    void qsig_UpdateLens(quint32 scanId, qint32 column, qint32 row);
    void signalLMBClick(quint32 scanId, qint32 column, qint32 row);
    void signalAreaSelected(quint32 scanId, TVX::CORE::InteractiveGraphicsItem* areaElement);
    void signalSceneElementAdded(quint32 scanId, TVX::CORE::InteractiveGraphicsItem* item);
    void signalSceneElementAboutToBeRemoved(quint32 id, TVX::CORE::InteractiveGraphicsItem* areaElement);
    void signalDBLClickScanPositionPlanarView(quint32 newScanPositionId);
    void signalRemovePointFromLMBClick(quint32 scanId, qint32 column, qint32 row);

public Q_SLOTS:
    void graphicsViewModeChanged(int mode, int subMode);
    void cursorContextChanged(TVX::CORE::CursorId cursorId);
    void addGraphicsItem(TVX::CORE::InteractiveGraphicsItem* newItem);
    // Spelt so on purpose: connections by name use these.
    void removeGaphicsItem(TVX::CORE::InteractiveGraphicsItem* item);
    void removeAndDeleteAllGaphicsItems();
    void removeAndDeleteAllPickedPointItems();
    void removeAndDeleteAllInteractiveStationMarks();
    void removeReferenceItem(QString refId);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void setPan(bool on);
    void zoomStep(int times);
    void endSelectionAndConstruction();
    void releaseTextKeyboard();
    void notifyMainWindows();
    void finishConstruction();
    void applyCursor();
    InteractiveGraphicsItem* topInteractiveItem(const QPoint& viewPos) const;
    bool isStationMarkAt(const QPoint& viewPos) const;
    // Takes out and deletes every item for which `doomed` is true.
    void removeAndDelete(const std::function<bool(QGraphicsItem*)>& doomed);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
