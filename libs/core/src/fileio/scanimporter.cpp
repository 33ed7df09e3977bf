#include "fileio/scanimporter.h"

#include "fileio/importedscan.h"
#include "fileio/importerror.h"
#include "fileio/importgeometry.h"
#include "fileio/scangeometry.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfilewriter.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace TVX::CORE {

namespace {

constexpr double twoPi = 2 * M_PI;
constexpr std::size_t batchSize = 4096;
constexpr quint32 maximumMillimetres = 0xFFFFFF;
constexpr quint64 progressCells = 1 << 16;
constexpr int azimuthBins = 3600;
constexpr std::size_t spacingSamples = 1 << 16;
constexpr quint32 sampledColumns = 256;
constexpr quint64 sampledBatches = 64;


double azimuthOf(const ImportedPoint& p)
{
    return std::atan2(-p.y, p.x); // horizontal angles grow clockwise seen from above
}

double elevationOf(const ImportedPoint& p)
{
    return std::atan2(p.z, std::hypot(p.x, p.y));
}

// How the cells are made: straight from a strip of source columns, from the points streamed in
// strip order, or from all cells held at once.
enum class Mode { Columns, Stream, Whole };

struct Grid {
    quint32 columns{0};
    quint32 rows{0};
    double horizontalMin{0}, horizontalMax{0}, verticalMin{0}, verticalMax{0};
    GridAngles angles;
    bool gridKept{false};
    bool flipColumns{false};
    bool flipRows{false};
    bool fullCircle{false}; // made grids only: the last column meets the first
    Mode mode{Mode::Whole};

    // Cosine and sine of every column's and row's centre angle.
    std::vector<std::pair<double, double>> columnTurn, rowTurn;

    void setAngles()
    {
        angles = gridAngles(columns, rows, horizontalMin, horizontalMax, verticalMin, verticalMax);
        columnTurn.resize(columns);
        for (quint32 c = 0; c < columns; ++c)
            columnTurn[c] = {std::cos(columnAngle(c, angles)), std::sin(columnAngle(c, angles))};
        rowTurn.resize(rows);
        for (quint32 r = 0; r < rows; ++r)
            rowTurn[r] = {std::cos(rowAngle(r, angles)), std::sin(rowAngle(r, angles))};
    }
};

// Calls the progress now and then; throws Cancelled when it says so.
class ProgressGate
{
public:
    ProgressGate(const ScanImporter::Progress& progress, quint64 total) : m_progress(progress), m_total(total) {}
    void report(quint64 done)
    {
        if (m_progress && !m_progress(done, m_total))
            throw ScanImporter::Cancelled();
    }
    void step(quint64 done)
    {
        if (done - m_reported >= progressCells) {
            m_reported = done;
            report(done);
        }
    }

private:
    const ScanImporter::Progress& m_progress;
    quint64 m_total;
    quint64 m_reported{0};
};

class Importer
{
public:
    Importer(const ImportedScan& scan, const ScanImporter::Options& options, const ScanImporter::Progress& progress)
        : m_scan(scan), m_options(options), m_progress(progress)
    {}

    ScanImporter::Result run(const QString& scanPath);

private:
    [[noreturn]] void fail(const QString& why) const
    {
        throw ImportError(QStringLiteral("%1: %2: %3").arg(m_scan.fileName, m_scan.name, why));
    }
    void checkGridPosition(const ImportedPoint& point) const
    {
        if (point.column < 0 || point.row < 0 || point.column >= m_scan.columns || point.row >= m_scan.rows)
            fail(QCoreApplication::translate(
                "TVX::CORE::ScanImporter", "a point at column %1, row %2 lies outside the grid of %3 × %4")
                     .arg(point.column)
                     .arg(point.row)
                     .arg(m_scan.columns)
                     .arg(m_scan.rows));
    }
    bool planKeptGrid();
    void planMadeGrid();
    quint32 columnOf(const ImportedPoint& point) const;
    quint32 rowOf(const ImportedPoint& point) const;
    TVXFileCell cellOf(const ImportedPoint& point, quint32 column, quint32 row) const;
    void place(std::vector<TVXFileCell>& cells, quint32 firstColumn, quint32 column, quint32 row,
               const TVXFileCell& cell) const;
    void fillWhole();
    void loadStrip(quint32 strip);
    TVXFileCell cellAt(quint32 column, quint32 row);
    void paint(quint32 column, quint32 row, const TVXFileCell& cell);
    void writePanorama(const QString& path, const QByteArray& own);

