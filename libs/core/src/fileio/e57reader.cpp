#include "fileio/e57reader.h"

#include "fileio/e57bitpackdecoder.h"
#include "fileio/e57pagedfile.h"
#include "fileio/e57xmlnode.h"
#include "fileio/importerror.h"

#include <QCoreApplication>
#include <QFile>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>

namespace TVX::CORE {

namespace {

constexpr quint64 headerBytes = 48;
constexpr quint64 sectionHeaderBytes = 32;
constexpr quint64 blobHeaderBytes = 16;
constexpr quint8 blobSection = 0;
constexpr quint8 compressedVectorSection = 1;
constexpr quint8 indexPacket = 0;
constexpr quint8 dataPacket = 1;
constexpr quint8 emptyPacket = 2;
constexpr std::size_t maximumPendingBytes = 64 << 20;


// The point fields the reader knows, by their names in the prototype.
enum Field {
    CartesianX, CartesianY, CartesianZ, SphericalRange, SphericalAzimuth, SphericalElevation, RowIndex, ColumnIndex,
    Intensity, ColorRed, ColorGreen, ColorBlue, CartesianInvalidState, SphericalInvalidState, IsIntensityInvalid,
    IsColorInvalid, FieldCount
};
const char* const fieldNames[FieldCount] = {
    "cartesianX", "cartesianY", "cartesianZ", "sphericalRange", "sphericalAzimuth", "sphericalElevation", "rowIndex",
    "columnIndex", "intensity", "colorRed", "colorGreen", "colorBlue", "cartesianInvalidState",
    "sphericalInvalidState", "isIntensityInvalid", "isColorInvalid"};

struct FieldCodec {
    int field{-1}; // Field, or -1 for a field that is read past
    std::optional<E57BitPackDecoder> decoder;
    double minimum{0}; // of the values, for limits that the file does not give
    double maximum{0};
};

struct Limits {
    double minimum{0};
    double maximum{1};
    double scale() const { return maximum > minimum ? 255.0 / (maximum - minimum) : 0.0; }
};

class E57Scan;

class E57Cursor final : public ImportedScan::Cursor
{
public:
    explicit E57Cursor(const E57Scan& scan);
    std::size_t read(ImportedPoint* points, std::size_t capacity) override;
    std::size_t readGridPositions(ImportedPoint* points, std::size_t capacity) override;

private:
    // How many records the next read can make, reading packets as needed; 0 at the end.
    std::size_t ready(std::size_t capacity);
    bool nextPacket();
    [[noreturn]] void fail(const QString& why) const;

    const E57Scan& m_scan;
    E57PagedFile& m_file;
    std::vector<FieldCodec> m_codecs;
    quint64 m_position{0}; // logical, of the next packet
    quint64 m_end{0};      // logical end of the section
    quint64 m_emitted{0};
    std::vector<char> m_packet;
    std::vector<std::vector<double>> m_values;
};

class E57Scan final : public ImportedScan
{
public:
    std::shared_ptr<E57PagedFile> file;
    quint64 sectionOffset{0}; // physical
    quint64 recordCount{0};
    std::vector<FieldCodec> prototype; // one per bytestream
    int fieldIndex[FieldCount];
    Limits intensityLimits;
    Limits colourLimits[3];
    quint64 imageOffset{0}; // physical offset of the panorama's blob section, 0 when none
    quint64 imageLength{0};

    bool has(Field field) const { return fieldIndex[field] >= 0; }

