#pragma once

#include "fileio/tvxfile.h"

#include <QString>

#include <memory>

namespace TVX::TOOL {

// The path as given on the command line, made absolute.
QString absolutePath(const QString& argument);

// Opens a scan file pair and reads its header and sections, or throws CommandError with the
// message the user sees: "cannot open PATH" for a missing or unreadable file of the pair,
// "not a scan file: PATH" when the header read fails, or the reader's own read error.
std::unique_ptr<CORE::TVXFile> openScanFile(const QString& argument);

// Parses a whole decimal number; throws UsageError for anything else.
qint64 wholeNumberArgument(const QString& text);

} // namespace TVX::TOOL