    const ImportedScan& m_scan;
    ScanImporter::Options m_options;
    const ScanImporter::Progress& m_progress;
    Grid m_grid;
    std::vector<TVXFileCell> m_cells; // the strip in hand, or the whole grid
    quint32 m_strip{std::numeric_limits<quint32>::max()};
    quint32 m_stripWidth{0};
    std::unique_ptr<ImportedScan::Cursor> m_stream;
    std::vector<ImportedPoint> m_batch;
    std::size_t m_batchNext{0};
    std::size_t m_batchSize{0};
    QImage m_image;
    uchar* m_pixels{nullptr}; // of m_image, taken once: scanLine() per cell costs
    std::size_t m_stride{0};
    quint64 m_withReturn{0};
};

// Fits the angles of the source's columns and rows to the measured directions. False when the
// points cannot tell them (fewer than two columns or rows with returns).
bool Importer::planKeptGrid()
{
    const quint32 columns = m_scan.columns;
    const quint32 rows = m_scan.rows;
    if (columns < 2 || rows < 2)
        return false;
    // Circular mean of the azimuths per column, mean elevation per row, from every k-th column.
    std::vector<double> cosSum(columns), sinSum(columns), elevationSum(rows);
    std::vector<quint32> columnCount(columns), rowCount(rows);
    const quint32 every = std::max<quint32>(1, columns / sampledColumns);
    bool ascending = true, descending = true;
    qint64 previous = -1;
    quint64 count = 0;
    std::vector<ImportedPoint> batch(batchSize);
    ProgressGate gate(m_progress, quint64(columns) * rows);
    // Reading past a file in order, only every k-th batch needs its coordinates.
    const quint64 batches = quint64(columns) * rows / batchSize + 1;
    const quint64 everyBatch = std::max<quint64>(1, batches / sampledBatches);
    const auto take = [&](ImportedScan::Cursor& cursor, bool checkOrder) {
        for (quint64 b = 0;; ++b) {
            const bool sampled = !checkOrder || b % everyBatch == 0;
            const std::size_t n = sampled ? cursor.read(batch.data(), batch.size())
                                          : cursor.readGridPositions(batch.data(), batch.size());
            if (n == 0)
                break;
            count += n;
            for (std::size_t i = 0; i < n; ++i) {
                const ImportedPoint& p = batch[i];
                checkGridPosition(p);
                if (checkOrder && previous >= 0) {
                    ascending = ascending && p.column >= previous;
                    descending = descending && p.column <= previous;
                }
                previous = p.column;
                if (!p.hasReturn || (!checkOrder && p.column % every != 0) || (p.x == 0 && p.y == 0 && p.z == 0))
                    continue;
                const double h = azimuthOf(p);
                cosSum[std::size_t(p.column)] += std::cos(h);
                sinSum[std::size_t(p.column)] += std::sin(h);
                ++columnCount[std::size_t(p.column)];
                elevationSum[std::size_t(p.row)] += elevationOf(p);
                ++rowCount[std::size_t(p.row)];
            }
            gate.report(0);
        }
    };
    const bool seekable = m_scan.readColumns(0, 1) != nullptr;
    if (seekable) {
        for (quint32 column = 0; column < columns; column += every)
            take(*m_scan.readColumns(column, 1), false);
    } else {
        take(*m_scan.readAll(), true);
        // The grid's size comes from the file's own word; its points must fill a fair part of it
        // before cells and a panorama are made for all of it.
        if (quint64(columns) * rows > 16 * count + (1 << 20))
            fail(QCoreApplication::translate("TVX::CORE::ScanImporter", "a grid of %1 × %2 for only %3 points")
                     .arg(columns)
                     .arg(rows)
                     .arg(count));
    }

    std::vector<std::pair<double, double>> samples;
    for (quint32 c = 0; c < columns; ++c) {
        if (columnCount[c] == 0)
            continue;
        double angle = std::atan2(sinSum[c], cosSum[c]);
        if (!samples.empty()) // unwrap against the previous column
            angle += twoPi * std::round((samples.back().second - angle) / twoPi);
        samples.emplace_back(double(c), angle);
    }
    double ha = 0, hb = 0;
    if (!fitLine(samples, ha, hb))
        return false;
    samples.clear();
    for (quint32 r = 0; r < rows; ++r) {
        if (rowCount[r] > 0)
            samples.emplace_back(double(r), elevationSum[r] / rowCount[r]);
    }
    double va = 0, vb = 0;
    if (!fitLine(samples, va, vb))
        return false;

    Grid& g = m_grid;
    g.columns = columns;
    g.rows = rows;
    g.gridKept = true;
    g.flipColumns = hb < 0;
    double hMin = g.flipColumns ? ha + hb * (columns - 1) : ha;
    hMin -= twoPi * std::floor(hMin / twoPi);
    g.horizontalMin = hMin;
    g.horizontalMax = hMin + std::abs(hb) * (columns - 1);
    // Row 0 is the top row: a source whose rows climb is mirrored.
    g.flipRows = vb > 0;
    g.verticalMin = g.flipRows ? va : va + vb * (rows - 1);
    g.verticalMax = g.verticalMin + std::abs(vb) * (rows - 1);
    g.setAngles();
    if (seekable)
        g.mode = Mode::Columns;
    else if ((g.flipColumns ? descending : ascending))
        g.mode = Mode::Stream;
    else
        g.mode = Mode::Whole;
    return true;
}

// A grid by azimuth and elevation around the station, for points without one. Its steps come from
// the order in which a scanner stores points, line by line: consecutive points lie one step apart
// along the line, and the number of jumps between lines gives the step across them.
void Importer::planMadeGrid()
{
    std::vector<bool> occupied(azimuthBins, false);
    std::vector<double> binLow(azimuthBins, twoPi), binHigh(azimuthBins, -twoPi);
    double low = M_PI, high = -M_PI, elevationSum = 0;
    struct Pair {
        double separation, vertical, horizontal;
        double azimuth, elevation; // of the later point
    };
    std::vector<Pair> pairs;
    std::size_t stride = 1;
    quint64 pairCount = 0;
    bool havePrevious = false;
    double previous[3] = {0, 0, 0};
    double previousAzimuth = 0, previousElevation = 0;
    quint64 withReturn = 0;
    std::vector<ImportedPoint> batch(batchSize);
    ProgressGate gate(m_progress, m_scan.pointCount);
    const auto cursor = m_scan.readAll();
    while (const std::size_t n = cursor->read(batch.data(), batch.size())) {
        for (std::size_t i = 0; i < n; ++i) {
            const ImportedPoint& p = batch[i];
            const double d = std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z);
            if (!p.hasReturn || !(d > 0) || !std::isfinite(d))
                continue;
            ++withReturn;
            const double h = azimuthOf(p);
            const int bin = std::min(azimuthBins - 1, int((h + M_PI) / twoPi * azimuthBins));
            occupied[std::size_t(bin)] = true;
            binLow[std::size_t(bin)] = std::min(binLow[std::size_t(bin)], h);
            binHigh[std::size_t(bin)] = std::max(binHigh[std::size_t(bin)], h);
            const double v = elevationOf(p);
            low = std::min(low, v);
            high = std::max(high, v);
            elevationSum += v;
            const double unit[3] = {p.x / d, p.y / d, p.z / d};
            if (havePrevious && pairCount++ % stride == 0) {
                const double cross = std::hypot(unit[1] * previous[2] - unit[2] * previous[1],
                                                unit[2] * previous[0] - unit[0] * previous[2],
                                                unit[0] * previous[1] - unit[1] * previous[0]);
                const double dot = unit[0] * previous[0] + unit[1] * previous[1] + unit[2] * previous[2];
                pairs.push_back({std::atan2(cross, dot), std::abs(v - previousElevation),
                                 std::abs(wrapAngle(h - previousAzimuth)) * std::cos(v), h, v});
                if (pairs.size() == spacingSamples) { // keep every other sample, take half as many
                    for (std::size_t k = 0; k < pairs.size() / 2; ++k)
                        pairs[k] = pairs[2 * k];
                    pairs.resize(pairs.size() / 2);
                    stride *= 2;
                }
            }
            std::copy(unit, unit + 3, previous);
            previousAzimuth = h;
            previousElevation = v;
            havePrevious = true;
        }
        gate.report(0);
    }
    if (withReturn == 0)
        fail(QCoreApplication::translate("TVX::CORE::ScanImporter", "no point with a return to grid"));

