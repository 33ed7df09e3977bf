#pragma once

#include "fileio/scanimporter.h"
#include "project/projectitemscangroup.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace TVX::CORE {

class BasicProject;
class ImportedScan;

// Brings PTX and E57 scans into a project: every scan of the file becomes a scan file pair with
// its panorama in the project's "scans" folder, and a new folder named after the file holds their
// nodes. All or nothing: on failure or cancellation the files written so far are removed and the
// tree is left as it was.
class ProjectImport final
{
public:
    struct ScanSummary {
        quint32 scanId{0};
        QString file; // the scan file, relative to the project directory
        quint32 columns{0};
        quint32 rows{0};
        quint64 pointsWithReturn{0};
        bool gridKept{false};
    };
    struct Result {
        bool ok{false};
        bool cancelled{false};
        QString error; // why it failed, naming the file and the place; empty when cancelled
        QString folderName;
        std::vector<ScanSummary> scans;
        quint64 cells{0};
        quint64 pointsWithReturn{0};
        double seconds{0.0};
    };
    // (done, total) now and then, in units of points; returning false cancels.
    using Progress = ScanImporter::Progress;

    // "*.ptx" and "*.e57", for file dialogs.
    static QStringList nameFilters();
    // Whether the file's suffix names a format that can be imported.
    static bool canImport(const QString& path);
    // The scans of a PTX or E57 file, by suffix. Throws ImportError.
    static std::vector<std::shared_ptr<ImportedScan>> readScans(const QString& path);

    // Imports `inputPath` into the open project, under a new folder inside `parent` (empty: the
    // root folder). The project file is not written; the project is marked modified on success.
    static Result importFile(BasicProject& project, const QString& inputPath, const ProjectItemScanGroupPtr& parent,
                             const ScanImporter::Options& options, const Progress& progress = nullptr);
    // For the command line: opens the project in `projectDirectory` (its "*.tvxprj" or "tvx.prj"),
    // or creates the directory and "tvx.prj", imports into its root folder, saves and closes it.
    // `projectFile` receives the project file's path. A failure leaves the directory as it was.
    static Result importIntoDirectory(const QString& inputPath, const QString& projectDirectory,
                                      const ScanImporter::Options& options, const Progress& progress,
                                      QString& projectFile);
};

} // namespace TVX::CORE
