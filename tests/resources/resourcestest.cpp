#include "testregistry.h"

#include "../../resources/painter/iconpainter.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTest>

// Every image the painter makes is compiled into the bundle and decodes to a drawn picture.
class ResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imageLoads_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QSize>("size");
        for (const QString& path : IconPainter::resourcePaths())
            QTest::newRow(qPrintable(path)) << QStringLiteral(":/") + path << IconPainter::paint(path).size();
        // The sub windows name the document icon without a slash after the colon.
        QTest::newRow("document icon without slash")
            << QStringLiteral(":icons/shared/tvx_doc_small_lib.ico")
            << IconPainter::paint(QStringLiteral("icons/shared/tvx_doc_small_lib.ico")).size();
    }

    void imageLoads()
    {
        QFETCH(QString, path);
        QFETCH(QSize, size);

        QVERIFY2(QFile::exists(path), qPrintable(path));
        QImageReader reader(path);
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.size(), size);
        QVERIFY(size.width() >= 16 && size.height() >= 16);
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
        QCOMPARE(image.size(), QSize(32, 32));
        // The hot spot (15, 15) is opaque, and the cross's arms run through it.
        QVERIFY(qAlpha(image.pixel(15, 15)) == 255);
        QVERIFY(qAlpha(image.pixel(15, 5)) > 0);
        QVERIFY(qAlpha(image.pixel(5, 15)) > 0);
        QCOMPARE(qAlpha(image.pixel(2, 2)), 0);
    }
};

TVX_TEST(ResourcesTest)

#include "resourcestest.moc"