    // The azimuths covered: all but the widest run of empty bins (around the circle).
    int widestStart = 0, widest = 0;
    for (int start = 0; start < azimuthBins; ++start) {
        if (occupied[std::size_t(start)] || !occupied[std::size_t((start + azimuthBins - 1) % azimuthBins)])
            continue; // not the start of an empty run
        int length = 0;
        while (length < azimuthBins && !occupied[std::size_t((start + length) % azimuthBins)])
            ++length;
        if (length > widest) {
            widest = length;
            widestStart = start;
        }
    }
    Grid& g = m_grid;
    g.fullCircle = widest < 2;
    double span = twoPi;
    double spanStart = 0;
    if (!g.fullCircle) {
        const std::size_t first = std::size_t((widestStart + widest) % azimuthBins);
        const std::size_t last = std::size_t((widestStart + azimuthBins - 1) % azimuthBins);
        spanStart = binLow[first];
        span = binHigh[last] - spanStart;
        span -= twoPi * std::floor(span / twoPi);
    }
    const double vSpan = std::max(high - low, 1e-6);
    const double hSpan = std::max(span, 1e-6);
    std::vector<double> azimuths, elevations;
    for (const Pair& pair : pairs) {
        azimuths.push_back(pair.azimuth);
        elevations.push_back(pair.elevation);
    }

