#include "../fileio/scanfixture.h"
#include "testfiles.h"
#include "testregistry.h"
#include "toolrun.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"
#include "fileio/scangeometry.h"
#include "scene/scanviewscenegraph.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
// The test scans: 10 × 7 pattern cells in tiles of 4 (tile strips 4, 4, 2 wide and rows 4, 3 high).
QString writeScan(const QTemporaryDir& dir, const QString& name, int channels)
{
    return writePatternScan(dir.path(), name, 10, 7, 4, channels);
}

const int allChannels = DistanceChannel | IntensityChannel | ColourChannel;
} // namespace

class ScanCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void infoReportsEveryField()
    {
        QTemporaryDir dir;
        TVXFileWriter writer;
        TVXFileScanInfo& info = writer.scanInfo();
        setGrid(info, 10, 7, 4, allChannels);
        info.text = QStringLiteral("station north");
        for (int i = 0; i < 16; ++i)
            info.transformation[std::size_t(i)] = i * 0.5 + 0.1;
        info.segments.push_back({Vector3d(1, 2, 3), Vector3d(4, 5, 6)});
        info.boundingBoxMin = Vector3d(-1, -2, -3);
        writer.layerTable().layers = {{7, QStringLiteral("Pipes"), true, false}};
        writer.metaInfo().setText(0x140F01, QStringLiteral("scanner model X"));
        writer.metaInfo().dateTime = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
        writer.metaInfo().number = 42;
        writer.metaInfo().extra.insert(0x14AB01, QVariant(QStringLiteral("extra text")));
        writer.referenceInfo().name = QStringLiteral("site grid");
        writer.referenceInfo().flag = true;
        writer.referenceInfo().appendObject(std::make_shared<TVXSReferenceSphere>(QStringLiteral("sphere 1"), TVXSReferencePoint::Values{}));
        writer.sceneItems2D() = {std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2), QPointF(3.5, 4)})),
                                 std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4)), std::make_shared<TVXSEllipse>(QRectF(5, 6, 7, 8)),
                                 std::make_shared<TVXSSimpleText>(QStringLiteral("door"), QPointF(9, 8), QPointF(-1, 2)),
                                 std::make_shared<TVXSDimensioning>(2, QPointF(1, 1), QPointF(2, 3))};
        writer.scene3D()->addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("t"), Vector3d(1, 0, 0)));
        writer.scene3D()->addItem(std::make_shared<ScanViewMeasurementItem>(1, Vector3d(1, 0, 0), Vector3d(0, 1, 0)));
        writer.setCellSource(patternCell);
        QVERIFY(writer.write(dir.filePath(QStringLiteral("full.tvx"))));

        // Run from the scan's folder with a relative path: the report gives it absolute.
        const ToolRun run = runTool({QStringLiteral("info"), QStringLiteral("full.tvx")}, dir.path());
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();
        QStringList keys = json.keys();
        QStringList expected{"path", "formatVersion", "writerVersion", "scanKind", "columns", "rows", "tileSize",
                             "horizontalMin", "horizontalMax", "verticalMin", "verticalMax", "channels", "recordSize",
                             "tilesX", "tilesY", "transformation", "boundingBoxMin", "boundingBoxMax", "text",
                             "segments", "layers", "meta", "reference", "sceneItems", "scene3d"};
        keys.sort();
        expected.sort();
        QCOMPARE(keys, expected);

        QCOMPARE(json.value("path").toString(), QDir(dir.path()).absoluteFilePath("full.tvx"));
        QCOMPARE(json.value("formatVersion").toInt(), 2);
        QCOMPARE(json.value("writerVersion").toArray(), QJsonArray({2021, 1, 151}));
        QCOMPARE(json.value("columns").toInt(), 10);
        QCOMPARE(json.value("tilesX").toInt(), 3); // ceil(10 / 4)
        QCOMPARE(json.value("tilesY").toInt(), 2); // ceil(7 / 4)
        QCOMPARE(json.value("recordSize").toInt(), 9);
        QCOMPARE(json.value("horizontalMax").toDouble(), M_PI); // full double precision
        QCOMPARE(json.value("channels").toArray(), QJsonArray({QJsonArray{1, 0}, QJsonArray{2, 8}, QJsonArray{3, 24}}));
        QCOMPARE(json.value("transformation").toArray().at(15).toDouble(), 7.6);
        QCOMPARE(json.value("boundingBoxMin").toArray(), QJsonArray({-1, -2, -3}));
        QCOMPARE(json.value("text").toString(), QStringLiteral("station north"));
        QCOMPARE(json.value("segments").toInt(), 1);
        QCOMPARE(json.value("layers").toArray(),
                 QJsonArray({QJsonObject{{"id", 7}, {"name", "Pipes"}, {"flags", QJsonArray{true, false}}}}));

        // Every text field is listed, set or not.
        const QJsonObject meta = json.value("meta").toObject();
        const QJsonObject texts = meta.value("texts").toObject();
        QCOMPARE(texts.size(), 16);
        QCOMPARE(texts.value("0x140F01").toString(), QStringLiteral("scanner model X"));
        QCOMPARE(texts.value("0x140001"), QJsonValue(""));
        QCOMPARE(meta.value("dateTime").toString(), QStringLiteral("2024-05-06T07:08:09.123Z"));
        QCOMPARE(meta.value("number").toInt(), 42);
        QCOMPARE(meta.value("extra").toObject(), QJsonObject({{"0x14AB01", "extra text"}}));
        QCOMPARE(json.value("reference").toObject(),
                 QJsonObject({{"name", "site grid"}, {"flag", true}, {"objects", QJsonArray{QJsonObject{{"kind", 2}, {"name", "sphere 1"}}}}}));
        QCOMPARE(json.value("sceneItems").toArray(),
                 QJsonArray({QJsonObject{{"kind", 1}, {"points", QJsonArray{QJsonArray{1, 2}, QJsonArray{3.5, 4}}}},
                             QJsonObject{{"kind", 2}, {"rect", QJsonArray{1, 2, 3, 4}}},
                             QJsonObject{{"kind", 3}, {"rect", QJsonArray{5, 6, 7, 8}}},
                             QJsonObject{{"kind", 4}, {"text", "door"}, {"position", QJsonArray{9, 8}}, {"offset", QJsonArray{-1, 2}}},
                             QJsonObject{{"kind", 6}, {"type", 2}, {"points", QJsonArray{QJsonArray{1, 1}, QJsonArray{2, 3}}}}}));
        QCOMPARE(json.value("scene3d").toObject(),
                 QJsonObject({{"polygons", 0}, {"rectangles", 0}, {"ellipses", 0}, {"texts", 1}, {"measurements", 1}}));
    }

    void pointReportsTheCell_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("column");
        QTest::addColumn<quint32>("row");
        QTest::newRow("all channels, last strip") << allChannels << 9u << 2u;
        QTest::newRow("distance only, last row") << int(DistanceChannel) << 3u << 6u;
        QTest::newRow("no return") << allChannels << 2u << 4u; // (3·2 + 4) mod 7 = 3
    }

    void pointReportsTheCell()
    {
        QFETCH(int, channels);
        QFETCH(quint32, column);
        QFETCH(quint32, row);
        QTemporaryDir dir;
        const ToolRun run = runTool({"point", writeScan(dir, "p", channels), QString::number(column), QString::number(row)});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject json = run.json();

        TVXFileScanInfo info;
        setGrid(info, 10, 7, 4, channels);
        const TVXFileCell cell = patternCell(column, row);
        const double d = cell.distanceMm * 0.001;
        const Vector3d p = pointOfCell(column, row, cell.dx, cell.dy, d, info.gridAngles());
        QCOMPARE(json.value("column").toInt(), int(column));
        QCOMPARE(json.value("valid").toBool(), d != 0.0);
        QVERIFY((Vector3d(json.value("x").toDouble(), json.value("y").toDouble(), json.value("z").toDouble()) - p).length() < 1e-9);
        QCOMPARE(json.value("distance").toDouble(), d);
        // Intensity and colour as stored, even without a return; null without their channel.
        QCOMPARE(json.value("intensity"), (channels & IntensityChannel) ? QJsonValue(cell.intensity) : QJsonValue());
        QCOMPARE(json.value("colour"), (channels & ColourChannel) ? QJsonValue(QJsonArray{cell.red, cell.green, cell.blue}) : QJsonValue());
    }

    void cloudWritesValidPoints_data()
    {
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("suffix");
        QTest::newRow("ply with colour") << allChannels << 1 << "ply";
        QTest::newRow("ply grey from intensity, step 2") << int(DistanceChannel | IntensityChannel) << 2 << "ply";
        QTest::newRow("ply without colour, step 3") << int(DistanceChannel) << 3 << "ply";
        QTest::newRow("xyz text") << allChannels << 2 << "xyz";
    }

    void cloudWritesValidPoints()
    {
        QFETCH(int, channels);
        QFETCH(int, step);
        QFETCH(QString, suffix);
        QTemporaryDir dir;
        const QString out = dir.filePath(QStringLiteral("cloud.") + suffix);
        QCOMPARE(runTool({"cloud", writeScan(dir, "c", channels), "--output", out, "--step", QString::number(step)}).exitCode, 0);

        // Valid cells: every column and row that is a multiple of the step, except the pattern's holes.
        int expected = 0;
        for (quint32 c = 0; c < 10; c += quint32(step))
            for (quint32 r = 0; r < 7; r += quint32(step))
                expected += patternCell(c, r).distanceMm != 0;
        const QByteArray bytes = readBytes(out);
        if (suffix == QLatin1String("xyz")) {
            const QList<QByteArray> lines = bytes.trimmed().split('\n');
            QCOMPARE(lines.size(), expected);
            // Three numbers of nine digits.
            const QList<QByteArray> xyz = lines.first().split(' ');
            QCOMPARE(xyz.size(), 3);
            QVERIFY(xyz.at(0).size() >= 9);
            return;
        }
        const int end = bytes.indexOf("end_header\n") + int(qstrlen("end_header\n"));
        const QByteArray header = bytes.left(end);
        const bool coloured = channels != DistanceChannel;
        QVERIFY(header.startsWith("ply\nformat binary_little_endian 1.0\n"));
        QVERIFY(header.contains("element vertex " + QByteArray::number(expected) + "\n"));
        QVERIFY(header.contains("property float x\nproperty float y\nproperty float z\n"));
        QCOMPARE(header.contains("property uchar red"), coloured);
        QCOMPARE(bytes.size() - end, expected * (coloured ? 15 : 12));
        // The second point in tile order is cell (0, step): colour (0, step, step), grey its intensity step.
        if (coloured)
            QCOMPARE(int(quint8(bytes.at(end + 15 + 12))), (channels & ColourChannel) ? 0 : step);
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments"); // %SCAN and the like stand for prepared files
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("unknown command") << QStringList{"inf", "%SCAN"} << 2 << "usage:";
        QTest::newRow("info extra argument") << QStringList{"info", "%SCAN", "x"} << 2 << "usage:";
        QTest::newRow("point fractional cell") << QStringList{"point", "%SCAN", "1.5", "2"} << 2 << "usage:";
        QTest::newRow("cloud without output") << QStringList{"cloud", "%SCAN"} << 2 << "usage:";
        QTest::newRow("cloud step 0") << QStringList{"cloud", "%SCAN", "--output", "%OUT", "--step", "0"} << 2 << "usage:";
        QTest::newRow("missing scan file") << QStringList{"info", "%MISSING"} << 1 << "cannot open %MISSING\n";
        QTest::newRow("missing data file") << QStringList{"info", "%NODATA"} << 1 << "cannot open %NODATADATA\n";
        QTest::newRow("not a scan") << QStringList{"info", "%GARBAGE"} << 1 << "not a scan file: %GARBAGE\n";
        QTest::newRow("point out of range") << QStringList{"point", "%SCAN", "10", "0"} << 1 << "cell out of range\n";
        QTest::newRow("point without distance") << QStringList{"point", "%NODIST", "1", "1"} << 1 << "scan has no distance channel\n";
        QTest::newRow("cloud without distance") << QStringList{"cloud", "%NODIST", "--output", "%OUT"} << 1 << "scan has no distance channel\n";
        QTest::newRow("point in short data") << QStringList{"point", "%SHORT", "9", "6"} << 1 << "data file too short: %SHORTDATA\n";
        QTest::newRow("cloud of short data") << QStringList{"cloud", "%SHORT", "--output", "%OUT"} << 1 << "data file too short: %SHORTDATA\n";
    }

    void errors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);

        QTemporaryDir dir;
        writeScan(dir, "nodata", allChannels);
        QFile::remove(dir.filePath(QStringLiteral("nodata.tvxsd")));
        writeScan(dir, "short", allChannels);
        QFile::resize(dir.filePath(QStringLiteral("short.tvxsd")), 40);
        QVERIFY(writeBytes(dir.filePath(QStringLiteral("garbage.tvx")), QByteArray(64, 'x')));
        writeScan(dir, "ok", allChannels);
        QFile::copy(dir.filePath(QStringLiteral("ok.tvxsd")), dir.filePath(QStringLiteral("garbage.tvxsd")));
        const QList<QPair<QString, QString>> placeholders{
            {"%SHORTDATA", dir.filePath("short.tvxsd")}, {"%NODATADATA", dir.filePath("nodata.tvxsd")},
            {"%SCAN", dir.filePath("ok.tvx")}, {"%NODIST", writeScan(dir, "colour", ColourChannel)},
            {"%SHORT", dir.filePath("short.tvx")}, {"%NODATA", dir.filePath("nodata.tvx")},
            {"%GARBAGE", dir.filePath("garbage.tvx")}, {"%MISSING", dir.filePath("missing.tvx")}, {"%OUT", dir.filePath("out.ply")}};
        const auto fill = [&placeholders](QString text) {
            for (const auto& [key, value] : placeholders)
                text.replace(key, value);
            return text;
        };
        QStringList filled;
        for (const QString& argument : arguments)
            filled << fill(argument);

        const ToolRun run = runTool(filled);
        QCOMPARE(run.exitCode, exitCode);
        if (exitCode == 2)
            QVERIFY(run.err.startsWith(fill(message).toUtf8()));
        else
            QCOMPARE(QString::fromUtf8(run.err), fill(message));
        QVERIFY(run.out.isEmpty());
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("out.ply"))));
    }

    void readErrorMessageIsPassedOn()
    {
        // Header of version 2: magic, version, 3 × writer version, stream version, 2 tags = 32 bytes;
        // then the first directory entry's tag (4 bytes) and half of its offset: the reader throws.
        QTemporaryDir dir;
        const QString scan = writeScan(dir, "cut", allChannels);
        QVERIFY(writeBytes(scan, readBytes(scan).left(32 + 4 + 4)));
        const ToolRun run = runTool({"info", scan});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.err, QByteArray("file read error libs/core/src/fileio/tvxfile, line 243\n"));
    }
};

TVX_TEST(ScanCommandsTest)

#include "scancommandstest.moc"
