#include "fileio/ptxreader.h"

#include "fileio/importerror.h"

#include <QCoreApplication>
#include <QFile>
#include <QIODevice>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <vector>

namespace TVX::CORE {

namespace {

constexpr qint64 bufferBytes = 4 << 20;
constexpr qint64 longestLine = 1 << 16;


// Lines of a device through one buffer; knows each line's number and byte position.
class LineSource
{
public:
    // `expectedBytes`: how much will be read, so that reading one column does not read megabytes.
    LineSource(QIODevice& device, const QString& fileName, qint64 expectedBytes = bufferBytes)
        : m_device(device), m_fileName(fileName)
    {
        m_buffer.resize(std::size_t(std::clamp(expectedBytes + 1, 2 * longestLine, bufferBytes)));
    }

    void seek(qint64 position, quint64 lineNumber)
    {
        if (!m_device.seek(position))
            fail(QCoreApplication::translate("TVX::CORE::PtxReader", "cannot seek to byte %1").arg(position));
        m_bufferStart = position;
        m_begin = m_end = 0;
        m_line = lineNumber - 1;
        m_eof = false;
    }

    // The next line without its end, or false at the end of the file.
    bool next(const char*& begin, const char*& end)
    {
        for (;;) {
            const char* start = m_buffer.data() + m_begin;
            const void* newline = std::memchr(start, '\n', std::size_t(m_end - m_begin));
            if (newline || (m_eof && m_begin < m_end)) {
                const char* stop = newline ? static_cast<const char*>(newline) : m_buffer.data() + m_end;
                m_lineStart = m_bufferStart + m_begin;
                m_begin = qint64(stop - m_buffer.data()) + (newline ? 1 : 0);
                ++m_line;
                begin = start;
                end = stop > start && stop[-1] == '\r' ? stop - 1 : stop;
                return true;
            }
            if (m_eof)
                return false;
            refill();
        }
    }

    quint64 lineNumber() const { return m_line; }
    qint64 lineStart() const { return m_lineStart; }

    [[noreturn]] void fail(const QString& why) const
    {
        throw ImportError(QStringLiteral("%1: %2").arg(m_fileName, why));
    }
    [[noreturn]] void failAtLine(const QString& why) const
    {
        throw ImportError(QStringLiteral("%1, line %2: %3").arg(m_fileName).arg(m_line).arg(why));
    }

private:
    void refill()
    {
        const qint64 kept = m_end - m_begin;
        if (kept >= longestLine)
            failAtLine(
                QCoreApplication::translate("TVX::CORE::PtxReader", "line longer than %1 bytes").arg(longestLine));
        std::memmove(m_buffer.data(), m_buffer.data() + m_begin, std::size_t(kept));
        m_bufferStart += m_begin;
        m_begin = 0;
        m_end = kept;
        const qint64 got = m_device.read(m_buffer.data() + kept, qint64(m_buffer.size()) - kept);
        if (got < 0)
            fail(QCoreApplication::translate("TVX::CORE::PtxReader", "cannot read: %1").arg(m_device.errorString()));
        m_end += got;
        m_eof = got == 0;
    }

    QIODevice& m_device;
    QString m_fileName;
    std::vector<char> m_buffer;
    qint64 m_bufferStart{0}; // byte position of m_buffer[0] in the device
    qint64 m_begin{0};
    qint64 m_end{0};
    qint64 m_lineStart{0};
    quint64 m_line{0};
    bool m_eof{false};
};

bool isBlank(const char* begin, const char* end)
{
    return std::all_of(begin, end, [](char c) { return c == ' ' || c == '\t' || c == '\r'; });
}

// Parses up to `capacity` numbers separated by blanks; returns how many were found, or -1 for a
// word that is no number.
int parseNumbers(const char* begin, const char* end, double* values, int capacity)
{
    int count = 0;
    const char* at = begin;
    for (;;) {
        while (at < end && (*at == ' ' || *at == '\t'))
            ++at;
        if (at == end || count == capacity)
            return count;
        const auto [stop, error] = std::from_chars(at, end, values[count]);
        if (error != std::errc() || (stop < end && *stop != ' ' && *stop != '\t'))
            return -1;
        ++count;
        at = stop;
    }
}

quint8 byteOf(double value)
{
    return quint8(qRound(std::clamp(value, 0.0, 255.0)));
}

class PtxScan;

class PtxCursor final : public ImportedScan::Cursor
{
public:
    PtxCursor(const PtxScan& scan, quint32 firstColumn, quint32 columnCount);
    std::size_t read(ImportedPoint* points, std::size_t capacity) override;

private:
    const PtxScan& m_scan;
    LineSource m_lines;
    quint64 m_next{0};
    quint64 m_end{0};
    quint32 m_firstColumn{0};
};

class PtxScan final : public ImportedScan
{
public:
    std::shared_ptr<QIODevice> device;
    int valuesPerLine{4};
    // Byte position and line number of each column's first line.
    std::vector<qint64> columnStart;
    std::vector<quint64> columnLine;
    qint64 endByte{0}; // just past the scan's last line