    double hStep = m_options.stepDegrees * M_PI / 180.0;
    double vStep = hStep;
    const bool stepGiven = hStep > 0;
    if (!stepGiven) {
        const auto percentile = [&pairs](double Pair::*member, double fraction) {
            std::vector<double> values;
            for (const Pair& pair : pairs)
                values.push_back(pair.*member);
            const auto at = values.begin() + std::ptrdiff_t(double(values.size() - 1) * fraction);
            std::nth_element(values.begin(), at, values.end());
            return *at;
        };
        const auto median = [&percentile](double Pair::*member) { return percentile(member, 0.5); };
        const double cosine = std::max(0.05, std::cos(elevationSum / double(withReturn)));
        // Without lines to follow: cells of half the mean spacing.
        hStep = vStep = 0.5 * std::sqrt(hSpan * cosine * vSpan / double(withReturn)) / std::sqrt(cosine);
        if (!pairs.empty()) {
            // Jumps between lines are far longer than steps along them.
            const double typical = median(&Pair::separation);
            std::size_t jumps = 0;
            for (const Pair& pair : pairs)
                jumps += pair.separation > 4 * typical;
            const double lines = 1.0 + double(jumps) * double(stride);
            const bool vertical = median(&Pair::vertical) > median(&Pair::horizontal);
            // Along a line only its own axis counts: the other one holds the beam's jitter. A low
            // percentile, as cells without return make some steps double: a finer grid leaves a
            // few cells empty rather than putting two points into one.
            const double along = percentile(vertical ? &Pair::vertical : &Pair::horizontal, 0.3);
            const double across = (vertical ? hSpan : vSpan) / std::max(1.0, lines - 1);
            const double acrossAngle = vertical ? across * cosine : across;
            if (along > 0 && acrossAngle > along / 4 && acrossAngle < along * 4) {
                hStep = vertical ? across : along / cosine;
                vStep = vertical ? along : across;
                // Both estimates suffer from the beam's jitter (the outermost points widen the
                // span; the low percentile shortens the step): take the steps near them at which
                // the angles cluster best.
                hStep = clusteredStep(azimuths, hStep);
                vStep = clusteredStep(elevations, vStep);
            }
        }
    }
    if (!(hStep > 1e-9 && vStep > 1e-9 && std::isfinite(hStep) && std::isfinite(vStep)))
        hStep = vStep = std::max({hSpan, vSpan, 1e-3}) / 1000;
    const auto cellsFor = [&](double h, double v) { return (std::floor(hSpan / h) + 2) * (std::floor(vSpan / v) + 2); };
    if (stepGiven && cellsFor(hStep, vStep) > double(ScanImporter::maximumGridCells))
        fail(QCoreApplication::translate(
            "TVX::CORE::ScanImporter", "a step of %1° makes more than %2 cells; choose a larger step")
                 .arg(m_options.stepDegrees)
                 .arg(ScanImporter::maximumGridCells));
    // A step of its own choosing makes no grid far emptier than the points are many.
    const double cellLimit = std::min(double(ScanImporter::maximumGridCells), 64.0 * double(withReturn) + (1 << 20));
    if (!stepGiven) {
        while (cellsFor(hStep, vStep) > cellLimit) {
            hStep *= 1.05;
            vStep *= 1.05;
        }
    }
    // Cell centres where the points cluster.
    // The angle nearest `from` at which the phase puts a cell centre.
    const auto aligned = [](double from, double centre, double step) {
        return from + wrapAngle((centre - from) / step * twoPi) / twoPi * step;
    };
    if (g.fullCircle) {
        g.columns = std::max<quint32>(2, quint32(std::ceil(twoPi / hStep)));
        hStep = twoPi / g.columns;
        double start = aligned(0.0, clusterPhase(azimuths, hStep), hStep);
        start -= twoPi * std::floor(start / twoPi);
        g.horizontalMin = start;
        g.horizontalMax = start + hStep * (g.columns - 1);
    } else {
        const double start = aligned(spanStart, clusterPhase(azimuths, hStep), hStep);
        g.columns = std::max<quint32>(2, quint32(std::lround((spanStart + hSpan - start) / hStep)) + 1);
        g.horizontalMin = start - twoPi * std::floor(start / twoPi);
        g.horizontalMax = g.horizontalMin + hStep * (g.columns - 1);
    }
    const double bottom = aligned(low, clusterPhase(elevations, vStep), vStep);
    g.rows = std::max<quint32>(2, quint32(std::lround((high - bottom) / vStep)) + 1);
    g.verticalMin = bottom;
    g.verticalMax = bottom + vStep * (g.rows - 1);
    g.setAngles();
    g.mode = Mode::Whole;
}