    std::unique_ptr<Cursor> readAll() const override { return std::make_unique<E57Cursor>(*this); }
    QByteArray panorama() const override;
};

QByteArray E57Scan::panorama() const
{
    if (imageLength == 0)
        return {};
    char header[blobHeaderBytes];
    const quint64 start = file->logicalOf(imageOffset);
    file->readLogical(start, header, blobHeaderBytes);
    if (quint8(header[0]) != blobSection
        || qFromLittleEndian<quint64>(header + 8) < blobHeaderBytes + imageLength)
        file->fail(QCoreApplication::translate("TVX::CORE::E57Reader", "the image blob at byte %1 is not one")
                       .arg(imageOffset));
    QByteArray bytes(qsizetype(imageLength), Qt::Uninitialized);
    file->readLogical(start + blobHeaderBytes, bytes.data(), imageLength);
    return bytes;
}

E57Cursor::E57Cursor(const E57Scan& scan)
    : m_scan(scan), m_file(*scan.file), m_codecs(scan.prototype), m_values(scan.prototype.size())
{
    char header[sectionHeaderBytes];
    const quint64 start = m_file.logicalOf(scan.sectionOffset);
    if (start + sectionHeaderBytes > m_file.logicalLength())
        fail(QCoreApplication::translate(
            "TVX::CORE::E57Reader", "the compressed vector at byte %1 lies past the end of the file")
                 .arg(scan.sectionOffset));
    m_file.readLogical(start, header, sectionHeaderBytes);
    if (quint8(header[0]) != compressedVectorSection)
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "byte %1 holds no compressed vector section")
                 .arg(scan.sectionOffset));
    const quint64 length = qFromLittleEndian<quint64>(header + 8);
    const quint64 dataOffset = qFromLittleEndian<quint64>(header + 16);
    if (length < sectionHeaderBytes || length > m_file.logicalLength() - start)
        fail(QCoreApplication::translate(
            "TVX::CORE::E57Reader", "the compressed vector at byte %1 claims %2 bytes, more than the file holds")
                 .arg(scan.sectionOffset)
                 .arg(length));
    m_end = start + length;
    m_position = m_file.logicalOf(dataOffset);
    if (scan.recordCount > 0
        && (!m_file.isDataOffset(dataOffset) || m_position < start + sectionHeaderBytes || m_position > m_end))
        fail(QCoreApplication::translate(
            "TVX::CORE::E57Reader", "the data of the compressed vector at byte %1 lie outside its section")
                 .arg(scan.sectionOffset));
}

void E57Cursor::fail(const QString& why) const
{
    m_file.fail(QStringLiteral("%1: %2").arg(m_scan.name, why));
}

// Reads the next packet and hands its bytestreams to the decoders; false past the last packet.
bool E57Cursor::nextPacket()
{
    while (m_position + 4 <= m_end) {
        char prefix[4];
        m_file.readLogical(m_position, prefix, 4);
        const quint8 type = quint8(prefix[0]);
        const quint64 length = quint64(qFromLittleEndian<quint16>(prefix + 2)) + 1;
        const quint64 at = m_file.physicalOf(m_position);
        if (m_position + length > m_end)
            fail(QCoreApplication::translate(
                "TVX::CORE::E57Reader", "the packet at byte %1 runs past the end of its section")
                     .arg(at));
        if (type == indexPacket || type == emptyPacket) {
            m_position += length;
            continue;
        }
        if (type != dataPacket || length < 6)
            fail(QCoreApplication::translate("TVX::CORE::E57Reader", "byte %1 holds no packet").arg(at));
        m_packet.resize(std::size_t(length));
        m_file.readLogical(m_position, m_packet.data(), length);
        m_position += length;
        const quint16 streams = qFromLittleEndian<quint16>(m_packet.data() + 4);
        if (streams != m_codecs.size())
            fail(QCoreApplication::translate(
                "TVX::CORE::E57Reader", "the packet at byte %1 holds %2 bytestreams for %3 fields")
                     .arg(at)
                     .arg(streams)
                     .arg(m_codecs.size()));
        quint64 offset = 6 + 2 * quint64(streams);
        if (offset > length)
            fail(QCoreApplication::translate("TVX::CORE::E57Reader", "the packet at byte %1 is shorter than its header")
                     .arg(at));
        const char* lengths = m_packet.data() + 6;
        for (std::size_t i = 0; i < m_codecs.size(); ++i) {
            const quint64 size = qFromLittleEndian<quint16>(lengths + 2 * i);
            if (offset + size > length)
                fail(QCoreApplication::translate(
                    "TVX::CORE::E57Reader", "the bytestreams of the packet at byte %1 run past its end")
                         .arg(at));
            if (m_codecs[i].field >= 0) {
                m_codecs[i].decoder->append(m_packet.data() + offset, std::size_t(size));
                if (m_codecs[i].decoder->pendingBytes() > maximumPendingBytes)
                    fail(QCoreApplication::translate(
                        "TVX::CORE::E57Reader", "the field %1 runs ahead of the others by more than %2 bytes")
                             .arg(QLatin1String(fieldNames[m_codecs[i].field]))
                             .arg(maximumPendingBytes));
            }
            offset += size;
        }
        return true;
    }
    return false;
}

