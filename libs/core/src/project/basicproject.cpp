#include "project/basicproject.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletilecache.h"
#include "fileio/tvxprojectserializer.h"
#include "project/filetreemodel.h"
#include "project/projectlock.h"
#include "project/projectmessages.h"
#include "project/projecttreerecords.h"
#include "project/referencepointstablemodel.h"
#include "scene/scanviewscenegraph.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>

#include <algorithm>
#include <map>
#include <set>

Q_LOGGING_CATEGORY(lcProject, "tvx.project", QtWarningMsg)

namespace TVX::CORE {

namespace {

struct ScanEntry {
    quint32 id{0};
    QString relativePath;
    std::shared_ptr<TVXFile> file;
    std::shared_ptr<ScanViewSceneGraph> sceneGraph;
    // The spherical items that came with the scan file: they are not the user's and never go
    // into the annotation file.
    std::set<const ScanViewItem*> scanFileItems;
    QSharedPointer<SceneItemsTableModel> sceneItems;
    bool annotationsLoaded{false};
    bool annotationsUnreadable{false};
    QSharedPointer<ReferencePointsTableModel> referencePoints;
    std::array<bool, 3> viewOpen{}; // planar, spherical, point cloud
    bool modified{false};
};

bool insideGrid(qint64 column, qint64 row, const TVXFileScanInfo& info)
{
    return column >= 0 && row >= 0 && column < qint64(info.columns) && row < qint64(info.rows);
}

// A cell of a decoded tile; the cell must lie in the tile.
bool sampleOfTile(const TVXFileTile& tile, quint32 column, quint32 row, CellSample& sample)
{
    const std::size_t at = tile.indexOf(column, row);
    if (at >= tile.points.size() || at >= tile.distances.size())
        return false;
    sample.point = tile.points[at];
    sample.distance = tile.distances[at];
    sample.valid = sample.distance != 0.0;
    sample.hasColour = tile.colourOrGrey(at, sample.red, sample.green, sample.blue);
    sample.hasIntensity = at < tile.intensities.size();
    sample.intensity = sample.hasIntensity ? tile.intensities[at] : 0;
    return true;
}

// The tile asked for last, so that neighbouring cells ask the tile cache once per tile.
struct LastTile {
    TVXFileTilePtr tile;
    quint32 column{0};
    quint32 row{0};
    bool read{false};
};

// A cell of the scan at `index` (the tile cache's key); false outside the grid or when its tile
// cannot be read.
bool sampleThroughCache(TVXFileTileCache& cache, quint32 index, TVXFile& file, qint64 column, qint64 row,
                        LastTile& last, CellSample& sample)
{
    const TVXFileScanInfo& info = file.scanInfo();
    if (info.tileSize == 0 || !insideGrid(column, row, info))
        return false;
    const quint32 tileColumn = quint32(column) / info.tileSize;
    const quint32 tileRow = quint32(row) / info.tileSize;
    if (!last.tile || tileColumn != last.column || tileRow != last.row) {
        last.column = tileColumn;
        last.row = tileRow;
        last.read = cache.lookup(index, file, tileColumn, tileRow, last.tile);
    }
    return last.read && sampleOfTile(*last.tile, quint32(column), quint32(row), sample);
}

} // namespace

struct BasicProject::Private {
    bool open{false};
    bool readOnly{false};
    bool lockOwned{false};
    bool modified{false};
    bool unsavedAnnounced{false};
    QString projectFile; // absolute
    QString directory;   // absolute
    std::unique_ptr<ProjectLock> lock;
    std::array<double, 3> origin{};
    std::vector<TVXProjectContent::CoordinateSystem> coordinateSystems;
    quint32 currentCoordinateSystem{0};
    ProjectItemScanGroupPtr holder;
    std::vector<ScanEntry> scans;
    // Scans of the tree whose header could not be read, by identifier: kept for the next save.
    std::map<quint32, QString> unreadable;
    // Why each of them could not be read, for the user: "<path>: <reason>", and by identifier.
    QStringList unreadableReasons;
    std::map<quint32, QString> readErrors;
    TVXFileTileCache tileCache;
    QSharedPointer<FileTreeModel> model;

