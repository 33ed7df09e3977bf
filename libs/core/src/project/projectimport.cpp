#include "project/projectimport.h"

#include "fileio/e57reader.h"
#include "fileio/importedscan.h"
#include "fileio/importerror.h"
#include "fileio/ptxreader.h"
#include "fileio/tvxfile.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

namespace TVX::CORE {

namespace {


// The three files of a scan.
QStringList filesOf(const QString& scanPath)
{
    return {scanPath, TVXFile::dataPathFor(scanPath), ScanImporter::panoramaPathFor(scanPath)};
}

void removeFiles(const QStringList& scanPaths)
{
    for (const QString& scanPath : scanPaths) {
        for (const QString& file : filesOf(scanPath))
            QFile::remove(file);
    }
}

// "<base>.tvx", or "<base>-<n>.tvx" for one of several scans, made unique in the folder.
QString freeScanPath(const QDir& folder, const QString& base, int number, int count)
{
    const QString stem = count > 1 ? QStringLiteral("%1-%2").arg(base).arg(number) : base;
    for (int attempt = 1;; ++attempt) {
        const QString name = attempt == 1 ? stem : QStringLiteral("%1-%2").arg(stem).arg(attempt);
        const QString path = folder.absoluteFilePath(name + QStringLiteral(".tvx"));
        const QStringList files = filesOf(path);
        if (std::none_of(files.begin(), files.end(), [](const QString& file) { return QFileInfo::exists(file); }))
            return path;
    }
}

} // namespace

QStringList ProjectImport::nameFilters()
{
    return {QStringLiteral("*.ptx"), QStringLiteral("*.e57")};
}

bool ProjectImport::canImport(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("ptx") || suffix == QLatin1String("e57");
}

std::vector<std::shared_ptr<ImportedScan>> ProjectImport::readScans(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("ptx"))
        return PtxReader::read(path);
    if (suffix == QLatin1String("e57"))
        return E57Reader::read(path);
    throw ImportError(
        QCoreApplication::translate("TVX::CORE::ProjectImport", "%1: only PTX and E57 files can be imported")
            .arg(path));
}

ProjectImport::Result ProjectImport::importFile(BasicProject& project, const QString& inputPath,
                                                const ProjectItemScanGroupPtr& parent,
                                                const ScanImporter::Options& options, const Progress& progress)
{
    Result result;
    QElapsedTimer timer;
    timer.start();
    if (!project.isOpen() || project.isReadOnly()) {
        result.error = QCoreApplication::translate("TVX::CORE::ProjectImport", "no project is open for writing");
        return result;
    }
    const QDir folder(QDir(project.projectDirectory()).filePath(QStringLiteral("scans")));
    QStringList written;
    try {
        if (!QDir().mkpath(folder.path()))
            throw ImportError(
                QCoreApplication::translate("TVX::CORE::ProjectImport", "cannot create %1").arg(folder.path()));
        const auto scans = readScans(inputPath);
        quint64 total = 0;
        for (const auto& scan : scans)
            total += scan->pointCount;
        quint64 before = 0;
        const QString base = QFileInfo(inputPath).completeBaseName();
        for (std::size_t i = 0; i < scans.size(); ++i) {
            const ImportedScan& scan = *scans[i];
            const QString scanPath = freeScanPath(folder, base, int(i) + 1, int(scans.size()));
            written << scanPath;
            // Progress in points of the whole file, whatever the grid of each scan.
            const auto scaled = [&](quint64 done, quint64 cells) {
                const quint64 share = cells ? quint64(double(done) / double(cells) * double(scan.pointCount)) : 0;
                return !progress || progress(before + share, total);
            };
            const ScanImporter::Result made = ScanImporter::write(scan, scanPath, options, scaled);
            before += scan.pointCount;
            ScanSummary summary;
            summary.file = QDir(project.projectDirectory()).relativeFilePath(scanPath);
            summary.columns = made.columns;
            summary.rows = made.rows;
            summary.pointsWithReturn = made.pointsWithReturn;
            summary.gridKept = made.gridKept;
            result.scans.push_back(summary);
            result.cells += quint64(made.columns) * made.rows;
            result.pointsWithReturn += made.pointsWithReturn;
        }
    } catch (const ScanImporter::Cancelled&) {
        result.cancelled = true;
    } catch (const ImportError& error) {
        result.error = error.message();
    } catch (const std::bad_alloc&) {
        result.error = QCoreApplication::translate("TVX::CORE::ProjectImport", "%1: not enough memory").arg(inputPath);
    }
    if (result.cancelled || !result.error.isEmpty()) {
        removeFiles(written);
        result.scans.clear();
        return result;
    }

    // The tree changes only now that every scan is written.
    const bool wasModified = project.isModified();
    FileTreeModel& model = *project.treeModel();
    const ProjectItemScanGroupPtr into = parent ? parent : project.rootFolder();
    const QModelIndex parentIndex = model.indexOf(into.get());
    result.folderName = QFileInfo(inputPath).fileName();
    const QModelIndex folderIndex = model.addFolder(parentIndex, result.folderName);
    const auto folderItem = std::dynamic_pointer_cast<ProjectItemScanGroup>(model.item(folderIndex));
    for (ScanSummary& summary : result.scans) {
        QString reason;
        const qint64 id = folderItem ? project.addScan(summary.file, folderItem, &reason) : -1;
        if (id < 0) {
            result.error = QCoreApplication::translate(
                "TVX::CORE::ProjectImport", "%1: the written scan cannot be read back: %2")
                               .arg(summary.file, reason);
            if (folderIndex.isValid())
                model.removeRows(folderIndex.row(), 1, parentIndex);
            project.setModified(wasModified);
            removeFiles(written);
            result.scans.clear();
            return result;
        }
        summary.scanId = quint32(id);
    }
    project.setModified(true);
    result.ok = true;
    result.seconds = double(timer.nsecsElapsed()) / 1e9;
    return result;
}

