#include "testregistry.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTest>

// Every image path that the viewer's code and menus name must be compiled in and decode.
class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imageLoads_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("requiredSize"); // empty: any size of at least 16 by 16

        const QSize any;
        const QSize cursor(32, 32);
        const char* icons[] = {"open", "save", "pickcoordinatemode", "clearpointlist", "clearpickedpoints",
                               "editmode", "zoom_in", "zoom_out", "zoom_all", "addpolygon", "addrectangle",
                               "addellipse", "addtext", "distance3d", "distancexy", "distancedz", "distanceall",
                               "planarview_active", "planarview_inactive", "sphericalview_active",
                               "sphericalview_inactive", "pointcloudview_active", "pointcloudview_inactive",
                               "delete", "bgbrush"};
        for (const char* icon : icons) {
            const QString path = QStringLiteral(":/icons/shared/%1.png").arg(QLatin1String(icon));
            QTest::newRow(qPrintable(path)) << path << any;
        }
        QTest::newRow("project document icon") << QStringLiteral(":/icons/shared/tvx_doc_small_lib.ico") << any;
        // The sub windows name the icon without a slash after the colon; it must resolve all the same.
        QTest::newRow("document icon without slash") << QStringLiteral(":icons/shared/tvx_doc_small_lib.ico") << any;
        QTest::newRow("splash") << QStringLiteral(":/icons/viewer/splash_viewer.png") << any;
        QTest::newRow("cross cursor") << QStringLiteral(":/tvxcore/resources/cursor_cross.png") << cursor;
        QTest::newRow("steel module cursor") << QStringLiteral(":/tvxcore/resources/cursor_steelmodul.png") << cursor;
        for (const char* name : {"tvx32", "addScans", "addFolder", "renameFolder", "delete"}) {
            const QString path = QStringLiteral(":/tvxcore/resources/%1.png").arg(QLatin1String(name));
            QTest::newRow(qPrintable(path)) << path << any;
        }
    }

    void imageLoads()
    {
        QFETCH(QString, path);
        QFETCH(QSize, requiredSize);

        QVERIFY2(QFile::exists(path), qPrintable(path));
        QImageReader reader(path);
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        if (requiredSize.isValid())
            QCOMPARE(image.size(), requiredSize);
        else
            QVERIFY(image.width() >= 16 && image.height() >= 16);
        // Something is drawn: not one flat colour.
        const QRgb first = image.pixel(0, 0);
        bool varied = false;
        for (int y = 0; y < image.height() && !varied; ++y)
            for (int x = 0; x < image.width() && !varied; ++x)
                varied = image.pixel(x, y) != first;
        QVERIFY(varied);
    }

    void cursorsMarkTheirHotSpot_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("cross") << QStringLiteral(":/tvxcore/resources/cursor_cross.png");
        QTest::newRow("steel module") << QStringLiteral(":/tvxcore/resources/cursor_steelmodul.png");
    }

    void cursorsMarkTheirHotSpot()
    {
        QFETCH(QString, path);
        const QImage image(path);
        // The hot spot (15, 15) is opaque, and the cross's arms run through it.
        QVERIFY(qAlpha(image.pixel(15, 15)) == 255);
        QVERIFY(qAlpha(image.pixel(15, 5)) > 0);
        QVERIFY(qAlpha(image.pixel(5, 15)) > 0);
        QCOMPARE(qAlpha(image.pixel(2, 2)), 0);
    }

    void splashIsWideEnoughForItsMessage()
    {
        const QImage splash(QStringLiteral(":/icons/viewer/splash_viewer.png"));
        QVERIFY(splash.width() >= 400);
        QVERIFY(splash.width() > splash.height());
    }
};

TVX_TEST(ResourcesTest)

#include "resourcestest.moc"