std::size_t E57Cursor::ready(std::size_t capacity)
{
    const quint64 left = m_scan.recordCount - m_emitted;
    if (left == 0)
        return 0;
    for (;;) {
        quint64 ready = left;
        for (const FieldCodec& codec : m_codecs) {
            if (codec.field >= 0)
                ready = std::min(ready, codec.decoder->available());
        }
        if (ready > 0)
            return std::size_t(std::min<quint64>(ready, capacity));
        if (!nextPacket())
            fail(
                QCoreApplication::translate("TVX::CORE::E57Reader", "the compressed vector ends after %1 of %2 records")
                    .arg(m_emitted)
                    .arg(m_scan.recordCount));
    }
}

std::size_t E57Cursor::readGridPositions(ImportedPoint* points, std::size_t capacity)
{
    const std::size_t count = ready(capacity);
    if (count == 0 || !m_scan.has(RowIndex))
        return count == 0 ? 0 : read(points, count);
    for (std::size_t i = 0; i < m_codecs.size(); ++i) {
        FieldCodec& codec = m_codecs[i];
        if (codec.field == RowIndex || codec.field == ColumnIndex) {
            m_values[i].resize(count);
            codec.decoder->decode(m_values[i].data(), count);
        } else if (codec.field >= 0) {
            codec.decoder->skip(count);
        }
    }
    const double* rows = m_values[std::size_t(m_scan.fieldIndex[RowIndex])].data();
    const double* columns = m_values[std::size_t(m_scan.fieldIndex[ColumnIndex])].data();
    for (std::size_t i = 0; i < count; ++i) {
        points[i] = ImportedPoint();
        points[i].hasReturn = false;
        points[i].row = qint64(rows[i]);
        points[i].column = qint64(columns[i]);
    }
    m_emitted += count;
    return count;
}

