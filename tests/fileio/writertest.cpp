#include "testregistry.h"

#include "annotations/tvxsdimensioning.h"
#include "annotations/tvxsellipse.h"
#include "annotations/tvxspolygon.h"
#include "annotations/tvxsrectangle.h"
#include "annotations/tvxsreferencepoint.h"
#include "annotations/tvxsreferencesphere.h"
#include "annotations/tvxssimpletext.h"
#include "glviews/scanviewscenegraph.h"
#include "scanfixture.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {
TVXSceneItemData itemData(int seed)
{
    TVXSceneItemData data;
    data.text = QStringLiteral("item %1").arg(seed);
    data.integers = {seed, -seed};
    data.namedValues.insert(QStringLiteral("colour"), qMakePair(seed, QVariant(QStringLiteral("red"))));
    data.numberedValues.insert(seed, QVariant(seed * 0.5));
    return data;
}

template <typename Item>
std::shared_ptr<Item> withData(std::shared_ptr<Item> item, int seed)
{
    item->data() = itemData(seed);
    return item;
}

enum WriteFailure { DistanceTooLong, TileSizeZero, UnstorableMetaValue, PlainRecord, TwoPointRectangle, NoFolder };
} // namespace

// Everything the writer stores comes back through the reader; what it cannot store fails cleanly.
class ScanFileWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        QTemporaryDir dir;
        TVXFileWriter writer;
        writer.writerMajor = 2022;
        writer.writerMinor = 7;
        writer.writerPatch = 9;

        TVXFileScanInfo& info = writer.scanInfo();
        setGrid(info, 10, 7, 4, DistanceChannel | IntensityChannel | ColourChannel);
        info.scanKind = 3;
        for (std::size_t i = 0; i < 16; ++i)
            info.transformation[i] = double(i) + 0.5;
        info.boundingBoxMin = {-1, -2, -3};
        info.boundingBoxMax = {4, 5, 6};
        info.unnamedDouble = 0.25;
        info.unnamedInteger = -7;
        info.text = QStringLiteral("station text");
        info.segments = {{{1, 2, 3}, {4, 5, 6}}, {{-1, -2, -3}, {0, 0, 1}}};

        writer.layerTable().layers = {{5, QStringLiteral("A"), false, true}, {6, QStringLiteral("B"), true, false}};

        TVXFileMetaInfo& meta = writer.metaInfo();
        for (quint32 tag : TVXFileMetaInfo::textTags())
            meta.setText(tag, QStringLiteral("text %1").arg(tag, 0, 16));
        meta.dateTime = QDateTime(QDate(2021, 6, 1), QTime(8, 30), Qt::UTC);
        meta.number = 77;
        meta.extra.insert(0x149001, QVariantList{1, QStringLiteral("two")});
        meta.extra.insert(0x140002, 5); // a text field's tag: left out, the text stays

        const TVXSReferencePoint::Values pointValues{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        auto point = withData(std::make_shared<TVXSReferencePoint>(QStringLiteral("P"), pointValues), 1);
        point->setFlag(true);
        const TVXSReferencePoint::Values sphereValues{11, 12, 13, 0.07};
        auto sphere = withData(std::make_shared<TVXSReferenceSphere>(QStringLiteral("S"), sphereValues), 2);
        writer.referenceInfo().name = QStringLiteral("Site grid");
        writer.referenceInfo().flag = true;
        writer.referenceInfo().appendObject(point);
        writer.referenceInfo().appendObject(sphere);

        writer.sceneItems2D() = {
            withData(std::make_shared<TVXSPolygon>(QPolygonF({{1, 2}, {3, 4}, {5, 6}})), 3),
            withData(std::make_shared<TVXSRectangle>(QRectF(1, 2, 3, 4)), 4),
            withData(std::make_shared<TVXSEllipse>(QRectF(5, 6, 7, 8)), 5),
            withData(std::make_shared<TVXSSimpleText>(QStringLiteral("label"), QPointF(9, 10), QPointF(-1, 2)), 6),
            withData(std::make_shared<TVXSDimensioning>(2u, QPointF(1, 1), QPointF(8, 5)), 7),
        };
        const auto graph = writer.scene3D();
        graph->addItem(std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}));
        graph->addItem(std::make_shared<ScanViewRectangle>(Vector3d(1, 0, 0), Vector3d(1, 1, 0), Vector3d(0, 1, 0)));
        graph->addItem(std::make_shared<ScanViewEllipse>(Vector3d(0, 0, 1), Vector3d(0, 0.1, 1), Vector3d(0.1, 0, 1)));
        graph->addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("3D"), Vector3d(0, -1, 0)));
        graph->addItem(std::make_shared<ScanViewMeasurementItem>(1, Vector3d(1, 0, 0), Vector3d(0, 0, -1)));
        writer.setCellSource(patternCell);

        const QString path = dir.filePath(QStringLiteral("all.tvx"));
        QString error;
        QVERIFY2(writer.write(path, &error), qPrintable(error));

        TVXFile file(path);
        QVERIFY(file.open());
        QVERIFY2(file.readHeader(), qPrintable(file.errorString()));
        QCOMPARE(file.formatVersion(), 2u);
        QCOMPARE(file.writerMajor(), 2022u);
        QCOMPARE(file.writerMinor(), 7u);
        QCOMPARE(file.writerPatch(), 9u);

        const TVXFileScanInfo& read = file.scanInfo();
        QCOMPARE(read.scanKind, 3u);
        QCOMPARE(read.tileSize, 4u);
        QCOMPARE(read.columns, 10u);
        QCOMPARE(read.rows, 7u);
        QCOMPARE(read.horizontalMax, M_PI);
        QCOMPARE(read.verticalMin, -M_PI / 4);
        QCOMPARE(read.transformation, info.transformation);
        QCOMPARE(read.boundingBoxMin, info.boundingBoxMin);
        QCOMPARE(read.boundingBoxMax, info.boundingBoxMax);
        QCOMPARE(read.unnamedDouble, 0.25);
        QCOMPARE(read.unnamedInteger, qint64(-7));
        QCOMPARE(read.text, info.text);
        QCOMPARE(read.channels.size(), 3u);
        QCOMPARE(read.channels[2].parameter, 24u);
        QCOMPARE(read.segments.size(), 2u);
        QCOMPARE(read.segments[1].to, Vector3d(0, 0, 1));

        QCOMPARE(file.layerTable().layers.size(), 2u);
        QCOMPARE(file.layerTable().layers[0].name, QStringLiteral("A"));
        QVERIFY(!file.layerTable().layers[0].flag1 && file.layerTable().layers[0].flag2);
        QCOMPARE(file.layerTable().layers[1].id, 6u);

        for (quint32 tag : TVXFileMetaInfo::textTags())
            QCOMPARE(file.metaInfo().text(tag), meta.text(tag));
        QCOMPARE(file.metaInfo().dateTime, meta.dateTime);
        QCOMPARE(file.metaInfo().number, 77u);
        QCOMPARE(file.metaInfo().extra.keys(), QList<quint32>{0x149001});
        QCOMPARE(file.metaInfo().extra.value(0x149001), meta.extra.value(0x149001));

        const TVXFileReferenceInfo& references = file.referenceInfo();
        QCOMPARE(references.name, QStringLiteral("Site grid"));
        QVERIFY(references.flag);
        QCOMPARE(references.objectCount(), 2);
        const auto readPoint = std::dynamic_pointer_cast<TVXSReferencePoint>(references.object(0));
        const auto readSphere = std::dynamic_pointer_cast<TVXSReferenceSphere>(references.object(1));
        QVERIFY(readPoint && readPoint->kind() == 1 && readSphere);
        QCOMPARE(readPoint->values(), point->values());
        QVERIFY(readPoint->flag() && !readSphere->flag());
        QCOMPARE(readSphere->radius(), 0.07);
        QCOMPARE(readSphere->name(), QStringLiteral("S"));
        QCOMPARE(readSphere->data().integers, itemData(2).integers);
        QCOMPARE(readSphere->data().namedValues, itemData(2).namedValues);

        const auto& items = file.sceneItems().items;
        QCOMPARE(items.size(), 5u);
        for (std::size_t i = 0; i < items.size(); ++i) {
            const TVXSceneItemData expected = itemData(int(i) + 3);
            QCOMPARE(items[i]->data().text, expected.text);
            QCOMPARE(items[i]->data().integers, expected.integers);
            QCOMPARE(items[i]->data().namedValues, expected.namedValues);
            QCOMPARE(items[i]->data().numberedValues, expected.numberedValues);
        }
        QCOMPARE(std::dynamic_pointer_cast<TVXSPolygon>(items[0])->polygon(), QPolygonF({{1, 2}, {3, 4}, {5, 6}}));
        QCOMPARE(std::dynamic_pointer_cast<TVXSRectangle>(items[1])->rectangle(), QRectF(1, 2, 3, 4));
        QCOMPARE(std::dynamic_pointer_cast<TVXSEllipse>(items[2])->rectangle(), QRectF(5, 6, 7, 8));
        const auto text = std::dynamic_pointer_cast<TVXSSimpleText>(items[3]);
        QCOMPARE(text->text(), QStringLiteral("label"));
        QCOMPARE(text->position(), QPointF(9, 10));
        QCOMPARE(text->offset(), QPointF(-1, 2));
        const auto dimensioning = std::dynamic_pointer_cast<TVXSDimensioning>(items[4]);
        QCOMPARE(dimensioning->type(), 2u);
        QCOMPARE(dimensioning->first(), QPointF(1, 1));
        QCOMPARE(dimensioning->second(), QPointF(8, 5));

        const auto readGraph = file.sceneGraph();
        QCOMPARE(readGraph->itemCount(), 5u);
        QCOMPARE(readGraph->polygons()[0]->points(), graph->polygons()[0]->points());
        QCOMPARE(readGraph->rectangles()[0]->points(), graph->rectangles()[0]->points());
        QCOMPARE(readGraph->ellipses()[0]->points(), graph->ellipses()[0]->points());
        QCOMPARE(readGraph->textItems()[0]->text(), QStringLiteral("3D"));
        QCOMPARE(readGraph->textItems()[0]->position(), Vector3d(0, -1, 0));
        QCOMPARE(readGraph->measurementItems()[0]->type(), 1);
        QCOMPARE(readGraph->measurementItems()[0]->first(), Vector3d(1, 0, 0));
        QCOMPARE(readGraph->measurementItems()[0]->second(), Vector3d(0, 0, -1));

        // The cells: raw channels of every cell through the single-value reads.
        for (quint32 c = 0; c < 10; ++c)
            for (quint32 r = 0; r < 7; ++r) {
                quint8 red = 0, green = 0, blue = 0, intensity = 0;
                double metres = 0;
                QVERIFY(file.readColour(c, r, red, green, blue) && file.readIntensity(c, r, intensity)
                        && file.readDistance(c, r, metres));
                const TVXFileCell cell = patternCell(c, r);
                QVERIFY(red == cell.red && green == cell.green && blue == cell.blue && intensity == cell.intensity);
                QCOMPARE(metres, cell.distanceMm * 0.001);
            }
    }

    void progress()
    {
        QTemporaryDir dir;
        TVXFileWriter writer;
        setGrid(writer.scanInfo(), 10, 7, 4, DistanceChannel);
        QList<QPair<quint64, quint64>> calls;
        writer.setProgress([&](quint64 done, quint64 total) { calls.append({done, total}); });
        QVERIFY(writer.write(dir.filePath(QStringLiteral("p.tvx"))));
        QVERIFY(calls.size() >= 2);
        QCOMPARE(calls.front(), qMakePair(quint64(0), quint64(70)));
        QCOMPARE(calls.back(), qMakePair(quint64(70), quint64(70)));
    }

    void failures_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<QString>("reason");

        QTest::newRow("distance past 24 bits") << int(DistanceTooLong) << QStringLiteral("24 bits");
        QTest::newRow("tile size 0") << int(TileSizeZero) << QStringLiteral("tile size");
        QTest::newRow("unstorable meta value") << int(UnstorableMetaValue) << QStringLiteral("meta information");
        QTest::newRow("plain record among the 2D items") << int(PlainRecord) << QStringLiteral("scene items");
        QTest::newRow("3D rectangle of two points") << int(TwoPointRectangle) << QStringLiteral("scene items");
        QTest::newRow("missing folder") << int(NoFolder) << QStringLiteral("cannot write");
    }

    void failures()
    {
        QFETCH(int, failure);
        QFETCH(QString, reason);

        QTemporaryDir dir;
        // A scan already there must stay as it was.
        const QString existing = writePatternScan(dir.path(), QStringLiteral("kept"), 3, 2, 64, DistanceChannel);
        QFile scan(existing);
        QVERIFY(scan.open(QIODevice::ReadOnly));
        const QByteArray before = scan.readAll();
        scan.close();

        TVXFileWriter writer;
        setGrid(writer.scanInfo(), 3, 2, 64, DistanceChannel);
        QString path = existing;
        switch (WriteFailure(failure)) {
        case DistanceTooLong:
            writer.setCellSource([](quint32, quint32) { TVXFileCell cell; cell.distanceMm = 0x1000000; return cell; });
            break;
        case TileSizeZero:
            writer.scanInfo().tileSize = 0;
            break;
        case UnstorableMetaValue:
            writer.metaInfo().extra.insert(0x149000, QVariant(QUuid()));
            break;
        case PlainRecord:
            writer.sceneItems2D().push_back(std::make_shared<TVXSceneItem>());
            break;
        case TwoPointRectangle: {
            auto rectangle = std::make_shared<ScanViewRectangle>();
            rectangle->setPoints({{1, 0, 0}, {0, 1, 0}});
            writer.scene3D()->addItem(rectangle);
            break;
        }
        case NoFolder:
            path = dir.filePath(QStringLiteral("missing/x.tvx"));
            break;
        }
        QString error;
        QVERIFY(!writer.write(path, &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(scan.open(QIODevice::ReadOnly));
        QCOMPARE(scan.readAll(), before);
    }
};

TVX_TEST(ScanFileWriterTest)
#include "writertest.moc"