    qint64 bytesOf(quint32 first, quint32 count) const
    {
        const quint32 stop = first + count;
        return (stop < columns ? columnStart[stop] : endByte) - columnStart[first];
    }

    std::unique_ptr<Cursor> readAll() const override { return readColumns(0, columns); }
    std::unique_ptr<Cursor> readColumns(quint32 first, quint32 count) const override
    {
        return std::make_unique<PtxCursor>(*this, first, count);
    }
};

PtxCursor::PtxCursor(const PtxScan& scan, quint32 firstColumn, quint32 columnCount)
    : m_scan(scan)
    , m_lines(*scan.device, scan.fileName,
          firstColumn < scan.columns ? scan.bytesOf(firstColumn, std::min(columnCount, scan.columns - firstColumn)) : 0)
    , m_firstColumn(firstColumn)
{
    if (firstColumn >= scan.columns || columnCount == 0)
        return;
    columnCount = std::min(columnCount, scan.columns - firstColumn);
    m_end = quint64(columnCount) * scan.rows;
    m_lines.seek(scan.columnStart[firstColumn], scan.columnLine[firstColumn]);
}

std::size_t PtxCursor::read(ImportedPoint* points, std::size_t capacity)
{
    const int expected = m_scan.valuesPerLine;
    std::size_t count = 0;
    const char* begin = nullptr;
    const char* end = nullptr;
    double values[7];
    for (; count < capacity && m_next < m_end; ++count, ++m_next) {
        if (!m_lines.next(begin, end))
            m_lines.fail(QCoreApplication::translate("TVX::CORE::PtxReader", "the file ends inside a scan"));
        if (parseNumbers(begin, end, values, 7) < expected)
            m_lines.failAtLine(
                QCoreApplication::translate("TVX::CORE::PtxReader", "expected %1 numbers").arg(expected));
        for (int i = 0; i < expected; ++i) {
            if (!std::isfinite(values[i]))
                m_lines.failAtLine(QCoreApplication::translate("TVX::CORE::PtxReader", "a number that is not finite"));
        }
        ImportedPoint& point = points[count];
        point.x = values[0];
        point.y = values[1];
        point.z = values[2];
        point.column = qint64(m_firstColumn + m_next / m_scan.rows);
        point.row = qint64(m_next % m_scan.rows);
        point.hasReturn = values[0] != 0.0 || values[1] != 0.0 || values[2] != 0.0;
        point.intensity = byteOf(values[3] <= 1.0 ? values[3] * 255.0 : values[3]);
        if (expected == 7) {
            point.red = byteOf(values[4]);
            point.green = byteOf(values[5]);
            point.blue = byteOf(values[6]);
        }
    }
    return count;
}

// Reads one header line of exactly `count` numbers.
void headerLine(LineSource& lines, double* values, int count)
{
    const char* begin = nullptr;
    const char* end = nullptr;
    if (!lines.next(begin, end))
        lines.fail(QCoreApplication::translate("TVX::CORE::PtxReader", "the file ends inside a scan header"));
    double extra[5];
    if (parseNumbers(begin, end, values, count) != count || parseNumbers(begin, end, extra, 5) != count)
        lines.failAtLine(
            QCoreApplication::translate("TVX::CORE::PtxReader", "a header line of %1 numbers expected").arg(count));
    for (int i = 0; i < count; ++i) {
        if (!std::isfinite(values[i]))
            lines.failAtLine(QCoreApplication::translate("TVX::CORE::PtxReader", "a number that is not finite"));
    }
}

quint32 headerCount(LineSource& lines, double limit, const QString& what)
{
    double value = 0;
    headerLine(lines, &value, 1);
    if (value < 1 || value > limit || value != std::floor(value))
        lines.failAtLine(QCoreApplication::translate("TVX::CORE::PtxReader", "%1 %2 is not between 1 and %3")
                             .arg(what)
                             .arg(value)
                             .arg(limit));
    return quint32(value);
}

} // namespace

std::vector<std::shared_ptr<ImportedScan>> PtxReader::read(const QString& path)
{
    auto file = std::make_shared<QFile>(path);
    if (!file->open(QIODevice::ReadOnly))
        throw ImportError(QStringLiteral("%1: %2").arg(path, file->errorString()));
    return read(file, path);
}

std::vector<std::shared_ptr<ImportedScan>> PtxReader::read(const std::shared_ptr<QIODevice>& device,
                                                           const QString& fileName)
{
    std::vector<std::shared_ptr<ImportedScan>> scans;
    LineSource lines(*device, fileName);
    lines.seek(0, 1);
    const char* begin = nullptr;
    const char* end = nullptr;
    for (;;) {
        // Blank lines may stand between scans and at the end.
        qint64 headerStart = 0;
        quint64 headerLineNumber = 0;
        bool more = false;
        while ((more = lines.next(begin, end)) && isBlank(begin, end)) {
        }
        if (!more)
            break;
        headerStart = lines.lineStart();
        headerLineNumber = lines.lineNumber();
        lines.seek(headerStart, headerLineNumber);

        auto scan = std::make_shared<PtxScan>();
        scan->device = device;
        scan->fileName = fileName;
        scan->name = QCoreApplication::translate("TVX::CORE::PtxReader", "Scan %1").arg(scans.size() + 1);
        scan->columns
            = headerCount(lines, maximumColumns, QCoreApplication::translate("TVX::CORE::PtxReader", "column count"));
        scan->rows = headerCount(lines, maximumRows, QCoreApplication::translate("TVX::CORE::PtxReader", "row count"));
        scan->pointCount = quint64(scan->columns) * scan->rows;
        if (scan->pointCount > maximumPoints)
            lines.failAtLine(QCoreApplication::translate("TVX::CORE::PtxReader", "%1 × %2 points are more than %3")
                                 .arg(scan->columns)
                                 .arg(scan->rows)
                                 .arg(maximumPoints));
        // The scanner position and axes repeat what the matrix says; they are checked, not used.
        double values[4];
        for (int i = 0; i < 4; ++i)
            headerLine(lines, values, 3);
        // Row vectors: p' = p · M, the translation in the last row.
        double matrix[4][4];
        for (auto& row : matrix)
            headerLine(lines, row, 4);
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j)
                scan->transformation[std::size_t(i * 4 + j)] = matrix[j][i];
            scan->transformation[std::size_t(i * 4 + 3)] = matrix[3][i];
        }

