#include "scanexport.h"
#include "testfiles.h"
#include "testregistry.h"

#include "fileio/e57reader.h"
#include "fileio/importedscan.h"
#include "fileio/ptxreader.h"
#include "fileio/scanimporter.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletile.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

enum class Format { Ptx, E57 };

struct Cell {
    Vector3d point;
    double distance{0};
    quint8 intensity{0}, red{0}, green{0}, blue{0};
};

struct ReadScan {
    quint32 columns{0}, rows{0};
    double halfDiagonal{0};
    std::array<double, 16> transformation{};
    std::vector<Cell> cells; // column by column
};

ReadScan readBack(const QString& path)
{
    ReadScan scan;
    TVXFile file(path);
    if (!file.open() || !file.readHeader())
        return scan;
    const TVXFileScanInfo& info = file.scanInfo();
    scan.columns = info.columns;
    scan.rows = info.rows;
    scan.halfDiagonal = info.halfDiagonal();
    scan.transformation = info.transformation;
    scan.cells.resize(std::size_t(info.columns) * info.rows);
    file.openData();
    for (quint32 tx = 0; tx < info.tilesX(); ++tx) {
        for (quint32 ty = 0; ty < info.tilesY(); ++ty) {
            TVXFileTile tile;
            if (!file.readTile(tx, ty, tile))
                return {};
            for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
                for (quint32 r = tile.firstRow; r <= tile.lastRow; ++r) {
                    const std::size_t i = tile.indexOf(c, r);
                    Cell& cell = scan.cells[std::size_t(c) * info.rows + r];
                    cell.point = tile.points[i];
                    cell.distance = tile.distances[i];
                    if (!tile.intensities.empty())
                        cell.intensity = tile.intensities[i];
                    if (!tile.colours.empty()) {
                        cell.red = tile.colours[3 * i];
                        cell.green = tile.colours[3 * i + 1];
                        cell.blue = tile.colours[3 * i + 2];
                    }
                }
            }
        }
    }
    return scan;
}

// A tilted station away from the origin.
const std::array<double, 16> pose{0.8, -0.6, 0, 12.5, 0.6, 0.8, 0, -3.25, 0, 0, 1, 1.5, 0, 0, 0, 1};

std::vector<std::shared_ptr<ImportedScan>> readScans(Format format, const QByteArray& bytes)
{
    auto buffer = std::make_shared<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return format == Format::Ptx ? PtxReader::read(buffer, QStringLiteral("test.ptx"))
                                 : E57Reader::read(buffer, QStringLiteral("test.e57"));
}

QByteArray exported(Format format, const std::vector<ExportScan>& scans, const E57Options& options)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    if (format == Format::Ptx)
        writePtx(buffer, scans);
    else
        writeE57(buffer, scans, options);
    return buffer.data();
}

} // namespace

