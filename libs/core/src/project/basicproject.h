#pragma once

#include "fileio/tvxprojectcontent.h"
#include "scene/vector3d.h"
#include "project/projectitemscangroup.h"
#include "scene/scanpose.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QSharedPointer>

#include <memory>
#include <vector>

namespace TVX::CORE {

class FileTreeModel;
class ReferencePointsTableModel;
class ScanViewSceneGraph;
class SceneItemsTableModel;
class TVXFile;

// One cell of a scan as the project reads it (scan frame, metres).
struct CellSample {
    Vector3d point;
    double distance{0.0};
    bool valid{false};     // the beam returned (distance not 0)
    bool hasColour{false}; // red, green, blue hold the colour, or the intensity as grey
    quint8 red{0};
    quint8 green{0};
    quint8 blue{0};
    bool hasIntensity{false}; // the reflectance that the scanner measured
    quint8 intensity{0};
};

// The open project: its directory with lock file and project file, its item tree and its scans.
// One instance per process. Operations return a flag plus a code and a message for the main
// window to show; the project shows nothing itself.
//
// Scans are named by identifiers (stored in the project file's tree; the scan with identifier i is
// entry i of the file's scan list) and also by their index in the project's scan list, which
// holds the scans whose headers could be read, in the order they were added.
class BasicProject final : public QObject
{
    Q_OBJECT

public:
    // The codes of openProject and closeProject.
    enum Code {
        Opened = 0,
        AlreadyOpen = 1,
        LockedByOthers = 3,
        LockNotRemoved = 5,
        ReadFailed = 7,
        LockNotOwned = 8,
        OpenedOlderFormat = 9,
    };
    // View kinds, numbered as the sub window kinds.
    enum ViewKind { PlanarView = 1, SphericalView = 2, PointCloudView = 3 };

    static const QString defaultProjectFileName; // "tvx.prj"

    static BasicProject& instance();
    // The user name for the lock file: settings key "global/userName", "unknown" when unset.
    static QString userNameFromSettings();

    // Opens the project whose project file is `path` (it need not exist yet: the project then
    // starts empty; a complete "<path>.tmp" left by an interrupted save is taken instead, and the
    // message says so with code 0). Takes the lock in the project directory for `userName`, or opens read-only
    // when the lock cannot be created. Codes: 0, 1 (a project is open), 3 (locked by others; the
    // message names them), 7 (the project file cannot be read; the lock taken is removed again)
    // and 9 (opened, written in an older format).
    bool openProject(const QString& path, const QString& userName, int& code, QString& message);
    // Opens the project read-only without looking at or taking the lock, for tools that only
    // look at it; codes as openProject, apart from 3.
    bool openProjectForReading(const QString& path, int& code, QString& message);
    // Closes the project and removes its lock file: true when none is open. Codes: 8 (the lock
    // file holds somebody else's line now) and 5 (the lock file cannot be removed); the project
    // then stays open. A lock file that is gone is no obstacle.
    bool closeProject(int& code, QString& message);
    // Writes the project file (always the newest format). False, with a message naming the file
    // and the cause, for a read-only project, a lock that somebody else took over, or a file
    // that cannot be written or replaced (the serializer's read error and its reason).
    bool saveProject(QString& message);
    // The scans of the project file whose headers could not be read at opening, each as
    // "<relative path>: <reason>"; they stay in the project file but are not shown.
    QStringList unreadableScans() const;
    // Why the header of the listed scan `scanId` could not be read at opening; empty for a scan
    // that was read or is not listed.
    QString scanReadError(quint32 scanId) const;

    bool isOpen() const;
    bool isReadOnly() const;
    // This process created the lock file, and it still holds what was written into it.
    bool ownsLock() const;
    // Absolute, in native separators; empty when no project is open.
    QString projectFilePath() const;
    QString projectDirectory() const;

    std::array<double, 3> origin() const;
    void setOrigin(const std::array<double, 3>& origin);
    std::vector<TVXProjectContent::CoordinateSystem> coordinateSystems() const;
    void setCoordinateSystems(const std::vector<TVXProjectContent::CoordinateSystem>& systems);
    quint32 currentCoordinateSystem() const;
    void setCurrentCoordinateSystem(quint32 index);

    // The folder "scans" and the model over the tree; the model lives as long as the project.
    ProjectItemScanGroupPtr rootFolder() const;
    QSharedPointer<FileTreeModel> treeModel() const;

