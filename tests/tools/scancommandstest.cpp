#include "testregistry.h"

#include "annotations/tvxsdimensioning.h"
#include "annotations/tvxsellipse.h"
#include "annotations/tvxspolygon.h"
#include "annotations/tvxsrectangle.h"
#include "annotations/tvxsreferencesphere.h"
#include "annotations/tvxssimpletext.h"
#include "fileio/tvxfilelayertable.h"
#include "fileio/tvxfilemetainfo.h"
#include "fileio/tvxfilereferenceinfo.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"
#include "glviews/scanviewscenegraph.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <cmath>

using namespace TVX::CORE;

namespace {

struct ToolResult {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
    QJsonObject json() const { return QJsonDocument::fromJson(out).object(); }
};

ToolResult runTool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(TVX_BIN_DIR "/tvxtool"), arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

// Cell (c, r) of the test scans: distance 1000 + 10·c + r mm, no return where c = r, intensity c + r,
// colour (c, r, 7), sub-cell offsets (c mod 5 − 2, r mod 3 − 1).
TVXFileCell testCell(quint32 c, quint32 r)
{
    TVXFileCell cell;
    cell.distanceMm = c == r ? 0 : 1000 + 10 * c + r;
    cell.dx = qint8(int(c % 5) - 2);
    cell.dy = qint8(int(r % 3) - 1);
    cell.intensity = quint8(c + r);
    cell.red = quint8(c);
    cell.green = quint8(r);
    cell.blue = 7;
    return cell;
}

void prepareWriter(TVXFileWriter& writer, const QList<quint32>& channelTypes, quint32 columns = 10, quint32 rows = 7)
{
    TVXFileScanInfo& info = writer.scanInfo();
    info.columns = columns;
    info.rows = rows;
    info.tileSize = 4; // 10 x 7 cells: tile strips 4, 4, 2 wide and rows 4, 3 high
    info.horizontalMin = 0.0;
    info.horizontalMax = M_PI;
    info.verticalMin = -0.5;
    info.verticalMax = 0.7;
    info.channels.clear();
    for (quint32 type : channelTypes)
        info.channels.push_back({type, 0});
    writer.setCellSource(testCell);
}

QString writeScan(const QTemporaryDir& dir, const QString& name, const QList<quint32>& channelTypes)
{
    TVXFileWriter writer;
    prepareWriter(writer, channelTypes);
    const QString path = dir.filePath(name);
    QString error;
    if (!writer.write(path, &error))
        qWarning("%s", qPrintable(error));
    return path;
}

const QList<quint32> allChannels{TVXFileScanInfo::Distance, TVXFileScanInfo::Intensity, TVXFileScanInfo::Colour};

} // namespace

class ScanCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void infoReportsEveryField()
    {
        QTemporaryDir dir;
        TVXFileWriter writer;
        prepareWriter(writer, allChannels);
        TVXFileScanInfo& info = writer.scanInfo();
        info.text = QStringLiteral("station north");
        for (int i = 0; i < 16; ++i)
            info.transformation[std::size_t(i)] = i * 0.5 + 0.1;
        info.segments.push_back({Vector3d(1, 2, 3), Vector3d(4, 5, 6)});
        info.boundingBoxMin = Vector3d(-1, -2, -3);
        info.boundingBoxMax = Vector3d(1, 2, 3);
        writer.layerTable().layers = {{7, QStringLiteral("Pipes"), true, false}};
        writer.metaInfo().setText(0x140F01, QStringLiteral("scanner model X"));
        writer.metaInfo().dateTime = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
        writer.metaInfo().number = 42;
        writer.metaInfo().extra.insert(0x14AB01, QVariant(QStringLiteral("extra text")));
        writer.referenceInfo().name = QStringLiteral("site grid");
        writer.referenceInfo().flag = true;
        writer.referenceInfo().appendObject(std::make_shared<TVXSReferenceSphere>(
            QStringLiteral("sphere 1"), TVXSReferencePoint::Values{1, 2, 3, 0.07, 0, 0, 0, 0, 0, 0}));
        auto& items = writer.sceneItems2D();
        items.push_back(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2), QPointF(3.5, 4)})));
        items.push_back(std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4)));
        items.push_back(std::make_shared<TVXSEllipse>(QRectF(5, 6, 7, 8)));
        items.push_back(std::make_shared<TVXSSimpleText>(QStringLiteral("door"), QPointF(9, 8), QPointF(-1, 2)));
        items.push_back(std::make_shared<TVXSDimensioning>(2, QPointF(1, 1), QPointF(2, 3)));
        writer.scene3D()->addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("t"), Vector3d(1, 0, 0)));
        writer.scene3D()->addItem(std::make_shared<ScanViewMeasurementItem>(1, Vector3d(1, 0, 0), Vector3d(0, 1, 0)));
        const QString path = dir.filePath(QStringLiteral("full.tvx"));
        QVERIFY(writer.write(path));

        // Run from the scan's folder with a relative path: the report gives it absolute.
        QProcess process;
        process.setWorkingDirectory(dir.path());
        process.start(QStringLiteral(TVX_BIN_DIR "/tvxtool"), {QStringLiteral("info"), QStringLiteral("full.tvx")});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 0);
        const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();

        QStringList keys = json.keys();
        keys.sort();
        QStringList expected{"path", "formatVersion", "writerVersion", "scanKind", "columns", "rows", "tileSize",
                             "horizontalMin", "horizontalMax", "verticalMin", "verticalMax", "channels", "recordSize",
                             "tilesX", "tilesY", "transformation", "boundingBoxMin", "boundingBoxMax", "text",
                             "segments", "layers", "meta", "reference", "sceneItems", "scene3d"};
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
        QCOMPARE(json.value("channels").toArray(), QJsonArray({QJsonArray{1, 0}, QJsonArray{2, 0}, QJsonArray{3, 0}}));
        QCOMPARE(json.value("transformation").toArray().at(15).toDouble(), 7.6);
        QCOMPARE(json.value("boundingBoxMin").toArray(), QJsonArray({-1, -2, -3}));
        QCOMPARE(json.value("text").toString(), QStringLiteral("station north"));
        QCOMPARE(json.value("segments").toInt(), 1);
        QCOMPARE(json.value("layers").toArray(),
                 QJsonArray({QJsonObject{{"id", 7}, {"name", "Pipes"}, {"flags", QJsonArray{true, false}}}}));

        const QJsonObject meta = json.value("meta").toObject();
        const QJsonObject texts = meta.value("texts").toObject();
        QCOMPARE(texts.size(), 16);
        QCOMPARE(texts.value("0x140F01").toString(), QStringLiteral("scanner model X"));
        QVERIFY(texts.contains("0x140001"));
        QCOMPARE(texts.value("0x140001").toString(), QString(""));
        QCOMPARE(meta.value("dateTime").toString(), QStringLiteral("2024-05-06T07:08:09.123Z"));
        QCOMPARE(meta.value("number").toInt(), 42);
        QCOMPARE(meta.value("extra").toObject(), QJsonObject({{"0x14AB01", "extra text"}}));

        QCOMPARE(json.value("reference").toObject(),
                 QJsonObject({{"name", "site grid"},
                              {"flag", true},
                              {"objects", QJsonArray{QJsonObject{{"kind", 2}, {"name", "sphere 1"}}}}}));

        const QJsonArray scene = json.value("sceneItems").toArray();
        QCOMPARE(scene.size(), 5);
        QCOMPARE(scene.at(0).toObject(), QJsonObject({{"kind", 1}, {"points", QJsonArray{QJsonArray{1, 2}, QJsonArray{3.5, 4}}}}));
        QCOMPARE(scene.at(1).toObject(), QJsonObject({{"kind", 2}, {"rect", QJsonArray{1, 2, 3, 4}}}));
        QCOMPARE(scene.at(2).toObject(), QJsonObject({{"kind", 3}, {"rect", QJsonArray{5, 6, 7, 8}}}));
        QCOMPARE(scene.at(3).toObject(), QJsonObject({{"kind", 4},
                                                      {"text", "door"},
                                                      {"position", QJsonArray{9, 8}},
                                                      {"offset", QJsonArray{-1, 2}}}));
        QCOMPARE(scene.at(4).toObject(), QJsonObject({{"kind", 6}, {"type", 2}, {"points", QJsonArray{QJsonArray{1, 1}, QJsonArray{2, 3}}}}));
        QCOMPARE(json.value("scene3d").toObject(),
                 QJsonObject({{"polygons", 0}, {"rectangles", 0}, {"ellipses", 0}, {"texts", 1}, {"measurements", 1}}));
    }

    void pointReportsTheCell_data()
    {
        QTest::addColumn<QList<quint32>>("channels");
        QTest::addColumn<quint32>("column");
        QTest::addColumn<quint32>("row");
        QTest::newRow("all channels, last strip") << allChannels << 9u << 2u;
        QTest::newRow("distance only, last row") << QList<quint32>{TVXFileScanInfo::Distance} << 3u << 6u;
        QTest::newRow("no return") << allChannels << 4u << 4u;
    }

    void pointReportsTheCell()
    {
        QFETCH(QList<quint32>, channels);
        QFETCH(quint32, column);
        QFETCH(quint32, row);
        QTemporaryDir dir;
        const QString scan = writeScan(dir, QStringLiteral("p.tvx"), channels);
        const ToolResult result = runTool({"point", scan, QString::number(column), QString::number(row)});
        QCOMPARE(result.exitCode, 0);
        const QJsonObject json = result.json();

        // Expected point from the grid: h = c·π/9 + dx·halfDiag/127, v = (7 − r − 1)·1.2/6 − 0.5 + dy·halfDiag/127,
        // x = cos h·d·cos v, y = −sin h·d·cos v, z = sin v·d.
        const TVXFileCell cell = testCell(column, row);
        const double hStep = M_PI / 9, vStep = 1.2 / 6;
        const double halfDiag = 0.5 * std::sqrt(hStep * hStep + vStep * vStep);
        const double h = column * hStep + cell.dx * halfDiag / 127.0;
        const double v = (7 - row - 1) * vStep - 0.5 + cell.dy * halfDiag / 127.0;
        const double d = cell.distanceMm * 0.001;
        QCOMPARE(json.value("column").toInt(), int(column));
        QCOMPARE(json.value("valid").toBool(), d != 0.0);
        QVERIFY(std::abs(json.value("x").toDouble() - std::cos(h) * d * std::cos(v)) < 1e-9);
        QVERIFY(std::abs(json.value("y").toDouble() + std::sin(h) * d * std::cos(v)) < 1e-9);
        QVERIFY(std::abs(json.value("z").toDouble() - std::sin(v) * d) < 1e-9);
        QCOMPARE(json.value("distance").toDouble(), d);
        if (channels.contains(TVXFileScanInfo::Intensity))
            QCOMPARE(json.value("intensity").toInt(), int(cell.intensity)); // as stored, even without return
        else
            QVERIFY(json.value("intensity").isNull());
        if (channels.contains(TVXFileScanInfo::Colour))
            QCOMPARE(json.value("colour").toArray().at(0).toInt(), int(cell.red));
        else
            QVERIFY(json.value("colour").isNull());
    }

    void cloudWritesValidPoints_data()
    {
        QTest::addColumn<QList<quint32>>("channels");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("colourProperty");
        QTest::newRow("ply with colour") << allChannels << 1 << "ply" << "uchar red";
        QTest::newRow("ply grey from intensity, step 2")
            << QList<quint32>{TVXFileScanInfo::Distance, TVXFileScanInfo::Intensity} << 2 << "ply" << "uchar red";
        QTest::newRow("ply without colour, step 3") << QList<quint32>{TVXFileScanInfo::Distance} << 3 << "ply" << "";
        QTest::newRow("xyz text") << allChannels << 2 << "xyz" << "";
    }

    void cloudWritesValidPoints()
    {
        QFETCH(QList<quint32>, channels);
        QFETCH(int, step);
        QFETCH(QString, suffix);
        QFETCH(QString, colourProperty);
        QTemporaryDir dir;
        const QString scan = writeScan(dir, QStringLiteral("c.tvx"), channels);
        const QString out = dir.filePath(QStringLiteral("cloud.") + suffix);
        const ToolResult result = runTool({"cloud", scan, "--output", out, "--step", QString::number(step)});
        QCOMPARE(result.exitCode, 0);

        // Valid cells: every column and row that is a multiple of the step, except where c = r.
        int expected = 0;
        for (int c = 0; c < 10; c += step)
            for (int r = 0; r < 7; r += step)
                expected += c != r;

        QFile file(out);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        if (suffix == QLatin1String("xyz")) {
            const QList<QByteArray> lines = bytes.trimmed().split('\n');
            QCOMPARE(lines.size(), expected);
            // The first point in tile order is cell (0, 2) (cell (0, 0) has no return); nine digits.
            const QList<QByteArray> xyz = lines.first().split(' ');
            QCOMPARE(xyz.size(), 3);
            QVERIFY(xyz.at(0).size() >= 9);
            return;
        }
        const int end = bytes.indexOf("end_header\n") + int(qstrlen("end_header\n"));
        const QByteArray header = bytes.left(end);
        QVERIFY(header.startsWith("ply\nformat binary_little_endian 1.0\n"));
        QVERIFY(header.contains("element vertex " + QByteArray::number(expected) + "\n"));
        QVERIFY(header.contains("property float x\nproperty float y\nproperty float z\n"));
        QCOMPARE(header.contains("property uchar red"), !colourProperty.isEmpty());
        const int recordSize = colourProperty.isEmpty() ? 12 : 15;
        QCOMPARE(bytes.size() - end, expected * recordSize);
        if (!colourProperty.isEmpty()) {
            // Grey copies the intensity c + r into all three; colour is (c, r, 7). First point: (0, step).
            const quint8 red = quint8(bytes.at(end + 12));
            const quint8 blue = quint8(bytes.at(end + 14));
            const bool grey = !channels.contains(TVXFileScanInfo::Colour);
            QCOMPARE(int(red), grey ? step : 0);
            QCOMPARE(int(blue), grey ? step : 7);
        }
    }

    void errors_data()
    {
        QTest::addColumn<QStringList>("arguments"); // %SCAN, %DATA, %NODIST, %SHORT, %GARBAGE stand for prepared files
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("message");

        QTest::newRow("unknown command") << QStringList{"inf", "%SCAN"} << 2 << "usage:";
        QTest::newRow("info without file") << QStringList{"info"} << 2 << "usage:";
        QTest::newRow("info extra argument") << QStringList{"info", "%SCAN", "x"} << 2 << "usage:";
        QTest::newRow("point missing row") << QStringList{"point", "%SCAN", "1"} << 2 << "usage:";
        QTest::newRow("point fractional cell") << QStringList{"point", "%SCAN", "1.5", "2"} << 2 << "usage:";
        QTest::newRow("cloud without output") << QStringList{"cloud", "%SCAN"} << 2 << "usage:";
        QTest::newRow("cloud step 0") << QStringList{"cloud", "%SCAN", "--output", "%OUT", "--step", "0"} << 2 << "usage:";
        QTest::newRow("cloud unknown option") << QStringList{"cloud", "%SCAN", "--output", "%OUT", "--fast"} << 2 << "usage:";
        QTest::newRow("missing scan file") << QStringList{"info", "%MISSING"} << 1 << "cannot open %MISSING\n";
        QTest::newRow("missing data file") << QStringList{"info", "%NODATA"} << 1 << "cannot open %NODATADATA\n";
        QTest::newRow("not a scan") << QStringList{"info", "%GARBAGE"} << 1 << "not a scan file: %GARBAGE\n";
        QTest::newRow("point out of range") << QStringList{"point", "%SCAN", "10", "0"} << 1 << "cell out of range\n";
        QTest::newRow("point negative") << QStringList{"point", "%SCAN", "-1", "0"} << 1 << "cell out of range\n";
        QTest::newRow("point without distance") << QStringList{"point", "%NODIST", "1", "1"} << 1
                                                << "scan has no distance channel\n";
        QTest::newRow("cloud without distance") << QStringList{"cloud", "%NODIST", "--output", "%OUT"} << 1
                                                << "scan has no distance channel\n";
        QTest::newRow("point in short data") << QStringList{"point", "%SHORT", "9", "6"} << 1
                                             << "data file too short: %SHORTDATA\n";
        QTest::newRow("cloud of short data") << QStringList{"cloud", "%SHORT", "--output", "%OUT"} << 1
                                             << "data file too short: %SHORTDATA\n";
    }

    void errors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exitCode);
        QFETCH(QString, message);

        QTemporaryDir dir;
        const QString scan = writeScan(dir, QStringLiteral("ok.tvx"), allChannels);
        const QString noDistance = writeScan(dir, QStringLiteral("colour.tvx"), {TVXFileScanInfo::Colour});
        const QString shortScan = writeScan(dir, QStringLiteral("short.tvx"), allChannels);
        QFile::resize(dir.filePath(QStringLiteral("short.tvxsd")), 40);
        const QString noData = writeScan(dir, QStringLiteral("nodata.tvx"), allChannels);
        QFile::remove(dir.filePath(QStringLiteral("nodata.tvxsd")));
        const QString garbage = dir.filePath(QStringLiteral("garbage.tvx"));
        QFile g(garbage);
        QVERIFY(g.open(QIODevice::WriteOnly));
        g.write(QByteArray(64, 'x'));
        g.close();
        QFile::copy(dir.filePath(QStringLiteral("ok.tvxsd")), dir.filePath(QStringLiteral("garbage.tvxsd")));

        const QList<QPair<QString, QString>> placeholders{
            {"%SHORTDATA", dir.filePath("short.tvxsd")}, {"%NODATADATA", dir.filePath("nodata.tvxsd")},
            {"%SCAN", scan}, {"%NODIST", noDistance}, {"%SHORT", shortScan}, {"%NODATA", noData},
            {"%GARBAGE", garbage}, {"%MISSING", dir.filePath("missing.tvx")}, {"%OUT", dir.filePath("out.ply")}};
        auto fill = [&](QString text) {
            for (const auto& [key, value] : placeholders)
                text.replace(key, value);
            return text;
        };
        QStringList filled;
        for (const QString& argument : arguments)
            filled << fill(argument);

        const ToolResult result = runTool(filled);
        QCOMPARE(result.exitCode, exitCode);
        if (exitCode == 2)
            QVERIFY(result.err.startsWith(fill(message).toUtf8()));
        else
            QCOMPARE(QString::fromUtf8(result.err), fill(message));
        QVERIFY(result.out.isEmpty());
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("out.ply"))));
    }

    void readErrorMessageIsPassedOn()
    {
        // A directory entry cut off inside its offset makes the reader throw its read error.
        QTemporaryDir dir;
        const QString scan = writeScan(dir, QStringLiteral("cut.tvx"), allChannels);
        QFile file(scan);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        file.close();
        // Header of version 2: magic, version, 3 × writer version, stream version, 2 tags = 32 bytes;
        // then the first entry's tag (4 bytes) and half of its offset.
        bytes.truncate(32 + 4 + 4);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        const ToolResult result = runTool({"info", scan});
        QCOMPARE(result.exitCode, 1);
        QCOMPARE(result.err, QByteArray("file read error libs/core/src/fileio/tvxfile, line 243\n"));
    }
};

TVX_TEST(ScanCommandsTest)

#include "scancommandstest.moc"
