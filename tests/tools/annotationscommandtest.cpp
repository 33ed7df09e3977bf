#include "../annotations/viewerscenefixture.h"
#include "testfiles.h"
#include "testregistry.h"
#include "toolrun.h"

#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxssimpletext.h"
#include "annotations/viewerscenewriter.h"
#include "scene/scanviewscenegraph.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// Every kind once, as the project's own writer lays it out.
QByteArray everyKindDocument()
{
    SceneItemsTableModel model;
    ScanViewSceneGraph graph;
    model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(12.5, 40), QPointF(-1, 0.25)})));
    model.addItem(std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4)));
    model.addItem(std::make_shared<TVXSEllipse>(QRectF(5, 6, 7.5, 8)));
    model.addItem(std::make_shared<TVXSSimpleText>(QStringLiteral("a & 'b' <c>"), QPointF(12, -3), QPointF()));
    model.addItem(std::make_shared<TVXSDimensioning>(1, QPointF(1, 2), QPointF(3, 4)));
    graph.addItem(std::make_shared<ScanViewEllipse>(Vector3d(0, 0, 1), Vector3d(0, 0.5, 0), Vector3d(0.25, 0, 0)));
    graph.addItem(std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{{0.5, 0.5, 0.5}}));
    graph.addItem(std::make_shared<ScanViewRectangle>(Vector3d(1, 0, 0), Vector3d(0, 1, 0), Vector3d(0, 0, 1)));
    graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("north"), Vector3d(0, 0, 1)));
    graph.addItem(std::make_shared<ScanViewMeasurementItem>(2, Vector3d(1, 0, 0), Vector3d(0, 1, 0)));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ViewerSceneWriter(&buffer).write(model, &graph);
    return buffer.data();
}

const QByteArray everyKindJson =
    R"({"planar": [{"kind": "polygon", "points": [[12.5, 40], [-1, 0.25]]},
                   {"kind": "rectangle", "rect": [1, 2, 3, 4]},
                   {"kind": "ellipse", "rect": [5, 6, 7.5, 8]},
                   {"kind": "text", "text": "a & 'b' <c>", "position": [12, -3], "offset": [0, 0]},
                   {"kind": "dimensioning", "type": "DZ", "points": [[1, 2], [3, 4]]}],
        "spherical": [{"kind": "ellipse", "points": [[0, 0, 1], [0, 0.5, 0], [0.25, 0, 0]]},
                      {"kind": "polygon", "points": [[0.5, 0.5, 0.5]]},
                      {"kind": "rectangle", "points": [[1, 0, 0], [0, 1, 0], [0, 0, 1]]},
                      {"kind": "text", "text": "north", "position": [0, 0, 1]},
                      {"kind": "measurement", "type": "XY", "points": [[1, 0, 0], [0, 1, 0]]}]})";

const QByteArray emptyJson = R"({"planar": [], "spherical": []})";

} // namespace

