#include "scanexport.h"
#include "testregistry.h"

#include "fileio/e57reader.h"
#include "fileio/importedscan.h"
#include "fileio/importerror.h"
#include "fileio/ptxreader.h"
#include "fileio/scanimporter.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// Reads and imports every scan of the bytes; the error's message, empty when all went well.
QString importError(bool ptx, const QByteArray& bytes, QStringList* leftOver = nullptr)
{
    QTemporaryDir dir;
    auto buffer = std::make_shared<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    QString error;
    try {
        const auto scans = ptx ? PtxReader::read(buffer, QStringLiteral("bad.ptx")) : E57Reader::read(buffer, QStringLiteral("bad.e57"));
        for (std::size_t i = 0; i < scans.size(); ++i)
            ScanImporter::write(*scans[i], dir.filePath(QStringLiteral("scan%1.tvx").arg(i)), {});
    } catch (const ImportError& e) {
        error = e.message();
    }
    if (leftOver)
        *leftOver = QDir(dir.path()).entryList(QDir::Files);
    return error;
}

// A PTX scan of 3 columns and 2 rows (lines 11 to 16) with its header and the given point lines.
QByteArray ptx(const QByteArray& counts, const QByteArray& points)
{
    return counts + "0 0 0\n1 0 0\n0 1 0\n0 0 1\n1 0 0 0\n0 1 0 0\n0 0 1 0\n0 0 0 1\n" + points;
}

const QByteArray goodPoints = "1 0.1 0.2 0.5\n1 0.1 0.3 0.5\n1 0.2 0.2 0.5\n1 0.2 0.3 0.5\n1 0.3 0.2 0.5\n1 0.3 0.3 0.5\n";

ExportScan smallScan(double nanAt = -1)
{
    ExportScan scan;
    scan.name = QStringLiteral("small");
    scan.columns = 8;
    scan.rows = 6;
    scan.point = [nanAt](quint64 i) {
        ExportPoint p;
        const double h = 0.1 * double(i / 6), v = 0.1 * double(i % 6) - 0.2;
        p.x = 5 * std::cos(v) * std::cos(h);
        p.y = -5 * std::cos(v) * std::sin(h);
        p.z = double(i) == nanAt ? std::nan("") : 5 * std::sin(v);
        return p;
    };
    return scan;
}

QByteArray e57(const E57Options& options, const ExportScan& scan = smallScan())
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    writeE57(buffer, {scan}, options);
    return buffer.data();
}

E57Options xmlEdit(const QString& from, const QString& to)
{
    E57Options options;
    options.editXml = [from, to](const QString& xml) { return QString(xml).replace(from, to); };
    return options;
}

} // namespace

