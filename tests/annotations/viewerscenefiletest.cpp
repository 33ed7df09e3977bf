#include "filesizelimit.h"
#include "testfiles.h"
#include "testregistry.h"
#include "viewerscenefixture.h"

#include "annotations/annotationfile.h"
#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsreferencepoint.h"
#include "scene/tvxssimpletext.h"
#include "scene/scanviewscenegraph.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// A model of about 60 KB of text: more than the text stream hands over in one piece.
void fillLargeModel(SceneItemsTableModel& model)
{
    QPolygonF polygon;
    for (int i = 0; i < 2000; ++i)
        polygon << QPointF(i + 0.5, -i - 0.25);
    model.addItem(std::make_shared<TVXSPolygon>(polygon));
}

} // namespace

class ViewerSceneFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void path_data()
    {
        QTest::addColumn<QString>("scanPath");
        QTest::addColumn<QString>("annotationPath");

        QTest::newRow("only the last extension goes") << "/data/a.b.tvx" << "/data/a.b-viewer.xml";
        QTest::newRow("relative path made absolute") << "scans/north.tvx" << QDir::current().absoluteFilePath(QStringLiteral("scans/north-viewer.xml"));
    }

    void path()
    {
        QFETCH(QString, scanPath);
        QFETCH(QString, annotationPath);
        QCOMPARE(AnnotationFile::path(scanPath), annotationPath);
    }

    void saveReplacesTheFileAndLeavesNothingElse()
    {
        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QString annotations = dir.filePath(QStringLiteral("north-viewer.xml"));
        QVERIFY(writeBytes(annotations, QByteArray("previous content that is longer than the new document ").repeated(10)));

        SceneItemsTableModel model;
        model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2)})));
        QString error;
        QVERIFY2(AnnotationFile::save(scan, model, nullptr, &error), qPrintable(error));
        QCOMPARE(readBytes(annotations), viewerDocument("   <polygonitem>\n      <point>1, 2</point>\n   </polygonitem>\n"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"north-viewer.xml"});
    }

    void failedSaveKeepsThePreviousFile_data()
    {
        QTest::addColumn<QString>("obstacle");

        QTest::newRow("disk full while writing") << "file size limit";
        QTest::newRow("an item the file cannot hold") << "unwritable item";
    }

    void failedSaveKeepsThePreviousFile()
    {
        QFETCH(QString, obstacle);

        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QString annotations = dir.filePath(QStringLiteral("north-viewer.xml"));
        const QByteArray previous = "<?xml version=\"1.0\"?>\n<tvxviewerscene version=\"2.0\"/>\n";
        QVERIFY(writeBytes(annotations, previous));

        SceneItemsTableModel model;
        fillLargeModel(model);
        QString error;
        bool saved = true;
        if (obstacle == QLatin1String("file size limit")) {
            const FileSizeLimit limit(4096);
            saved = AnnotationFile::save(scan, model, nullptr, &error);
        } else {
            model.addItem(std::make_shared<TVXSReferencePoint>(QStringLiteral("P1"), TVXSReferencePoint::Values{}));
            saved = AnnotationFile::save(scan, model, nullptr, &error);
        }
        QVERIFY(!saved);
        QVERIFY(!error.isEmpty());
        QCOMPARE(readBytes(annotations), previous);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"north-viewer.xml"});
    }

    // Texts come back as typed, carriage returns included; a control character that XML cannot
    // hold is replaced instead of making the whole file unreadable.
    void textsWithControlCharactersRoundTrip()
    {
        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QStringList texts{QStringLiteral("line\r\nbreak"), QStringLiteral("lone\rreturn"),
                                QStringLiteral("bell\x07 tab\t<&>")};
        SceneItemsTableModel written;
        ScanViewSceneGraph writtenGraph;
        for (const QString& text : texts) {
            written.addItem(std::make_shared<TVXSSimpleText>(text, QPointF(3, 4), QPointF()));
            writtenGraph.addItem(std::make_shared<ScanViewTextItem>(text, Vector3d(0, 0, 1)));
        }
        QString error;
        QVERIFY2(AnnotationFile::save(scan, written, &writtenGraph, &error), qPrintable(error));

        SceneItemsTableModel read;
        ScanViewSceneGraph readGraph;
        QVERIFY2(AnnotationFile::load(scan, read, &readGraph, &error), qPrintable(error));
        QCOMPARE(read.rowCount(), texts.size());
        QCOMPARE(int(readGraph.textItems().size()), texts.size());
        QStringList expected = texts;
        expected[2] = QStringLiteral("bell\uFFFD tab\t<&>");
        for (int i = 0; i < texts.size(); ++i) {
            QCOMPARE(std::static_pointer_cast<TVXSSimpleText>(read.item(i))->text(), expected[i]);
            QCOMPARE(readGraph.textItems()[std::size_t(i)]->text(), expected[i]);
        }
    }

    // A missing file is no error; one that cannot be read is.
    void load_data()
    {
        QTest::addColumn<bool>("folder"); // a folder where the annotation file would be
        QTest::newRow("no annotation file") << false;
        QTest::newRow("annotation file is a folder") << true;
    }

    void load()
    {
        QFETCH(bool, folder);
        QTemporaryDir dir;
        if (folder)
            QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("north-viewer.xml")));
        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        QString reported;
        QCOMPARE(AnnotationFile::load(dir.filePath(QStringLiteral("north.tvx")), model, &graph, &reported), !folder);
        QCOMPARE(reported.isEmpty(), !folder);
        QCOMPARE(model.rowCount(), 0);
    }
};

TVX_TEST(ViewerSceneFileTest)

#include "viewerscenefiletest.moc"
