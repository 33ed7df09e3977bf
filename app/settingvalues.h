#pragma once

#include <QString>

class QSettings;

namespace TVX::VIEWER {

// Settings as the dialogs read them back. A key that is absent, or that holds a value of the
// wrong kind (a text where a number belongs, a number outside its range), gives the fallback;
// the latter is logged.

// Accepts a stored bool and the texts "true", "false", "1" and "0" (any letter case).
bool settingBool(const QSettings& settings, const QString& key, bool fallback);
// A finite number.
double settingDouble(const QSettings& settings, const QString& key, double fallback);
// A whole number from minimum to maximum.
int settingInt(const QSettings& settings, const QString& key, int fallback, int minimum, int maximum);

} // namespace TVX::VIEWER
