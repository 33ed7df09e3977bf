#pragma once

#include "project/projectitemscangroup.h"

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace TVX::CORE {

// What a project file holds, apart from its header.
struct TVXProjectContent {
    // A named coordinate system of the project: seven numbers whose meaning the project
    // coordinate systems dialog gives (in the project frame, metres and radians).
    struct CoordinateSystem {
        QString name;
        std::array<double, 7> values{};
    };

    std::array<double, 3> origin{}; // project frame, metres
    std::vector<CoordinateSystem> coordinateSystems;
    quint32 currentCoordinateSystem{0};
    // Scan file paths relative to the project directory. The scan node whose identifier is i
    // belongs to entry i; an empty entry is an identifier that no scan uses.
    QStringList scans;
    // The root folder of the tree, "scans"; empty when nothing was read.
    ProjectItemScanGroupPtr root;
};

} // namespace TVX::CORE