// tvxtool annotations SCAN.tvx [--rewrite OUT.xml], run as a separate process.
class AnnotationsCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsAnnotations_data()
    {
        QTest::addColumn<QByteArray>("annotations"); // null: no annotation file
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("errorOutput"); // %1: the annotation file's path

        QTest::newRow("no annotation file") << QByteArray() << emptyJson << 0 << QString();
        QTest::newRow("every kind") << everyKindDocument() << everyKindJson << 0 << QString();
        // Numbers are read as floats and printed with every digit of the double they become:
        // float(1234.57) = 1234.5699462890625, float(0.1) = 0.100000001490116119384765625.
        QTest::newRow("single precision shown in full") << viewerDocument("   <polygonitem>\n"
                                                                    "      <point>1234.57, 0.1</point>\n"
                                                                    "   </polygonitem>\n")
                                                        << QByteArray(R"({"planar": [{"kind": "polygon", "points": [[1234.5699462890625, 0.100000001490116119384765625]]}],
                                                                          "spherical": []})")
                                                        << 0 << QString();
        // The second polygon's point ends at column 6 + 7 + 7 + 8 = 28 of line 8.
        QTest::newRow("parse fault keeps the items before it") << viewerDocument("   <polygonitem>\n"
                                                                           "      <point>1, 2</point>\n"
                                                                           "   </polygonitem>\n"
                                                                           "   <polygonitem>\n"
                                                                           "      <point>1, 2, 3</point>\n"
                                                                           "   </polygonitem>\n")
                                                               << QByteArray(R"({"planar": [{"kind": "polygon", "points": [[1, 2]]}], "spherical": []})")
                                                               << 1
                                                               << QStringLiteral("Parse error in file %1:\n\nInvalid number of entities\nLine 8, column 28\n");
        QTest::newRow("not an annotation file") << QByteArray("<html></html>") << emptyJson << 1
                                                << QStringLiteral("Parse error in file %1:\n\n"
                                                                  "The file is not an Tarvenix viewer version 1.0 or 2.0 file.\nLine 1, column 6\n");
    }

    void printsAnnotations()
    {
        QFETCH(QByteArray, annotations);
        QFETCH(QByteArray, json);
        QFETCH(int, exitCode);
        QFETCH(QString, errorOutput);

        QTemporaryDir dir;
        const QString annotationPath = dir.filePath(QStringLiteral("north-viewer.xml"));
        if (!annotations.isNull())
            QVERIFY(writeBytes(annotationPath, annotations));

        const ToolRun run = runTool({QStringLiteral("annotations"), dir.filePath(QStringLiteral("north.tvx"))});
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(QString::fromUtf8(run.err), errorOutput.isNull() ? QString() : errorOutput.arg(annotationPath));
        // One compact line.
        QVERIFY(run.out.endsWith('\n'));
        QCOMPARE(run.out.count('\n'), 1);
        QJsonParseError parseError;
        const QJsonDocument printed = QJsonDocument::fromJson(run.out, &parseError);
        QVERIFY2(parseError.error == QJsonParseError::NoError, qPrintable(parseError.errorString()));
        QCOMPARE(printed.object(), QJsonDocument::fromJson(json).object());
    }

    void rewrite_data()
    {
        QTest::addColumn<QByteArray>("annotations"); // null: no annotation file
        QTest::addColumn<QByteArray>("rewritten");    // null: no file written

        QTest::newRow("no annotation file gives an empty document") << QByteArray() << viewerDocument("");
        QTest::newRow("writer's layout comes back unchanged") << everyKindDocument() << everyKindDocument();
        // Six digits, single precision, whole-cell text anchors, no offset.
        QTest::newRow("values rewritten as the writer keeps them") << viewerDocument("   <polygonitem>\n"
                                                                              "      <point>1234567, 0.10</point>\n"
                                                                              "   </polygonitem>\n"
                                                                              "   <textitem>\n"
                                                                              "      <text>t</text>\n"
                                                                              "      <position>12.9, -3.7</position>\n"
                                                                              "      <positionOffset>4, 5</positionOffset>\n"
                                                                              "   </textitem>\n")
                                                                   << viewerDocument("   <polygonitem>\n"
                                                                               "      <point>1.23457e+06, 0.1</point>\n"
                                                                               "   </polygonitem>\n"
                                                                               "   <textitem>\n"
                                                                               "      <position>12, -3</position>\n"
                                                                               "      <text>t</text>\n"
                                                                               "   </textitem>\n");
        QTest::newRow("nothing rewritten after a parse fault") << viewerDocument("   <polygonitem><point>1</point></polygonitem>\n") << QByteArray();
    }

    void rewrite()
    {
        QFETCH(QByteArray, annotations);
        QFETCH(QByteArray, rewritten);

        QTemporaryDir dir;
        if (!annotations.isNull())
            QVERIFY(writeBytes(dir.filePath(QStringLiteral("north-viewer.xml")), annotations));
        const QString out = dir.filePath(QStringLiteral("out.xml"));

        const ToolRun run = runTool({QStringLiteral("annotations"), dir.filePath(QStringLiteral("north.tvx")), QStringLiteral("--rewrite"), out});
        QCOMPARE(run.exitCode, rewritten.isNull() ? 1 : 0);
        QFile file(out);
        if (rewritten.isNull()) {
            QVERIFY(!file.exists());
        } else {
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), rewritten);
        }
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("no scan") << QStringList();
        QTest::newRow("two scans") << QStringList{"a.tvx", "b.tvx"};
        QTest::newRow("unknown option") << QStringList{"a.tvx", "--output", "x.xml"};
        QTest::newRow("rewrite without file") << QStringList{"a.tvx", "--rewrite"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);

        // Run in an empty folder, to see that nothing is written.
        QTemporaryDir dir;
        const ToolRun run = runTool(QStringList{QStringLiteral("annotations")} + arguments, dir.path());
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.out.isEmpty());
        QVERIFY2(run.err.startsWith("usage:"), run.err.constData());
        QVERIFY(run.err.contains("annotations SCAN.tvx [--rewrite OUT.xml]"));
        QVERIFY(QDir(dir.path()).isEmpty());
    }
};

TVX_TEST(AnnotationsCommandTest)

#include "annotationscommandtest.moc"