std::size_t E57Cursor::read(ImportedPoint* points, std::size_t capacity)
{
    const std::size_t count = ready(capacity);
    if (count == 0)
        return 0;
    const double* value[FieldCount] = {};
    for (std::size_t i = 0; i < m_codecs.size(); ++i) {
        if (m_codecs[i].field < 0)
            continue;
        m_values[i].resize(count);
        m_codecs[i].decoder->decode(m_values[i].data(), count);
        value[m_codecs[i].field] = m_values[i].data();
    }
    const bool cartesian = value[CartesianX] != nullptr;
    const double intensityScale = m_scan.intensityLimits.scale();
    const auto byteOf = [](double v) { return quint8(qRound(std::clamp(v, 0.0, 255.0))); };
    for (std::size_t i = 0; i < count; ++i) {
        ImportedPoint& p = points[i];
        p = ImportedPoint();
        int invalid = 0;
        if (cartesian) {
            p.x = value[CartesianX][i];
            p.y = value[CartesianY][i];
            p.z = value[CartesianZ][i];
            invalid = value[CartesianInvalidState] ? int(value[CartesianInvalidState][i]) : 0;
        } else {
            const double r = value[SphericalRange][i];
            const double azimuth = value[SphericalAzimuth][i];
            const double elevation = value[SphericalElevation][i];
            invalid = value[SphericalInvalidState] ? int(value[SphericalInvalidState][i]) : 0;
            if (invalid == 0) {
                p.x = r * std::cos(elevation) * std::cos(azimuth);
                p.y = r * std::cos(elevation) * std::sin(azimuth);
                p.z = r * std::sin(elevation);
            }
        }
        // 1: a direction without range, 2: nothing valid.
        p.hasReturn = invalid == 0;
        if (p.hasReturn && !(std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z)))
            fail(QCoreApplication::translate("TVX::CORE::E57Reader", "record %1: the coordinates are not finite")
                     .arg(m_emitted + i));
        if (value[RowIndex]) {
            p.row = qint64(value[RowIndex][i]);
            p.column = qint64(value[ColumnIndex][i]);
        }
        if (value[Intensity] && !(value[IsIntensityInvalid] && value[IsIntensityInvalid][i] != 0))
            p.intensity = byteOf((value[Intensity][i] - m_scan.intensityLimits.minimum) * intensityScale);
        if (value[ColorRed] && !(value[IsColorInvalid] && value[IsColorInvalid][i] != 0)) {
            const Limits* limits = m_scan.colourLimits;
            p.red = byteOf((value[ColorRed][i] - limits[0].minimum) * limits[0].scale());
            p.green = byteOf((value[ColorGreen][i] - limits[1].minimum) * limits[1].scale());
            p.blue = byteOf((value[ColorBlue][i] - limits[2].minimum) * limits[2].scale());
        }
    }
    m_emitted += count;
    return count;
}

// Reads the XML tree into scans.
class Builder
{
public:
    Builder(std::shared_ptr<E57PagedFile> file, const QString& fileName)
        : m_file(std::move(file))
        , m_fileName(fileName)
    {
    }

    std::shared_ptr<E57Scan> scan(const E57XmlNode& node, int number, const E57XmlNode* images);

private:
    [[noreturn]] void fail(const QString& where, const QString& why) const
    {
        throw ImportError(QStringLiteral("%1: %2: %3").arg(m_fileName, where, why));
    }
    double number(const E57XmlNode* node, const QString& where, double fallback) const;
    qint64 integer(const QString& text, const QString& where, qint64 fallback) const;
    quint64 offsetOf(const E57XmlNode& node, const QString& attribute, const QString& where) const;
    void readPose(const E57XmlNode& pose, E57Scan& scan, const QString& where) const;
    FieldCodec codecOf(const E57XmlNode& field, const QString& where) const;
    Limits limitsOf(const E57XmlNode* limits, const char* minimum, const char* maximum, const FieldCodec* codec,
                    Limits fallback, const QString& where) const;

    std::shared_ptr<E57PagedFile> m_file;
    QString m_fileName;
};

double Builder::number(const E57XmlNode* node, const QString& where, double fallback) const
{
    if (!node || node->text.isEmpty())
        return fallback;
    bool ok = false;
    double value = node->text.toDouble(&ok);
    if (node->type == QLatin1String("ScaledInteger") && ok) {
        const QString scale = node->attribute(QStringLiteral("scale"));
        const QString offset = node->attribute(QStringLiteral("offset"));
        value = value * (scale.isEmpty() ? 1.0 : scale.toDouble()) + (offset.isEmpty() ? 0.0 : offset.toDouble());
    }
    if (!ok || !std::isfinite(value))
        fail(where + QLatin1Char('/') + node->name,
            QCoreApplication::translate("TVX::CORE::E57Reader", "\"%1\" is no number").arg(node->text.left(40)));
    return value;
}

qint64 Builder::integer(const QString& text, const QString& where, qint64 fallback) const
{
    if (text.isEmpty())
        return fallback;
    bool ok = false;
    const qint64 value = text.toLongLong(&ok);
    if (!ok)
        fail(where, QCoreApplication::translate("TVX::CORE::E57Reader", "\"%1\" is no integer").arg(text.left(40)));
    return value;
}

