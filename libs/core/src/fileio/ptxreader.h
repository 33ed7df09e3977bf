#pragma once

#include "fileio/importedscan.h"

#include <QString>

#include <memory>
#include <vector>

class QIODevice;

namespace TVX::CORE {

// Reads PTX text scans: one or several gridded scans one after the other, each a header (columns,
// rows, the scanner position, its three axes, the 4 × 4 transformation with the translation in
// its last row) followed by columns × rows lines "x y z intensity [r g b]", column by column.
// "0 0 0" is a cell without return; intensities from 0 to 1 are scaled to 0 … 255, larger ones
// taken as they are (up to 255).
//
// Opening indexes the file once (headers and where each column starts, without parsing the
// points), so that the importer can later read any strip of columns.
class PtxReader final
{
public:
    // Throws ImportError naming the file and the line for a file that cannot be read, a header that
    // is not one, absurd counts, or a file that ends before its points.
    static std::vector<std::shared_ptr<ImportedScan>> read(const QString& path);
    // The same from an open device that the scans keep; `fileName` names it in messages.
    static std::vector<std::shared_ptr<ImportedScan>> read(const std::shared_ptr<QIODevice>& device,
                                                           const QString& fileName);

    // Limits of a scan's header.
    static constexpr quint32 maximumColumns = 1'000'000;
    static constexpr quint32 maximumRows = 1'000'000;
    static constexpr quint64 maximumPoints = 400'000'000;
};

} // namespace TVX::CORE