    ScanEntry* entry(quint32 scanId)
    {
        const auto it = std::find_if(scans.begin(), scans.end(), [scanId](const ScanEntry& e) { return e.id == scanId; });
        return it == scans.end() ? nullptr : &*it;
    }
    const ScanEntry* entry(quint32 scanId) const { return const_cast<Private*>(this)->entry(scanId); }
};

const QString BasicProject::defaultProjectFileName = QStringLiteral("tvx.prj");

BasicProject& BasicProject::instance()
{
    static BasicProject project;
    return project;
}

QString BasicProject::userNameFromSettings()
{
    return QSettings().value(QStringLiteral("global/userName"), QStringLiteral("unknown")).toString();
}

BasicProject::BasicProject() : d(std::make_unique<Private>())
{
    d->model = QSharedPointer<FileTreeModel>::create();
    d->model->setViewStateProvider(
        [this](quint32 scanId, int kind) { return isViewOpen(scanId, ViewKind(kind)); });
    const auto changed = [this] { setModified(true); };
    connect(d->model.data(), &FileTreeModel::relevantDataChanged, this, changed);
    connect(d->model.data(), &QAbstractItemModel::rowsInserted, this, changed);
    connect(d->model.data(), &QAbstractItemModel::rowsRemoved, this, changed);
    connect(d->model.data(), &QAbstractItemModel::rowsMoved, this, changed);
    connect(d->model.data(), &FileTreeModel::scansRemoved, this, &BasicProject::forgetScans);
}

BasicProject::~BasicProject()
{
    // A process that ends with the project open leaves no stale lock behind.
    if (d->open && ownsLock())
        d->lock->release();
}

bool BasicProject::openProject(const QString& path, const QString& userName, int& code, QString& message)
{
    return openProjectFile(path, &userName, code, message);
}

bool BasicProject::openProjectForReading(const QString& path, int& code, QString& message)
{
    return openProjectFile(path, nullptr, code, message);
}

// Without a user name the lock is left alone and the project opens read-only.
bool BasicProject::openProjectFile(const QString& path, const QString* userName, int& code, QString& message)
{
    message.clear();
    if (d->open) {
        code = AlreadyOpen;
        message = ProjectMessages::alreadyOpen();
        return false;
    }
    const QFileInfo info(path);
    const QString projectFile = info.absoluteFilePath();
    const QString directory = info.absolutePath();

    auto lock = std::make_unique<ProjectLock>(directory);
    bool readOnly = false;
    const ProjectLock::Outcome locked = userName ? lock->acquire(*userName) : ProjectLock::Outcome::NotCreated;
    switch (locked) {
    case ProjectLock::Outcome::HeldByOthers: {
        QStringList users;
        lock->readHolders(users);
        code = LockedByOthers;
        message = ProjectMessages::lockFound(QDir::toNativeSeparators(directory), users);
        return false;
    }
    case ProjectLock::Outcome::NotCreated:
        if (userName)
            qCInfo(lcProject) << "no lock file could be made in" << directory << "- opening read-only";
        readOnly = true;
        break;
    case ProjectLock::Outcome::Created:
        break;
    }

    code = Opened;
    TVXProjectContent content;
    // A save that stopped between writing "<file>.tmp" and renaming it leaves only the ".tmp"
    // file; when it reads completely it is the newest project and takes the file's place.
    const QString temporary = projectFile + QStringLiteral(".tmp");
    if (!QFile::exists(projectFile) && QFile::exists(temporary) && !readOnly) {
        TVXProjectSerializer check(temporary);
        TVXProjectContent ignored;
        if (check.open(TVXProjectSerializer::ReadOnly) && check.read(ignored)) {
            check.close();
            if (QFile::rename(temporary, projectFile))
                message = ProjectMessages::recovered(QDir::toNativeSeparators(projectFile));
        }
    }
    if (QFile::exists(projectFile)) {
        TVXProjectSerializer serializer(projectFile);
        if (!serializer.open(TVXProjectSerializer::ReadOnly) || !serializer.read(content)) {
            qCInfo(lcProject) << serializer.errorString();
            code = ReadFailed;
            message = ProjectMessages::readFailure(QDir::toNativeSeparators(projectFile), serializer.formatVersion(),
                                                   serializer.writerMajor(), serializer.writerMinor(),
                                                   serializer.writerPatch())
                      + ProjectMessages::cause(serializer.errorString());
            if (!readOnly)
                lock->release();
            return false;
        }
        if (serializer.formatVersion() < TVXProjectSerializer::currentFormatVersion) {
            code = OpenedOlderFormat;
            message += ProjectMessages::olderFormat(serializer.formatVersion(), serializer.writerMajor(),
                                                   serializer.writerMinor(), serializer.writerPatch());
        }
    } else {
        content.tree.push_back({TVXProjectContent::TreeRecord::Folder, true, QStringLiteral("scans"), 0});
    }

    d->open = true;
    d->readOnly = readOnly;
    d->lockOwned = !readOnly;
    d->lock = std::move(lock);
    d->projectFile = projectFile;
    d->directory = directory;
    installContent(content);
    return true;
}

void BasicProject::installContent(TVXProjectContent& content)
{
    d->origin = content.origin;
    d->coordinateSystems = std::move(content.coordinateSystems);
    d->currentCoordinateSystem = content.currentCoordinateSystem;
    d->holder = ProjectItemScanGroup::create(QString());
    ProjectItemScanGroupPtr root = projectTreeFromRecords(content.tree);
    if (!root)
        root = ProjectItemScanGroup::create(QStringLiteral("scans"));
    d->holder->appendFolder(root);

    const QStringList& listed = content.scans;
    for (int i = 0; i < listed.size(); ++i) {
        QString reason;
        if (!listed[i].isEmpty() && !attachScan(quint32(i), listed[i], reason)) {
            d->unreadable[quint32(i)] = listed[i];
            d->unreadableReasons << QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(listed[i]), reason);
            d->readErrors[quint32(i)] = reason;
        }
    }
    // Every scan node must name a listed scan of its own: nodes of unlisted or already named
    // identifiers are dropped, listed scans without a node get one in the root folder.
    std::set<quint64> named;
    std::vector<ProjectItemScanPtr> stray;
    root->forEachScan([&](const ProjectItemScanPtr& scan) {
        const quint64 id = scan->scanId();
        if (id >= quint64(listed.size()) || listed[int(id)].isEmpty() || !named.insert(id).second)
            stray.push_back(scan);
    });
    for (const ProjectItemScanPtr& scan : stray) {
        qCInfo(lcProject) << "dropping scan node" << scan->name() << "with identifier" << scan->scanId();
        scan->parent()->takeChild(scan->row());
    }
    for (int i = 0; i < listed.size(); ++i) {
        if (!listed[i].isEmpty() && !named.count(quint64(i)))
            root->appendScan(ProjectItemScan::create(QFileInfo(listed[i]).completeBaseName(), quint64(i)));
    }
    d->model->setEditable(!d->readOnly);
    d->model->setRootHolder(d->holder);
}

