#include "fileio/scanfilelog.h"

namespace TVX::CORE {

// Debug output is off unless asked for: rejected files are routine while fuzzing and in tests.
Q_LOGGING_CATEGORY(lcScanFile, "tvx.fileio", QtInfoMsg)

} // namespace TVX::CORE
