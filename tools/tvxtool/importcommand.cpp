// tvxtool import INPUT.{ptx,e57} PROJECT_DIR [--step DEGREES]: brings the scans of a PTX or E57 file
// into the project in PROJECT_DIR (created when missing): scan files, data files and panoramas in
// its "scans" folder, and one folder named after the input file in the project file. Progress goes
// to stderr, a summary as JSON to stdout. A failure leaves the project as it was.
#include "jsonoutput.h"
#include "toolcommand.h"

#include "project/projectimport.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <cstdio>

using namespace TVX::CORE;

namespace TVX::TOOL {

int runImport(const QStringList& arguments)
{
    QStringList paths;
    ScanImporter::Options options;
    for (int i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--step")) {
            if (i + 1 >= arguments.size())
                throw UsageError("import: --step without its value");
            bool ok = false;
            options.stepDegrees = arguments[++i].toDouble(&ok);
            if (!ok || !(options.stepDegrees >= 0.0001 && options.stepDegrees <= 10))
                throw LimitError("tvxtool import: the step must lie between 0.0001 and 10 degrees");
        } else if (arguments[i].startsWith(QLatin1String("--"))) {
            throw UsageError("import: unknown option");
        } else {
            paths << arguments[i];
        }
    }
    if (paths.size() != 2)
        throw UsageError("import: an input file and a project directory");

    int reported = -10; // so that 0 % is reported too
    const auto progress = [&reported](quint64 done, quint64 total) {
        const int percent = total ? int(done * 100 / total) : 100;
        if (percent / 10 != reported / 10) {
            reported = percent;
            std::fprintf(stderr, "import: %d%%\n", percent);
        }
        return true;
    };
    QString projectFile;
    const ProjectImport::Result result =
        ProjectImport::importIntoDirectory(paths[0], paths[1], options, progress, projectFile);
    if (!result.ok)
        throw CommandError(("tvxtool import: " + result.error).toStdString());

    QJsonArray scans;
    const QDir directory(QFileInfo(projectFile).absolutePath());
    for (const ProjectImport::ScanSummary& scan : result.scans) {
        scans.append(QJsonObject{{QStringLiteral("file"), directory.absoluteFilePath(scan.file)},
                                 {QStringLiteral("id"), double(scan.scanId)},
                                 {QStringLiteral("columns"), double(scan.columns)},
                                 {QStringLiteral("rows"), double(scan.rows)},
                                 {QStringLiteral("points"), double(scan.pointsWithReturn)},
                                 {QStringLiteral("gridKept"), scan.gridKept}});
    }
    printJson({{QStringLiteral("project"), projectFile},
               {QStringLiteral("folder"), result.folderName},
               {QStringLiteral("scans"), scans},
               {QStringLiteral("cells"), double(result.cells)},
               {QStringLiteral("points"), double(result.pointsWithReturn)},
               {QStringLiteral("seconds"), result.seconds}});
    return 0;
}

} // namespace TVX::TOOL
