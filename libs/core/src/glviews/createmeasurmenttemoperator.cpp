#include "glviews/createmeasurmenttemoperator.h"

#include "scene/scanviewscenegraph.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcMeasurementOperator, "tvx.glviews.operators.measurement", QtWarningMsg)

namespace TVX::CORE {

CreateMeasurmenttemOperator::CreateMeasurmenttemOperator() = default;
CreateMeasurmenttemOperator::~CreateMeasurmenttemOperator() = default;

void CreateMeasurmenttemOperator::setMeasurementKind(int kind)
{
    if (kind < Distance3D || kind > DistanceXY) {
        qCWarning(lcMeasurementOperator) << "ignored unknown measurement kind" << kind;
        return;
    }
    m_kind = kind;
}

std::shared_ptr<ScanViewItem> CreateMeasurmenttemOperator::startItem(ScanViewSceneGraph& graph, const Vector3d& first)
{
    const auto measurement = std::make_shared<ScanViewMeasurementItem>(m_kind, first, first);
    graph.addItem(measurement);
    return measurement;
}

void CreateMeasurmenttemOperator::followCursor(const Vector3d& direction)
{
    item()->setPoints({first(), direction});
}

} // namespace TVX::CORE
