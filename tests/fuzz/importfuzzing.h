#pragma once

// What the PTX and E57 fuzz targets do with the scans a reader made of an input: every point is
// read, and small scans go through the whole import into scan files.
#include "fileio/importedscan.h"
#include "fileio/importerror.h"
#include "fileio/scanimporter.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace TVX::FUZZ {

constexpr quint64 importedPoints = 20000;

inline void exerciseImport(const std::vector<std::shared_ptr<CORE::ImportedScan>>& scans)
{
    static QTemporaryDir dir;
    std::vector<CORE::ImportedPoint> points(1024);
    for (const auto& scan : scans) {
        try {
            const auto cursor = scan->readAll();
            while (cursor->read(points.data(), points.size()) > 0) {
            }
            if (scan->pointCount <= importedPoints) {
                const QString path = dir.filePath(QStringLiteral("scan.tvx"));
                CORE::ScanImporter::write(*scan, path, {});
            }
        } catch (const CORE::ImportError&) {
        }
    }
}

} // namespace TVX::FUZZ
