#pragma once

#include "fileio/importedscan.h"

#include <QString>

#include <memory>
#include <vector>

class QIODevice;

namespace TVX::CORE {

// Reads E57 files (ASTM E2807): the file header, the pages with their CRC-32C checks, the XML
// section and, per "data3D" entry, one scan: its pose (rotation quaternion and translation), its
// points from a compressed vector (bit-pack codec; cartesian or spherical coordinates as floats or
// scaled integers; row and column indexes when gridded; intensity and colour scaled from their
// limits to 0 … 255; the invalid-state fields) and the spherical panorama of "images2D" that
// belongs to it (JPEG or PNG).
//
// Opening reads the header and the XML only; points are decoded when a cursor reads them, packet
// by packet, with every page they touch checked.
class E57Reader final
{
public:
    static constexpr quint64 maximumXmlBytes = 64 << 20;
    static constexpr quint64 maximumImageBytes = 256 << 20;
    static constexpr quint64 maximumGridCells = 400'000'000;

    // Throws ImportError naming the file and what is wrong (the page, the element, the record).
    static std::vector<std::shared_ptr<ImportedScan>> read(const QString& path);
    static std::vector<std::shared_ptr<ImportedScan>> read(const std::shared_ptr<QIODevice>& device,
                                                           const QString& fileName);
};

} // namespace TVX::CORE