bool BasicProject::attachScan(quint32 scanId, const QString& relativePath, QString& reason)
{
    const QString path = QDir(d->directory).absoluteFilePath(relativePath);
    auto file = std::make_shared<TVXFile>(path);
    bool read = false;
    try {
        if (!file->open(0))
            reason = tr("the file cannot be opened");
        else if (!(read = file->readHeader()))
            reason = file->errorString();
    } catch (const std::exception& error) {
        reason = QString::fromLocal8Bit(error.what());
    }
    file->close();
    if (!read) {
        if (reason.isEmpty())
            reason = tr("the header cannot be read");
        qCInfo(lcProject) << "scan not added:" << path << reason;
        return false;
    }
    ScanEntry entry;
    entry.id = scanId;
    entry.relativePath = relativePath;
    entry.file = file;
    entry.sceneGraph = file->sceneGraph();
    entry.sceneGraph->forEachItem([&entry](const ScanViewItem& item) { entry.scanFileItems.insert(&item); });
    entry.sceneItems = QSharedPointer<SceneItemsTableModel>::create();
    entry.referencePoints = QSharedPointer<ReferencePointsTableModel>::create(file);
    d->scans.push_back(std::move(entry));
    return true;
}

bool BasicProject::closeProject(int& code, QString& message)
{
    code = Opened;
    message.clear();
    if (!d->open)
        return true;
    if (!d->readOnly) {
        const QString lockPath = QDir::toNativeSeparators(d->lock->path());
        // Somebody deleted our lock and took the project over; it is theirs now. Once they have
        // closed it (their lock is gone), this project can close too.
        if (!ownsLock()) {
            code = LockNotOwned;
            message = ProjectMessages::lockNotOwned(lockPath);
            return false;
        }
        if (!d->lock->release()) {
            code = LockNotRemoved;
            message = ProjectMessages::lockNotRemoved(lockPath);
            return false;
        }
    }
    clear();
    return true;
}

