#include "scanfixture.h"
#include "testregistry.h"

#include "fileio/scangeometry.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <limits>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

using Colours = TVXFile::PointCloud::Colours;

// 13 × 9 cells in tiles of 4: narrow last tile column and row; every third or so cell without
// return (pattern cells).
constexpr quint32 columns = 13;
constexpr quint32 rows = 9;
constexpr quint32 tileSize = 4;
constexpr quint32 step = 2;

struct Expected {
    std::vector<Vector3d> points;
    std::vector<quint8> rgb;
};

// What the view must get, from single point reads (the direct formula) and the pattern's own
// channels, visiting the cells in the data file's tile order: tile columns, tile rows, then
// column by column inside a tile.
Expected expectedCloud(TVXFile& file, Colours colours)
{
    Expected expected;
    for (quint32 tileColumn = 0; tileColumn * tileSize < columns; ++tileColumn) {
        for (quint32 tileRow = 0; tileRow * tileSize < rows; ++tileRow) {
            for (quint32 c = tileColumn * tileSize; c < std::min(columns, (tileColumn + 1) * tileSize); ++c) {
                for (quint32 r = tileRow * tileSize; r < std::min(rows, (tileRow + 1) * tileSize); ++r) {
                    double x = 0, y = 0, z = 0;
                    bool valid = false;
                    if (c % step != 0 || r % step != 0 || !file.readPoint(c, r, x, y, z, valid) || !valid)
                        continue;
                    expected.points.emplace_back(x, y, z);
                    const TVXFileCell cell = patternCell(c, r);
                    if (colours == TVXFile::PointCloud::ScanColours)
                        expected.rgb.insert(expected.rgb.end(), {cell.red, cell.green, cell.blue});
                    else if (colours == TVXFile::PointCloud::IntensityGrey)
                        expected.rgb.insert(expected.rgb.end(), 3, cell.intensity);
                }
            }
        }
    }
    return expected;
}

bool openScan(TVXFile& file)
{
    return file.open() && file.readHeader() && file.close();
}

struct ColoursRow {
    const char* name;
    int channels;
    Colours wanted;
    Colours given;
};

struct BoxRow {
    const char* name;
    Vector3d storedMin;
    Vector3d storedMax;
    bool storedUsed;
};

} // namespace
Q_DECLARE_METATYPE(ColoursRow)
Q_DECLARE_METATYPE(BoxRow)

