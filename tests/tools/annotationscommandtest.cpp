#include "testregistry.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct ToolRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

ToolRun runTool(const QStringList& arguments, const QString& workingDirectory = QString())
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(QStringLiteral(TVX_BIN_DIR "/tvxtool"), arguments);
    ToolRun run;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray document(const QByteArray& body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE tvxscanviewer>\n"
           "<tvxviewerscene version=\"2.0\">\n"
           + body + "</tvxviewerscene>\n";
}

// Every kind once, laid out as the writer lays it out, spherical kinds in the graph's order.
const QByteArray everyKind = document("   <polygonitem>\n"
                                      "      <point>12.5, 40</point>\n"
                                      "      <point>-1, 0.25</point>\n"
                                      "   </polygonitem>\n"
                                      "   <rectangleitem>\n"
                                      "      <rectangle>1, 2, 3, 4</rectangle>\n"
                                      "   </rectangleitem>\n"
                                      "   <ellipseitem>\n"
                                      "      <rectangle>5, 6, 7.5, 8</rectangle>\n"
                                      "   </ellipseitem>\n"
                                      "   <textitem>\n"
                                      "      <position>12, -3</position>\n"
                                      "      <text>a &amp; 'b' &lt;c&gt;</text>\n"
                                      "   </textitem>\n"
                                      "   <dimensioningitem type=\"DZ\">\n"
                                      "      <point>1, 2</point>\n"
                                      "      <point>3, 4</point>\n"
                                      "   </dimensioningitem>\n"
                                      "   <ellipseitem_spherical>\n"
                                      "      <ellipse_3d>\n"
                                      "         0, 0, 1,\n"
                                      "         0, 0.5, 0,\n"
                                      "         0.25, 0, 0\n"
                                      "      </ellipse_3d>\n"
                                      "   </ellipseitem_spherical>\n"
                                      "   <polygonitem_spherical>\n"
                                      "      <point_3d>0.5, 0.5, 0.5</point_3d>\n"
                                      "   </polygonitem_spherical>\n"
                                      "   <rectangleitem_spherical>\n"
                                      "      <rectangle_3d>\n"
                                      "         1, 0, 0,\n"
                                      "         0, 1, 0,\n"
                                      "         0, 0, 1\n"
                                      "      </rectangle_3d>\n"
                                      "   </rectangleitem_spherical>\n"
                                      "   <textitem_spherical>\n"
                                      "      <position>0, 0, 1</position>\n"
                                      "      <text>north</text>\n"
                                      "   </textitem_spherical>\n"
                                      "   <dimensioningitem_spherical type=\"XY\">\n"
                                      "      <point_3d>1, 0, 0</point_3d>\n"
                                      "      <point_3d>0, 1, 0</point_3d>\n"
                                      "   </dimensioningitem_spherical>\n");

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
        QTest::newRow("empty scene") << document("") << emptyJson << 0 << QString();
        QTest::newRow("every kind") << everyKind << everyKindJson << 0 << QString();
        QTest::newRow("text offset") << document("   <textitem>\n"
                                                 "      <position>1, 2</position>\n"
                                                 "      <positionOffset>-2, 5.5</positionOffset>\n"
                                                 "      <text></text>\n"
                                                 "   </textitem>\n")
                                     << QByteArray(R"({"planar": [{"kind": "text", "text": "", "position": [1, 2], "offset": [-2, 5.5]}],
                                                       "spherical": []})")
                                     << 0 << QString();
        // Numbers are read as floats and printed with every digit of the double they become:
        // float(1234.57) = 1234.5699462890625, float(0.1) = 0.100000001490116119384765625.
        QTest::newRow("single precision shown in full") << document("   <polygonitem>\n"
                                                                    "      <point>1234.57, 0.1</point>\n"
                                                                    "   </polygonitem>\n")
                                                        << QByteArray(R"({"planar": [{"kind": "polygon", "points": [[1234.5699462890625, 0.100000001490116119384765625]]}],
                                                                          "spherical": []})")
                                                        << 0 << QString();
        // The second polygon's point ends at column 6 + 7 + 7 + 8 = 28 of line 8.
        QTest::newRow("parse fault keeps the items before it") << document("   <polygonitem>\n"
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
            QVERIFY(writeFile(annotationPath, annotations));

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

        QTest::newRow("no annotation file gives an empty document") << QByteArray() << document("");
        QTest::newRow("writer's layout comes back unchanged") << everyKind << everyKind;
        // Six digits, single precision, whole-cell text anchors, no offset.
        QTest::newRow("values rewritten as the writer keeps them") << document("   <polygonitem>\n"
                                                                              "      <point>1234567, 0.10</point>\n"
                                                                              "   </polygonitem>\n"
                                                                              "   <textitem>\n"
                                                                              "      <text>t</text>\n"
                                                                              "      <position>12.9, -3.7</position>\n"
                                                                              "      <positionOffset>4, 5</positionOffset>\n"
                                                                              "   </textitem>\n")
                                                                   << document("   <polygonitem>\n"
                                                                               "      <point>1.23457e+06, 0.1</point>\n"
                                                                               "   </polygonitem>\n"
                                                                               "   <textitem>\n"
                                                                               "      <position>12, -3</position>\n"
                                                                               "      <text>t</text>\n"
                                                                               "   </textitem>\n");
        QTest::newRow("nothing rewritten after a parse fault") << document("   <polygonitem><point>1</point></polygonitem>\n") << QByteArray();
    }

    void rewrite()
    {
        QFETCH(QByteArray, annotations);
        QFETCH(QByteArray, rewritten);

        QTemporaryDir dir;
        if (!annotations.isNull())
            QVERIFY(writeFile(dir.filePath(QStringLiteral("north-viewer.xml")), annotations));
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
        QTest::newRow("rewrite twice") << QStringList{"a.tvx", "--rewrite", "x.xml", "--rewrite", "y.xml"};
        QTest::newRow("rewrite but no scan") << QStringList{"--rewrite", "x.xml"};
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