ProjectImport::Result ProjectImport::importIntoDirectory(const QString& inputPath, const QString& projectDirectory,
                                                         const ScanImporter::Options& options,
                                                         const Progress& progress, QString& projectFile)
{
    Result result;
    QElapsedTimer timer;
    timer.start();
    const QDir directory(projectDirectory);
    const bool directoryExisted = directory.exists();
    const bool scansExisted = directory.exists(QStringLiteral("scans"));
    const auto undoDirectories = [&] {
        if (!scansExisted)
            directory.rmdir(QStringLiteral("scans")); // only when empty
        if (!directoryExisted)
            QDir().rmdir(directory.absolutePath());
    };
    if (!QDir().mkpath(directory.absolutePath())) {
        result.error
            = QCoreApplication::translate("TVX::CORE::ProjectImport", "cannot create %1").arg(projectDirectory);
        return result;
    }
    const QStringList projects = directory.entryList({QStringLiteral("*.tvxprj")}, QDir::Files, QDir::Name);
    projectFile
        = directory.absoluteFilePath(projects.isEmpty() ? BasicProject::defaultProjectFileName : projects.first());

    BasicProject& project = BasicProject::instance();
    int code = 0;
    QString message;
    if (!project.openProject(projectFile, BasicProject::userNameFromSettings(), code, message)) {
        result.error = message;
        undoDirectories();
        return result;
    }
    const auto close = [&] {
        int closeCode = 0;
        QString closeMessage;
        project.closeProject(closeCode, closeMessage);
    };
    if (project.isReadOnly()) {
        close();
        result.error
            = QCoreApplication::translate("TVX::CORE::ProjectImport", "%1 cannot be written").arg(projectDirectory);
        return result;
    }
    result = importFile(project, inputPath, nullptr, options, progress);
    if (result.ok && !project.saveProject(message)) {
        QStringList written;
        for (const ScanSummary& summary : result.scans)
            written << directory.absoluteFilePath(summary.file);
        removeFiles(written);
        result = Result();
        result.error = message;
    }
    close();
    if (!result.ok)
        undoDirectories();
    result.seconds = double(timer.nsecsElapsed()) / 1e9;
    return result;
}

} // namespace TVX::CORE
