#include "planarview/graphicsview.h"

#include "planarview/interactivegraphicsitem.h"
#include "planarview/interactiverefpoint.h"
#include "planarview/interactivestationmark.h"
#include "planarview/notifyevent.h"
#include "planarview/pickedpointgfxitem.h"
#include "planarview/planaritemfactory.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>

#include <cmath>

namespace TVX::CORE {

namespace {

// Scene positions become cells by truncation towards zero.
qint32 cellOf(double coordinate)
{
    return qint32(std::trunc(coordinate));
}

bool isText(const QGraphicsItem* item)
{
    return item && item->type() == GraphicsView::TextType;
}

bool isStationMark(const QGraphicsItem* item)
{
    return item && item->type() == GraphicsView::StationMarkType;
}

bool isArea(const QGraphicsItem* item)
{
    return item
           && (item->type() == GraphicsView::PolygonType || item->type() == GraphicsView::RectangleType
               || item->type() == GraphicsView::EllipseType);
}

} // namespace

struct GraphicsView::Private {
    quint32 scanId{0};
    qint32 panCount{0};
    bool lensMode{false};
    QPoint lastViewPos;
    QPoint lastGlobalPos;
    QPointF cursorScenePos;
    int mode{PickPoint};
    int createSubMode{0};
    int cursorId{CrossCursor};
    int creationState{0};
    int editState{0}; // 0 none, 1 selected, 2 moving, 4 dragging a handle
    int editSubMode{0};
    QPointer<InteractiveGraphicsItem> underConstruction;
    QPointer<InteractiveGraphicsItem> selected;
    QPoint dragViewPos;
    QPointF dragScenePos;
    QPointF pressScenePos;
    QPoint grabOffset;
    ItemFactory factory;
};

GraphicsView::GraphicsView(quint32 scanId, QWidget* parent) : QGraphicsView(parent), d(std::make_unique<Private>())
{
    qRegisterMetaType<InteractiveGraphicsItem*>();
    d->scanId = scanId;
    d->factory = &PlanarItemFactory::createItemForSubMode;
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setMouseTracking(true);
    applyCursor();
}

GraphicsView::~GraphicsView() = default;

quint32 GraphicsView::scanId() const
{
    return d->scanId;
}

int GraphicsView::mode() const
{
    return d->mode;
}

bool GraphicsView::isLensMode() const
{
    return d->lensMode;
}

void GraphicsView::setItemFactory(ItemFactory factory)
{
    d->factory = std::move(factory);
}

void GraphicsView::applyCursor()
{
    viewport()->setCursor(cursorFor(CursorId(d->cursorId)));
}

void GraphicsView::notifyMainWindows()
{
    for (QWidget* widget : QApplication::allWidgets()) {
        if (qobject_cast<QMainWindow*>(widget))
            QCoreApplication::postEvent(widget, new NotifyEvent(0, d->scanId));
    }
}

void GraphicsView::releaseTextKeyboard()
{
    for (InteractiveGraphicsItem* item : {d->selected.data(), d->underConstruction.data()}) {
        if (isText(item))
            item->ungrabKeyboard();
    }
}

void GraphicsView::endSelectionAndConstruction()
{
    if (scene())
        scene()->clearFocus();
    releaseTextKeyboard();
    d->selected.clear();
    d->underConstruction.clear();
}

// ---- modes -------------------------------------------------------------------------------------

void GraphicsView::graphicsViewModeChanged(int mode, int subMode)
{
    if (mode == d->mode
        && (mode == PickPoint || (mode == CreateItem && subMode == d->createSubMode) || mode == EditItem))
        return;
    if (scene())
        scene()->clearFocus();
    releaseTextKeyboard();
    if (d->mode == CreateItem && d->underConstruction) {
        // Unfinished items never survive a mode change.
        delete d->underConstruction.data();
        d->underConstruction.clear();
    }
    if (d->mode == EditItem && d->selected) {
        d->selected->setSelected(false);
        d->selected.clear();
    }
    d->mode = mode;
    if (mode == CreateItem) {
        d->creationState = 0;
        d->createSubMode = subMode;
    } else if (mode == EditItem) {
        d->editState = 0;
        d->editSubMode = subMode;
    } else if (mode == Zoom) {
        d->editSubMode = subMode;
    }
}

void GraphicsView::cursorContextChanged(CursorId cursorId)
{
    if (cursorId != CrossCursor && cursorId != SteelModulCursor)
        return;
    d->cursorId = cursorId;
    applyCursor();
}

// ---- items -------------------------------------------------------------------------------------

void GraphicsView::addGraphicsItem(InteractiveGraphicsItem* newItem)
{
    releaseTextKeyboard();
    if (!newItem || !scene())
        return;
    newItem->setView(this);
    d->selected = newItem;
    scene()->addItem(newItem);
    if (isText(newItem)) {
        if (d->underConstruction)
            scene()->setFocusItem(d->underConstruction, Qt::OtherFocusReason);
        newItem->grabKeyboard();
    }
}

void GraphicsView::removeGaphicsItem(InteractiveGraphicsItem* item)
{
    endSelectionAndConstruction();
    if (isText(item))
        item->ungrabKeyboard();
    if (item && scene() && item->scene() == scene())
        scene()->removeItem(item);
}

void GraphicsView::removeAndDelete(const std::function<bool(QGraphicsItem*)>& doomed)
{
    endSelectionAndConstruction();
    if (!scene())
        return;
    const QList<QGraphicsItem*> items = scene()->items();
    for (QGraphicsItem* item : items) {
        // Children go with their parents.
        if (!item->parentItem() && doomed(item)) {
            scene()->removeItem(item);
            delete item;
        }
    }
}

void GraphicsView::removeAndDeleteAllGaphicsItems()
{
    removeAndDelete([](QGraphicsItem* item) {
        return dynamic_cast<InteractiveGraphicsItem*>(item) && item->type() != RefPointType
               && item->type() != StationMarkType;
    });
}

void GraphicsView::removeAndDeleteAllPickedPointItems()
{
    removeAndDelete([](QGraphicsItem* item) { return item->type() == PickedPointGFXItem::Type; });
}

void GraphicsView::removeAndDeleteAllInteractiveStationMarks()
{
    removeAndDelete([](QGraphicsItem* item) { return item->type() == StationMarkType; });
}

void GraphicsView::removeReferenceItem(QString refId)
{
    removeAndDelete([&refId](QGraphicsItem* item) {
        return item->type() == RefPointType && static_cast<InteractiveRefPoint*>(item)->referenceName() == refId;
    });
}

bool GraphicsView::isStationMarkAt(const QPoint& viewPos) const
{
    const QList<QGraphicsItem*> hit = items(viewPos);
    return !hit.isEmpty() && isStationMark(hit.first());
}

InteractiveGraphicsItem* GraphicsView::topInteractiveItem(const QPoint& viewPos) const
{
    // Marks of stations and reference points are not edited, so they never hide the annotation
    // items under their labels.
    for (QGraphicsItem* item : items(viewPos)) {
        auto* interactive = dynamic_cast<InteractiveGraphicsItem*>(item);
        if (interactive && interactive->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            return interactive;
    }
    return nullptr;
}

// ---- zoom and pan ------------------------------------------------------------------------------

void GraphicsView::wheelEvent(QWheelEvent* event)
{
    // No limits, deliberately: the view never clamps its scale.
    const double factor = std::pow(1.25, event->angleDelta().y() / 240.0);
    scale(factor, factor);
    event->accept();
}

void GraphicsView::zoomStep(int times)
{
    const double factor = d->editSubMode == 0 ? 1.25 : d->editSubMode == 1 ? 0.8 : 1.0;
    for (int i = 0; i < times; ++i)
        scale(factor, factor);
}

void GraphicsView::setPan(bool on)
{
    setInteractive(!on);
    setDragMode(on ? QGraphicsView::ScrollHandDrag : QGraphicsView::NoDrag);
    const QPointF at(d->lastViewPos);
    if (on) {
        QMouseEvent press(QEvent::MouseButtonPress, at, mapToGlobal(d->lastViewPos), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QGraphicsView::mousePressEvent(&press);
        viewport()->setCursor(Qt::OpenHandCursor);
    } else {
        QMouseEvent release(QEvent::MouseButtonRelease, at, mapToGlobal(d->lastViewPos), Qt::LeftButton,
                            Qt::NoButton, Qt::NoModifier);
        QGraphicsView::mouseReleaseEvent(&release);
        applyCursor();
    }
}

// ---- mouse -------------------------------------------------------------------------------------

void GraphicsView::mousePressEvent(QMouseEvent* event)
{
    const bool panTrigger = event->button() == Qt::MiddleButton
                            || (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ControlModifier));
    if (panTrigger) {
        ++d->panCount;
        setPan(true);
        event->accept();
        return;
    }
    if (scene())
        scene()->clearFocus();
    releaseTextKeyboard();
    const bool left = event->button() == Qt::LeftButton;
    const QPointF& at = d->cursorScenePos;
    switch (d->mode) {
    case PickPoint:
        // A press on a station mark is the first half of a double click that opens its scan, not a
        // pick: its pick mark would cover the station mark for the second half.
        if (left && scene() && !isStationMarkAt(event->position().toPoint())) {
            scene()->addItem(new PickedPointGFXItem(at, this));
            Q_EMIT signalLMBClick(d->scanId, cellOf(at.x()), cellOf(at.y()));
        }
        break;
    case AreaSelection:
        if (left && scene()) {
            InteractiveGraphicsItem* item = topInteractiveItem(event->position().toPoint());
            if (isArea(item)) {
                scene()->addItem(new PickedPointGFXItem(at, this));
                Q_EMIT signalAreaSelected(d->scanId, item);
            }
        }
        break;
    case Zoom:
        if (left)
            zoomStep(1);
        break;
    case CreateItem:
        if (left) {
            d->dragViewPos = event->position().toPoint();
            d->pressScenePos = at;
            if (!d->underConstruction) {
                InteractiveGraphicsItem* item = d->factory ? d->factory(d->createSubMode) : nullptr;
                if (!item || !scene())
                    break;
                item->setView(this);
                scene()->addItem(item);
                d->underConstruction = item;
            }
            d->underConstruction->constructionMousePress(at);
            if (d->creationState == 0) {
                d->creationState = 1;
                notifyMainWindows();
            }
        } else if (event->button() == Qt::RightButton && d->underConstruction) {
            InteractiveGraphicsItem* item = d->underConstruction;
            if (item->takeBackLastPoint()) {
                QPointF last;
                if (item->lastPoint(last)) {
                    const QPoint viewPos = mapFromScene(last);
                    QCursor::setPos(viewport()->mapToGlobal(viewPos));
                    d->lastViewPos = viewPos;
                    d->lastGlobalPos = viewport()->mapToGlobal(viewPos);
                } else {
                    item->setView(nullptr);
                    scene()->removeItem(item);
                    d->underConstruction.clear();
                    delete item;
                    d->creationState = 0;
                }
            }
            notifyMainWindows();
        }
        break;
    case EditItem:
        if (!left)
            break;
        {
            InteractiveGraphicsItem* item = topInteractiveItem(event->position().toPoint());
            if (d->editState == 0) {
                if (item) {
                    item->setSelected(true);
                    d->selected = item;
                    if (isText(item)) {
                        scene()->setFocusItem(item);
                        item->grabKeyboard();
                    }
                    d->editState = 1;
                }
            } else if (d->editState == 1) {
                if (!item) {
                    if (d->selected)
                        d->selected->setSelected(false);
                    d->selected.clear();
                    d->editState = 0;
                    scene()->clearFocus();
                } else if (item == d->selected) {
                    d->dragViewPos = event->position().toPoint();
                    d->dragScenePos = at;
                    d->pressScenePos = at;
                    d->grabOffset = mapFromScene(item->scenePos()) - event->position().toPoint();
                    d->editState = item->grabHandle(at, viewportTransform()) ? 4 : 2;
                    notifyMainWindows();
                } else {
                    if (d->selected)
                        d->selected->setSelected(false);
                    item->setSelected(true);
                    d->selected = item;
                    if (isText(item)) {
                        scene()->setFocusItem(item);
                        item->grabKeyboard();
                        notifyMainWindows();
                    }
                }
            }
        }
        break;
    default:
        break;
    }
}

void GraphicsView::mouseMoveEvent(QMouseEvent* event)
{
    if (d->panCount > 0) {
        QGraphicsView::mouseMoveEvent(event);
        return;
    }
    const QPoint global = event->globalPosition().toPoint();
    if (global == d->lastGlobalPos) {
        event->accept();
        return;
    }
    if (d->lensMode) {
        // The lens walks one cell per event along each axis the mouse moved, whatever its speed.
        const QPoint moved = global - d->lastGlobalPos;
        QPointF& at = d->cursorScenePos;
        at.rx() += moved.x() > 0 ? 1.0 : moved.x() < 0 ? -1.0 : 0.0;
        at.ry() += moved.y() > 0 ? 1.0 : moved.y() < 0 ? -1.0 : 0.0;
        Q_EMIT qsig_UpdateLens(d->scanId, cellOf(at.x()), cellOf(at.y()));
        const QPoint viewPos = mapFromScene(at);
        d->lastViewPos = viewPos;
        d->lastGlobalPos = viewport()->mapToGlobal(viewPos);
        QCursor::setPos(d->lastGlobalPos);
    } else {
        d->cursorScenePos = mapToScene(event->position().toPoint());
        d->lastViewPos = event->position().toPoint();
        d->lastGlobalPos = global;
    }
    const QPointF& at = d->cursorScenePos;
    if (d->mode == CreateItem && d->underConstruction) {
        d->underConstruction->constructionMouseMove(at);
    } else if (d->mode == EditItem && d->editState == 4 && d->selected) {
        d->selected->constructionMouseMove(at);
    } else if (d->mode == EditItem && d->editState == 2 && d->selected) {
        const QPoint viewDelta = event->position().toPoint() - d->dragViewPos;
        const QPointF sceneDelta = at - d->dragScenePos;
        d->dragViewPos = event->position().toPoint();
        d->dragScenePos = at;
        if (d->selected->flags().testFlag(QGraphicsItem::ItemIsMovable))
            d->selected->moveItemBy(viewDelta, sceneDelta);
    }
    Q_EMIT signalRowAndColumnMouseMove(QPoint(cellOf(at.x()), cellOf(at.y())));
    QMouseEvent hover(QEvent::MouseMove, event->position(), event->globalPosition(), Qt::NoButton, Qt::NoButton,
                      event->modifiers());
    QGraphicsView::mouseMoveEvent(&hover);
}

void GraphicsView::finishConstruction()
{
    InteractiveGraphicsItem* item = d->underConstruction;
    d->creationState = 0;
    d->underConstruction.clear();
    // A placed text is typed into at once.
    if (isText(item) && scene()) {
        d->selected = item;
        scene()->setFocusItem(item, Qt::OtherFocusReason);
        item->grabKeyboard();
    }
    Q_EMIT signalSceneElementAdded(d->scanId, item);
    notifyMainWindows();
}

void GraphicsView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton && !(d->mode == CreateItem && d->underConstruction)) {
        if (QWidget* parent = parentWidget()) {
            QContextMenuEvent menu(QContextMenuEvent::Mouse, event->position().toPoint(),
                                   event->globalPosition().toPoint());
            QCoreApplication::sendEvent(parent, &menu);
        }
    }
    const bool panRelease = event->button() == Qt::MiddleButton
                            || (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ControlModifier));
    if (panRelease && d->panCount > 0) {
        d->panCount = std::max(0, d->panCount - 1);
        if (d->panCount == 0)
            setPan(false);
        event->accept();
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (d->mode == CreateItem && d->underConstruction) {
        d->underConstruction->constructionMouseRelease(d->cursorScenePos);
        if (!d->underConstruction->isUnderConstruction())
            finishConstruction();
    } else if (d->mode == EditItem) {
        if (d->editState == 4 && d->selected)
            d->selected->releaseHandle(d->cursorScenePos);
        if (d->editState == 2 || d->editState == 4)
            d->editState = 1;
    }
}

