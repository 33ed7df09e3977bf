#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace TVX::TOOL {

// Prints `object` as compact JSON on stdout, followed by a line feed. Numbers keep full double
// precision.
void printJson(const QJsonObject& object);

} // namespace TVX::TOOL