    // The scan list.
    int scanCount() const;
    // Empty when the index is out of range.
    std::shared_ptr<TVXFile> scanFile(int index) const;
    // -1 / an empty pointer when no scan of the list has that identifier.
    int scanIndex(quint32 scanId) const;
    quint32 scanIdAt(int index) const;
    std::shared_ptr<TVXFile> scanFileOf(quint32 scanId) const;
    std::shared_ptr<ScanViewSceneGraph> sceneGraph(quint32 scanId) const;
    QSharedPointer<ReferencePointsTableModel> referencePoints(quint32 scanId) const;
    // The scan's planar annotation records, shared with the items of its planar views.
    QSharedPointer<SceneItemsTableModel> sceneItems(quint32 scanId) const;

    // The scan's annotation file ("-viewer.xml" beside the scan file), native separators.
    QString annotationFilePath(quint32 scanId) const;
    // Reads the scan's annotation file into its planar records and its scene graph, once per
    // opening of the project; later calls do nothing. A missing file is no error. On failure
    // `error` says why ("<message>\nLine <l>, column <c>" for a document that does not parse);
    // what was read before the fault stays.
    bool loadAnnotations(quint32 scanId, QString& error);
    // Writes the scan's annotation file from its planar records and the spherical items that the
    // user made (those of the scan file stay out), replacing the old file only once the new one is
    // complete, and clears the scan's modified flag. A file that could not be read is first read
    // (if it never was) and, when unreadable, kept beside as "<file>.unreadable". False with the
    // cause, the flag kept, when the project is read-only or the file cannot be written.
    bool saveAnnotations(quint32 scanId, QString& error);
    // The scans whose annotations changed since they were saved, in list order.
    QList<quint32> scansWithModifiedAnnotations() const;
    // The name of the scan's node in the tree; empty when none.
    QString scanName(quint32 scanId) const;
    // The scan file's path relative to the project directory, as the project file stores it.
    QString scanRelativePath(quint32 scanId) const;

    // The smallest identifier that no scan of the project uses.
    quint32 unusedScanId() const;
    // Adds a scan file (absolute, or relative to the project directory) under a folder (empty: the
    // root folder), named after the file. Returns the new identifier; -1 when the file's header
    // cannot be read or no project is open.
    // `reason` (optional) tells why a scan could not be added.
    qint64 addScan(const QString& path, const ProjectItemScanGroupPtr& folder = nullptr, QString* reason = nullptr);

    // Identifiers of the scans whose check box is set, in tree order.
    QList<quint32> enabledScans() const;

    // The pose of a scan in the project frame; false for an unknown scan.
    bool scanPose(quint32 scanId, ScanPose& pose) const;
    // A cell's point, distance and colour (or intensity as grey) through the tile cache. False
    // outside the grid, for an unknown scan or when the tile cannot be read.
    bool cellSample(quint32 scanId, qint32 column, qint32 row, CellSample& sample);
    // Paints the cells around (column, row) into `image`: pixel (radius + dc, radius + dr) shows
    // cell (column + dc, row + dr) for dc, dr in [−radius, radius], in the scan's colours or as grey
    // from its intensity. Pixels of cells outside the grid, of unreadable tiles or of a scan with
    // neither channel are left as they are. False for an unknown scan.
    bool paintLensPicture(quint32 scanId, qint32 column, qint32 row, int radius, QImage& image);
    // The lens picture around a cell: 51 by 51 pixels (RGB888), white where no cell is painted.
    QImage lensPicture(quint32 scanId, qint32 column, qint32 row);
    // Points of every step-th column and row (see TVXFile::extractPointCloud).
    bool pointCloud(quint32 scanId, quint32 step, std::vector<float>& xyz);

    // Which views of a scan are open, as the main window reports them; shown in the tree.
    bool isViewOpen(quint32 scanId, ViewKind kind) const;
    void setViewOpen(quint32 scanId, ViewKind kind, bool open);
    // A scan whose annotations changed since they were saved.
    bool isScanModified(quint32 scanId) const;
    void setScanModified(quint32 scanId, bool modified);
    // The project file's content changed since it was read or written.
    bool isModified() const;
    void setModified(bool modified);
    // The project or any scan has changes that are not saved.
    bool hasUnsavedChanges() const;

Q_SIGNALS:
    void unsavedChangesChanged(bool unsaved);

private:
    BasicProject();
    ~BasicProject() override;

    void clear();
    bool openProjectFile(const QString& path, const QString* userName, int& code, QString& message);
    void installContent(TVXProjectContent& content);
    // Reads a scan file's header and adds its scan list entry; false when it cannot be read.
    bool attachScan(quint32 scanId, const QString& relativePath, QString& reason);
    void forgetScans(const QList<quint32>& scanIds);
    void announceUnsavedChanges();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
