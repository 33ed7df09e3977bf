#include "scenedescription.h"
#include "testregistry.h"
#include "toolrun.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/scanviewscenegraph.h"
#include "project/basicproject.h"
#include "project/referencepointstablemodel.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// Every file below a folder, by relative path, with its bytes.
QMap<QString, QByteArray> filesBelow(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            files.insert(QDir(folder).relativeFilePath(path), file.readAll());
    }
    return files;
}

const QStringList smallDemo{QStringLiteral("--columns"), QStringLiteral("256"), QStringLiteral("--rows"),
                            QStringLiteral("128"), QStringLiteral("--seed"), QStringLiteral("7")};

} // namespace

class DemoCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const ToolRun run = runTool(QStringList{QStringLiteral("demo"), m_dir.path()} + smallDemo);
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.err.contains("station 3/3: 100%"));
        m_summary = run.json();
    }

    void cleanup()
    {
        int code = 0;
        QString message;
        BasicProject::instance().closeProject(code, message);
    }

    void projectAndScansOpenWithTheTools()
    {
        const QString project = m_dir.filePath(QStringLiteral("demo.tvxprj"));
        QCOMPARE(m_summary.value(QStringLiteral("project")).toString(), project);
        const ToolRun run = runTool({QStringLiteral("project"), project});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QCOMPARE(json.value(QStringLiteral("formatVersion")).toInt(), 3);
        const QJsonArray scans = json.value(QStringLiteral("scans")).toArray();
        QCOMPARE(scans.size(), 3);
        // Identifiers 0 to 2, each naming its entry of the scan list, somewhere in the folders.
        QSet<int> ids;
        const QJsonArray folders = json.value(QStringLiteral("tree")).toObject().value(QStringLiteral("children")).toArray();
        QVERIFY(folders.size() >= 2);
        for (const QJsonValue& folder : folders) {
            QCOMPARE(folder.toObject().value(QStringLiteral("type")).toString(), QStringLiteral("folder"));
            for (const QJsonValue& scan : folder.toObject().value(QStringLiteral("children")).toArray()) {
                const int id = scan.toObject().value(QStringLiteral("id")).toInt();
                ids.insert(id);
                QCOMPARE(scans.at(id).toString(),
                         QStringLiteral("scans/%1.tvx").arg(scan.toObject().value(QStringLiteral("name")).toString()));
            }
        }
        QCOMPARE(ids, QSet<int>({0, 1, 2}));

        for (const QJsonValue& scan : scans) {
            const QString path = m_dir.filePath(scan.toString());
            const ToolRun info = runTool({QStringLiteral("info"), path});
            QCOMPARE(info.exitCode, 0);
            const QJsonObject header = info.json();
            QCOMPARE(header.value(QStringLiteral("columns")).toInt(), 256);
            QCOMPARE(header.value(QStringLiteral("rows")).toInt(), 128);
            const QString base = path.left(path.size() - 4);
            QCOMPARE(QImage(base + QStringLiteral(".jpg")).size(), QSize(256, 128));
            QVERIFY(QFile::exists(base + QStringLiteral("-viewer.xml")));
        }
    }

    // Read back through the project: the bottom row looks 60° down onto the flat paving around each
    // station, so in the project frame every such point lies on the ground, z = 0 (range noise
    // ±2 mm); the reference spheres, stored in each scan's own frame, coincide in the project frame.
    void scansAgreeWithTheScene()
    {
        int code = -1;
        QString message;
        BasicProject& project = BasicProject::instance();
        QVERIFY(project.openProject(m_dir.filePath(QStringLiteral("demo.tvxprj")), QStringLiteral("tester"), code, message));
        QCOMPARE(project.enabledScans(), QList<quint32>({0, 1, 2}));
        std::vector<ScanPose> poses(3);
        std::vector<Vector3d> firstSphere;
        for (quint32 id = 0; id < 3; ++id) {
            QVERIFY(project.scanPose(id, poses[id]));
            CellSample sample;
            for (qint32 column = 0; column < 256; column += 5) {
                QVERIFY(project.cellSample(id, column, 127, sample) && sample.valid);
                QVERIFY(std::abs(toProjectFrame(poses[id], sample.point).z) < 0.005);
            }
            const auto model = project.referencePoints(id);
            QCOMPARE(model->rowCount(), 4);
            const auto value = [&model](int column) { return model->index(0, column).data(ReferencePointsTableModel::ValueRole).toDouble(); };
            firstSphere.push_back(toProjectFrame(poses[id], Vector3d(value(ReferencePointsTableModel::XColumn),
                                                                     value(ReferencePointsTableModel::YColumn),
                                                                     value(ReferencePointsTableModel::ZColumn))));
        }
        QVERIFY((firstSphere[0] - firstSphere[1]).length() < 1e-9 && (firstSphere[0] - firstSphere[2]).length() < 1e-9);
    }

    void annotationsOfEveryKind()
    {
        for (int station = 1; station <= 3; ++station) {
            const QString scan = m_dir.filePath(QStringLiteral("scans/station%1.tvx").arg(station, 2, 10, QLatin1Char('0')));
            SceneItemsTableModel planar;
            ScanViewSceneGraph spherical;
            QString error;
            QVERIFY2(AnnotationFile::load(scan, planar, &spherical, &error), qPrintable(error));
            QVERIFY(planar.rowCount() >= 3);
            // One spherical item of each kind.
            QStringList kinds;
            for (const QString& line : describeGraph(spherical))
                kinds << line.section(QLatin1Char(' '), 0, 0);
            QCOMPARE(kinds, QStringList({"ellipse3d", "polygon3d", "rectangle3d", "text3d", "measurement3d"}));
        }
    }

    void sameSeedSameBytes()
    {
        QTemporaryDir again;
        QCOMPARE(runTool(QStringList{QStringLiteral("demo"), again.path()} + smallDemo).exitCode, 0);
        QVERIFY(filesBelow(again.path()) == filesBelow(m_dir.path()));
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no directory") << QStringList{"demo"};
        QTest::newRow("too many scans") << QStringList{"demo", "x", "--scans", "21"};
        QTest::newRow("rows not a number") << QStringList{"demo", "x", "--rows", "many"};
        QTest::newRow("option without value") << QStringList{"demo", "x", "--seed"};
        QTest::newRow("unknown option") << QStringList{"demo", "x", "--fast", "1"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        const ToolRun run = runTool(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(!QFile::exists(QStringLiteral("x")));
    }

private:
    QTemporaryDir m_dir;
    QJsonObject m_summary;
};

TVX_TEST(DemoCommandTest)

#include "democommandtest.moc"