        scan->columnStart.reserve(std::min<quint64>(scan->columns, quint64(device->size() / 8 + 1)));
        for (quint64 i = 0; i < scan->pointCount; ++i) {
            if (!lines.next(begin, end))
                lines.fail(QCoreApplication::translate(
                    "TVX::CORE::PtxReader", "the file ends at line %1, inside scan %2 of %3 × %4 points")
                               .arg(lines.lineNumber())
                               .arg(scans.size() + 1)
                               .arg(scan->columns)
                               .arg(scan->rows));
            if (i % scan->rows == 0) {
                scan->columnStart.push_back(lines.lineStart());
                scan->columnLine.push_back(lines.lineNumber());
            }
            if (i == 0) {
                double first[7];
                const int found = parseNumbers(begin, end, first, 7);
                if (found < 4)
                    lines.failAtLine(QCoreApplication::translate("TVX::CORE::PtxReader", "expected 4 or 7 numbers"));
                scan->valuesPerLine = found >= 7 ? 7 : 4;
                scan->hasIntensity = true;
                scan->hasColour = found >= 7;
            }
        }
        scan->endByte = lines.lineStart() + (end - begin) + 2; // a size hint: the line end may be "\r\n"
        scans.push_back(scan);
    }
    if (scans.empty())
        throw ImportError(QStringLiteral("%1: %2").arg(
            fileName, QCoreApplication::translate("TVX::CORE::PtxReader", "no scan in the file")));
    return scans;
}

} // namespace TVX::CORE
