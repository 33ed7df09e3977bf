#include "jsonoutput.h"
#include "scanfileopener.h"
#include "toolcommand.h"

#include "fileio/tvxfilescaninfo.h"

#include <QJsonArray>
#include <QJsonObject>

namespace TVX::TOOL {

using namespace TVX::CORE;

int runPoint(const QStringList& arguments)
{
    if (arguments.size() != 3 || arguments.first().startsWith(QLatin1Char('-')))
        throw UsageError("point takes a scan file, a column and a row");
    const qint64 column = wholeNumberArgument(arguments.at(1));
    const qint64 row = wholeNumberArgument(arguments.at(2));
    const auto file = openScanFile(arguments.first());
    const TVXFileScanInfo& info = file->scanInfo();
    if (!info.hasDistance())
        throw CommandError("scan has no distance channel");
    if (column < 0 || row < 0 || column >= info.columns || row >= info.rows)
        throw CommandError("cell out of range");

    const quint32 c = quint32(column);
    const quint32 r = quint32(row);
    double x = 0, y = 0, z = 0, distance = 0;
    bool valid = false;
    quint8 intensity = 0, red = 0, green = 0, blue = 0;
    const bool read = file->readPoint(c, r, x, y, z, valid) && file->readDistance(c, r, distance)
                      && (!info.hasIntensity() || file->readIntensity(c, r, intensity))
                      && (!info.hasColour() || file->readColour(c, r, red, green, blue));
    if (!read)
        throw CommandError(QStringLiteral("data file too short: %1").arg(file->dataPath()).toStdString());

    printJson(QJsonObject{
        {QStringLiteral("column"), column},
        {QStringLiteral("row"), row},
        {QStringLiteral("valid"), valid},
        {QStringLiteral("x"), x},
        {QStringLiteral("y"), y},
        {QStringLiteral("z"), z},
        {QStringLiteral("distance"), distance},
        {QStringLiteral("intensity"), info.hasIntensity() ? QJsonValue(int(intensity)) : QJsonValue(QJsonValue::Null)},
        {QStringLiteral("colour"), info.hasColour() ? QJsonValue(QJsonArray{red, green, blue})
                                                    : QJsonValue(QJsonValue::Null)},
    });
    return 0;
}

} // namespace TVX::TOOL