// The point cloud as the point cloud view reads it: cells with a return on the step, their
// colours, and the box around them.
class PointCloudReadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_dir.isValid()); }

    void pointsAndColours_data()
    {
        QTest::addColumn<ColoursRow>("row");
        constexpr int distance = DistanceChannel;
        const ColoursRow rows[] = {
            {"scan colours", AllChannels, Colours::ScanColours, Colours::ScanColours},
            {"intensity", AllChannels, Colours::IntensityGrey, Colours::IntensityGrey},
            {"intensity wanted, colour only", distance | ColourChannel, Colours::IntensityGrey, Colours::ScanColours},
            {"distance only", distance, Colours::ScanColours, Colours::NoColours},
        };
        for (const ColoursRow& row : rows)
            QTest::newRow(row.name) << row;
    }
    void pointsAndColours()
    {
        QFETCH(ColoursRow, row);
        const QString path = writePatternScan(m_dir.path(), QStringLiteral("pattern%1").arg(++m_scans), columns,
                                              rows, tileSize, row.channels);
        QVERIFY(!path.isEmpty());
        TVXFile file(path);
        QVERIFY(openScan(file));
        const Expected expected = expectedCloud(file, row.given);

        TVXFile::PointCloud cloud;
        QVERIFY(file.readPointCloud(step, row.wanted, cloud));
        QCOMPARE(cloud.colours, row.given);
        QCOMPARE(file.pointCloudColours(row.wanted), row.given);
        QCOMPARE(cloud.size(), expected.points.size());
        QCOMPARE(cloud.xyz.size(), 3 * expected.points.size());
        for (std::size_t i = 0; i < expected.points.size(); ++i) {
            const Vector3d& p = expected.points[i];
            const Vector3d got(cloud.xyz[3 * i], cloud.xyz[3 * i + 1], cloud.xyz[3 * i + 2]);
            QVERIFY2((got - p).length() < 1e-5, qPrintable(QStringLiteral("point %1").arg(i)));
        }
        QCOMPARE(cloud.rgb, expected.rgb);

        // The colours alone come for the same points.
        std::vector<quint8> rgb{1, 2, 3};
        Colours given = Colours::NoColours;
        QVERIFY(file.readPointCloudColours(step, row.wanted, rgb, given));
        QCOMPARE(given, row.given);
        QCOMPARE(rgb, expected.rgb);
    }

    void box_data()
    {
        QTest::addColumn<BoxRow>("row");
        constexpr double huge = std::numeric_limits<double>::max();
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        const BoxRow rows[] = {
            {"stored box", {-1, -2, -3}, {4, 5, 6}, true},
            {"empty stored box: the points'", {huge, huge, huge}, {-huge, -huge, -huge}, false},
            {"not a number", {-1, nan, -3}, {4, 5, 6}, false},
        };
        for (const BoxRow& row : rows)
            QTest::newRow(row.name) << row;
    }
    void box()
    {
        QFETCH(BoxRow, row);
        const QString path = nextPath();
        TVXFileWriter writer;
        setGrid(writer.scanInfo(), columns, rows, tileSize, AllChannels);
        writer.scanInfo().boundingBoxMin = row.storedMin;
        writer.scanInfo().boundingBoxMax = row.storedMax;
        writer.setCellSource(patternCell);
        QVERIFY(writer.write(path));
        TVXFile file(path);
        QVERIFY(openScan(file));

        TVXFile::PointCloud cloud;
        QVERIFY(file.readPointCloud(step, Colours::NoColours, cloud));
        Vector3d low = row.storedMin;
        Vector3d high = row.storedMax;
        if (!row.storedUsed) {
            const Expected expected = expectedCloud(file, Colours::NoColours);
            QVERIFY(!expected.points.empty());
            low = high = expected.points.front();
            for (const Vector3d& p : expected.points) {
                low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
                high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
            }
        }
        QVERIFY((cloud.boxMin - low).length() < 1e-5);
        QVERIFY((cloud.boxMax - high).length() < 1e-5);
        QVERIFY((cloud.centre() - (low + high) * 0.5).length() < 1e-5);
        QVERIFY(std::abs(cloud.radius() - (high - low).length() / 2) < 1e-5);
    }

    // Nothing that is not a finite point enters the cloud, and a cloud may be empty.
    void emptyAndRefused_data()
    {
        QTest::addColumn<quint32>("scanColumns");
        QTest::addColumn<int>("channels");
        QTest::addColumn<quint32>("readStep");
        QTest::addColumn<bool>("read");
        // One column: the horizontal step (max − min) / 0 is infinite, every angle 0 × ∞ = NaN.
        QTest::newRow("one column: all NaN") << 1u << int(AllChannels) << 1u << true;
        QTest::newRow("no distance channel") << columns << int(ColourChannel) << 1u << false;
        QTest::newRow("step 0") << columns << int(AllChannels) << 0u << false;
    }
    void emptyAndRefused()
    {
        QFETCH(quint32, scanColumns);
        QFETCH(int, channels);
        QFETCH(quint32, readStep);
        QFETCH(bool, read);
        TestScan scan;
        scan.columns = scanColumns;
        scan.rows = rows;
        scan.tileSize = tileSize;
        scan.distance = channels & DistanceChannel;
        scan.intensity = channels & IntensityChannel;
        scan.colour = channels & ColourChannel;
        const QString path = nextPath();
        QVERIFY(writeTestScan(path, scan));
        TVXFile file(path);
        QVERIFY(openScan(file));
        TVXFile::PointCloud cloud;
        cloud.xyz = {1, 2, 3};
        QCOMPARE(file.readPointCloud(readStep, Colours::ScanColours, cloud), read);
        QCOMPARE(cloud.size(), std::size_t(0));
        QVERIFY(cloud.rgb.empty());
        QVERIFY(std::isfinite(cloud.radius()));
    }

private:
    QString nextPath() { return m_dir.filePath(QStringLiteral("scan%1.tvx").arg(++m_scans)); }

    QTemporaryDir m_dir;
    int m_scans = 0;
};

TVX_TEST(PointCloudReadTest)

#include "pointcloudreadtest.moc"