quint32 Importer::columnOf(const ImportedPoint& point) const
{
    const Grid& g = m_grid;
    if (g.gridKept)
        return g.flipColumns ? g.columns - 1 - quint32(point.column) : quint32(point.column);
    double offset = azimuthOf(point) - g.horizontalMin;
    offset -= twoPi * std::floor(offset / twoPi); // 0 … 2π from the first column
    const double column = std::round(offset / g.angles.horizontalStep);
    if (g.fullCircle)
        return quint32(std::fmod(column, double(g.columns)));
    // Past the last column lies the gap; its nearer end takes the point.
    if (column > g.columns - 1)
        return offset - (g.horizontalMax - g.horizontalMin) < twoPi - offset ? g.columns - 1 : 0;
    return quint32(column);
}

quint32 Importer::rowOf(const ImportedPoint& point) const
{
    const Grid& g = m_grid;
    if (g.gridKept)
        return g.flipRows ? g.rows - 1 - quint32(point.row) : quint32(point.row);
    const double fromBottom = std::round((elevationOf(point) - g.verticalMin) / g.angles.verticalStep);
    return g.rows - 1 - quint32(std::clamp(fromBottom, 0.0, double(g.rows - 1)));
}

TVXFileCell Importer::cellOf(const ImportedPoint& point, quint32 column, quint32 row) const
{
    TVXFileCell cell;
    cell.intensity = point.intensity;
    cell.red = point.red;
    cell.green = point.green;
    cell.blue = point.blue;
    if (!point.hasReturn)
        return {};
    if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(point.z))
        fail(QCoreApplication::translate("TVX::CORE::ScanImporter", "the point of cell (%1, %2) is not finite")
                 .arg(column)
                 .arg(row));
    const double planar = std::sqrt(point.x * point.x + point.y * point.y);
    const double distance = std::sqrt(planar * planar + point.z * point.z);
    const double millimetres = std::round(distance * 1000.0);
    if (millimetres > maximumMillimetres)
        fail(QCoreApplication::translate("TVX::CORE::ScanImporter",
            "the point of cell (%1, %2) lies %3 m away, beyond the %4 m that scan files store")
                 .arg(column)
                 .arg(row)
                 .arg(distance, 0, 'f', 3)
                 .arg(maximumMillimetres / 1000.0, 0, 'f', 3));
    if (millimetres < 1)
        return {}; // at the station: no measurement
    cell.distanceMm = quint32(millimetres);
    // The point turned into the cell's centre direction: what is left are the small angles.
    const double u = point.x, w = -point.y; // horizontal angles grow clockwise seen from above
    const auto [hc, hs] = m_grid.columnTurn[column];
    const auto [vc, vs] = m_grid.rowTurn[row];
    const double halfDiagonal = m_grid.angles.halfDiagonal;
    cell.dx = subCellOffset(smallAngle(u * hc + w * hs, w * hc - u * hs), halfDiagonal);
    cell.dy = subCellOffset(smallAngle(planar * vc + point.z * vs, point.z * vc - planar * vs), halfDiagonal);
    return cell;
}