// Bad files end in an error that names the file and the place, never in a crash, a hang or a
// huge allocation, and leave no scan file behind.
class ImportBadInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ptxFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        QTest::newRow("truncated") << ptx("3\n2\n", "1 0.1 0.2 0.5\n1 0.1 0.3 0.5\n1 0.2 0.2 0.5\n")
                                   << "bad.ptx: the file ends at line 13, inside scan 1 of 3 × 2 points";
        QTest::newRow("too few numbers") << ptx("3\n2\n", QByteArray(goodPoints).replace("1 0.2 0.3 0.5", "1 0.2 0.3"))
                                         << "bad.ptx, line 14: expected 4 numbers";
        QTest::newRow("NaN") << ptx("3\n2\n", QByteArray(goodPoints).replace("1 0.3 0.3 0.5", "nan 0.3 0.3 0.5"))
                             << "bad.ptx, line 16: a number that is not finite";
        QTest::newRow("absurd columns") << ptx("4000000000\n2\n", goodPoints) << "bad.ptx, line 1: column count";
        QTest::newRow("too many points") << ptx("1000000\n1000\n", goodPoints) << "bad.ptx, line 2: 1000000 × 1000 points";
        QTest::newRow("short header line") << QByteArray("3\n2\n0 0\n") << "bad.ptx, line 3: a header line of 3 numbers";
        QTest::newRow("beyond 24 bits") << ptx("3\n2\n", QByteArray(goodPoints).replace("1 0.2 0.2 0.5", "20000 0.2 0.2 0.5"))
                                        << "beyond the 16777.215 m";
        QTest::newRow("empty") << QByteArray("\n\n") << "bad.ptx: no scan in the file";
    }
    void ptxFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        QStringList leftOver;
        const QString error = importError(true, bytes, &leftOver);
        QVERIFY2(error.contains(expected), qPrintable(error));
        QCOMPARE(leftOver, QStringList());
    }

    // The file that the rows below spoil is good, so that they fail for their own fault only.
    void e57Good()
    {
        const QString error = importError(false, e57({}));
        QVERIFY2(error.isEmpty(), qPrintable(error));
    }

    void e57Files_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const QByteArray good = e57({});
        QByteArray flipped = good;
        flipped[2 * 1024 + 10] = char(flipped[2 * 1024 + 10] ^ 0x01);
        QByteArray flippedHeader = good;
        flippedHeader[47] = char(flippedHeader[47] ^ 0x40); // the page size's top byte, checked by page 0
        E57Options pastSection;
        pastSection.sectionLengthChange = -40;
        E57Options nan;
        nan.coordinates = E57Options::CartesianDouble;
        QTest::newRow("wrong CRC") << flipped << "bad.e57: page 2: the checksum does not match";
        QTest::newRow("truncated") << good.left(good.size() - 1024) << "bad.e57: the file is 2048 bytes long, its header says 3072";
        QTest::newRow("not E57") << QByteArray(100, 'x') << "bad.e57: not an E57 file";
        QTest::newRow("record count lies") << e57(xmlEdit(QStringLiteral("recordCount=\"48\""), QStringLiteral("recordCount=\"4800\"")))
                                           << "bad.e57: small: the compressed vector ends after 48 of 4800 records";
        QTest::newRow("packets past the section") << e57(pastSection) << "runs past the end of its section";
        QTest::newRow("section offset lies") << e57(xmlEdit(QStringLiteral("fileOffset=\"48\""), QStringLiteral("fileOffset=\"99999999\"")))
                                             << "data3D/0/points: fileOffset \"99999999\" lies outside the file's data";
        QTest::newRow("absurd grid") << e57(xmlEdit(QStringLiteral("<rowMaximum type=\"Integer\">5<"), QStringLiteral("<rowMaximum type=\"Integer\">4000000000<")))
                                     << "data3D/0: rowMaximum 4e+09 makes no grid";
        QTest::newRow("broken XML") << e57(xmlEdit(QStringLiteral("</data3D>"), QString())) << "bad.e57: XML section, line";
        QTest::newRow("other codec") << e57(xmlEdit(QStringLiteral("<codecs type=\"Vector\" allowHeterogeneousChildren=\"1\"/>"),
                                                    QStringLiteral("<codecs type=\"Vector\"><vectorChild type=\"Structure\"><zip type=\"Structure\"/></vectorChild></codecs>")))
                                     << "only the bit-pack codec is supported";
        QTest::newRow("NaN") << e57(nan, smallScan(5)) << "bad.e57: small: record 5: the coordinates are not finite";
    }
    void e57Files()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        QStringList leftOver;
        const QString error = importError(false, bytes, &leftOver);
        QVERIFY2(error.contains(expected), qPrintable(error));
        QCOMPARE(leftOver, QStringList());
    }

    // 0 … 1 are fractions of 255; larger numbers are taken as they are, up to 255.
    void ptxIntensities_data()
    {
        QTest::addColumn<QByteArray>("intensity");
        QTest::addColumn<int>("expected");
        QTest::newRow("one") << QByteArray("1.0") << 255;
        QTest::newRow("small fraction") << QByteArray("0.002") << 1;
        QTest::newRow("byte") << QByteArray("200") << 200;
        QTest::newRow("beyond a byte") << QByteArray("2047") << 255;
        QTest::newRow("negative") << QByteArray("-0.5") << 0;
    }
    void ptxIntensities()
    {
        QFETCH(QByteArray, intensity);
        QFETCH(int, expected);
        auto buffer = std::make_shared<QBuffer>();
        buffer->setData(ptx("1\n2\n", "1 0 0 " + intensity + "\n1 0 0.1 0.25\n"));
        buffer->open(QIODevice::ReadOnly);
        const auto scans = PtxReader::read(buffer, QStringLiteral("i.ptx"));
        ImportedPoint points[2];
        QCOMPARE(scans[0]->readAll()->read(points, 2), std::size_t(2));
        QCOMPARE(int(points[0].intensity), expected);
        QCOMPARE(int(points[1].intensity), 64); // 0.25 × 255 = 63.75
    }
};

TVX_TEST(ImportBadInputTest)
#include "importbadinputtest.moc"
