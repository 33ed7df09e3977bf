#include "glviews/createmeasurmenttemoperator.h"

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

} // namespace TVX::CORE