// Puts a cell into a block of whole columns that starts at `firstColumn`; of two points in one
// cell the one nearer the cell's centre stays.
void Importer::place(std::vector<TVXFileCell>& cells, quint32 firstColumn, quint32 column, quint32 row,
                     const TVXFileCell& cell) const
{
    TVXFileCell& target = cells[std::size_t(column - firstColumn) * m_grid.rows + row];
    if (target.distanceMm != 0
        && (cell.distanceMm == 0
            || cell.dx * cell.dx + cell.dy * cell.dy >= target.dx * target.dx + target.dy * target.dy))
        return;
    target = cell;
}

void Importer::fillWhole()
{
    const quint64 cells = quint64(m_grid.columns) * m_grid.rows;
    if (cells > ScanImporter::maximumGridCells)
        fail(QCoreApplication::translate(
            "TVX::CORE::ScanImporter", "the grid of %1 × %2 is too large to be held whole; at most %3 cells")
                 .arg(m_grid.columns)
                 .arg(m_grid.rows)
                 .arg(ScanImporter::maximumGridCells));
    m_cells.assign(std::size_t(cells), TVXFileCell());
    std::vector<ImportedPoint> batch(batchSize);
    ProgressGate gate(m_progress, cells);
    const auto cursor = m_scan.readAll();
    while (const std::size_t n = cursor->read(batch.data(), batch.size())) {
        for (std::size_t i = 0; i < n; ++i) {
            const ImportedPoint& p = batch[i];
            if (m_grid.gridKept)
                checkGridPosition(p);
            else if (!p.hasReturn)
                continue; // without a direction it has no cell
            const quint32 column = columnOf(p);
            const quint32 row = rowOf(p);
            place(m_cells, 0, column, row, cellOf(p, column, row));
        }
        gate.report(0);
    }
}

