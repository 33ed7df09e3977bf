#include "scanfileopener.h"
#include "toolcommand.h"

#include "fileio/tvxfilescaninfo.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QtEndian>

#include <cstdio>
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

// Receives the points in tile order and writes them either as "x y z" text lines or as
// little-endian binary PLY, whose header needs the count: the records go to a temporary file first.
class CloudFileWriter
{
public:
    CloudFileWriter(const QString& path, ColourSource colours)
        : m_out(path), m_colours(colours),
          m_text(path.endsWith(QLatin1String(".xyz"), Qt::CaseInsensitive)
                 || path.endsWith(QLatin1String(".txt"), Qt::CaseInsensitive)),
          m_body(QFileInfo(path).absolutePath() + QLatin1String("/.tvxtool-cloud-XXXXXX"))
    {
        if (!m_out.open(QIODevice::WriteOnly) || (!m_text && !m_body.open()))
            throw CommandError(QStringLiteral("cannot open %1").arg(QFileInfo(path).absoluteFilePath()).toStdString());
    }

    void add(const Vector3d& p, quint8 r, quint8 g, quint8 b)
    {
        ++m_count;
        if (m_text) {
            char line[96];
            const int n = std::snprintf(line, sizeof line, "%.9g %.9g %.9g\n", p.x, p.y, p.z);
            write(m_out, line, n);
            return;
        }
        char record[15];
        const float xyz[3] = {float(p.x), float(p.y), float(p.z)};
        for (int i = 0; i < 3; ++i)
            qToLittleEndian(xyz[i], record + 4 * i);
        record[12] = char(r);
        record[13] = char(g);
        record[14] = char(b);
        write(m_body, record, m_colours == ColourSource::None ? 12 : 15);
    }

    void finish()
    {
        if (!m_text) {
            QByteArray header = "ply\nformat binary_little_endian 1.0\nelement vertex " + QByteArray::number(m_count)
                                + "\nproperty float x\nproperty float y\nproperty float z\n";
            if (m_colours != ColourSource::None)
                header += "property uchar red\nproperty uchar green\nproperty uchar blue\n";
            header += "end_header\n";
            write(m_out, header.constData(), header.size());
            if (!m_body.seek(0))
                failed();
            while (!m_body.atEnd()) {
                const QByteArray block = m_body.read(1 << 20);
                if (block.isEmpty())
                    failed();
                write(m_out, block.constData(), block.size());
            }
        }
        if (!m_out.commit())
            failed();
    }

private:
    // A short write (a full disk, a file size limit) must not leave a cloud with a wrong count.
    void write(QIODevice& device, const char* data, qint64 size)
    {
        if (device.write(data, size) != size)
            failed();
    }

    [[noreturn]] void failed()
    {
        const QString reason = m_out.error() != QFileDevice::NoError ? m_out.errorString() : m_body.errorString();
        m_out.cancelWriting();
        throw CommandError(QStringLiteral("cannot write %1: %2")
                               .arg(QFileInfo(m_out.fileName()).absoluteFilePath(), reason)
                               .toStdString());
    }

    QSaveFile m_out;
    ColourSource m_colours;
    bool m_text;
    QTemporaryFile m_body;
    quint64 m_count{0};
};

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
    CloudFileWriter writer(options.output, colours);
    const quint64 step = quint64(options.step);
    const bool showProgress = isatty(STDERR_FILENO);
    TVXFileTile tile;
    file->openData();
    for (quint32 tx = 0; tx < info.tilesX(); ++tx) {
        for (quint32 ty = 0; ty < info.tilesY(); ++ty) {
            if (!file->readTile(tx, ty, tile))
                throw CommandError(QStringLiteral("data file too short: %1").arg(file->dataPath()).toStdString());
            for (quint32 c = tile.firstColumn; c <= tile.lastColumn; ++c) {
                if (c % step)
                    continue;
                for (quint32 r = tile.firstRow; r <= tile.lastRow; ++r) {
                    const std::size_t i = tile.indexOf(c, r);
                    if (r % step || tile.distances[i] == 0.0)
                        continue;
                    quint8 red = 0, green = 0, blue = 0;
                    tile.colourOrGrey(i, red, green, blue);
                    writer.add(tile.points[i], red, green, blue);
                }
            }
        }
        if (showProgress)
            std::fprintf(stderr, "\rtile columns %u of %u", tx + 1, info.tilesX());
    }
    file->closeData();
    if (showProgress)
        std::fputc('\n', stderr);
    writer.finish();
    return 0;
}

} // namespace TVX::TOOL