void BasicProject::clear()
{
    d->model->setRootHolder(nullptr);
    d->holder.reset();
    d->scans.clear();
    d->unreadable.clear();
    d->unreadableReasons.clear();
    d->readErrors.clear();
    d->tileCache.clear();
    d->lock.reset();
    d->open = d->readOnly = d->lockOwned = false;
    d->projectFile.clear();
    d->directory.clear();
    d->origin = {};
    d->coordinateSystems.clear();
    d->currentCoordinateSystem = 0;
    d->modified = false;
    announceUnsavedChanges();
}

bool BasicProject::saveProject(QString& message)
{
    message.clear();
    if (!d->open)
        return true;
    if (d->readOnly) {
        message = ProjectMessages::readOnly();
        return false;
    }
    if (!ownsLock()) {
        message = ProjectMessages::lockNotOwned(QDir::toNativeSeparators(d->lock->path()));
        return false;
    }
    TVXProjectContent content;
    content.origin = d->origin;
    content.coordinateSystems = d->coordinateSystems;
    content.currentCoordinateSystem = d->currentCoordinateSystem;
    content.tree = projectTreeRecords(rootFolder());
    // Entry i of the list is the scan with identifier i; identifiers no scan uses stay empty.
    std::map<quint32, QString> paths = d->unreadable;
    for (const ScanEntry& entry : d->scans)
        paths[entry.id] = entry.relativePath;
    if (!paths.empty()) {
        content.scans = QStringList(qsizetype(paths.rbegin()->first) + 1, QString());
        for (const auto& [id, path] : paths)
            content.scans[qsizetype(id)] = path;
    }
    TVXProjectSerializer serializer(d->projectFile);
    try {
        if (!serializer.open(TVXProjectSerializer::WriteOnly)) {
            message = ProjectMessages::writeFailure(QDir::toNativeSeparators(d->projectFile), serializer.errorString());
            return false;
        }
        serializer.write(content);
    } catch (const std::exception& error) {
        message = ProjectMessages::writeFailure(QDir::toNativeSeparators(d->projectFile),
                                                QString::fromLocal8Bit(error.what()) + QStringLiteral(": ")
                                                    + serializer.errorString());
        return false;
    }
    setModified(false);
    return true;
}

QStringList BasicProject::unreadableScans() const
{
    return d->unreadableReasons;
}

QString BasicProject::scanReadError(quint32 scanId) const
{
    const auto it = d->readErrors.find(scanId);
    return it == d->readErrors.end() ? QString() : it->second;
}

bool BasicProject::isOpen() const
{
    return d->open;
}

bool BasicProject::isReadOnly() const
{
    return d->readOnly;
}

bool BasicProject::ownsLock() const
{
    return d->lockOwned && d->lock->isStillOurs();
}

QString BasicProject::projectFilePath() const
{
    return QDir::toNativeSeparators(d->projectFile);
}

QString BasicProject::projectDirectory() const
{
    return QDir::toNativeSeparators(d->directory);
}

std::array<double, 3> BasicProject::origin() const
{
    return d->origin;
}

void BasicProject::setOrigin(const std::array<double, 3>& origin)
{
    if (origin == d->origin)
        return;
    d->origin = origin;
    setModified(true);
}

std::vector<TVXProjectContent::CoordinateSystem> BasicProject::coordinateSystems() const
{
    return d->coordinateSystems;
}

void BasicProject::setCoordinateSystems(const std::vector<TVXProjectContent::CoordinateSystem>& systems)
{
    d->coordinateSystems = systems;
    setModified(true);
}

quint32 BasicProject::currentCoordinateSystem() const
{
    return d->currentCoordinateSystem;
}

void BasicProject::setCurrentCoordinateSystem(quint32 index)
{
    if (index == d->currentCoordinateSystem)
        return;
    d->currentCoordinateSystem = index;
    setModified(true);
}

ProjectItemScanGroupPtr BasicProject::rootFolder() const
{
    return d->model->rootFolder();
}

QSharedPointer<FileTreeModel> BasicProject::treeModel() const
{
    return d->model;
}

int BasicProject::scanCount() const
{
    return int(d->scans.size());
}

std::shared_ptr<TVXFile> BasicProject::scanFile(int index) const
{
    return index >= 0 && index < scanCount() ? d->scans[std::size_t(index)].file : nullptr;
}

int BasicProject::scanIndex(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? int(entry - d->scans.data()) : -1;
}

quint32 BasicProject::scanIdAt(int index) const
{
    return index >= 0 && index < scanCount() ? d->scans[std::size_t(index)].id : 0;
}

std::shared_ptr<TVXFile> BasicProject::scanFileOf(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? entry->file : nullptr;
}

