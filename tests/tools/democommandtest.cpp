#include "testregistry.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "glviews/scanviewscenegraph.h"
#include "project/basicproject.h"
#include "project/referencepointstablemodel.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;

namespace {

struct ToolRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

ToolRun runTool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(TVX_BIN_DIR "/tvxtool"), arguments);
    ToolRun run;
    if (!process.waitForFinished(300000))
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

QJsonObject jsonOf(const QByteArray& bytes)
{
    return QJsonDocument::fromJson(bytes).object();
}

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
        m_summary = jsonOf(run.out);
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
        const QJsonObject json = jsonOf(run.out);
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
            const QJsonObject header = jsonOf(info.out);
            QCOMPARE(header.value(QStringLiteral("columns")).toInt(), 256);
            QCOMPARE(header.value(QStringLiteral("rows")).toInt(), 128);
            const QString base = path.left(path.size() - 4);
            QCOMPARE(QImage(base + QStringLiteral(".jpg")).size(), QSize(256, 128));
            QVERIFY(QFile::exists(base + QStringLiteral("-viewer.xml")));
        }
    }

    // Read back through the project: the geometry of every scan agrees with the scene.
    void scansAgreeWithTheScene()
    {
        int code = -1;
        QString message;
        QVERIFY(BasicProject::instance().openProject(m_dir.filePath(QStringLiteral("demo.tvxprj")),
                                                     QStringLiteral("tester"), code, message));
        BasicProject& project = BasicProject::instance();
        QCOMPARE(project.scanCount(), 3);
        QCOMPARE(project.enabledScans().size(), 3);

        std::vector<ScanPose> poses(3);
        int tilted = 0;
        for (quint32 id = 0; id < 3; ++id) {
            QVERIFY(project.scanPose(id, poses[id]));
            // A level station's z axis points straight up: rotation[8] = 1.
            if (poses[id].rotation[8] < 1.0 - 1e-6)
                ++tilted;
            // The scanner stands on a tripod on the plaza.
            QVERIFY(poses[id].translation.z > 1.4 && poses[id].translation.z < 1.8);
        }
        QCOMPARE(tilted, 1);
        for (int a = 0; a < 3; ++a) {
            for (int b = a + 1; b < 3; ++b) {
                const double distance = (poses[a].translation - poses[b].translation).length();
                QVERIFY2(distance >= 4.0 && distance <= 12.0, qPrintable(QString::number(distance)));
            }
        }

        for (quint32 id = 0; id < 3; ++id) {
            CellSample sample;
            // Row 0 looks at the zenith: sky, no return.
            for (qint32 column = 0; column < 256; column += 15) {
                QVERIFY(project.cellSample(id, column, 0, sample));
                QVERIFY(!sample.valid);
            }
            // The bottom row looks 60° down onto the flat paving around the station: in the
            // project frame every such point lies on the ground, z = 0 (range noise ±2 mm).
            for (qint32 column = 0; column < 256; column += 5) {
                QVERIFY(project.cellSample(id, column, 127, sample));
                QVERIFY(sample.valid);
                const Vector3d ground = toProjectFrame(poses[id], sample.point);
                QVERIFY2(std::abs(ground.z) < 0.005, qPrintable(QStringLiteral("scan %1 column %2 z %3").arg(id).arg(column).arg(ground.z)));
            }
            // The reference spheres, stored in each scan's own frame, stand at the same places in
            // the project frame for every scan.
            const auto references = project.referencePoints(id);
            QCOMPARE(references->rowCount(), 4);
        }
        for (int sphere = 0; sphere < 4; ++sphere) {
            std::vector<Vector3d> centres;
            for (quint32 id = 0; id < 3; ++id) {
                const auto model = project.referencePoints(id);
                const auto value = [&model, sphere](int column) {
                    return model->index(sphere, column).data(ReferencePointsTableModel::ValueRole).toDouble();
                };
                const Vector3d local(value(ReferencePointsTableModel::XColumn), value(ReferencePointsTableModel::YColumn),
                                     value(ReferencePointsTableModel::ZColumn));
                centres.push_back(toProjectFrame(poses[id], local));
            }
            QVERIFY((centres[0] - centres[1]).length() < 1e-9);
            QVERIFY((centres[0] - centres[2]).length() < 1e-9);
        }
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
            QCOMPARE(spherical.polygons().size(), std::size_t(1));
            QCOMPARE(spherical.rectangles().size(), std::size_t(1));
            QCOMPARE(spherical.ellipses().size(), std::size_t(1));
            QCOMPARE(spherical.textItems().size(), std::size_t(1));
            QCOMPARE(spherical.measurementItems().size(), std::size_t(1));
        }
    }

    void sameSeedSameBytes_data()
    {
        QTest::addColumn<QString>("seed");
        QTest::addColumn<bool>("same");
        QTest::newRow("same seed") << QStringLiteral("7") << true;
        QTest::newRow("other seed") << QStringLiteral("8") << false;
    }

    void sameSeedSameBytes()
    {
        QFETCH(QString, seed);
        QFETCH(bool, same);
        QTemporaryDir again;
        QStringList arguments = QStringList{QStringLiteral("demo"), again.path()} + smallDemo;
        arguments.last() = seed;
        QCOMPARE(runTool(arguments).exitCode, 0);
        const auto first = filesBelow(m_dir.path());
        const auto second = filesBelow(again.path());
        QCOMPARE(second.keys(), first.keys());
        QCOMPARE(second.value(QStringLiteral("scans/station02.tvxsd")) == first.value(QStringLiteral("scans/station02.tvxsd")),
                 same);
        if (same)
            QVERIFY(second == first);
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no directory") << QStringList{"demo"};
        QTest::newRow("no scans") << QStringList{"demo", "x", "--scans", "0"};
        QTest::newRow("too many scans") << QStringList{"demo", "x", "--scans", "21"};
        QTest::newRow("one column") << QStringList{"demo", "x", "--columns", "1"};
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
