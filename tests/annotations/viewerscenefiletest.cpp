#include "testregistry.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "annotations/tvxsdimensioning.h"
#include "annotations/tvxspolygon.h"
#include "annotations/tvxssimpletext.h"
#include "glviews/scanviewscenegraph.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace TVX::CORE;

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// A model of about 60 KB of text: more than the text stream hands over in one piece.
void fillLargeModel(SceneItemsTableModel& model)
{
    QPolygonF polygon;
    for (int i = 0; i < 2000; ++i)
        polygon << QPointF(i + 0.5, -i - 0.25);
    model.addItem(std::make_shared<TVXSPolygon>(polygon));
}

// Lets writes to files fail beyond `bytes` while it lives (as on a full disk), for root too.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &m_saved);
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = m_saved;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_saved);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_saved{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

class ViewerSceneFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void path_data()
    {
        QTest::addColumn<QString>("scanPath");
        QTest::addColumn<QString>("annotationPath");

        QTest::newRow("scan in a folder") << "/data/project/scans/north.tvx" << "/data/project/scans/north-viewer.xml";
        QTest::newRow("only the last extension goes") << "/data/a.b.tvx" << "/data/a.b-viewer.xml";
        QTest::newRow("no extension") << "/data/north" << "/data/north-viewer.xml";
        QTest::newRow("dotted folder") << "/data/v1.2/north.tvx" << "/data/v1.2/north-viewer.xml";
        QTest::newRow("relative path made absolute") << "scans/north.tvx" << QDir::current().absoluteFilePath(QStringLiteral("scans/north-viewer.xml"));
    }

    void path()
    {
        QFETCH(QString, scanPath);
        QFETCH(QString, annotationPath);
        QCOMPARE(AnnotationFile::path(scanPath), annotationPath);
    }

    void missingFileIsNoError()
    {
        QTemporaryDir dir;
        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        QString error;
        QVERIFY(AnnotationFile::load(dir.filePath(QStringLiteral("north.tvx")), model, &graph, &error));
        QVERIFY(error.isEmpty());
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(graph.itemCount(), std::size_t(0));
    }

    // What a value becomes after a save and a load: the file keeps six significant digits, the
    // reader single precision.
    void roundTrip_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<double>("saved");
        QTest::addColumn<double>("loaded");

        // 1234567 is written as 1.23457e+06.
        QTest::newRow("polygon point keeps six digits") << "polygon" << 1234567.0 << 1234570.0;
        // 1234.5678 is written as 1234.57, read as the float nearest to it.
        QTest::newRow("polygon point fraction") << "polygon" << 1234.5678 << double(1234.57f);
        QTest::newRow("text anchor truncated") << "text" << 12.9 << 12.0;
        QTest::newRow("negative text anchor truncated towards zero") << "text" << -3.7 << -3.0;
        // Written in double precision as 1e-50, but read back in single precision: 0.
        QTest::newRow("dimensioning point below float range") << "dimensioning" << 1e-50 << 0.0;
        QTest::newRow("dimensioning point keeps six digits") << "dimensioning" << 1234567.0 << 1234570.0;
        // 0.70710678 is written as 0.707107.
        QTest::newRow("spherical point") << "spherical" << 0.70710678 << double(0.707107f);
    }

    void roundTrip()
    {
        QFETCH(QString, kind);
        QFETCH(double, saved);
        QFETCH(double, loaded);

        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        if (kind == QLatin1String("polygon"))
            model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(saved, 1)})));
        else if (kind == QLatin1String("text"))
            model.addItem(std::make_shared<TVXSSimpleText>(QStringLiteral("t"), QPointF(saved, 1), QPointF(2, 3)));
        else if (kind == QLatin1String("dimensioning"))
            model.addItem(std::make_shared<TVXSDimensioning>(2, QPointF(saved, 1), QPointF(4, 5)));
        else
            graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("t"), Vector3d(saved, 0, 1)));

        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        QString error;
        QVERIFY2(AnnotationFile::save(scan, model, &graph, &error), qPrintable(error));
        QVERIFY(QFile::exists(dir.filePath(QStringLiteral("north-viewer.xml"))));

        SceneItemsTableModel loadedModel;
        ScanViewSceneGraph loadedGraph;
        QVERIFY2(AnnotationFile::load(scan, loadedModel, &loadedGraph, &error), qPrintable(error));
        double value = 0.0;
        if (kind == QLatin1String("polygon")) {
            value = std::dynamic_pointer_cast<TVXSPolygon>(loadedModel.item(0))->polygon().at(0).x();
        } else if (kind == QLatin1String("text")) {
            const auto text = std::dynamic_pointer_cast<TVXSSimpleText>(loadedModel.item(0));
            value = text->position().x();
            QCOMPARE(text->offset(), QPointF(0, 0)); // never written
        } else if (kind == QLatin1String("dimensioning")) {
            value = std::dynamic_pointer_cast<TVXSDimensioning>(loadedModel.item(0))->first().x();
        } else {
            QCOMPARE(loadedGraph.textItems().size(), std::size_t(1));
            value = loadedGraph.textItems().front()->position().x;
        }
        QCOMPARE(value, loaded);
    }

    void saveReplacesTheFileAndLeavesNothingElse()
    {
        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QString annotations = dir.filePath(QStringLiteral("north-viewer.xml"));
        QVERIFY(writeFile(annotations, QByteArray("previous content that is longer than the new document ").repeated(10)));

        SceneItemsTableModel model;
        model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2)})));
        QString error;
        QVERIFY2(AnnotationFile::save(scan, model, nullptr, &error), qPrintable(error));
        QCOMPARE(readAll(annotations), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                  "<!DOCTYPE tvxscanviewer>\n"
                                                  "<tvxviewerscene version=\"2.0\">\n"
                                                  "   <polygonitem>\n"
                                                  "      <point>1, 2</point>\n"
                                                  "   </polygonitem>\n"
                                                  "</tvxviewerscene>\n"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"north-viewer.xml"});
    }

    void failedSaveKeepsThePreviousFile_data()
    {
        QTest::addColumn<QString>("obstacle");

        QTest::newRow("disk full while writing") << "file size limit";
        QTest::newRow("read-only folder") << "read-only folder";
        QTest::newRow("read-only annotation file") << "read-only file";
    }

    void failedSaveKeepsThePreviousFile()
    {
        QFETCH(QString, obstacle);

        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QString annotations = dir.filePath(QStringLiteral("north-viewer.xml"));
        const QByteArray previous = "<?xml version=\"1.0\"?>\n<tvxviewerscene version=\"2.0\"/>\n";
        QVERIFY(writeFile(annotations, previous));

        SceneItemsTableModel model;
        fillLargeModel(model);
        QString error;
        bool saved = true;
        if (obstacle == QLatin1String("file size limit")) {
            const FileSizeLimit limit(4096);
            saved = AnnotationFile::save(scan, model, nullptr, &error);
        } else {
            const QString target = obstacle == QLatin1String("read-only folder") ? dir.path() : annotations;
            const QFile::Permissions permissions = QFile::permissions(target);
            QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::ExeOwner));
            // Privileged users write regardless of permissions; then the obstacle is not one.
            QFile probe(obstacle == QLatin1String("read-only folder") ? dir.filePath(QStringLiteral("probe")) : annotations);
            const bool writable = probe.open(QIODevice::Append);
            probe.close();
            if (!writable)
                saved = AnnotationFile::save(scan, model, nullptr, &error);
            QFile::remove(dir.filePath(QStringLiteral("probe")));
            QFile::setPermissions(target, permissions);
            if (writable)
                QSKIP("file permissions do not bind this user");
        }
        QVERIFY(!saved);
        QVERIFY(!error.isEmpty());
        QCOMPARE(readAll(annotations), previous);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"north-viewer.xml"});
    }

    void loadFaults_data()
    {
        QTest::addColumn<QByteArray>("content"); // null: the annotation file is a folder
        QTest::addColumn<QString>("error");      // null: any text
        QTest::addColumn<int>("rowsKept");

        // "      <point>1, 2, 3</point>" ends at column 6 + 7 + 7 + 8 = 28 of line 8.
        QTest::newRow("parse fault") << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                   "<!DOCTYPE tvxscanviewer>\n"
                                                   "<tvxviewerscene version=\"2.0\">\n"
                                                   "   <polygonitem>\n"
                                                   "      <point>1, 2</point>\n"
                                                   "   </polygonitem>\n"
                                                   "   <polygonitem>\n"
                                                   "      <point>1, 2, 3</point>\n"
                                                   "   </polygonitem>\n"
                                                   "</tvxviewerscene>\n")
                                     << "Invalid number of entities\nLine 8, column 28" << 1;
        QTest::newRow("annotation file is a folder") << QByteArray() << QString() << 0;
    }

    void loadFaults()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, error);
        QFETCH(int, rowsKept);

        QTemporaryDir dir;
        const QString annotations = dir.filePath(QStringLiteral("north-viewer.xml"));
        if (content.isNull())
            QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("north-viewer.xml")));
        else
            QVERIFY(writeFile(annotations, content));

        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        QString reported;
        QVERIFY(!AnnotationFile::load(dir.filePath(QStringLiteral("north.tvx")), model, &graph, &reported));
        if (error.isNull())
            QVERIFY(!reported.isEmpty());
        else
            QCOMPARE(reported, error);
        QCOMPARE(model.rowCount(), rowsKept);
    }
};

TVX_TEST(ViewerSceneFileTest)

#include "viewerscenefiletest.moc"
