#include "testregistry.h"
#include "viewerscenefixture.h"

#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsdimensioning.h"
#include "scene/tvxsellipse.h"
#include "scene/tvxspolygon.h"
#include "scene/tvxsrectangle.h"
#include "scene/tvxsreferencepoint.h"
#include "scene/tvxssimpletext.h"
#include "annotations/viewerscenewriter.h"
#include "scene/scanviewscenegraph.h"

#include <QBuffer>
#include <QTest>

#include <functional>

using namespace TVX::CORE;
using namespace TVX::TEST;

using FillScene = std::function<void(SceneItemsTableModel&, ScanViewSceneGraph&)>;
Q_DECLARE_METATYPE(FillScene)

namespace {

QByteArray writeScene(const SceneItemsTableModel& model, const ScanViewSceneGraph* graph)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ViewerSceneWriter writer(&buffer);
    if (!writer.write(model, graph))
        return "write failed";
    return buffer.data();
}

} // namespace

// The written document, byte for byte. Expected numbers follow the text stream's default real
// formatting: the shorter of %f and %e with 6 significant digits, after conversion to float
// (except the 2D dimensioning points, which stay double).
class ViewerSceneWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesItems_data()
    {
        QTest::addColumn<FillScene>("fill");
        QTest::addColumn<bool>("withGraph");
        QTest::addColumn<QByteArray>("body"); // between the root's start and end tags

        // Planar rows in model order, then the spherical items by kind whatever the order added:
        // ellipses, polygons, rectangles, texts, measurements. float(123456.7) = 123456.703125 and
        // 1234567 keep six digits: 123457 and 1.23457e+06. A text anchor is truncated towards zero
        // and its offset never written.
        QTest::newRow("every kind") << FillScene([](SceneItemsTableModel& model, ScanViewSceneGraph& graph) {
            graph.addItem(std::make_shared<ScanViewMeasurementItem>(0, Vector3d(1, 0, 0), Vector3d(0, 1, 0)));
            graph.addItem(std::make_shared<ScanViewMeasurementItem>(1, Vector3d(1, 0, 0), Vector3d(0, 0.25, 1e-50)));
            graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("A<B & C>D"), Vector3d(0.5, -0.5, 0.70710678)));
            graph.addItem(std::make_shared<ScanViewRectangle>(Vector3d(0, 1, 0), Vector3d(0.1, 0.2, 0.3), Vector3d(-1, -2, -3)));
            graph.addItem(std::make_shared<ScanViewPolygon>(std::vector<Vector3d>{{0.6, 0.8, 0}, {0, 0.6, -0.8}}));
            graph.addItem(std::make_shared<ScanViewEllipse>(Vector3d(1, 0, 0), Vector3d(0.5, 0.25, -0.125), Vector3d(0, 0, 1234567)));
            model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(12.5, 40), QPointF(1234.5678, -0.25)})));
            model.addItem(std::make_shared<TVXSRectangle>(QRectF(-1.5, 2, 1e6, 123456.7)));
            model.addItem(std::make_shared<TVXSEllipse>(QRectF(10, 20, 30.5, 0.001)));
            model.addItem(std::make_shared<TVXSSimpleText>(QStringLiteral("Pump & valve <north> a&lt;b"), QPointF(12.9, -3.7), QPointF(5, 6)));
            model.addItem(std::make_shared<TVXSDimensioning>(1, QPointF(1, 2), QPointF(3, 4)));
            model.addItem(std::make_shared<TVXSDimensioning>(2, QPointF(5, 6), QPointF(7, 8)));
        }) << true << QByteArray("   <polygonitem>\n"
                                 "      <point>12.5, 40</point>\n"
                                 "      <point>1234.57, -0.25</point>\n"
                                 "   </polygonitem>\n"
                                 "   <rectangleitem>\n"
                                 "      <rectangle>-1.5, 2, 1e+06, 123457</rectangle>\n"
                                 "   </rectangleitem>\n"
                                 "   <ellipseitem>\n"
                                 "      <rectangle>10, 20, 30.5, 0.001</rectangle>\n"
                                 "   </ellipseitem>\n"
                                 "   <textitem>\n"
                                 "      <position>12, -3</position>\n"
                                 "      <text>Pump &amp; valve &lt;north&gt; a&amp;lt;b</text>\n"
                                 "   </textitem>\n"
                                 "   <dimensioningitem type=\"DZ\">\n"
                                 "      <point>1, 2</point>\n"
                                 "      <point>3, 4</point>\n"
                                 "   </dimensioningitem>\n"
                                 "   <dimensioningitem type=\"XY\">\n"
                                 "      <point>5, 6</point>\n"
                                 "      <point>7, 8</point>\n"
                                 "   </dimensioningitem>\n"
                                 "   <ellipseitem_spherical>\n"
                                 "      <ellipse_3d>\n"
                                 "         1, 0, 0,\n"
                                 "         0.5, 0.25, -0.125,\n"
                                 "         0, 0, 1.23457e+06\n"
                                 "      </ellipse_3d>\n"
                                 "   </ellipseitem_spherical>\n"
                                 "   <polygonitem_spherical>\n"
                                 "      <point_3d>0.6, 0.8, 0</point_3d>\n"
                                 "      <point_3d>0, 0.6, -0.8</point_3d>\n"
                                 "   </polygonitem_spherical>\n"
                                 "   <rectangleitem_spherical>\n"
                                 "      <rectangle_3d>\n"
                                 "         0, 1, 0,\n"
                                 "         0.1, 0.2, 0.3,\n"
                                 "         -1, -2, -3\n"
                                 "      </rectangle_3d>\n"
                                 "   </rectangleitem_spherical>\n"
                                 "   <textitem_spherical>\n"
                                 "      <position>0.5, -0.5, 0.707107</position>\n"
                                 "      <text>A&lt;B &amp; C&gt;D</text>\n"
                                 "   </textitem_spherical>\n"
                                 "   <dimensioningitem_spherical type=\"3D\">\n"
                                 "      <point_3d>1, 0, 0</point_3d>\n"
                                 "      <point_3d>0, 1, 0</point_3d>\n"
                                 "   </dimensioningitem_spherical>\n"
                                 "   <dimensioningitem_spherical type=\"DZ\">\n"
                                 "      <point_3d>1, 0, 0</point_3d>\n"
                                 "      <point_3d>0, 0.25, 0</point_3d>\n"
                                 "   </dimensioningitem_spherical>\n");

        // 1e-50 is below the float range and becomes 0, except in the 2D dimensioning, which stays double.
        QTest::newRow("single precision but double dimensioning") << FillScene([](SceneItemsTableModel& model, ScanViewSceneGraph&) {
            model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1e-50, 1234567.0)})));
            model.addItem(std::make_shared<TVXSDimensioning>(0, QPointF(1e-50, 40), QPointF(1234567.0, 0.5)));
        }) << true << QByteArray("   <polygonitem>\n"
                                 "      <point>0, 1.23457e+06</point>\n"
                                 "   </polygonitem>\n"
                                 "   <dimensioningitem type=\"3D\">\n"
                                 "      <point>1e-50, 40</point>\n"
                                 "      <point>1.23457e+06, 0.5</point>\n"
                                 "   </dimensioningitem>\n");


        QTest::newRow("without a graph only planar rows") << FillScene([](SceneItemsTableModel& model, ScanViewSceneGraph& graph) {
            model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2)})));
            graph.addItem(std::make_shared<ScanViewTextItem>(QStringLiteral("t"), Vector3d(0, 0, 1)));
        }) << false << QByteArray("   <polygonitem>\n"
                                  "      <point>1, 2</point>\n"
                                  "   </polygonitem>\n");
    }

    void writesItems()
    {
        QFETCH(FillScene, fill);
        QFETCH(bool, withGraph);
        QFETCH(QByteArray, body);

        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        fill(model, graph);
        QCOMPARE(writeScene(model, withGraph ? &graph : nullptr), viewerDocument(body));
    }

    // A reference point, a cloned 2D record (a plain record), a dimensioning whose type has no
    // name, spherical items short of points or of an unknown type: the file carries none of them,
    // and the writer says so instead of dropping them quietly.
    void leftOutItemsAreReported()
    {
        SceneItemsTableModel model;
        ScanViewSceneGraph graph;
        model.addItem(std::make_shared<TVXSReferencePoint>(QStringLiteral("P1"), TVXSReferencePoint::Values{}));
        model.addItem(TVXSRectangle(QRectF(1, 2, 3, 4)).clone());
        model.addItem(std::make_shared<TVXSDimensioning>(3, QPointF(1, 2), QPointF(3, 4)));
        model.addItem(std::make_shared<TVXSPolygon>(QPolygonF({QPointF(1, 2)})));
        auto ellipse = std::make_shared<ScanViewEllipse>();
        ellipse->appendPoint(Vector3d(1, 0, 0));
        graph.addItem(ellipse);
        graph.addItem(std::make_shared<ScanViewRectangle>());
        graph.addItem(std::make_shared<ScanViewMeasurementItem>(5, Vector3d(1, 0, 0), Vector3d(0, 1, 0)));

        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        ViewerSceneWriter writer(&buffer);
        QVERIFY(!writer.write(model, &graph));
        QCOMPARE(writer.skippedItems().size(), 6);
        // What the file can hold is still written.
        QCOMPARE(buffer.data(), viewerDocument("   <polygonitem>\n      <point>1, 2</point>\n   </polygonitem>\n"));
    }

    void escaping_data()
    {
        QTest::addColumn<QString>("raw");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("attribute");

        // An XML parser would read a raw carriage return as a line feed, and fail on other controls.
        QTest::newRow("carriage return") << "a\r\nb" << "a&#13;\nb" << "a&#13;\nb";
        QTest::newRow("control characters") << QStringLiteral("a\x01" "b\tc") << QStringLiteral("a\uFFFDb\tc")
                                            << QStringLiteral("a\uFFFDb\tc");
    }

    void escaping()
    {
        QFETCH(QString, raw);
        QFETCH(QString, text);
        QFETCH(QString, attribute);

        QCOMPARE(escapeViewerSceneText(raw), text);
        QCOMPARE(escapeViewerSceneAttribute(raw), attribute);
    }
};

TVX_TEST(ViewerSceneWriterTest)

#include "viewerscenewritertest.moc"
