#include "scanfileopener.h"
#include "toolcommand.h"

#include "fileio/tvxfilescaninfo.h"
#include "fileio/tvxfiletiledecoder.h"

#include <QFileInfo>
#include <QTemporaryFile>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <future>
#include <limits>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace TVX::TOOL {

using namespace TVX::CORE;

namespace {

struct CloudOptions {
    QString scan;
    QString output;
    qint64 step = 1;
};

CloudOptions parseOptions(const QStringList& arguments)
{
    CloudOptions options;
    bool haveScan = false;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("--output") || argument == QLatin1String("--step")) {
            if (i + 1 >= arguments.size())
                throw UsageError("option without value");
            const QString& value = arguments.at(++i);
            if (argument == QLatin1String("--output"))
                options.output = value;
            else
                options.step = wholeNumberArgument(value);
        } else if (argument.startsWith(QLatin1Char('-')) || haveScan) {
            throw UsageError("unknown option or extra argument");
        } else {
            options.scan = argument;
            haveScan = true;
        }
    }
    if (!haveScan || options.output.isEmpty() || options.step < 1)
        throw UsageError("cloud needs a scan file, --output FILE and a step of at least 1");
    return options;
}

enum class ColourSource { Colour, Grey, None };

// The permissions of the file that `path` names, else those that open() gives a new file.
mode_t outputMode(const QString& path)
{
    struct stat existing;
    if (::stat(QFile::encodeName(path).constData(), &existing) == 0)
        return existing.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// Receives the points in tile order and writes them either as "x y z" text lines or as
// little-endian binary PLY, whose header counts the points. Points gather in large blocks, each
// written in one call on a thread of its own while the next block fills: a write per point cost
// more than the points, and the kernel's copy of a block overlaps the decoding of the next.
// A PLY body that may not fit in memory needs its count before the first point (begin);
// otherwise the points stay in memory until finish() knows the count.
// The file is written beside the output and renamed over it once complete, so that a failed
// export leaves no partial file and keeps an older one; unlike a save file it is not synced to
// disk, as a copy with cp is not either: syncing took longer than all the rest.
class CloudFileWriter
{
public:
    // At most `points` points will come.
    CloudFileWriter(const QString& path, ColourSource colours, quint64 points)
        : m_path(QFileInfo(path).absoluteFilePath()),
          m_out(m_path + QStringLiteral(".XXXXXX")),
          m_colours(colours),
          m_text(path.endsWith(QLatin1String(".xyz"), Qt::CaseInsensitive)
                 || path.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive))
    {
        if (!m_out.open())
            throw CommandError(QStringLiteral("cannot open %1").arg(m_path).toStdString());
        const quint64 pointBytes = m_text ? maxLineBytes : colours == ColourSource::None ? 12 : 15;
        const quint64 bodyBytes = points > memoryBytes / pointBytes ? memoryBytes + 1 : points * pointBytes;
        m_counted = m_text || bodyBytes > memoryBytes;
        m_blockBytes =
            std::min<quint64>(bodyBytes, m_counted ? blockBytes : memoryBytes) + maxHeaderBytes + maxLineBytes;
        m_block.reset(new char[m_blockBytes]); // not zeroed: only what is written is read
        // Room in front of a body that waits for its count.
        m_start = m_used = m_counted ? 0 : maxHeaderBytes;
    }

    // A PLY body too large for memory: begin() with the count before the first point.
    bool needsCount() const { return !m_text && m_counted; }

    void begin(quint64 count)
    {
        const QByteArray header = plyHeader(count);
        std::memcpy(m_block.get(), header.constData(), std::size_t(header.size()));
        m_used = std::size_t(header.size());
    }

    bool isText() const { return m_text; }

    // An "x y z" line.
    void addLine(const Vector3d& p)
    {
        m_used += std::size_t(std::snprintf(m_block.get() + m_used, maxLineBytes, "%.9g %.9g %.9g\n", p.x, p.y, p.z));
        added();
    }

    // A PLY record: x, y, z as floats, then red, green, blue when the cloud has colours.
    template <bool withColour>
    void addRecord(const Vector3d& p, const unsigned char* rgb)
    {
        char* record = m_block.get() + m_used;
        qToLittleEndian(float(p.x), record);
        qToLittleEndian(float(p.y), record + 4);
        qToLittleEndian(float(p.z), record + 8);
        if constexpr (withColour)
            std::memcpy(record + 12, rgb, 3);
        m_used += withColour ? 15 : 12;
        added();
    }

    void finish()
    {
        if (!m_counted) {
            // The body waited for its count; the header goes right in front of it.
            const QByteArray header = plyHeader(m_count);
            m_start -= std::size_t(header.size());
            std::memcpy(m_block.get() + m_start, header.constData(), std::size_t(header.size()));
        }
        waitForWrite();
        const qint64 size = qint64(m_used - m_start);
        if (m_out.write(m_block.get() + m_start, size) != size)
            failed();
        // A temporary file is private to its owner; the output gets what a new file or the file
        // it replaces would have.
        if (!m_out.flush() || ::fchmod(m_out.handle(), outputMode(m_path)) != 0)
            failed();
        m_out.close();
        if (std::rename(QFile::encodeName(m_out.fileName()).constData(), QFile::encodeName(m_path).constData()) != 0)
            throw CommandError(QStringLiteral("cannot write %1: %2")
                                   .arg(m_path, QString::fromLocal8Bit(std::strerror(errno)))
                                   .toStdString());
        m_out.setAutoRemove(false);
    }

private:
    static constexpr std::size_t blockBytes = 4 << 20;
    static constexpr quint64 memoryBytes = 32 << 20;
    static constexpr std::size_t maxLineBytes = 96;   // three numbers of "%.9g"
    static constexpr std::size_t maxHeaderBytes = 256;

    QByteArray plyHeader(quint64 count) const
    {
        QByteArray header = "ply\nformat binary_little_endian 1.0\nelement vertex " + QByteArray::number(count)
                            + "\nproperty float x\nproperty float y\nproperty float z\n";
        if (m_colours != ColourSource::None)
            header += "property uchar red\nproperty uchar green\nproperty uchar blue\n";
        return header + "end_header\n";
    }

    void added()
    {
        ++m_count;
        if (m_counted && m_used >= blockBytes)
            writeBlock();
    }

    // Hands the block's bytes to the writing thread and goes on filling the other block.
    void writeBlock()
    {
        waitForWrite();
        std::swap(m_block, m_writing);
        if (!m_block)
            m_block.reset(new char[m_blockBytes]);
        const char* data = m_writing.get() + m_start;
        const qint64 size = qint64(m_used - m_start);
        m_start = m_used = 0;
        // A short write (a full disk, a file size limit) must not leave a cloud with a wrong count.
        m_write = std::async(std::launch::async, [this, data, size] { return m_out.write(data, size) == size; });
    }

    void waitForWrite()
    {
        if (m_write.valid() && !m_write.get())
            failed();
    }

    [[noreturn]] void failed()
    {
        throw CommandError(QStringLiteral("cannot write %1: %2").arg(m_path, m_out.errorString()).toStdString());
    }

    QString m_path;
    QTemporaryFile m_out; // removed unless renamed to the output
    ColourSource m_colours;
    bool m_text;
    bool m_counted = true;           // the header went out first (PLY), or there is none (text)
    std::size_t m_blockBytes = 0;
    std::unique_ptr<char[]> m_block;   // filling; room for one more point past a full block
    std::size_t m_start = 0;         // of its bytes
    std::size_t m_used = 0;
    std::unique_ptr<char[]> m_writing; // being written
    quint64 m_count = 0;
    std::future<bool> m_write;       // last member: a pending write ends before the rest goes
};