quint64 Builder::offsetOf(const E57XmlNode& node, const QString& attribute, const QString& where) const
{
    bool ok = false;
    const quint64 value = node.attribute(attribute).toULongLong(&ok);
    if (!ok || value >= m_file->physicalLength() || !m_file->isDataOffset(value))
        fail(where,
            QCoreApplication::translate("TVX::CORE::E57Reader", "%1 \"%2\" lies outside the file's data")
                .arg(attribute, node.attribute(attribute).left(40)));
    return value;
}

void Builder::readPose(const E57XmlNode& pose, E57Scan& scan, const QString& where) const
{
    const E57XmlNode* rotation = pose.child(QStringLiteral("rotation"));
    const E57XmlNode* translation = pose.child(QStringLiteral("translation"));
    double w = 1, x = 0, y = 0, z = 0;
    if (rotation) {
        w = number(rotation->child(QStringLiteral("w")), where, 1);
        x = number(rotation->child(QStringLiteral("x")), where, 0);
        y = number(rotation->child(QStringLiteral("y")), where, 0);
        z = number(rotation->child(QStringLiteral("z")), where, 0);
    }
    const double norm = std::sqrt(w * w + x * x + y * y + z * z);
    if (!(norm > 1e-9))
        fail(where + QStringLiteral("/pose/rotation"),
            QCoreApplication::translate("TVX::CORE::E57Reader", "the quaternion has no length"));
    w /= norm, x /= norm, y /= norm, z /= norm;
    const double r[3][3] = {{1 - 2 * (y * y + z * z), 2 * (x * y - w * z), 2 * (x * z + w * y)},
                            {2 * (x * y + w * z), 1 - 2 * (x * x + z * z), 2 * (y * z - w * x)},
                            {2 * (x * z - w * y), 2 * (y * z + w * x), 1 - 2 * (x * x + y * y)}};
    double t[3] = {0, 0, 0};
    if (translation) {
        t[0] = number(translation->child(QStringLiteral("x")), where, 0);
        t[1] = number(translation->child(QStringLiteral("y")), where, 0);
        t[2] = number(translation->child(QStringLiteral("z")), where, 0);
    }
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j)
            scan.transformation[std::size_t(i * 4 + j)] = r[i][j];
        scan.transformation[std::size_t(i * 4 + 3)] = t[i];
    }
}

FieldCodec Builder::codecOf(const E57XmlNode& field, const QString& where) const
{
    FieldCodec codec;
    const QString at = where + QLatin1Char('/') + field.name;
    for (int f = 0; f < FieldCount; ++f) {
        if (field.name == QLatin1String(fieldNames[f]))
            codec.field = f;
    }
    const auto bound = [&](const char* name, double fallback) {
        const QString text = field.attribute(QLatin1String(name));
        if (text.isEmpty())
            return fallback;
        bool ok = false;
        const double value = text.toDouble(&ok);
        if (!ok || !std::isfinite(value))
            fail(at,
                QCoreApplication::translate("TVX::CORE::E57Reader", "%1 \"%2\" is no number")
                    .arg(QLatin1String(name), text.left(40)));
        return value;
    };
    if (field.type == QLatin1String("Float")) {
        codec.decoder
            = E57BitPackDecoder::forFloat(field.attribute(QStringLiteral("precision")) == QLatin1String("single"));
        codec.minimum = bound("minimum", 0);
        codec.maximum = bound("maximum", 1);
    } else if (field.type == QLatin1String("Integer") || field.type == QLatin1String("ScaledInteger")) {
        const qint64 low = integer(field.attribute(QStringLiteral("minimum")), at, std::numeric_limits<qint64>::min());
        const qint64 high = integer(field.attribute(QStringLiteral("maximum")), at, std::numeric_limits<qint64>::max());
        if (low > high)
            fail(at,
                QCoreApplication::translate("TVX::CORE::E57Reader", "minimum %1 lies above maximum %2")
                    .arg(low)
                    .arg(high));
        const double scale = bound("scale", 1);
        const double offset = bound("offset", 0);
        codec.decoder = E57BitPackDecoder::forInteger(low, high, scale, offset);
        codec.minimum = double(low) * scale + offset;
        codec.maximum = double(high) * scale + offset;
    } else {
        // Strings and nested elements are not point data the import uses.
        if (codec.field >= 0)
            fail(at,
                QCoreApplication::translate("TVX::CORE::E57Reader", "a point field of type \"%1\"").arg(field.type));
        return codec;
    }
    if (codec.field < 0)
        codec.decoder.reset(); // read past
    return codec;
}

