#include "mainwindow/planarviewcontent.h"

#include "annotations/sceneitemstablemodel.h"
#include "fileio/scangeometry.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "planarview/graphicsview.h"
#include "planarview/interactiverefpoint.h"
#include "planarview/interactivestationmark.h"
#include "planarview/planaritemfactory.h"
#include "project/basicproject.h"
#include "project/stationmarkcandidates.h"
#include "scene/stationmarkgeometry.h"
#include "scene/tvxsreferencepoint.h"

#include <QCoreApplication>
#include <QSettings>

namespace TVX::CORE {

namespace {

// Straight into the scene: the view's addGraphicsItem would select the item and hand a text the
// keyboard, which is right for a new item only.
void place(GraphicsView& view, InteractiveGraphicsItem* item)
{
    item->setView(&view);
    view.scene()->addItem(item);
}

} // namespace

int PlanarViewContent::addStationMarks(const BasicProject& project, GraphicsView& view)
{
    const QSettings settings;
    const double minDistance = settings.value(QStringLiteral("global/stationMarksMinDist"), 0.2).toDouble();
    const double maxDistance = settings.value(QStringLiteral("global/stationMarksMaxDist"), 15.0).toDouble();
    const quint32 scanId = view.scanId();
    const std::vector<StationCandidate> candidates =
        StationMarkCandidates::collect(project, scanId, minDistance, maxDistance);
    const auto file = project.scanFileOf(scanId);
    if (candidates.empty() || !file || !view.scene())
        return 0;
    const TVXFileScanInfo& info = file->scanInfo();
    int placed = 0;
    for (const StationCandidate& candidate : candidates) {
        QPoint cell;
        if (!stationMarkCell(Vector3d(candidate.x, candidate.y, candidate.z), info.horizontalMin, info.horizontalMax,
                             info.verticalMin, info.verticalMax, info.columns, info.rows, cell))
            continue;
        const QString text = project.scanName(candidate.scanId) + QLatin1Char('\n')
                             + QCoreApplication::translate("TVX::CORE::BasicMainWindow", "distance: %1 m")
                                   .arg(candidate.distance, 0, 'f', 3, QLatin1Char(' '));
        place(view, new InteractiveStationMark(candidate.scanId, QPointF(cell),
                                               StationMarkCandidates::markSize(candidates, candidate.distance), text));
        ++placed;
    }
    return placed;
}

int PlanarViewContent::addReferencePoints(const BasicProject& project, GraphicsView& view)
{
    const auto file = project.scanFileOf(view.scanId());
    if (!file || !view.scene())
        return 0;
    const TVXFileScanInfo& info = file->scanInfo();
    int placed = 0;
    for (const auto& object : file->referenceInfo().objects()) {
        const auto* point = dynamic_cast<const TVXSReferencePoint*>(object.get());
        if (!point)
            continue;
        const auto [column, row] = cellOfPoint(Vector3d(point->x(), point->y(), point->z()), info.horizontalMin,
                                               info.horizontalMax, info.verticalMin, info.verticalMax, info.columns,
                                               info.rows);
        if (column < 0 || row < 0 || quint32(column) >= info.columns || quint32(row) >= info.rows)
            continue;
        place(view, new InteractiveRefPoint(point->name(), QPointF(column, row)));
        ++placed;
    }
    return placed;
}

int PlanarViewContent::addAnnotationItems(const BasicProject& project, GraphicsView& view)
{
    const auto records = project.sceneItems(view.scanId());
    if (!records || !view.scene())
        return 0;
    int added = 0;
    for (const TVXSceneItemPtr& record : records->items()) {
        if (InteractiveGraphicsItem* item = PlanarItemFactory::createItemForRecord(record)) {
            place(view, item);
            ++added;
        }
    }
    return added;
}

} // namespace TVX::CORE
