#include "../annotations/viewerscenefixture.h"
#include "../project/projectfixtures.h"
#include "testregistry.h"
#include "toolrun.h"

#include "annotations/sceneitemstablemodel.h"
#include "annotations/viewerscenewriter.h"
#include "scene/scanviewscenegraph.h"
#include "scene/tvxspolygon.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <cmath>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

struct PointRow {
    const char* name;
    int channels;
    quint32 column, row;
};

struct CloudRow {
    const char* name;
    int channels;
    quint32 step;
};

// A planar polygon and a spherical text, as the project's own writer lays them out.
QByteArray writtenDocument()
{
    SceneItemsTableModel model;
    ScanViewSceneGraph graph;
    model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(12.5, 40), QPointF(-1, 0.25)})));
    graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("north"), Vector3d(0, 0, 1)));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ViewerSceneWriter(&buffer).write(model, &graph);
    return buffer.data();
}

} // namespace
Q_DECLARE_METATYPE(PointRow)
Q_DECLARE_METATYPE(CloudRow)

// What each command prints: the JSON keys and their types, a few values known without the
// reader, and the binary cloud against the points the library reads.
class ToolOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void info()
    {
        QTemporaryDir dir;
        TVXFileWriter writer;
        writer.writerMajor = 2022;
        writer.writerMinor = 7;
        writer.writerPatch = 9;
        setGrid(writer.scanInfo(), 10, 7, 4, AllChannels);
        writer.metaInfo().dateTime = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
        writer.sceneItems2D() = {std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2), QPointF(3.5, 4)}))};
        QVERIFY(writer.write(dir.filePath(QStringLiteral("north.tvx"))));

        // Run from the scan's folder with a relative path: the report names it absolute.
        const ToolRun run = runTool({QStringLiteral("info"), QStringLiteral("north.tvx")}, dir.path());
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QCOMPARE(jsonShape(json),
                 QStringLiteral("boundingBoxMax:a boundingBoxMin:a channels:a columns:n formatVersion:n "
                                "horizontalMax:n horizontalMin:n layers:a meta:o path:s recordSize:n reference:o "
                                "rows:n scanKind:n scene3d:o sceneItems:a segments:n text:s tileSize:n tilesX:n "
                                "tilesY:n transformation:a verticalMax:n verticalMin:n writerVersion:a"));
        QCOMPARE(jsonShape(json["meta"].toObject()), QStringLiteral("dateTime:s extra:o number:n texts:o"));
        QCOMPARE(jsonShape(json["reference"].toObject()), QStringLiteral("flag:b name:s objects:a"));
        QCOMPARE(jsonShape(json["scene3d"].toObject()),
                 QStringLiteral("ellipses:n measurements:n polygons:n rectangles:n texts:n"));

        QCOMPARE(json["path"].toString(), QDir(dir.path()).absoluteFilePath(QStringLiteral("north.tvx")));
        QCOMPARE(json["writerVersion"].toArray(), QJsonArray({2022, 7, 9}));
        // ceil(10 / 4) = 3 tile columns, ceil(7 / 4) = 2 tile rows; records of 5 + 1 + 3 bytes.
        QCOMPARE(json["tilesX"].toInt(), 3);
        QCOMPARE(json["tilesY"].toInt(), 2);
        QCOMPARE(json["recordSize"].toInt(), 9);
        QCOMPARE(json["meta"]["dateTime"].toString(), QStringLiteral("2024-05-06T07:08:09.123Z"));
        QCOMPARE(json["sceneItems"][0].toObject(),
                 QJsonObject({{"kind", 1}, {"points", QJsonArray{QJsonArray{1, 2}, QJsonArray{3.5, 4}}}}));
    }

    void point_data()
    {
        QTest::addColumn<PointRow>("row");
        // 10 × 7 pattern cells in tiles of 4.
        const PointRow rows[] = {
            {"all channels, last tile strip", AllChannels, 9, 2},
            {"no return", AllChannels, 2, 4}, // (3·2 + 4) mod 7 = 3
        };
        for (const PointRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void point()
    {
        QFETCH(PointRow, row);
        QTemporaryDir dir;
        const QString scan = writePatternScan(dir.path(), QStringLiteral("p"), 10, 7, 4, row.channels);
        const ToolRun run = runTool({"point", scan, QString::number(row.column), QString::number(row.row)});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        const bool grey = row.channels & IntensityChannel;
        const bool colour = row.channels & ColourChannel;
        // Intensity and colour are null without their channel.
        QCOMPARE(jsonShape(json), QStringLiteral("colour:%1 column:n distance:n intensity:%2 row:n valid:b x:n y:n z:n")
                                      .arg(QLatin1String(colour ? "a" : "0"), QLatin1String(grey ? "n" : "0")));

        const TVXFileCell cell = patternCell(row.column, row.row);
        const double d = cell.distanceMm * 0.001;
        QCOMPARE(json["distance"].toDouble(), d);
        QCOMPARE(json["valid"].toBool(), d != 0.0);
        // Wherever the angles put it, the point lies at its distance from the station.
        const double length = std::hypot(json["x"].toDouble(), json["y"].toDouble(),
                                         json["z"].toDouble());
        QVERIFY2(std::abs(length - d) < 1e-9, qPrintable(QString::number(length)));
        // As stored, also without a return.
        if (grey)
            QCOMPARE(json["intensity"].toInt(), int(cell.intensity));
        if (colour)
            QCOMPARE(json["colour"].toArray(), QJsonArray({cell.red, cell.green, cell.blue}));
    }

    void plyCloud_data()
    {
        QTest::addColumn<CloudRow>("row");
        const CloudRow rows[] = {
            {"colour", AllChannels, 1},
            {"no colour, every third cell", DistanceChannel, 3},
        };
        for (const CloudRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void plyCloud()
    {
        QFETCH(CloudRow, row);
        QTemporaryDir dir;
        const QString scan = writePatternScan(dir.path(), QStringLiteral("c"), 10, 7, 4, row.channels);
        const QString out = dir.filePath(QStringLiteral("cloud.ply"));
        QCOMPARE(runTool({"cloud", scan, "--output", out, "--step", QString::number(row.step)}).exitCode, 0);

        const QByteArray bytes = readBytes(out);
        const QByteArray start = "ply\nformat binary_little_endian 1.0\nelement vertex ";
        QVERIFY(bytes.startsWith(start));
        const int count = bytes.mid(start.size(), bytes.indexOf('\n', start.size()) - start.size()).toInt();
        const bool coloured = row.channels != DistanceChannel;
        const QByteArray properties =
            QByteArray("property float x\nproperty float y\nproperty float z\n")
            + (coloured ? "property uchar red\nproperty uchar green\nproperty uchar blue\n" : "") + "end_header\n";
        const int body = bytes.indexOf(properties) + properties.size();
        QVERIFY(body > start.size());
        const int stride = coloured ? 15 : 12;
        QCOMPARE(bytes.size() - body, count * stride);

        // The valid cells of every step-th column and row, in tile order, as the library reads them.
        TVXFile file(scan);
        QVERIFY(file.open() && file.readHeader());
        int vertex = 0;
        TVXFileTile tile;
        for (quint32 tc = 0; tc < 3; ++tc) {
            for (quint32 tr = 0; tr < 2; ++tr) {
                QVERIFY(file.readTile(tc, tr, tile));
                for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
                    for (quint32 r = tile.firstRow; r <= tile.lastRow; ++r) {
                        const std::size_t i = tile.indexOf(c, r);
                        if (c % row.step || r % row.step || tile.distances[i] == 0.0)
                            continue;
                        QVERIFY(vertex < count);
                        const char* record = bytes.constData() + body + vertex++ * stride;
                        const Vector3d& p = tile.points[i];
                        QVERIFY(qFromLittleEndian<float>(record) == float(p.x)
                                && qFromLittleEndian<float>(record + 4) == float(p.y)
                                && qFromLittleEndian<float>(record + 8) == float(p.z));
                        quint8 red = 0, green = 0, blue = 0;
                        if (coloured && tile.colourOrGrey(i, red, green, blue))
                            QVERIFY(quint8(record[12]) == red && quint8(record[13]) == green
                                    && quint8(record[14]) == blue);
                    }
                }
            }
        }
        QCOMPARE(vertex, count);
    }

    void annotations()
    {
        QTemporaryDir dir;
        const QString scan = dir.filePath(QStringLiteral("north.tvx"));
        const QString annotationFile = dir.filePath(QStringLiteral("north-viewer.xml"));
        ToolRun run = runTool({QStringLiteral("annotations"), scan});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.json(), QJsonObject({{"planar", QJsonArray()}, {"spherical", QJsonArray()}}));

        const QByteArray document = writtenDocument();
        QVERIFY(writeBytes(annotationFile, document));
        const QString rewritten = dir.filePath(QStringLiteral("out.xml"));
        run = runTool({QStringLiteral("annotations"), scan, QStringLiteral("--rewrite"), rewritten});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out.count('\n'), 1); // one compact line
        const QJsonObject json = run.json();
        const QJsonArray polygon{QJsonArray{12.5, 40}, QJsonArray{-1, 0.25}};
        QCOMPARE(json["planar"].toArray(), QJsonArray({QJsonObject{{"kind", "polygon"}, {"points", polygon}}}));
        const QJsonObject text{{"kind", "text"}, {"text", "north"}, {"position", QJsonArray{0, 0, 1}}};
        QCOMPARE(json["spherical"].toArray(), QJsonArray({text}));
        // The writer's own layout comes back unchanged.
        QCOMPARE(readBytes(rewritten), document);

        // A parse fault: what was read before it is shown, the exit code is 1 and nothing is rewritten.
        QVERIFY(writeBytes(annotationFile, viewerDocument("   <polygonitem><point>1, 2</point></polygonitem>\n"
                                                          "   <polygonitem><point>1</point></polygonitem>\n")));
        QVERIFY(QFile::remove(rewritten));
        run = runTool({QStringLiteral("annotations"), scan, QStringLiteral("--rewrite"), rewritten});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.err.startsWith("Parse error in file " + annotationFile.toUtf8()), run.err.constData());
        QCOMPARE(run.json()["planar"].toArray().size(), 1);
        QVERIFY(!QFile::exists(rewritten));
    }

    void project()
    {
        QTemporaryDir dir;
        QVERIFY(writeBytes(dir.filePath(QStringLiteral("site.tvxprj")), build(typicalFields())));
        const ToolRun run = runTool({QStringLiteral("project"), QStringLiteral("site.tvxprj")}, dir.path());
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QCOMPARE(jsonShape(json), QStringLiteral("coordinateSystems:a currentCoordinateSystem:n formatVersion:n "
                                                 "origin:a path:s scans:a tree:o writerVersion:a"));
        QCOMPARE(json["path"].toString(), QDir(dir.path()).absoluteFilePath(QStringLiteral("site.tvxprj")));
        // As typicalFields() wrote them; the tree is scans( Facade( north#0 ) süd#1 -east#2 ).
        QCOMPARE(json["scans"].toArray(),
                 QJsonArray({"scans/north.tvx", QStringLiteral("scans/süd.tvx"), "scans/east.tvx"}));
        QCOMPARE(json["origin"].toArray(), QJsonArray({1.5, -2.25, 310.0}));
        const QJsonObject tree = json["tree"].toObject();
        QCOMPARE(jsonShape(tree), QStringLiteral("children:a enabled:b name:s type:s"));
        QCOMPARE(tree["children"][1].toObject(),
                 QJsonObject({{"type", "scan"}, {"name", QStringLiteral("süd")}, {"id", 1}, {"enabled", true}}));
    }
};

TVX_TEST(ToolOutputTest)

#include "tooloutputtest.moc"