void Importer::loadStrip(quint32 strip)
{
    const quint32 first = strip * ScanImporter::tileSize;
    m_strip = strip;
    m_stripWidth = tileExtent(strip, m_grid.columns, ScanImporter::tileSize);
    m_cells.assign(std::size_t(m_stripWidth) * m_grid.rows, TVXFileCell());
    const auto take = [&](const ImportedPoint& p) {
        checkGridPosition(p);
        const quint32 column = columnOf(p);
        const quint32 row = rowOf(p);
        if (column < first)
            fail(QCoreApplication::translate(
                "TVX::CORE::ScanImporter", "the points of column %1 are not stored together")
                     .arg(p.column));
        if (column >= first + m_stripWidth)
            return false;
        place(m_cells, first, column, row, cellOf(p, column, row));
        return true;
    };
    if (m_grid.mode == Mode::Columns) {
        const quint32 sourceFirst = m_grid.flipColumns ? m_grid.columns - first - m_stripWidth : first;
        const auto cursor = m_scan.readColumns(sourceFirst, m_stripWidth);
        m_batch.resize(batchSize);
        while (const std::size_t n = cursor->read(m_batch.data(), m_batch.size())) {
            for (std::size_t i = 0; i < n; ++i)
                take(m_batch[i]);
        }
        return;
    }
    if (!m_stream) {
        m_stream = m_scan.readAll();
        m_batch.resize(batchSize);
    }
    for (;;) {
        if (m_batchNext == m_batchSize) {
            m_batchSize = m_stream->read(m_batch.data(), m_batch.size());
            m_batchNext = 0;
            if (m_batchSize == 0)
                return;
        }
        if (!take(m_batch[m_batchNext]))
            return; // the point belongs to a later strip and waits for it
        ++m_batchNext;
    }
}

TVXFileCell Importer::cellAt(quint32 column, quint32 row)
{
    if (m_grid.mode == Mode::Whole)
        return m_cells[std::size_t(column) * m_grid.rows + row];
    const quint32 strip = column / ScanImporter::tileSize;
    if (strip != m_strip)
        loadStrip(strip);
    return m_cells[std::size_t(column - strip * ScanImporter::tileSize) * m_grid.rows + row];
}

void Importer::paint(quint32 column, quint32 row, const TVXFileCell& cell)
{
    if (!m_pixels || cell.distanceMm == 0)
        return; // cells without return stay black
    uchar* pixel = m_pixels + std::size_t(row) * m_stride + 3 * std::size_t(column);
    if (m_scan.hasColour) {
        pixel[0] = cell.red;
        pixel[1] = cell.green;
        pixel[2] = cell.blue;
    } else {
        const uchar grey = m_scan.hasIntensity ? cell.intensity : 128;
        pixel[0] = pixel[1] = pixel[2] = grey;
    }
}

