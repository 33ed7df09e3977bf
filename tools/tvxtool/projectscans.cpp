// tvxtool project PROJECT_FILE --scans (tvxtool-full): the project file's JSON plus, under
// "scanHeaders", each scan of the project as the project class opens it: read-only, without the
// lock, reading the scan files' headers only. Per scan, in identifier order: its identifier, its
// path as the project file lists it, whether its header reads (with the reason when not) and,
// when it does, its grid size and its pose in the project frame.
#include "jsonoutput.h"
#include "projectcommand.h"

#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "project/basicproject.h"

#include <QJsonArray>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace TVX::CORE;

namespace TVX::TOOL {

namespace {

QJsonObject scanHeader(const BasicProject& project, quint32 scanId)
{
    QJsonObject header{{QStringLiteral("id"), qint64(scanId)},
                       {QStringLiteral("path"), project.scanRelativePath(scanId)}};
    const auto file = project.scanFileOf(scanId);
    ScanPose pose;
    if (!file || !project.scanPose(scanId, pose)) {
        header.insert(QStringLiteral("readable"), false);
        header.insert(QStringLiteral("reason"), project.scanReadError(scanId));
        return header;
    }
    QJsonArray rotation;
    for (double value : pose.rotation.m)
        rotation.append(value);
    header.insert(QStringLiteral("readable"), true);
    header.insert(QStringLiteral("columns"), qint64(file->scanInfo().columns));
    header.insert(QStringLiteral("rows"), qint64(file->scanInfo().rows));
    header.insert(QStringLiteral("rotation"), rotation);
    header.insert(QStringLiteral("translation"),
                  QJsonArray{pose.translation.x, pose.translation.y, pose.translation.z});
    return header;
}

} // namespace

int runProjectScans(const QString& path)
{
    QJsonObject json;
    if (!readProjectJson(path, json))
        return 1;
    BasicProject& project = BasicProject::instance();
    int code = 0;
    QString message;
    if (!project.openProjectForReading(path, code, message)) {
        std::fputs(message.toLocal8Bit().constData(), stderr);
        return 1;
    }
    // Every listed scan has a node in the tree once the project is open, readable or not.
    std::vector<quint32> scanIds;
    project.rootFolder()->forEachScan(
        [&scanIds](const ProjectItemScanPtr& scan) { scanIds.push_back(quint32(scan->scanId())); });
    std::sort(scanIds.begin(), scanIds.end());
    QJsonArray headers;
    for (const quint32 scanId : scanIds)
        headers.append(scanHeader(project, scanId));
    project.closeProject(code, message);
    json.insert(QStringLiteral("scanHeaders"), headers);
    printJson(json);
    return 0;
}

} // namespace TVX::TOOL