std::shared_ptr<ScanViewSceneGraph> BasicProject::sceneGraph(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? entry->sceneGraph : nullptr;
}

QSharedPointer<SceneItemsTableModel> BasicProject::sceneItems(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? entry->sceneItems : nullptr;
}

QString BasicProject::annotationFilePath(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? QDir::toNativeSeparators(AnnotationFile::path(entry->file->path())) : QString();
}

bool BasicProject::loadAnnotations(quint32 scanId, QString& error)
{
    error.clear();
    ScanEntry* entry = d->entry(scanId);
    if (!entry || entry->annotationsLoaded)
        return true;
    entry->annotationsLoaded = true;
    entry->annotationsUnreadable =
        !AnnotationFile::load(entry->file->path(), *entry->sceneItems, entry->sceneGraph.get(), &error);
    return !entry->annotationsUnreadable;
}

bool BasicProject::saveAnnotations(quint32 scanId, QString& error)
{
    error.clear();
    ScanEntry* entry = d->entry(scanId);
    if (!entry)
        return true;
    if (d->readOnly) {
        error = tr("the project is open read-only");
        return false;
    }
    // Never replace a file whose items were not read first: they would be lost.
    if (!entry->annotationsLoaded) {
        QString loadError;
        loadAnnotations(scanId, loadError);
    }
    const QString path = AnnotationFile::path(entry->file->path());
    if (entry->annotationsUnreadable && QFileInfo::exists(path)) {
        const QString kept = path + QStringLiteral(".unreadable");
        QFile::remove(kept);
        if (!QFile::copy(path, kept)) {
            error = tr("the unreadable annotation file cannot be kept as %1").arg(QDir::toNativeSeparators(kept));
            return false;
        }
    }
    ScanViewSceneGraph userItems;
    const auto keepUsers = [&](const auto& list) {
        for (const auto& item : list) {
            if (entry->scanFileItems.count(item.get()) == 0)
                userItems.addItem(item);
        }
    };
    const ScanViewSceneGraph& graph = *entry->sceneGraph;
    keepUsers(graph.ellipses());
    keepUsers(graph.polygons());
    keepUsers(graph.rectangles());
    keepUsers(graph.textItems());
    keepUsers(graph.measurementItems());
    if (!AnnotationFile::save(entry->file->path(), *entry->sceneItems, &userItems, &error))
        return false;
    entry->annotationsUnreadable = false;
    entry->modified = false;
    announceUnsavedChanges();
    return true;
}

QList<quint32> BasicProject::scansWithModifiedAnnotations() const
{
    QList<quint32> ids;
    for (const ScanEntry& entry : d->scans) {
        if (entry.modified)
            ids << entry.id;
    }
    return ids;
}

QSharedPointer<ReferencePointsTableModel> BasicProject::referencePoints(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry ? entry->referencePoints : nullptr;
}

QString BasicProject::scanName(quint32 scanId) const
{
    const auto index = d->model->indexOfScan(scanId);
    return index.isValid() ? d->model->item(index)->name() : QString();
}

QString BasicProject::scanRelativePath(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    if (entry)
        return entry->relativePath;
    const auto it = d->unreadable.find(scanId);
    return it == d->unreadable.end() ? QString() : it->second;
}

quint32 BasicProject::unusedScanId() const
{
    std::set<quint64> used;
    for (const ScanEntry& entry : d->scans)
        used.insert(entry.id);
    for (const auto& unreadable : d->unreadable)
        used.insert(unreadable.first);
    if (const auto root = rootFolder())
        root->forEachScan([&used](const ProjectItemScanPtr& scan) { used.insert(scan->scanId()); });
    quint32 id = 0;
    while (used.count(id))
        ++id;
    return id;
}

qint64 BasicProject::addScan(const QString& path, const ProjectItemScanGroupPtr& folder, QString* reason)
{
    QString why;
    if (!d->open) {
        if (reason)
            *reason = tr("no project is open");
        return -1;
    }
    const QDir directory(d->directory);
    const QString absolute = directory.absoluteFilePath(path);
    const quint32 id = unusedScanId();
    if (!attachScan(id, directory.relativeFilePath(absolute), why)) {
        if (reason)
            *reason = why;
        return -1;
    }
    const ProjectItemScanGroupPtr parent = folder ? folder : rootFolder();
    d->model->addScan(d->model->indexOf(parent.get()), ProjectItemScan::create(QFileInfo(absolute).completeBaseName(), id));
    return id;
}

