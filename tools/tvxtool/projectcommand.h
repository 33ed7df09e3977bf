#pragma once

#include <QJsonObject>
#include <QString>

namespace TVX::TOOL {

// The project file `path` (absolute) as JSON, read by the serializer alone. False, after printing
// why to stderr, when it cannot be read.
bool readProjectJson(const QString& path, QJsonObject& json);

// tvxtool project PROJECT_FILE --scans: the project file's JSON and, under "scanHeaders", every
// scan as the project class opens it (read-only, headers only, no lock); in tvxtool-full.
int runProjectScans(const QString& path);

} // namespace TVX::TOOL
