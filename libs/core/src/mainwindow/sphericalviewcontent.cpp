#include "mainwindow/sphericalviewcontent.h"

#include "glviews/sphericalviewglwidget.h"
#include "project/basicproject.h"
#include "project/stationmarkcandidates.h"
#include "scene/pointdistance.h"
#include "scene/scanviewmeasurementitem.h"

#include <QSettings>

#include <cmath>

namespace TVX::CORE {

int SphericalViewContent::setStationMarks(const BasicProject& project, SphericalViewGLWidget& view)
{
    const QSettings settings;
    const double minDistance = settings.value(QStringLiteral("global/stationMarksMinDist"), 0.2).toDouble();
    const double maxDistance = settings.value(QStringLiteral("global/stationMarksMaxDist"), 15.0).toDouble();
    const std::vector<StationCandidate> candidates =
        StationMarkCandidates::collect(project, view.scanId(), minDistance, maxDistance);
    std::vector<SphericalStationMark> marks;
    marks.reserve(candidates.size());
    for (const StationCandidate& candidate : candidates) {
        SphericalStationMark mark;
        mark.scanId = candidate.scanId;
        mark.distance = float(candidate.distance);
        mark.name = project.scanName(candidate.scanId);
        mark.size = quint32(StationMarkCandidates::markSize(candidates, candidate.distance));
        const double squares = candidate.x * candidate.x + candidate.y * candidate.y + candidate.z * candidate.z;
        if (squares >= 0 && std::sqrt(squares) > 0) {
            const double length = std::sqrt(squares);
            mark.x = float(candidate.x / length);
            mark.y = float(candidate.y / length);
            mark.z = float(candidate.z / length);
        }
        marks.push_back(mark);
    }
    view.setStationMarks(std::move(marks));
    return int(candidates.size());
}

QString SphericalViewContent::measurementLabel(BasicProject& project, const SphericalViewGLWidget& view,
                                               const ScanViewMeasurementItem& item)
{
    const quint32 scanId = view.scanId();
    const QPoint a = view.directionToCell(item.first());
    const QPoint b = view.directionToCell(item.second());
    CellSample first, second;
    ScanPose pose;
    const bool measured = project.scanPose(scanId, pose) && project.cellSample(scanId, a.x(), a.y(), first)
                          && first.valid && project.cellSample(scanId, b.x(), b.y(), second) && second.valid;
    const double value =
        measured ? dimensioningDistance(quint32(item.type()), first.point, second.point, pose.rotation) : 0.0;
    return dimensioningLabel(quint32(item.type()), value, measured);
}

} // namespace TVX::CORE
