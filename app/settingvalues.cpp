#include "settingvalues.h"

#include <QLoggingCategory>
#include <QSettings>

#include <cmath>

Q_LOGGING_CATEGORY(lcSettings, "tvx.app.settings", QtWarningMsg)

namespace TVX::VIEWER {

namespace {
void reportIgnored(const QString& key, const QVariant& value)
{
    qCWarning(lcSettings).noquote() << "setting" << key << "holds" << value.toString() << "- the default is used";
}
} // namespace

bool settingBool(const QSettings& settings, const QString& key, bool fallback)
{
    const QVariant value = settings.value(key);
    if (!value.isValid())
        return fallback;
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    // The text form is what a settings file gives back; QVariant would take any other text as true.
    if (value.typeId() == QMetaType::QString) {
        const QString text = value.toString().trimmed().toLower();
        if (text == QLatin1String("true") || text == QLatin1String("1"))
            return true;
        if (text == QLatin1String("false") || text == QLatin1String("0"))
            return false;
    } else if (value.canConvert<int>()) {
        bool ok = false;
        const int number = value.toInt(&ok);
        if (ok)
            return number != 0;
    }
    reportIgnored(key, value);
    return fallback;
}

double settingDouble(const QSettings& settings, const QString& key, double fallback)
{
    const QVariant value = settings.value(key);
    if (!value.isValid())
        return fallback;
    bool ok = false;
    const double number = value.canConvert<double>() ? value.toDouble(&ok) : 0.0;
    if (ok && std::isfinite(number))
        return number;
    reportIgnored(key, value);
    return fallback;
}

int settingInt(const QSettings& settings, const QString& key, int fallback, int minimum, int maximum)
{
    const QVariant value = settings.value(key);
    if (!value.isValid())
        return fallback;
    bool ok = false;
    const int number = value.canConvert<int>() ? value.toInt(&ok) : 0;
    if (ok && number >= minimum && number <= maximum)
        return number;
    reportIgnored(key, value);
    return fallback;
}

} // namespace TVX::VIEWER
