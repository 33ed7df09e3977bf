#include "glviews/scanpointselectionoperator.h"

namespace TVX::CORE {

ScanPointSelectionOperator::ScanPointSelectionOperator() = default;
ScanPointSelectionOperator::~ScanPointSelectionOperator() = default;

} // namespace TVX::CORE
