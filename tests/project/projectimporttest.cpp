#include "scanexport.h"
#include "testfiles.h"
#include "testregistry.h"

#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "project/basicproject.h"
#include "project/filetreemodel.h"
#include "project/projectimport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

const std::array<double, 16> firstPose{0, -1, 0, 3, 1, 0, 0, 4, 0, 0, 1, 0.5, 0, 0, 0, 1};
const std::array<double, 16> secondPose{1, 0, 0, -2, 0, 1, 0, 1, 0, 0, 1, 0, 0, 0, 0, 1};

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << QDir(folder).relativeFilePath(it.next());
    files.sort();
    return files;
}

} // namespace

// Importing into the open project adds a folder with every scan of the file, or nothing at all.
class ProjectImportTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_sources;
    QString m_twoScans; // an E57 file of two scans
    QTemporaryDir* m_project = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        const QString a = m_sources.filePath(QStringLiteral("a.tvx"));
        const QString b = m_sources.filePath(QStringLiteral("b.tvx"));
        QVERIFY(writeSourceScan(a, 90, 40, 1, firstPose));
        QVERIFY(writeSourceScan(b, 30, 20, 2, secondPose));
        m_twoScans = m_sources.filePath(QStringLiteral("site.e57"));
        QFile file(m_twoScans);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(writeE57(file, {exportOf(a), exportOf(b)}));
    }

    void init()
    {
        m_project = new QTemporaryDir;
        int code = 0;
        QString message;
        QVERIFY(BasicProject::instance().openProject(m_project->filePath(QStringLiteral("tvx.prj")), QStringLiteral("tester"), code, message));
        BasicProject::instance().setModified(false);
    }
    void cleanup()
    {
        int code = 0;
        QString message;
        QVERIFY(BasicProject::instance().closeProject(code, message));
        delete m_project;
    }

    void importsEveryScan()
    {
        BasicProject& project = BasicProject::instance();
        QList<quint64> reports;
        const ProjectImport::Result result = ProjectImport::importFile(project, m_twoScans, nullptr, {},
            [&reports](quint64 done, quint64 total) {
                reports << done;
                return total == 90 * 40 + 30 * 20;
            });
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(reports.last(), quint64(90 * 40 + 30 * 20));
        QCOMPARE(result.scans.size(), std::size_t(2));
        QCOMPARE(result.cells, quint64(90 * 40 + 30 * 20));
        QVERIFY(project.isModified());

        const auto root = project.rootFolder();
        QCOMPARE(root->folders().size(), std::size_t(1));
        const auto folder = root->folders().front();
        QCOMPARE(folder->name(), QStringLiteral("site.e57"));
        QCOMPARE(folder->scans().size(), std::size_t(2));
        QCOMPARE(project.scanCount(), 2);
        QCOMPARE(project.scanName(result.scans[0].scanId), QStringLiteral("site-1"));
        // The poses carry over, so station marks and distances between the scans work.
        ScanPose pose;
        QVERIFY(project.scanPose(result.scans[0].scanId, pose));
        QCOMPARE(pose.translation.x, 3.0);
        QCOMPARE(pose.rotation(0, 1), -1.0);
        QVERIFY(project.scanPose(result.scans[1].scanId, pose));
        QCOMPARE(pose.translation.x, -2.0);
        QCOMPARE(filesBelow(m_project->filePath(QStringLiteral("scans"))),
                 QStringList({"site-1.jpg", "site-1.tvx", "site-1.tvxsd", "site-2.jpg", "site-2.tvx", "site-2.tvxsd"}));

        // Again into a sub-folder: new names, a second folder there.
        const ProjectImport::Result again = ProjectImport::importFile(project, m_twoScans, folder, {});
        QVERIFY2(again.ok, qPrintable(again.error));
        QCOMPARE(folder->folders().size(), std::size_t(1));
        QCOMPARE(folder->folders().front()->scans().size(), std::size_t(2));
        QCOMPARE(project.scanName(again.scans[1].scanId), QStringLiteral("site-2-2"));
        QCOMPARE(project.scanCount(), 4);
    }

    // Cancelled or failed, the import leaves the project and its folder as they were.
    void leavesNothing_data()
    {
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<bool>("truncate");
        QTest::newRow("cancelled in the second scan") << true << false;
        QTest::newRow("file ends early") << false << true;
    }
    void leavesNothing()
    {
        QFETCH(bool, cancel);
        QFETCH(bool, truncate);
        BasicProject& project = BasicProject::instance();
        QString input = m_twoScans;
        if (truncate) {
            QFile file(m_twoScans);
            QVERIFY(file.open(QIODevice::ReadOnly));
            input = m_sources.filePath(QStringLiteral("short.e57"));
            QVERIFY(writeBytes(input, file.readAll().chopped(1024)));
        }
        const QStringList before = filesBelow(m_project->path());
        const ProjectImport::Result result = ProjectImport::importFile(project, input, nullptr, {},
            [cancel](quint64 done, quint64) { return !cancel || done < 90 * 40; });
        QVERIFY(!result.ok);
        QCOMPARE(result.cancelled, cancel);
        if (truncate)
            QVERIFY2(result.error.contains(QStringLiteral("short.e57")), qPrintable(result.error));
        QCOMPARE(filesBelow(m_project->path()), before);
        QCOMPARE(project.rootFolder()->childCount(), 0);
        QCOMPARE(project.scanCount(), 0);
        QVERIFY(!project.isModified());
    }
};

TVX_TEST(ProjectImportTest)
#include "projectimporttest.moc"