[[noreturn]] void dataTooShort(const TVXFile& file)
{
    throw CommandError(QStringLiteral("data file too short: %1").arg(file.dataPath()).toStdString());
}

} // namespace

int runCloud(const QStringList& arguments)
{
    const CloudOptions options = parseOptions(arguments);
    const auto file = openScanFile(options.scan);
    const TVXFileScanInfo& info = file->scanInfo();
    if (!info.hasDistance())
        throw CommandError("scan has no distance channel");

    const ColourSource colours = info.hasColour()      ? ColourSource::Colour
                                 : info.hasIntensity() ? ColourSource::Grey
                                                       : ColourSource::None;
    // Options allow steps beyond 32 bits; such a step picks the first column and row only.
    const quint32 step = quint32(std::min<qint64>(options.step, std::numeric_limits<quint32>::max()));
    const quint64 picked = (quint64(info.columns) + step - 1) / step * ((quint64(info.rows) + step - 1) / step);
    CloudFileWriter writer(options.output, colours, picked);
    TVXFileTileDecoder decoder(info);
    file->openData();
    if (writer.needsCount()) {
        // The distance bytes alone tell how many points come, without decoding.
        quint64 count = 0;
        const bool counted = file->forEachTileRecords(
            [&](quint32 tileColumn, quint32 tileRow, const char* records, std::size_t size) {
                quint64 returns = 0;
                const bool ok = decoder.countReturns(tileColumn, tileRow, records, size, step, returns);
                count += returns;
                return ok;
            });
        if (!counted)
            dataTooShort(*file);
        writer.begin(count);
    }

    // Each kind of output gets its own decoding loop, without a test per point.
    const bool showProgress = isatty(STDERR_FILENO);
    const auto emitPoints = [&](auto add) {
        return file->forEachTileRecords([&](quint32 tileColumn, quint32 tileRow, const char* records,
                                            std::size_t size) {
            const bool decoded = decoder.decodeEveryStep(
                tileColumn, tileRow, records, size, step,
                [&add](const Vector3d& point, bool hasReturn, const unsigned char* record) {
                    if (hasReturn)
                        add(point, record);
                });
            if (showProgress && tileRow + 1 == info.tilesY())
                std::fprintf(stderr, "\rtile columns %u of %u", tileColumn + 1, info.tilesX());
            return decoded;
        });
    };
    const quint32 colourAt = info.colourOffset();
    const quint32 intensityAt = info.intensityOffset();
    bool read = false;
    if (writer.isText()) {
        read = emitPoints([&writer](const Vector3d& point, const unsigned char*) { writer.addLine(point); });
    } else if (colours == ColourSource::Colour) {
        read = emitPoints([&writer, colourAt](const Vector3d& point, const unsigned char* record) {
            writer.addRecord<true>(point, record + colourAt);
        });
    } else if (colours == ColourSource::Grey) {
        read = emitPoints([&writer, intensityAt](const Vector3d& point, const unsigned char* record) {
            const unsigned char grey[3] = {record[intensityAt], record[intensityAt], record[intensityAt]};
            writer.addRecord<true>(point, grey);
        });
    } else {
        read = emitPoints([&writer](const Vector3d& point, const unsigned char*) {
            writer.addRecord<false>(point, nullptr);
        });
    }
    file->closeData();
    if (!read)
        dataTooShort(*file);
    if (showProgress)
        std::fputc('\n', stderr);
    writer.finish();
    return 0;
}

} // namespace TVX::TOOL
