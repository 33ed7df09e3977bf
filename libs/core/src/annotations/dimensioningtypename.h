#pragma once

#include <QString>
#include <QStringView>

namespace TVX::CORE {

// The names that annotation files give the dimensioning types: 0 "3D" (spatial distance),
// 1 "DZ" (height difference), 2 "XY" (horizontal distance).

// The name of a type; a null string for any other number.
QString dimensioningTypeName(qint64 type);
// The type of a name, compared exactly (case-sensitive); -1 for any other name.
int dimensioningTypeFromName(QStringView name);

} // namespace TVX::CORE
