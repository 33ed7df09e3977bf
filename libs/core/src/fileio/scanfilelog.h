#pragma once

#include <QLoggingCategory>

namespace TVX::CORE {

// "tvx.fileio": why a scan file was rejected (debug) and what the writer could not store (warning).
Q_DECLARE_LOGGING_CATEGORY(lcScanFile)

} // namespace TVX::CORE