void GraphicsView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (d->panCount != 0) {
        event->accept();
        return;
    }
    const QPointF& at = d->cursorScenePos;
    if (d->mode == PickPoint && scene()) {
        const QList<QGraphicsItem*> hit = items(event->position().toPoint());
        if (!hit.isEmpty() && isStationMark(hit.first())) {
            Q_EMIT signalDBLClickScanPositionPlanarView(static_cast<InteractiveStationMark*>(hit.first())->scanId());
        } else if (!hit.isEmpty() && hit.first()->type() == PickedPointGFXItem::Type) {
            QGraphicsItem* mark = hit.first();
            scene()->removeItem(mark);
            delete mark;
            Q_EMIT signalRemovePointFromLMBClick(d->scanId, cellOf(at.x()), cellOf(at.y()));
        }
    } else if (d->mode == CreateItem && event->button() == Qt::LeftButton && d->underConstruction) {
        d->underConstruction->constructionMouseDoubleClick(at);
        if (!d->underConstruction->isUnderConstruction())
            finishConstruction();
    } else if (d->mode == Zoom && event->button() == Qt::LeftButton) {
        zoomStep(2);
    }
}

// ---- keys --------------------------------------------------------------------------------------

void GraphicsView::keyPressEvent(QKeyEvent* event)
{
    if ((d->mode == CreateItem || d->mode == EditItem) && event->key() != Qt::Key_Delete
        && (isText(d->selected) || isText(d->underConstruction))) {
        QGraphicsView::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Control) {
        setPan(true);
        event->accept();
        return;
    }
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        d->lensMode = true;
        event->accept();
        Q_EMIT signalLensModeEnabled(true);
        return;
    }
    if (event->key() == Qt::Key_Delete && scene()) {
        scene()->clearFocus();
        const QList<QGraphicsItem*> selection = scene()->selectedItems();
        for (QGraphicsItem* item : selection) {
            if (item == d->selected) {
                item->setSelected(false);
                d->selected.clear();
            }
            if (item == d->underConstruction)
                d->underConstruction.clear();
            auto* interactive = dynamic_cast<InteractiveGraphicsItem*>(item);
            if (interactive && item->type() != StationMarkType)
                Q_EMIT signalSceneElementAboutToBeRemoved(d->scanId, interactive);
        }
        d->editState = 0;
        if (!selection.isEmpty())
            notifyMainWindows();
    }
    QGraphicsView::keyPressEvent(event);
}

void GraphicsView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Control) {
        setPan(false);
        event->accept();
        return;
    }
    // Any other key ends lens mode, not only Shift: kept on purpose.
    d->lensMode = false;
    event->accept();
    Q_EMIT signalLensModeEnabled(false);
}

} // namespace TVX::CORE
