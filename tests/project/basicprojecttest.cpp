#include "testregistry.h"

#include "filesizelimit.h"
#include "projectfixtures.h"

#include "fileio/tvxfile.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

QString lockMessage(const QString& directory, const QStringList& users)
{
    QString message = QStringLiteral(
        "A lock file was found indicating that this directory is in use by another person or application.\n\n");
    for (const QString& user : users)
        message += QStringLiteral("  user: %1\n  directory: %2\n  lockfile: tvxlock~\n").arg(user, directory);
    return message;
}

struct Opened {
    bool ok = false;
    int code = -1;
    QString message;
};

Opened openProject(const QString& path, const QString& user = QStringLiteral("tester"))
{
    Opened result;
    result.ok = BasicProject::instance().openProject(path, user, result.code, result.message);
    return result;
}

bool closeProject(int* code = nullptr)
{
    int closeCode = -1;
    QString message;
    const bool closed = BasicProject::instance().closeProject(closeCode, message);
    if (code)
        *code = closeCode;
    return closed;
}

// A new project in `dir` holding one scan "s.tvx" of identifier 0.
bool openWithOneScan(const QTemporaryDir& dir)
{
    return writeTestScan(dir.filePath(QStringLiteral("s.tvx")), TestScan()) && openProject(dir.filePath(QStringLiteral("tvx.prj"))).ok
           && BasicProject::instance().addScan(QStringLiteral("s.tvx")) == 0;
}

// A project directory with the three scans that typicalFields() lists and the project file
// (format `formatVersion`) naming them.
QString makeTypicalProject(const QTemporaryDir& dir, quint32 formatVersion = 3)
{
    QDir(dir.path()).mkpath(QStringLiteral("scans"));
    for (const char* name : {"north", "süd", "east"})
        writeTestScan(dir.filePath(QStringLiteral("scans/%1.tvx").arg(QString::fromUtf8(name))), TestScan());
    ProjectFileFields fields = typicalFields();
    fields.formatVersion = formatVersion;
    fields.major = 2019;
    fields.minor = 4;
    fields.patch = 12;
    const QString path = dir.filePath(QStringLiteral("site.tvxprj"));
    writeBytes(path, build(fields));
    return path;
}

// A flat project: the root folder holds one scan node per identifier, named n<id>.
QByteArray flatProject(const QList<QByteArray>& listed, const QList<int>& nodeIds)
{
    ProjectFileFields fields;
    fields.coordinateSystems = coordinateSystems({}, 0);
    fields.scanList = scanList(listed);
    fields.tree = folderRecord(true, "scans", nodeIds.size());
    for (int id : nodeIds)
        fields.tree += scanRecord(true, "n" + QByteArray::number(id), id);
    return build(fields);
}

} // namespace

class BasicProjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QVERIFY(closeProject());
    }

    void newProjectTakesLock()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("tvx.prj"));
        const Opened opened = openProject(path, QStringLiteral("anna"));
        QVERIFY(opened.ok);
        QCOMPARE(opened.code, 0);
        QCOMPARE(opened.message, QString());
        BasicProject& project = BasicProject::instance();
        QVERIFY(!project.isReadOnly());
        QVERIFY(project.ownsLock());
        QCOMPARE(project.projectFilePath(), path);
        QCOMPARE(readBytes(dir.filePath(QStringLiteral("tvxlock~"))), QByteArray("user:anna\n"));
        QCOMPARE(describe(project.rootFolder()), QStringLiteral("scans+()"));

        const Opened again = openProject(path);
        QVERIFY(!again.ok);
        QCOMPARE(again.code, 1);

        int code = -1;
        QVERIFY(closeProject(&code));
        QCOMPARE(code, 0);
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("tvxlock~"))));
        QVERIFY(!QFile::exists(path)); // opening and closing write no project file
        QVERIFY(!project.isOpen());
    }

    void lockOfOthersIsReported_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::addColumn<QStringList>("users");
        QTest::newRow("two holders in file order, no final line feed")
            << QByteArray("user:zora\nuser:anna") << QStringList{QStringLiteral("zora"), QStringLiteral("anna")};
        QTest::newRow("other letter case and other lines ignored")
            << QByteArray("User:carl\nhost:pc7\n\nuser:dora\nUSER:emil\n") << QStringList{QStringLiteral("dora")};
        // A directory where the lock file should be: it exists but cannot be read.
        QTest::newRow("unreadable lock file") << QByteArray() << QStringList();
        QTest::newRow("name cut to 1024 characters")
            << QByteArray("user:") + QByteArray(1500, 'x') + "\n" << QStringList{QString(1024, QLatin1Char('x'))};
    }

    void lockOfOthersIsReported()
    {
        QFETCH(QByteArray, lock);
        QFETCH(QStringList, users);
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir);
        const QString lockPath = dir.filePath(QStringLiteral("tvxlock~"));
        QVERIFY(lock.isNull() ? QDir(dir.path()).mkpath(QStringLiteral("tvxlock~/inside")) : writeBytes(lockPath, lock));
        const QByteArray projectBytes = readBytes(path);

        const Opened opened = openProject(path);
        QVERIFY(!opened.ok);
        QCOMPARE(opened.code, 3);
        QCOMPARE(opened.message, lockMessage(dir.path(), users));
        QVERIFY(!BasicProject::instance().isOpen());
        QCOMPARE(readBytes(lockPath), lock);
        QCOMPARE(readBytes(path), projectBytes);
    }

    // No lock can be made, or it would tell others nothing: the project opens read-only.
    void readOnlyWithoutLock_data()
    {
        QTest::addColumn<bool>("diskFull");
        // A link into a missing folder: no lock file exists, yet none can be created there, not
        // even by root.
        QTest::newRow("lock cannot be created") << false;
        QTest::newRow("no room for the lock's line") << true;
    }

    void readOnlyWithoutLock()
    {
        QFETCH(bool, diskFull);
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir);
        const QString lockPath = dir.filePath(QStringLiteral("tvxlock~"));
        if (!diskFull)
            QVERIFY(QFile::link(dir.filePath(QStringLiteral("missing/lock")), lockPath));
        Opened opened;
        {
            const FileSizeLimit limit(diskFull ? 0 : RLIM_INFINITY);
            opened = openProject(path);
        }
        QVERIFY2(opened.ok, qPrintable(opened.message));
        BasicProject& project = BasicProject::instance();
        QVERIFY(project.isReadOnly() && !project.ownsLock());
        QVERIFY(!project.treeModel()->isEditable());
        QCOMPARE(project.scanCount(), 3);

        int code = -1;
        QVERIFY(closeProject(&code));
        QCOMPARE(code, 0);
        QCOMPARE(QFileInfo(lockPath).isSymLink(), !diskFull);
        QVERIFY(!QFileInfo::exists(lockPath));
    }

    void closingKeepsForeignLocks_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("code");
        QTest::newRow("lock taken over by somebody else") << QStringLiteral("taken over") << 8;
        // A non-empty directory cannot be removed as a file, not even by root.
        QTest::newRow("lock cannot be removed") << QStringLiteral("unremovable") << 5;
    }

    void closingKeepsForeignLocks()
    {
        QFETCH(QString, change);
        QFETCH(int, code);
        QTemporaryDir dir;
        QVERIFY(openProject(dir.filePath(QStringLiteral("tvx.prj"))).ok);
        const QString lockPath = dir.filePath(QStringLiteral("tvxlock~"));
        if (change == QLatin1String("taken over")) {
            QVERIFY(writeBytes(lockPath, "user:intruder\n"));
        } else {
            QVERIFY(QFile::remove(lockPath));
            QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("tvxlock~/inside")));
        }

        BasicProject& project = BasicProject::instance();
        int closeCode = -1;
        QString message;
        QVERIFY(!project.closeProject(closeCode, message));
        QCOMPARE(closeCode, code);
        QVERIFY(!message.isEmpty());
        QVERIFY(project.isOpen());
        QVERIFY(QFileInfo::exists(lockPath));

        // Once the other holder has closed (or the obstacle is gone) the project closes; cleanup()
        // checks that.
        if (change == QLatin1String("taken over"))
            QVERIFY(QFile::remove(lockPath));
        else
            QVERIFY(QDir(lockPath).removeRecursively());
    }

    void projectFileFormats_data()
    {
        QTest::addColumn<quint32>("formatVersion");
        QTest::addColumn<bool>("truncated"); // by its last byte
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("coordinateSystems");
        QTest::addColumn<QString>("message"); // with the project file for %path and its format for %format
        const QString older = QStringLiteral(
            "Warning: Project file with was written with an older Tarvenix version (2019.4.12) using project format version: "
            "%format. If you save this project again, it can be re-opened only with applications supporting the new project "
            "format.\n");
        const QString unreadable = QStringLiteral("An error occured reading the project file %path.\n\n");
        QTest::newRow("format 1") << 1u << false << 9 << 0 << older;
        QTest::newRow("format 3") << 3u << false << 0 << 2 << QString();
        QTest::newRow("format 4") << 4u << false << 7 << 0
                                  << unreadable + "It was written with Tarvenix version: 2019.4.12 using project format "
                                                  "version: %format. If this version is newer than the currently used version, "
                                                  "you need to upgrade your Tarvenix Software Suite.\n";
        QTest::newRow("truncated") << 3u << true << 7 << 0 << unreadable;
    }

    void projectFileFormats()
    {
        QFETCH(quint32, formatVersion);
        QFETCH(bool, truncated);
        QFETCH(int, code);
        QFETCH(int, coordinateSystems);
        QFETCH(QString, message);
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir, formatVersion);
        const QByteArray bytes = readBytes(path).chopped(truncated ? 1 : 0);
        QVERIFY(writeBytes(path, bytes));

        const Opened opened = openProject(path);
        QCOMPARE(opened.code, code);
        QCOMPARE(opened.ok, code != 7);
        message.replace(QLatin1String("%path"), path).replace(QLatin1String("%format"), QString::number(formatVersion));
        if (code == 7) {
            // The fixed text first, then the cause with the byte position.
            QVERIFY2(opened.message.startsWith(message), qPrintable(opened.message));
            QVERIFY2(opened.message.mid(message.size()).contains(QLatin1String("byte")), qPrintable(opened.message));
        } else {
            QCOMPARE(opened.message, message);
        }
        QCOMPARE(readBytes(path), bytes);
        BasicProject& project = BasicProject::instance();
        if (code == 7) {
            QVERIFY(!project.isOpen());
            QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("site.tvxprj")}); // no lock
            return;
        }
        QCOMPARE(int(project.coordinateSystems().size()), coordinateSystems);
        if (coordinateSystems > 0) {
            QCOMPARE(project.currentCoordinateSystem(), 1u);
            QCOMPARE(project.coordinateSystems()[1].name, QStringLiteral("Gauß-Krüger"));
            QCOMPARE(project.coordinateSystems()[1].values[0], 20.0);
            QCOMPARE(project.coordinateSystems()[1].values[6], 26.0);
        }
        QCOMPARE(project.origin(), (std::array<double, 3>{1.5, -2.25, 310.0}));
        QCOMPARE(project.scanCount(), 3);
        QCOMPARE(describe(project.rootFolder()), QStringLiteral("scans+(Facade+(north#0+) süd#1+ east#2-)"));
        QCOMPARE(project.scanName(1), QStringLiteral("süd"));
        QCOMPARE(project.scanRelativePath(1), QStringLiteral("scans/süd.tvx"));
        QCOMPARE(QFileInfo(project.scanFileOf(2)->path()).fileName(), QStringLiteral("east.tvx"));
        QCOMPARE(project.enabledScans(), QList<quint32>({0, 1}));
        QVERIFY(!project.hasUnsavedChanges());
    }

    void treeIsReconciledWithScanList_data()
    {
        QTest::addColumn<QList<QByteArray>>("listed");
        QTest::addColumn<QList<int>>("nodeIds");
        QTest::addColumn<QString>("tree");
        QTest::newRow("node beyond the list") << QList<QByteArray>{"scans/a.tvx"} << QList<int>{0, 7}
                                              << QStringLiteral("scans+(n0#0+)");
        QTest::newRow("two nodes of one scan") << QList<QByteArray>{"scans/a.tvx"} << QList<int>{0, 0}
                                               << QStringLiteral("scans+(n0#0+)");
        // A listed scan without a node gets one, named after its file.
        QTest::newRow("listed scan without node") << QList<QByteArray>{"scans/a.tvx", "scans/b.tvx"}
                                                  << QList<int>{1} << QStringLiteral("scans+(n1#1+ a#0+)");
    }

    void treeIsReconciledWithScanList()
    {
        QFETCH(QList<QByteArray>, listed);
        QFETCH(QList<int>, nodeIds);
        QFETCH(QString, tree);
        QTemporaryDir dir;
        QDir(dir.path()).mkpath(QStringLiteral("scans"));
        for (const char* name : {"a", "b"})
            QVERIFY(writeTestScan(dir.filePath(QStringLiteral("scans/%1.tvx").arg(QLatin1String(name))), TestScan()));
        const QString path = dir.filePath(QStringLiteral("tvx.prj"));
        QVERIFY(writeBytes(path, flatProject(listed, nodeIds)));

        QVERIFY(openProject(path).ok);
        BasicProject& project = BasicProject::instance();
        QCOMPARE(describe(project.rootFolder()), tree);
        // All nodes are checked: the enabled scans are the surviving nodes in tree order.
        QList<quint32> inTreeOrder;
        for (int i = 0; i < project.rootFolder()->childCount(); ++i)
            inTreeOrder << quint32(std::static_pointer_cast<ProjectItemScan>(project.rootFolder()->child(i))->scanId());
        QCOMPARE(project.enabledScans(), inTreeOrder);
    }

    void newScansTakeSmallestFreeIdentifier_data()
    {
        QTest::addColumn<QList<QByteArray>>("listed");
        QTest::addColumn<QList<int>>("nodeIds");
        QTest::addColumn<int>("removedId"); // removed through the tree model first; -1 for none
        QTest::addColumn<quint32>("expected");
        QTest::newRow("empty project") << QList<QByteArray>{} << QList<int>{} << -1 << 0u;
        QTest::newRow("gap of a removed scan") << QList<QByteArray>{"scans/a.tvx", "scans/b.tvx", "scans/c.tvx"}
                                               << QList<int>{0, 1, 2} << 1 << 1u;
        // A scan whose file is missing keeps its identifier.
        QTest::newRow("unreadable scan keeps its identifier")
            << QList<QByteArray>{"scans/gone.tvx", "scans/b.tvx"} << QList<int>{0, 1} << -1 << 2u;
    }

    void newScansTakeSmallestFreeIdentifier()
    {
        QFETCH(QList<QByteArray>, listed);
        QFETCH(QList<int>, nodeIds);
        QFETCH(int, removedId);
        QFETCH(quint32, expected);
        QTemporaryDir dir;
        QDir(dir.path()).mkpath(QStringLiteral("scans"));
        for (const char* name : {"a", "b", "c", "new"})
            QVERIFY(writeTestScan(dir.filePath(QStringLiteral("scans/%1.tvx").arg(QLatin1String(name))), TestScan()));
        const QString path = dir.filePath(QStringLiteral("tvx.prj"));
        QVERIFY(writeBytes(path, flatProject(listed, nodeIds)));
        QVERIFY(openProject(path).ok);
        BasicProject& project = BasicProject::instance();
        FileTreeModel& model = *project.treeModel();
        if (removedId >= 0) {
            const QModelIndex removed = model.indexOfScan(quint32(removedId));
            QVERIFY(model.removeRows(removed.row(), 1, removed.parent()));
            QVERIFY(!project.scanFileOf(quint32(removedId)));
        }

        QCOMPARE(project.addScan(QStringLiteral("scans/new.tvx")), qint64(expected));
        QCOMPARE(project.scanName(expected), QStringLiteral("new"));
        QVERIFY(project.scanFileOf(expected));
        QVERIFY(project.isModified());

    }

    // Listed scans that cannot be read are named with their cause; new ones are not added at all.
    void unreadableScansAreNamedWithTheirCause()
    {
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir);
        QVERIFY(writeBytes(dir.filePath(QStringLiteral("scans/north.tvx")), "not a scan"));
        QVERIFY(QFile::remove(dir.filePath(QStringLiteral("scans/east.tvx"))));
        QVERIFY(openProject(path).ok);
        BasicProject& project = BasicProject::instance();
        QCOMPARE(project.scanCount(), 1);
        const QStringList unreadable = project.unreadableScans();
        QCOMPARE(unreadable.size(), 2);
        QVERIFY2(unreadable[0].startsWith(QLatin1String("scans/north.tvx: ")) && unreadable[0].size() > 17,
                 qPrintable(unreadable[0]));
        QVERIFY2(unreadable[1].startsWith(QLatin1String("scans/east.tvx: ")) && unreadable[1].size() > 16,
                 qPrintable(unreadable[1]));

        QCOMPARE(project.addScan(QStringLiteral("scans/north.tvx")), qint64(-1));
        QCOMPARE(project.addScan(QStringLiteral("scans/missing.tvx")), qint64(-1));
        QCOMPARE(project.scanCount(), 1);
        QVERIFY(!project.hasUnsavedChanges());
    }

    void saveFailuresAreReported_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::newRow("read-only project") << QStringLiteral("read-only");
        QTest::newRow("lock taken over") << QStringLiteral("taken over");
        QTest::newRow("disk full") << QStringLiteral("disk full");
    }

    void saveFailuresAreReported()
    {
        QFETCH(QString, obstacle);
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir);
        const QString lockPath = dir.filePath(QStringLiteral("tvxlock~"));
        if (obstacle == QLatin1String("read-only"))
            QVERIFY(QFile::link(dir.filePath(QStringLiteral("missing/lock")), lockPath));
        QVERIFY(openProject(path).ok);
        BasicProject& project = BasicProject::instance();
        project.setOrigin({1, 2, 3});
        const QByteArray before = readBytes(path);
        if (obstacle == QLatin1String("taken over"))
            QVERIFY(writeBytes(lockPath, "user:intruder\n"));

        QString message;
        bool saved = true;
        {
            const FileSizeLimit limit(obstacle == QLatin1String("disk full") ? 16 : RLIM_INFINITY);
            saved = project.saveProject(message);
        }
        QVERIFY(!saved);
        QVERIFY(project.isModified());
        if (obstacle == QLatin1String("read-only")) {
            QCOMPARE(message, QStringLiteral("Changes could not be saved, because the project was opened in read-only mode."));
        } else if (obstacle == QLatin1String("taken over")) {
            QVERIFY2(message.contains(QDir::toNativeSeparators(lockPath)), qPrintable(message));
            QVERIFY(QFile::remove(lockPath));
        } else {
            // The file, the serializer's line and the system's reason.
            QVERIFY2(message.contains(path) && message.contains(QLatin1String("line 5")), qPrintable(message));
        }
        QCOMPARE(readBytes(path), before);
        QVERIFY(!QFile::exists(path + QStringLiteral(".tmp")));
    }

    // A save that stopped after writing the ".tmp" file and before renaming it.
    void interruptedSaveIsRecovered_data()
    {
        QTest::addColumn<bool>("complete");
        QTest::newRow("complete copy is taken") << true;
        QTest::newRow("half-written copy is left alone") << false;
    }

    void interruptedSaveIsRecovered()
    {
        QFETCH(bool, complete);
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir);
        const QString temporary = path + QStringLiteral(".tmp");
        const QByteArray bytes = readBytes(path);
        QVERIFY(QFile::rename(path, temporary));
        if (!complete)
            QVERIFY(writeBytes(temporary, bytes.left(bytes.size() / 2)));

        const Opened opened = openProject(path);
        QVERIFY(opened.ok);
        QCOMPARE(opened.code, 0);
        BasicProject& project = BasicProject::instance();
        QCOMPARE(project.scanCount(), complete ? 3 : 0);
        QCOMPARE(opened.message.contains(QDir::toNativeSeparators(path)), complete);
        QCOMPARE(QFile::exists(path), complete);
        QCOMPARE(QFile::exists(temporary), !complete);
    }

    void savedChangesSurviveReopening()
    {
        QTemporaryDir dir;
        const QString path = makeTypicalProject(dir, 1);
        QVERIFY(openProject(path).ok);
        BasicProject& project = BasicProject::instance();
        QSignalSpy unsaved(&project, &BasicProject::unsavedChangesChanged);
        FileTreeModel& model = *project.treeModel();
        const QModelIndex root = model.index(0, 0);
        const QModelIndex facade = model.index(0, 0, root);
        QVERIFY(model.setData(facade, QStringLiteral("Front"), Qt::EditRole));
        QCOMPARE(unsaved.count(), 1);
        QCOMPARE(unsaved.at(0).at(0).toBool(), true);
        QVERIFY(model.addFolder(root, QStringLiteral("Empty")).isValid());
        QVERIFY(model.setData(model.indexOfScan(1), Qt::Unchecked, Qt::CheckStateRole));
        project.setOrigin({7.0, 8.0, 9.0});
        project.setCoordinateSystems({{QStringLiteral("Local"), {1, 2, 3, 4, 5, 6, 7}}});
        project.setCurrentCoordinateSystem(0);
        QCOMPARE(unsaved.count(), 1);

        QString saveMessage;
        QVERIFY2(project.saveProject(saveMessage), qPrintable(saveMessage));
        QCOMPARE(unsaved.count(), 2);
        QCOMPARE(unsaved.at(1).at(0).toBool(), false);
        QVERIFY(!QFile::exists(path + QStringLiteral(".tmp")));
        QVERIFY(closeProject());

        // Saving wrote the newest format, so opening it gives no warning any more.
        const Opened opened = openProject(path);
        QCOMPARE(opened.code, 0);
        QCOMPARE(describe(project.rootFolder()),
                 QStringLiteral("scans+(Front+(north#0+) Empty+() süd#1- east#2-)"));
        QCOMPARE(project.origin(), (std::array<double, 3>{7.0, 8.0, 9.0}));
        QCOMPARE(int(project.coordinateSystems().size()), 1);
        QCOMPARE(project.coordinateSystems()[0].values[6], 7.0);
        QCOMPARE(project.enabledScans(), QList<quint32>({0}));
    }

    void scanModificationCountsAsUnsaved()
    {
        QTemporaryDir dir;
        QVERIFY(openProject(makeTypicalProject(dir)).ok);
        BasicProject& project = BasicProject::instance();
        QSignalSpy unsaved(&project, &BasicProject::unsavedChangesChanged);
        project.setScanModified(2, true);
        project.setScanModified(1, true);
        project.setScanModified(2, false);
        QVERIFY(project.hasUnsavedChanges() && !project.isModified());
        project.setScanModified(1, false);
        QVERIFY(!project.hasUnsavedChanges());
        QCOMPARE(unsaved.count(), 2);
        QCOMPARE(unsaved.at(0).at(0).toBool(), true);
        QCOMPARE(unsaved.at(1).at(0).toBool(), false);
    }

    // At the top right corner the grid fills one quadrant of the lens.
    void lensPicture()
    {
        const QPoint centre(39, 0);
        QTemporaryDir dir;
        QVERIFY(openWithOneScan(dir));
        BasicProject& project = BasicProject::instance();

        const QImage image = project.lensPicture(0, centre.x(), centre.y());
        QCOMPARE(image.size(), QSize(51, 51));
        int painted = 0;
        for (int y = 0; y < 51; ++y) {
            for (int x = 0; x < 51; ++x) {
                const int c = centre.x() + x - 25;
                const int r = centre.y() + y - 25;
                QRgb expected = qRgb(255, 255, 255);
                if (c >= 0 && c < 40 && r >= 0 && r < 30) {
                    const TVXFileCell cell = testCell(quint32(c), quint32(r));
                    expected = qRgb(cell.red, cell.green, cell.blue);
                    ++painted;
                }
                QVERIFY2(image.pixel(x, y) == expected, qPrintable(QStringLiteral("pixel %1, %2").arg(x).arg(y)));
            }
        }
        QCOMPARE(painted, 26 * 26); // including the centre's row and column
        QImage untouched = image;
        QVERIFY(!project.paintLensPicture(1, 0, 0, 25, untouched));
        QCOMPARE(untouched, image);
    }
};

TVX_TEST(BasicProjectTest)

#include "basicprojecttest.moc"
