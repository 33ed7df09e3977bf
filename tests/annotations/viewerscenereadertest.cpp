#include "scenedescription.h"
#include "testregistry.h"
#include "viewerscenefixture.h"

#include "annotations/sceneitemstablemodel.h"
#include "annotations/viewerscenereader.h"
#include "scene/scanviewscenegraph.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

struct ReadResult {
    bool ok = false;
    QString error;
    QStringList items;
};

ReadResult readDocument(const QByteArray& bytes, bool withGraph = true)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    SceneItemsTableModel model;
    ScanViewSceneGraph graph;
    ViewerSceneReader reader(&buffer);
    ReadResult result;
    result.ok = reader.read(model, withGraph ? &graph : nullptr);
    if (!result.ok)
        result.error = reader.errorString();
    for (int row = 0; row < model.rowCount(); ++row)
        result.items << describeRecord(*model.item(row));
    result.items << describeGraph(graph);
    return result;
}

// The fault that Qt's parser alone finds in a document, in the reader's error form.
QString parserFault(const QByteArray& bytes)
{
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd())
        xml.readNext();
    return QStringLiteral("%1\nLine %2, column %3").arg(xml.errorString()).arg(xml.lineNumber()).arg(xml.columnNumber());
}

// Marks every text of the reader's translation context, and only those.
class MarkingTranslator final : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        if (qstrcmp(context, "TVX::CORE::ViewerSceneReader") != 0)
            return QString();
        return QLatin1Char('<') + QString::fromUtf8(sourceText) + QLatin1Char('>');
    }
};

const QByteArray firstPolygon = "   <polygonitem>\n"
                                "      <point>1, 2</point>\n"
                                "   </polygonitem>\n";
const QString firstPolygonRead = QStringLiteral("polygon 1,2");

} // namespace

class ViewerSceneReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsItems_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("items");

        // The layout is free. 1234.57 and 0.707107 are not floats: they come back as the nearest
        // floats, 1234.5699462890625 and 0.707107007503509521; 1.23457e+06 is 1234570 exactly.
        QTest::newRow("every planar kind")
            << viewerDocument("<polygonitem><point>12.5, 40</point><point>1234.57, -0.25</point></polygonitem>"
                              "<ellipseitem><rectangle>10, 20, 30.5, 1.23457e+06</rectangle></ellipseitem>"
                              "<rectangleitem><rectangle>-1.5,2,3,4</rectangle></rectangleitem>"
                              "<textitem><position>12, -3</position><text>Pump</text></textitem>"
                              "<dimensioningitem type=\"XY\"><point>1, 2</point><point>3.5, 4</point></dimensioningitem>")
            << QStringList{"polygon 12.5,40 1234.5699462890625,-0.25", "ellipse 10,20,30.5,1234570", "rectangle -1.5,2,3,4",
                           "text [Pump] at 12,-3 offset 0,0", "dimensioning 2 1,2 3.5,4"};
        // Listed in the graph's order whatever the file's: ellipses, polygons, rectangles, texts, measurements.
        QTest::newRow("every spherical kind")
            << viewerDocument("<dimensioningitem_spherical type=\"DZ\"><point_3d>1, 0, 0</point_3d><point_3d>0, 1, 0</point_3d>"
                              "</dimensioningitem_spherical>"
                              "<polygonitem_spherical><point_3d>0.5, 0.75, 0</point_3d><point_3d>0, 0, -1</point_3d></polygonitem_spherical>"
                              "<textitem_spherical><position>0.5, -0.5, 0.707107</position><text>North</text></textitem_spherical>"
                              "<rectangleitem_spherical><rectangle_3d>0, 1, 0, 2, 3, 4, -1, -2, -3</rectangle_3d></rectangleitem_spherical>"
                              "<ellipseitem_spherical><ellipse_3d>\n 1, 0, 0,\n 0.5, 0.25, -0.125,\n 0, 0, 1\n</ellipse_3d></ellipseitem_spherical>"
                              "<polygonitem_spherical><point_3d>1, 0, 0</point_3d></polygonitem_spherical>")
            << QStringList{"ellipse3d 1,0,0 0.5,0.25,-0.125 0,0,1", "polygon3d 0.5,0.75,0 0,0,-1", "polygon3d 1,0,0",
                           "rectangle3d 0,1,0 2,3,4 -1,-2,-3", "text3d [North] at 0.5,-0.5,0.70710700750350952",
                           "measurement3d 1 1,0,0 0,1,0"};
        QTest::newRow("version 1.0") << viewerDocument(firstPolygon, "1.0") << QStringList{firstPolygonRead};
        // Blanks, tabs and line breaks around numbers are ignored; "abc" and "0x10" do not convert
        // and read as 0; 16777217 has no float and becomes 16777216; 0.1 becomes float's 0.1.
        QTest::newRow("number forms")
            << viewerDocument("<polygonitem><point> 1e+06 ,\t-2.5\n</point><point>abc, 0x10</point><point>0.1, 16777217</point></polygonitem>")
            << QStringList{"polygon 1000000,-2.5 0,0 0.10000000149011612,16777216"};
        QTest::newRow("text with offset, children in any order")
            << viewerDocument("<textitem><text>a</text><positionOffset>-4.5, 6</positionOffset><position>12.75, -3</position></textitem>")
            << QStringList{"text [a] at 12.75,-3 offset -4.5,6"};
        // Unknown items are skipped unread even where their content would be an error.
        QTest::newRow("unknown elements skipped")
            << viewerDocument("<symbolitem><point>1, 2, 3</point><a><b>deep</b></a></symbolitem><!-- a comment --><?tool hint?>"
                              "<polygonitem colour=\"red\"><style><point>9, 9, 9</point></style><point>1, 2</point>"
                              "<Point>5, 6, 7</Point></polygonitem><PolygonItem><point>3, 4</point></PolygonItem>")
            << QStringList{firstPolygonRead};
    }

    void readsItems()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, items);

        const ReadResult result = readDocument(file);
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(result.items, items);
    }

    void withoutGraphSphericalItemsAreSkipped()
    {
        // Without a graph the spherical elements are not even looked into: their faults go unseen.
        const ReadResult result = readDocument(viewerDocument("   <ellipseitem_spherical><ellipse_3d>1, 2</ellipse_3d></ellipseitem_spherical>\n"
                                                        "   <dimensioningitem_spherical type=\"3d\"/>\n"
                                                        + firstPolygon),
                                               false);
        QVERIFY2(result.ok, qPrintable(result.error));
        QCOMPARE(result.items, QStringList{firstPolygonRead});
    }

    // Line numbers count from 1, columns from 0; a fault that the reader finds at an end tag is
    // placed just after it. The document's body starts on line 4.
    void faults_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QStringList>("itemsKept");

        const QString notViewerFile = QStringLiteral("The file is not an Tarvenix viewer version 1.0 or 2.0 file.");
        const QString invalidCount = QStringLiteral("Invalid number of entities");
        const QString unknownType = QStringLiteral("Unknown dimensioning type");

        // Root faults are found right after the root's start tag: line 3, column = its length.
        QTest::newRow("other root element")
            << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tvxscanviewer>\n<tvxscene version=\"2.0\">\n</tvxscene>\n")
            << notViewerFile + "\nLine 3, column 24" << QStringList();
        QTest::newRow("version 2") << viewerDocument(firstPolygon, "2") << notViewerFile + "\nLine 3, column 28" << QStringList();
        // "      <point>1, 2, 3</point>" is 6 + 7 + 7 + 8 = 28 characters long. The items read before
        // the fault stay, the rest of the file is not read.
        QTest::newRow("point with three numbers")
            << viewerDocument(firstPolygon + "   <polygonitem>\n      <point>1, 2, 3</point>\n   </polygonitem>\n" + firstPolygon)
            << invalidCount + "\nLine 8, column 28" << QStringList{firstPolygonRead};
        // "      </ellipse_3d>" is 19 characters long.
        QTest::newRow("ellipse_3d with eight numbers")
            << viewerDocument(firstPolygon + "   <ellipseitem_spherical>\n      <ellipse_3d>\n         1, 0, 0,\n         0, 1, 0,\n"
                                             "         0, 0\n      </ellipse_3d>\n   </ellipseitem_spherical>\n")
            << invalidCount + "\nLine 12, column 19" << QStringList{firstPolygonRead};
        // "   </dimensioningitem>" is 3 + 19 = 22 characters long. The count is checked before the type.
        QTest::newRow("one point and a bad type")
            << viewerDocument("   <dimensioningitem type=\"3d\">\n      <point>1, 2</point>\n   </dimensioningitem>\n")
            << invalidCount + "\nLine 6, column 22" << QStringList();
        QTest::newRow("type 3d in lower case")
            << viewerDocument(firstPolygon + "   <dimensioningitem type=\"3d\">\n      <point>1, 2</point>\n      <point>3, 4</point>\n"
                                             "   </dimensioningitem>\n")
            << unknownType + "\nLine 10, column 22" << QStringList{firstPolygonRead};
        // Entity declarations are refused as soon as the DOCTYPE (45 characters) has been read.
        QTest::newRow("internal entity declared")
            << QByteArray("<?xml version=\"1.0\"?>\n<!DOCTYPE tvxscanviewer [<!ENTITY a \"aaaa\">]>\n"
                          "<tvxviewerscene version=\"2.0\"><textitem><text>&a;</text></textitem></tvxviewerscene>\n")
            << "Entity declarations are not supported\nLine 2, column 45" << QStringList();
        // The 256th <a> below the unknown element is one level too deep: 12 + 256 * 3 = 780.
        QTest::newRow("nesting too deep") << viewerDocument(firstPolygon + "   <unknown>" + QByteArray("<a>").repeated(300) + "\n")
                                          << "Elements are nested too deeply\nLine 7, column 780" << QStringList{firstPolygonRead};
    }

    void faults()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, error);
        QFETCH(QStringList, itemsKept);

        const ReadResult result = readDocument(file);
        QVERIFY(!result.ok);
        QCOMPARE(result.error, error);
        QCOMPARE(result.items, itemsKept);
    }

    void messagesAreTranslated()
    {
        MarkingTranslator translator;
        QCoreApplication::installTranslator(&translator);
        const ReadResult result = readDocument(viewerDocument("", "3.0"));
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(result.error,
                 QStringLiteral("<<The file is not an Tarvenix viewer version 1.0 or 2.0 file.>\nLine 3, column 30>"));
    }

    // Malformed XML is reported in the parser's own words, at the parser's own position.
    void malformedXml_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("message"); // null: the parser's own
        QTest::addColumn<QStringList>("itemsKept");

        QTest::newRow("mismatched end tag") << viewerDocument(firstPolygon + "   <polygonitem>\n      <point>1, 2</pointx>\n   </polygonitem>\n")
                                            << QString() << QStringList{firstPolygonRead};
        // Cut 30 characters into the second polygon: the head is 95 characters, each polygon 61.
        QTest::newRow("truncated") << viewerDocument(firstPolygon + firstPolygon).left(95 + 61 + 30) << QString()
                                   << QStringList{firstPolygonRead};
        // No start element can be found at all: that is a file of another kind.
        QTest::newRow("binary file") << QByteArray("\x89PNG\r\n\x1a\n", 8)
                                     << QStringLiteral("The file is not an Tarvenix viewer version 1.0 or 2.0 file.") << QStringList();
    }

    void malformedXml()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, message);
        QFETCH(QStringList, itemsKept);

        const ReadResult result = readDocument(file);
        QVERIFY(!result.ok);
        QCOMPARE(result.items, itemsKept);
        const QString fault = parserFault(file);
        QVERIFY2(fault.section(QLatin1Char('\n'), 0, 0) != QLatin1String(""), "the parser alone must fail too");
        if (message.isNull())
            QCOMPARE(result.error, fault);
        else
            QCOMPARE(result.error, message + QLatin1Char('\n') + fault.section(QLatin1Char('\n'), 1));
    }
};

TVX_TEST(ViewerSceneReaderTest)

#include "viewerscenereadertest.moc"