// The scan's own panorama is kept as it is when it is a JPEG of one pixel per cell; otherwise it is
// scaled to the grid, as the views take one pixel for one cell.
void Importer::writePanorama(const QString& path, const QByteArray& own)
{
    QImage image = m_image;
    if (!own.isEmpty()) {
        image = QImage::fromData(own);
        if (image.isNull())
            fail(QCoreApplication::translate("TVX::CORE::ScanImporter", "its panorama image cannot be decoded"));
        const QSize grid(int(m_grid.columns), int(m_grid.rows));
        if (image.size() == grid && own.startsWith("\xFF\xD8")) {
            QFile file(path);
            if (!file.open(QIODevice::WriteOnly) || file.write(own) != own.size())
                throw ImportError(QStringLiteral("%1: %2").arg(path, file.errorString()));
            return;
        }
        if (image.size() != grid)
            image = image.scaled(grid, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    QImageWriter writer(path, "jpg");
    writer.setQuality(90);
    if (!writer.write(image))
        throw ImportError(QStringLiteral("%1: %2").arg(path, writer.errorString()));
}

ScanImporter::Result Importer::run(const QString& scanPath)
{
    if (!planKeptGrid())
        planMadeGrid();
    if (m_grid.mode == Mode::Whole)
        fillWhole();
    const Grid& g = m_grid;
    const quint64 total = quint64(g.columns) * g.rows;
    const QByteArray ownPanorama = m_scan.panorama();
    if (ownPanorama.isEmpty()) {
        m_image = QImage(int(g.columns), int(g.rows), QImage::Format_RGB888);
        if (m_image.isNull())
            fail(QCoreApplication::translate("TVX::CORE::ScanImporter", "no memory for a panorama of %1 × %2 pixels")
                     .arg(g.columns)
                     .arg(g.rows));
        m_image.fill(Qt::black);
        m_pixels = m_image.bits();
        m_stride = std::size_t(m_image.bytesPerLine());
    }

    TVXFileWriter writer;
    TVXFileScanInfo& info = writer.scanInfo();
    info.columns = g.columns;
    info.rows = g.rows;
    info.tileSize = ScanImporter::tileSize;
    info.horizontalMin = g.horizontalMin;
    info.horizontalMax = g.horizontalMax;
    info.verticalMin = g.verticalMin;
    info.verticalMax = g.verticalMax;
    info.transformation = m_scan.transformation;
    info.text = m_scan.name;
    info.channels = {{TVXFileScanInfo::Distance, 0}};
    if (m_scan.hasIntensity)
        info.channels.push_back({TVXFileScanInfo::Intensity, 0});
    if (m_scan.hasColour)
        info.channels.push_back({TVXFileScanInfo::Colour, 0});
    writer.setMeasureBoundingBox(true);
    ProgressGate gate(m_progress, total);
    gate.report(0);
    quint64 done = 0;
    writer.setCellSource([&](quint32 column, quint32 row) {
        const TVXFileCell cell = cellAt(column, row);
        if (cell.distanceMm != 0)
            ++m_withReturn;
        paint(column, row, cell);
        gate.step(++done);
        return cell;
    });
    // An exception out of the cell source leaves the writer's files uncommitted.
    QString error;
    if (!writer.write(scanPath, &error))
        throw ImportError(error);
    try {
        writePanorama(ScanImporter::panoramaPathFor(scanPath), ownPanorama);
    } catch (...) {
        QFile::remove(scanPath);
        QFile::remove(TVXFile::dataPathFor(scanPath));
        QFile::remove(ScanImporter::panoramaPathFor(scanPath));
        throw;
    }
    if (m_progress)
        m_progress(total, total); // too late to cancel: the scan is complete
    return {g.columns, g.rows, m_withReturn, g.gridKept};
}

} // namespace

ScanImporter::Result ScanImporter::write(const ImportedScan& scan, const QString& scanPath, const Options& options,
                                         const Progress& progress)
{
    Importer importer(scan, options, progress);
    return importer.run(scanPath);
}

QString ScanImporter::panoramaPathFor(const QString& scanPath)
{
    const QFileInfo info(scanPath);
    return info.absolutePath() + QLatin1Char('/') + info.completeBaseName() + QStringLiteral(".jpg");
}

} // namespace TVX::CORE