// Scan file → PTX or E57 → import → scan file: every point comes back within a millimetre and the
// sub-cell offsets' resolution, with its intensity, colour and the scan's pose.
class ScanImporterTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_source;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        m_source = m_dir.filePath(QStringLiteral("source.tvx"));
        // 70 columns: a second, narrower tile strip.
        QVERIFY(writeSourceScan(m_source, 70, 30, 5, pose));
    }

    void roundTrip_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<bool>("mirrorColumns");
        QTest::addColumn<bool>("mirrorRows");
        QTest::addColumn<int>("coordinates");
        QTest::addColumn<bool>("indexes");
        QTest::addColumn<quint64>("pageSize");
        QTest::addColumn<bool>("otherPackets");
        const int scaled = E57Options::CartesianScaled;
        QTest::newRow("PTX") << int(Format::Ptx) << false << false << 0 << true << quint64(1024) << false;
        QTest::newRow("PTX, columns and rows the other way") << int(Format::Ptx) << true << true << 0 << true << quint64(1024) << false;
        QTest::newRow("E57 scaled integers") << int(Format::E57) << false << false << scaled << true << quint64(1024) << false;
        QTest::newRow("E57 doubles, mirrored") << int(Format::E57) << true << true << int(E57Options::CartesianDouble) << true << quint64(1024) << false;
        QTest::newRow("E57 single floats, small pages") << int(Format::E57) << false << true << int(E57Options::CartesianSingle) << true << quint64(64) << false;
        QTest::newRow("E57 spherical, index and empty packets") << int(Format::E57) << false << false << int(E57Options::Spherical) << true << quint64(1024) << true;
        QTest::newRow("E57 without grid") << int(Format::E57) << false << false << scaled << false << quint64(1024) << false;
    }
    void roundTrip()
    {
        QFETCH(int, format);
        QFETCH(bool, mirrorColumns);
        QFETCH(bool, mirrorRows);
        QFETCH(int, coordinates);
        QFETCH(bool, indexes);
        QFETCH(quint64, pageSize);
        QFETCH(bool, otherPackets);
        E57Options options;
        options.otherPackets = otherPackets;
        options.coordinates = E57Options::Coordinates(coordinates);
        options.indexes = indexes;
        options.pageSize = pageSize;
        options.recordsPerPacket = 333;
        const QByteArray bytes = exported(Format(format), {exportOf(m_source, mirrorColumns, mirrorRows)}, options);
        const auto scans = readScans(Format(format), bytes);
        QCOMPARE(scans.size(), std::size_t(1));
        const QString out = m_dir.filePath(QStringLiteral("out%1.tvx").arg(QTest::currentDataTag()).remove(QLatin1Char(' ')));
        const ScanImporter::Result result = ScanImporter::write(*scans[0], out, {});
        QCOMPARE(result.gridKept, indexes);

        const ReadScan source = readBack(m_source);
        const ReadScan imported = readBack(out);
        QVERIFY(!imported.cells.empty());
        for (std::size_t i = 0; i < 16; ++i)
            QVERIFY(std::abs(imported.transformation[i] - pose[i]) < 1e-9);
        const QImage panorama(ScanImporter::panoramaPathFor(out));
        QCOMPARE(panorama.size(), QSize(int(imported.columns), int(imported.rows)));
        const auto within = [&](const Cell& a, const Cell& b) {
            const double tolerance = 0.001 + b.distance * imported.halfDiagonal / 127;
            return std::abs(a.distance - b.distance) <= 0.0006 && (a.point - b.point).length() <= tolerance;
        };
        const auto sameLook = [](const Cell& a, const Cell& b) {
            return a.intensity == b.intensity && a.red == b.red && a.green == b.green && a.blue == b.blue;
        };
        quint64 sourceReturns = 0;
        for (const Cell& cell : source.cells)
            sourceReturns += cell.distance > 0;
        if (indexes) {
            // The grid comes back cell for cell, turned round where the file ran the other way.
            QCOMPARE(imported.columns, source.columns);
            QCOMPARE(imported.rows, source.rows);
            QCOMPARE(result.pointsWithReturn, sourceReturns);
            for (std::size_t i = 0; i < source.cells.size(); ++i) {
                const Cell& a = imported.cells[i];
                const Cell& b = source.cells[i];
                QCOMPARE(a.distance > 0, b.distance > 0);
                if (b.distance > 0) {
                    QVERIFY2(within(a, b), qPrintable(QStringLiteral("cell %1: %2 m off").arg(i).arg((a.point - b.point).length())));
                    QVERIFY(sameLook(a, b));
                }
            }
            return;
        }
        // Gridded from the points: nearly every point finds a cell of its own, and every cell
        // holds one of the points.
        QVERIFY2(result.pointsWithReturn >= sourceReturns * 95 / 100,
                 qPrintable(QStringLiteral("%1 of %2").arg(result.pointsWithReturn).arg(sourceReturns)));
        for (const Cell& a : imported.cells) {
            if (a.distance == 0)
                continue;
            const auto match = std::find_if(source.cells.begin(), source.cells.end(),
                                            [&](const Cell& b) { return b.distance > 0 && within(a, b) && sameLook(a, b); });
            QVERIFY(match != source.cells.end());
        }
    }

    // A scan large enough that only some of its points are looked at before it is written strip by
    // strip (E57 in file order) or read by strips of columns (PTX) still comes back cell for cell.
    void largeScan()
    {
        const QString source = m_dir.filePath(QStringLiteral("large-grid.tvx"));
        if (!QFile::exists(source))
            QVERIFY(writeSourceScan(source, 1030, 520, 11, pose)); // 130 batches of 4096 points
        const auto scans = readScans(Format::E57, exported(Format::E57, {exportOf(source)}, {}));
        const QString out = m_dir.filePath(QStringLiteral("large.tvx"));
        QVERIFY(ScanImporter::write(*scans[0], out, {}).gridKept);
        const ReadScan original = readBack(source);
        const ReadScan imported = readBack(out);
        QCOMPARE(imported.cells.size(), original.cells.size());
        for (std::size_t i = 0; i < original.cells.size(); ++i) {
            const Cell& a = imported.cells[i];
            const Cell& b = original.cells[i];
            const double tolerance = 0.001 + b.distance * imported.halfDiagonal / 127;
            if (std::abs(a.distance - b.distance) > 0.0006 || (a.point - b.point).length() > tolerance)
                QFAIL(qPrintable(QStringLiteral("cell %1: %2 m off").arg(i).arg((a.point - b.point).length())));
        }
    }

    // Several scans in one file become several scans, each with its own pose and size.
    void severalScans_data()
    {
        QTest::addColumn<int>("format");
        QTest::newRow("PTX") << int(Format::Ptx);
        QTest::newRow("E57") << int(Format::E57);
    }
    void severalScans()
    {
        QFETCH(int, format);
        const QString second = m_dir.filePath(QStringLiteral("second%1.tvx").arg(format));
        std::array<double, 16> other{1, 0, 0, -4, 0, 1, 0, 7, 0, 0, 1, 0, 0, 0, 0, 1};
        QVERIFY(writeSourceScan(second, 20, 12, 9, other));
        const auto scans = readScans(Format(format), exported(Format(format), {exportOf(m_source), exportOf(second)}, {}));
        QCOMPARE(scans.size(), std::size_t(2));
        QCOMPARE(scans[0]->columns, 70u);
        QCOMPARE(scans[1]->columns, 20u);
        QCOMPARE(scans[1]->rows, 12u);
        QCOMPARE(scans[1]->transformation, other);
    }

    // The scan's own spherical image becomes its panorama: kept byte for byte when it has one
    // pixel per cell, else scaled to the grid.
    void ownPanorama_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("one pixel per cell") << QSize(20, 12);
        QTest::newRow("larger") << QSize(64, 30);
    }
    void ownPanorama()
    {
        QFETCH(QSize, size);
        const QString source = m_dir.filePath(QStringLiteral("small.tvx"));
        QVERIFY(writeSourceScan(source, 20, 12));
        QImage image(size, QImage::Format_RGB888);
        image.fill(QColor(200, 30, 90));
        QBuffer jpeg;
        jpeg.open(QIODevice::WriteOnly);
        QVERIFY(image.save(&jpeg, "JPG"));
        ExportScan scan = exportOf(source);
        scan.panorama = jpeg.data();
        const auto scans = readScans(Format::E57, exported(Format::E57, {scan}, {}));
        const QString out = m_dir.filePath(QStringLiteral("own%1.tvx").arg(size.width()));
        ScanImporter::write(*scans[0], out, {});
        const QString panorama = ScanImporter::panoramaPathFor(out);
        QCOMPARE(QImage(panorama).size(), QSize(20, 12));
        QCOMPARE(readBytes(panorama) == jpeg.data(), size == QSize(20, 12));
        QVERIFY(qAbs(QImage(panorama).pixelColor(10, 6).red() - 200) < 8); // its colour, not the cells'
    }

    // Cancelling leaves no file behind, whether it comes while the points are looked at or in the
    // middle of writing the cells.
    void cancelling_data()
    {
        QTest::addColumn<int>("format");
        QTest::addColumn<bool>("halfway");
        QTest::newRow("PTX at the start") << int(Format::Ptx) << false;
        QTest::newRow("E57 halfway") << int(Format::E57) << true;
    }
    void cancelling()
    {
        QFETCH(int, format);
        QFETCH(bool, halfway);
        const QString source = m_dir.filePath(QStringLiteral("large.tvx"));
        if (!QFile::exists(source))
            QVERIFY(writeSourceScan(source, 600, 300));
        const auto scans = readScans(Format(format), exported(Format(format), {exportOf(source)}, {}));
        QTemporaryDir out;
        const QString path = out.filePath(QStringLiteral("cancelled.tvx"));
        bool cancelled = false;
        try {
            ScanImporter::write(*scans[0], path, {}, [&](quint64 done, quint64 total) {
                return halfway && done < total / 2;
            });
        } catch (const ScanImporter::Cancelled&) {
            cancelled = true;
        }
        QVERIFY(cancelled);
        QCOMPARE(QDir(out.path()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    }
};

TVX_TEST(ScanImporterTest)
#include "scanimportertest.moc"