Limits Builder::limitsOf(const E57XmlNode* limits, const char* minimum, const char* maximum, const FieldCodec* codec,
                         Limits fallback, const QString& where) const
{
    Limits result = fallback;
    // The field's own bounds, unless the limits say otherwise.
    if (codec && codec->decoder && codec->decoder->kind() == E57BitPackDecoder::Kind::Integer)
        result = {codec->minimum, codec->maximum};
    if (limits) {
        result.minimum = number(limits->child(QLatin1String(minimum)), where, result.minimum);
        result.maximum = number(limits->child(QLatin1String(maximum)), where, result.maximum);
    }
    return result;
}

std::shared_ptr<E57Scan> Builder::scan(const E57XmlNode& node, int index, const E57XmlNode* images)
{
    auto scan = std::make_shared<E57Scan>();
    scan->file = m_file;
    scan->fileName = m_fileName;
    const QString where = QStringLiteral("data3D/%1").arg(index);
    const E57XmlNode* name = node.child(QStringLiteral("name"));
    scan->name = name && !name->text.isEmpty()
        ? name->text
        : QCoreApplication::translate("TVX::CORE::E57Reader", "Scan %1").arg(index + 1);
    if (const E57XmlNode* pose = node.child(QStringLiteral("pose")))
        readPose(*pose, *scan, where);

    const E57XmlNode* points = node.child(QStringLiteral("points"));
    if (!points || points->type != QLatin1String("CompressedVector"))
        fail(where, QCoreApplication::translate("TVX::CORE::E57Reader", "no compressed vector of points"));
    scan->sectionOffset = offsetOf(*points, QStringLiteral("fileOffset"), where + QStringLiteral("/points"));
    bool ok = false;
    scan->recordCount = points->attribute(QStringLiteral("recordCount")).toULongLong(&ok);
    if (!ok)
        fail(where + QStringLiteral("/points"), QCoreApplication::translate("TVX::CORE::E57Reader", "no record count"));
    scan->pointCount = scan->recordCount;
    if (const E57XmlNode* codecs = points->child(QStringLiteral("codecs"))) {
        for (const E57XmlNode& codec : codecs->children) {
            if (!codec.child(QStringLiteral("bitPackCodec")))
                fail(where + QStringLiteral("/points/codecs"),
                    QCoreApplication::translate("TVX::CORE::E57Reader", "only the bit-pack codec is supported"));
        }
    }
    const E57XmlNode* prototype = points->child(QStringLiteral("prototype"));
    if (!prototype)
        fail(where + QStringLiteral("/points"), QCoreApplication::translate("TVX::CORE::E57Reader", "no prototype"));
    std::fill(std::begin(scan->fieldIndex), std::end(scan->fieldIndex), -1);
    for (const E57XmlNode& field : prototype->children) {
        FieldCodec codec = codecOf(field, where + QStringLiteral("/points/prototype"));
        if (codec.field >= 0) {
            if (scan->fieldIndex[codec.field] >= 0)
                fail(where + QStringLiteral("/points/prototype"),
                    QCoreApplication::translate("TVX::CORE::E57Reader", "the field %1 comes twice").arg(field.name));
            scan->fieldIndex[codec.field] = int(scan->prototype.size());
        }
        scan->prototype.push_back(std::move(codec));
    }
    const bool cartesian = scan->has(CartesianX) && scan->has(CartesianY) && scan->has(CartesianZ);
    const bool spherical = scan->has(SphericalRange) && scan->has(SphericalAzimuth) && scan->has(SphericalElevation);
    if (!cartesian && !spherical)
        fail(where,
            QCoreApplication::translate(
                "TVX::CORE::E57Reader", "the points have neither cartesian nor spherical coordinates"));
    if (cartesian) { // spherical fields beside cartesian ones are read past
        for (Field f : {SphericalRange, SphericalAzimuth, SphericalElevation, SphericalInvalidState}) {
            if (scan->has(f)) {
                scan->prototype[std::size_t(scan->fieldIndex[f])].field = -1;
                scan->prototype[std::size_t(scan->fieldIndex[f])].decoder.reset();
                scan->fieldIndex[f] = -1;
            }
        }
    }
    const auto codecAt = [&](Field f) {
        return scan->has(f) ? &scan->prototype[std::size_t(scan->fieldIndex[f])] : nullptr;
    };
    if (scan->has(RowIndex) != scan->has(ColumnIndex))
        fail(where,
            QCoreApplication::translate(
                "TVX::CORE::E57Reader", "a row index without a column index, or the other way round"));
    if (scan->has(RowIndex)) {
        const E57XmlNode* bounds = node.child(QStringLiteral("indexBounds"));
        const auto extent = [&](Field f, const char* maximum) {
            const double fromPrototype = codecAt(f)->maximum;
            const double top
                = bounds ? number(bounds->child(QLatin1String(maximum)), where, fromPrototype) : fromPrototype;
            if (!(top >= 1 && top < double(E57Reader::maximumGridCells)))
                fail(where,
                    QCoreApplication::translate("TVX::CORE::E57Reader", "%1 %2 makes no grid")
                        .arg(QLatin1String(maximum))
                        .arg(top));
            return quint32(top) + 1;
        };
        scan->columns = extent(ColumnIndex, "columnMaximum");
        scan->rows = extent(RowIndex, "rowMaximum");
        if (quint64(scan->columns) * scan->rows > E57Reader::maximumGridCells)
            fail(where,
                QCoreApplication::translate("TVX::CORE::E57Reader", "a grid of %1 × %2 is too large")
                    .arg(scan->columns)
                    .arg(scan->rows));
    }
    scan->hasIntensity = scan->has(Intensity);
    scan->hasColour = scan->has(ColorRed) && scan->has(ColorGreen) && scan->has(ColorBlue);
    if (!scan->hasColour && (scan->has(ColorRed) || scan->has(ColorGreen) || scan->has(ColorBlue))) {
        for (Field f : {ColorRed, ColorGreen, ColorBlue}) {
            if (scan->has(f)) {
                scan->prototype[std::size_t(scan->fieldIndex[f])].field = -1;
                scan->prototype[std::size_t(scan->fieldIndex[f])].decoder.reset();
                scan->fieldIndex[f] = -1;
            }
        }
    }
    scan->intensityLimits = limitsOf(node.child(QStringLiteral("intensityLimits")), "intensityMinimum",
                                     "intensityMaximum", codecAt(Intensity), {0, 1}, where);
    const char* colourNames[3][2] = {{"colorRedMinimum", "colorRedMaximum"},
                                     {"colorGreenMinimum", "colorGreenMaximum"},
                                     {"colorBlueMinimum", "colorBlueMaximum"}};
    for (int c = 0; c < 3; ++c)
        scan->colourLimits[c] = limitsOf(node.child(QStringLiteral("colorLimits")), colourNames[c][0],
                                         colourNames[c][1], codecAt(Field(ColorRed + c)), {0, 255}, where);

    // A spherical panorama of images2D that names this scan.
    const E57XmlNode* guid = node.child(QStringLiteral("guid"));
    if (images && guid && !guid->text.isEmpty()) {
        for (const E57XmlNode& image : images->children) {
            const E57XmlNode* owner = image.child(QStringLiteral("associatedData3DGuid"));
            const E57XmlNode* sphere = image.child(QStringLiteral("sphericalRepresentation"));
            if (!owner || owner->text != guid->text || !sphere)
                continue;
            const E57XmlNode* blob = sphere->child(QStringLiteral("jpegImage"));
            if (!blob)
                blob = sphere->child(QStringLiteral("pngImage"));
            if (!blob)
                continue;
            const QString at = QStringLiteral("images2D/%1").arg(image.name);
            scan->imageOffset = offsetOf(*blob, QStringLiteral("fileOffset"), at);
            scan->imageLength = quint64(integer(blob->attribute(QStringLiteral("length")), at, 0));
            if (scan->imageLength == 0 || scan->imageLength > E57Reader::maximumImageBytes
                || scan->imageLength > m_file->logicalLength())
                fail(at,
                    QCoreApplication::translate("TVX::CORE::E57Reader", "an image of %1 bytes").arg(scan->imageLength));
            break;
        }
    }
    return scan;
}

} // namespace