QList<quint32> BasicProject::enabledScans() const
{
    QList<quint32> ids;
    if (const auto root = rootFolder()) {
        root->forEachScan([&ids](const ProjectItemScanPtr& scan) {
            if (scan->isEnabled())
                ids << quint32(scan->scanId());
        });
    }
    return ids;
}

bool BasicProject::scanPose(quint32 scanId, ScanPose& pose) const
{
    const ScanEntry* entry = d->entry(scanId);
    if (!entry)
        return false;
    pose = poseFromTransformation(entry->file->scanInfo().transformation);
    return true;
}

bool BasicProject::cellSample(quint32 scanId, qint32 column, qint32 row, CellSample& sample)
{
    const int index = scanIndex(scanId);
    LastTile last;
    return index >= 0
           && sampleThroughCache(d->tileCache, quint32(index), *d->scans[std::size_t(index)].file, column, row, last,
                                 sample);
}

bool BasicProject::paintLensPicture(quint32 scanId, qint32 column, qint32 row, int radius, QImage& image)
{
    const int index = scanIndex(scanId);
    if (index < 0)
        return false;
    TVXFile& file = *d->scans[std::size_t(index)].file;
    LastTile last;
    for (int dr = -radius; dr <= radius; ++dr) {
        for (int dc = -radius; dc <= radius; ++dc) {
            CellSample sample;
            if (image.valid(radius + dc, radius + dr)
                && sampleThroughCache(d->tileCache, quint32(index), file, qint64(column) + dc, qint64(row) + dr, last,
                                      sample)
                && sample.hasColour)
                image.setPixel(radius + dc, radius + dr, qRgb(sample.red, sample.green, sample.blue));
        }
    }
    return true;
}

QImage BasicProject::lensPicture(quint32 scanId, qint32 column, qint32 row)
{
    constexpr int radius = 25;
    QImage image(2 * radius + 1, 2 * radius + 1, QImage::Format_RGB888);
    image.fill(Qt::white);
    paintLensPicture(scanId, column, row, radius, image);
    return image;
}

bool BasicProject::pointCloud(quint32 scanId, quint32 step, std::vector<float>& xyz)
{
    const auto file = scanFileOf(scanId);
    return file && file->extractPointCloud(step, xyz);
}

bool BasicProject::isViewOpen(quint32 scanId, ViewKind kind) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry && kind >= PlanarView && kind <= PointCloudView && entry->viewOpen[std::size_t(kind - 1)];
}

void BasicProject::setViewOpen(quint32 scanId, ViewKind kind, bool open)
{
    ScanEntry* entry = d->entry(scanId);
    if (!entry || kind < PlanarView || kind > PointCloudView || entry->viewOpen[std::size_t(kind - 1)] == open)
        return;
    entry->viewOpen[std::size_t(kind - 1)] = open;
    d->model->scanViewsChanged(scanId);
}

bool BasicProject::isScanModified(quint32 scanId) const
{
    const ScanEntry* entry = d->entry(scanId);
    return entry && entry->modified;
}

void BasicProject::setScanModified(quint32 scanId, bool modified)
{
    if (ScanEntry* entry = d->entry(scanId)) {
        entry->modified = modified;
        announceUnsavedChanges();
    }
}

bool BasicProject::isModified() const
{
    return d->modified;
}

void BasicProject::setModified(bool modified)
{
    d->modified = modified && d->open;
    announceUnsavedChanges();
}

bool BasicProject::hasUnsavedChanges() const
{
    return d->modified || std::any_of(d->scans.begin(), d->scans.end(), [](const ScanEntry& e) { return e.modified; });
}

void BasicProject::announceUnsavedChanges()
{
    const bool unsaved = hasUnsavedChanges();
    if (unsaved != d->unsavedAnnounced) {
        d->unsavedAnnounced = unsaved;
        Q_EMIT unsavedChangesChanged(unsaved);
    }
}

void BasicProject::forgetScans(const QList<quint32>& scanIds)
{
    for (const quint32 id : scanIds) {
        d->unreadable.erase(id);
        d->readErrors.erase(id);
        d->scans.erase(std::remove_if(d->scans.begin(), d->scans.end(), [id](const ScanEntry& e) { return e.id == id; }),
                       d->scans.end());
    }
    // The cache names its scan by index, and indices behind a removed scan have moved.
    d->tileCache.clear();
    announceUnsavedChanges();
}

} // namespace TVX::CORE
