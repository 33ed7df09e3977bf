#include "testregistry.h"
#include "toolrun.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "project/basicproject.h"
#include "scene/scanviewscenegraph.h"

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

    QTemporaryDir m_dir;
    QJsonObject m_summary;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        const ToolRun run = runTool(QStringList{QStringLiteral("demo"), m_dir.path()} + smallDemo);
        QCOMPARE(run.exitCode, 0);
        m_summary = run.json();
    }

    // Read back through the project: the bottom row looks 60° down onto the flat paving around each
    // station, so in the project frame every such point lies on the ground, z = 0 (range noise ±2 mm).
    void projectOpens()
    {
        int code = -1;
        QString message;
        BasicProject& project = BasicProject::instance();
        QVERIFY2(project.openProject(m_summary["project"].toString(), QStringLiteral("tester"), code, message),
                 qPrintable(message));
        QCOMPARE(project.enabledScans(), QList<quint32>({0, 1, 2}));
        for (quint32 id = 0; id < 3; ++id) {
            ScanPose pose;
            QVERIFY(project.scanPose(id, pose));
            CellSample sample;
            for (qint32 column = 0; column < 256; column += 5) {
                QVERIFY(project.cellSample(id, column, 127, sample) && sample.valid);
                QVERIFY(std::abs(toProjectFrame(pose, sample.point).z) < 0.005);
            }
        }
        project.closeProject(code, message);

        for (const QJsonValue& scan : m_summary["scans"].toArray()) {
            SceneItemsTableModel planar;
            ScanViewSceneGraph spherical;
            QString error;
            QVERIFY2(AnnotationFile::load(scan.toString(), planar, &spherical, &error), qPrintable(error));
            QVERIFY(planar.rowCount() > 0 && spherical.itemCount() > 0);
            // The panorama beside it has one pixel per cell.
            QCOMPARE(QImage(scan.toString().chopped(4) + QStringLiteral(".jpg")).size(), QSize(256, 128));
            // The scan information holds the box of the scan's points, not the empty default.
            TVXFile file(scan.toString());
            QVERIFY(file.open() && file.readHeader());
            const Vector3d low = file.scanInfo().boundingBoxMin;
            const Vector3d high = file.scanInfo().boundingBoxMax;
            QVERIFY(low.x < high.x && low.y < high.y && low.z < high.z);
            QVERIFY(high.x - low.x < 250.0); // within twice the scanner's range
        }
    }

    void sameSeedSameBytes()
    {
        QTemporaryDir again;
        QCOMPARE(runTool(QStringList{QStringLiteral("demo"), again.path()} + smallDemo).exitCode, 0);
        QVERIFY(filesBelow(again.path()) == filesBelow(m_dir.path()));
    }
};

TVX_TEST(DemoCommandTest)

#include "democommandtest.moc"
