#pragma once

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
    // One node of the item tree as the file stores it. A folder announces how many records of
    // its children follow it directly; a scan carries its identifier.
    struct TreeRecord {
        enum Kind : quint32 { Folder = 1, Scan = 2 };
        quint32 kind{Folder};
        bool enabled{true};
        QString name;
        qint64 number{0}; // child count of a folder, identifier of a scan
    };
    // The tree depth first, each folder before its children; the first record is the root folder
    // "scans". Empty when nothing was read.
    std::vector<TreeRecord> tree;
};

} // namespace TVX::CORE