std::vector<std::shared_ptr<ImportedScan>> E57Reader::read(const QString& path)
{
    auto file = std::make_shared<QFile>(path);
    if (!file->open(QIODevice::ReadOnly))
        throw ImportError(QStringLiteral("%1: %2").arg(path, file->errorString()));
    return read(file, path);
}

std::vector<std::shared_ptr<ImportedScan>> E57Reader::read(const std::shared_ptr<QIODevice>& device,
                                                           const QString& fileName)
{
    const auto fail
        = [&fileName](const QString& why) { throw ImportError(QStringLiteral("%1: %2").arg(fileName, why)); };
    char header[headerBytes];
    if (!device->seek(0) || device->read(header, qint64(headerBytes)) != qint64(headerBytes))
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "too short for an E57 file"));
    if (std::memcmp(header, "ASTM-E57", 8) != 0)
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "not an E57 file"));
    const quint32 major = qFromLittleEndian<quint32>(header + 8);
    if (major != 1)
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "E57 version %1 is not supported").arg(major));
    const quint64 physicalLength = qFromLittleEndian<quint64>(header + 16);
    const quint64 xmlOffset = qFromLittleEndian<quint64>(header + 24);
    const quint64 xmlLength = qFromLittleEndian<quint64>(header + 32);
    const quint64 pageSize = qFromLittleEndian<quint64>(header + 40);
    auto file = std::make_shared<E57PagedFile>(device, fileName, pageSize);
    if (physicalLength != file->physicalLength() || physicalLength % pageSize != 0)
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "the file is %1 bytes long, its header says %2")
                 .arg(file->physicalLength())
                 .arg(physicalLength));
    char checked[headerBytes];
    file->readLogical(0, checked, headerBytes); // checks the first page
    if (xmlLength == 0 || xmlLength > maximumXmlBytes || !file->isDataOffset(xmlOffset)
        || xmlOffset >= physicalLength || file->logicalOf(xmlOffset) + xmlLength > file->logicalLength())
        fail(QCoreApplication::translate(
            "TVX::CORE::E57Reader", "the XML section (%1 bytes at byte %2) does not fit the file")
                 .arg(xmlLength)
                 .arg(xmlOffset));
    QByteArray xml(qsizetype(xmlLength), Qt::Uninitialized);
    file->readLogical(file->logicalOf(xmlOffset), xml.data(), xmlLength);

    E57XmlNode root;
    QString error;
    if (!E57XmlNode::parse(xml, root, error))
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "XML section, %1").arg(error));
    const E57XmlNode* data3D = root.child(QStringLiteral("data3D"));
    if (!data3D || data3D->children.empty())
        fail(QCoreApplication::translate("TVX::CORE::E57Reader", "no scan in the file"));
    Builder builder(file, fileName);
    std::vector<std::shared_ptr<ImportedScan>> scans;
    for (std::size_t i = 0; i < data3D->children.size(); ++i)
        scans.push_back(builder.scan(data3D->children[i], int(i), root.child(QStringLiteral("images2D"))));
    return scans;
}

} // namespace TVX::CORE
