#include "scanfixture.h"
#include "testfiles.h"
#include "testregistry.h"

#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencepoint.h"
#include "scene/tvxsreferencesphere.h"
#include "scene/tvxssimpletext.h"
#include "scene/scanviewscenegraph.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <limits>

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

enum WriteFailure { DistanceTooLong, TileSizeZero, UnstorableMetaValue, PlainRecord, NoFolder };
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
        // What was read writes the very bytes of what was set; a few values stand in for the rest.
        QCOMPARE(sectionBytes(file.scanInfo()), sectionBytes(info));
        QCOMPARE(file.scanInfo().segments[1].to, Vector3d(0, 0, 1));
        QCOMPARE(sectionBytes(file.layerTable()), sectionBytes(writer.layerTable()));
        QCOMPARE(file.layerTable().layers[1].id, 6u);
        QCOMPARE(sectionBytes(file.metaInfo()), sectionBytes(meta));
        QCOMPARE(file.metaInfo().extra.keys(), QList<quint32>{0x149001}); // the text's tag is left out
        QCOMPARE(file.metaInfo().text(0x140002), QStringLiteral("text 140002"));
        QCOMPARE(sectionBytes(file.referenceInfo()), sectionBytes(writer.referenceInfo()));
        QCOMPARE(std::dynamic_pointer_cast<TVXSReferenceSphere>(file.referenceInfo().object(1))->radius(), 0.07);
        const auto sceneBytes = [](const std::vector<TVXSceneItemPtr>& items, const ScanViewSceneGraph& graph) {
            TVXFileSceneItems section;
            section.items = items;
            return streamBytes([&](QDataStream& s) { section.write(s, &graph); });
        };
        QCOMPARE(sceneBytes(file.sceneItems().items, *file.sceneGraph()), sceneBytes(writer.sceneItems2D(), *graph));
        QCOMPARE(file.sceneGraph()->itemCount(), 5u);
        QCOMPARE(std::dynamic_pointer_cast<TVXSSimpleText>(file.sceneItems().items[3])->offset(), QPointF(-1, 2));
        QCOMPARE(file.sceneItems().items[4]->data().numberedValues, itemData(7).numberedValues);
    }

    // Asked for, the box is that of the points the reader decodes from the records, cells without
    // return left out; with none at all it stays empty.
    void measuredBoundingBox_data()
    {
        QTest::addColumn<bool>("returns");
        QTest::newRow("pattern cells") << true;
        QTest::newRow("no return at all") << false;
    }

    void measuredBoundingBox()
    {
        QFETCH(bool, returns);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("boxed.tvx"));
        TVXFileWriter writer;
        setGrid(writer.scanInfo(), 10, 7, 4, AllChannels);
        writer.setCellSource([returns](quint32 c, quint32 r) {
            TVXFileCell cell = patternCell(c, r);
            cell.distanceMm = returns ? cell.distanceMm : 0;
            return cell;
        });
        writer.setMeasureBoundingBox(true);
        QVERIFY(writer.write(path));

        TVXFile file(path);
        QVERIFY(file.open() && file.readHeader());
        constexpr double huge = std::numeric_limits<double>::max();
        Vector3d low(huge, huge, huge), high(-huge, -huge, -huge);
        TVXFileTile tile;
        for (quint32 tc = 0; tc < 3; ++tc) {
            for (quint32 tr = 0; tr < 2; ++tr) {
                QVERIFY(file.readTile(tc, tr, tile));
                for (std::size_t i = 0; i < tile.points.size(); ++i) {
                    if (tile.distances[i] == 0.0)
                        continue;
                    const Vector3d& p = tile.points[i];
                    low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
                    high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
                }
            }
        }
        QCOMPARE(file.scanInfo().boundingBoxMin, low);
        QCOMPARE(file.scanInfo().boundingBoxMax, high);
        QCOMPARE(writer.scanInfo().boundingBoxMin, low);
    }

    void failures_data()
    {
        QTest::addColumn<int>("failure");
        QTest::addColumn<QString>("reason");

        QTest::newRow("distance past 24 bits") << int(DistanceTooLong) << QStringLiteral("24 bits");
        QTest::newRow("tile size 0") << int(TileSizeZero) << QStringLiteral("tile size");
        QTest::newRow("unstorable meta value") << int(UnstorableMetaValue) << QStringLiteral("meta information");
        QTest::newRow("plain record among the 2D items") << int(PlainRecord) << QStringLiteral("scene items");
        QTest::newRow("missing folder") << int(NoFolder) << QStringLiteral("cannot write");
    }

    void failures()
    {
        QFETCH(int, failure);
        QFETCH(QString, reason);

        QTemporaryDir dir;
        // A scan already there must stay as it was.
        const QString existing = writePatternScan(dir.path(), QStringLiteral("kept"), 3, 2, 64, DistanceChannel);
        const QByteArray before = readBytes(existing);
        QVERIFY(!before.isEmpty());

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
        case NoFolder:
            path = dir.filePath(QStringLiteral("missing/x.tvx"));
            break;
        }
        QString error;
        QVERIFY(!writer.write(path, &error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QCOMPARE(readBytes(existing), before);
    }
};

TVX_TEST(ScanFileWriterTest)
#include "writertest.moc"
