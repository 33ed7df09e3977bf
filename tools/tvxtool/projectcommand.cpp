// tvxtool project PROJECT_FILE [--scans]: a project file as JSON, read by the serializer alone (no
// lock is taken and no scan is opened); with --scans the scans as well (projectscans.cpp).
#include "projectcommand.h"
#include "jsonoutput.h"
#include "toolcommand.h"

#include "fileio/tvxprojectserializer.h"
#include "project/projectmessages.h"
#include "project/projecttreerecords.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

using namespace TVX::CORE;

namespace TVX::TOOL {

namespace {

QJsonObject jsonScan(const ProjectItemScan& scan)
{
    return {{QStringLiteral("type"), QStringLiteral("scan")},
            {QStringLiteral("name"), scan.name()},
            {QStringLiteral("id"), qint64(scan.scanId())},
            {QStringLiteral("enabled"), scan.isEnabled()}};
}

// Folders nest at most a thousand levels deep (the reader refuses more), so recursion is safe.
QJsonObject jsonFolder(const ProjectItemScanGroup& folder)
{
    QJsonArray children;
    for (const auto& sub : folder.folders())
        children.append(jsonFolder(*sub));
    for (const auto& scan : folder.scans())
        children.append(jsonScan(*scan));
    return {{QStringLiteral("type"), QStringLiteral("folder")},
            {QStringLiteral("name"), folder.name()},
            {QStringLiteral("enabled"), folder.isEnabled()},
            {QStringLiteral("children"), children}};
}

QJsonArray jsonNumbers(const double* begin, const double* end)
{
    QJsonArray numbers;
    for (const double* value = begin; value != end; ++value)
        numbers.append(*value);
    return numbers;
}

} // namespace

bool readProjectJson(const QString& path, QJsonObject& json)
{
    TVXProjectSerializer serializer(path);
    TVXProjectContent content;
    if (!serializer.open(TVXProjectSerializer::ReadOnly) || !serializer.read(content)) {
        const QString message =
            ProjectMessages::readFailure(QDir::toNativeSeparators(path), serializer.formatVersion(),
                                         serializer.writerMajor(), serializer.writerMinor(), serializer.writerPatch());
        std::fputs(message.toLocal8Bit().constData(), stderr);
        return false;
    }

    QJsonArray coordinateSystems;
    for (const auto& system : content.coordinateSystems) {
        coordinateSystems.append(QJsonObject{
            {QStringLiteral("name"), system.name},
            {QStringLiteral("values"), jsonNumbers(system.values.data(), system.values.data() + system.values.size())}});
    }
    json = {{QStringLiteral("path"), path},
            {QStringLiteral("formatVersion"), qint64(serializer.formatVersion())},
            {QStringLiteral("writerVersion"),
             QJsonArray{qint64(serializer.writerMajor()), qint64(serializer.writerMinor()),
                        qint64(serializer.writerPatch())}},
            {QStringLiteral("origin"), jsonNumbers(content.origin.data(), content.origin.data() + 3)},
            {QStringLiteral("coordinateSystems"), coordinateSystems},
            {QStringLiteral("currentCoordinateSystem"), qint64(content.currentCoordinateSystem)},
            {QStringLiteral("scans"), QJsonArray::fromStringList(content.scans)},
            {QStringLiteral("tree"), jsonFolder(*projectTreeFromRecords(content.tree))}};
    return true;
}

int runProject(const QStringList& arguments)
{
    QStringList files = arguments;
    const bool scans = files.removeAll(QStringLiteral("--scans")) > 0;
    if (files.size() != 1 || files.first().startsWith(QLatin1Char('-')))
        throw UsageError("project: expects one project file");
    const QString path = QFileInfo(files.first()).absoluteFilePath();
    if (scans)
        return runProjectScans(path);
    QJsonObject json;
    if (!readProjectJson(path, json))
        return 1;
    printJson(json);
    return 0;
}

} // namespace TVX::TOOL
