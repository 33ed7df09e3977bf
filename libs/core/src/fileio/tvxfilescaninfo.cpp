#include "fileio/tvxfilescaninfo.h"

#include "scene/scanpose.h"

#include "fileio/sectionstream.h"

#include <algorithm>
#include <limits>

namespace TVX::CORE {

namespace {
constexpr const char* module = "libs/core/src/fileio/tvxfilescaninfo";
constexpr int streamErrorLine = 170;
constexpr quint64 channelBytes = 2 * sizeof(quint32);
constexpr quint64 segmentBytes = 6 * sizeof(double);

void readVector(QDataStream& stream, Vector3d& v)
{
    stream >> v.x >> v.y >> v.z;
}

void writeVector(QDataStream& stream, const Vector3d& v)
{
    stream << v.x << v.y << v.z;
}
} // namespace

TVXFileScanInfo::TVXFileScanInfo()
{
    reset();
}

void TVXFileScanInfo::reset()
{
    constexpr double huge = std::numeric_limits<double>::max();
    scanKind = 1;
    tileSize = 64;
    columns = 0;
    rows = 0;
    horizontalMin = horizontalMax = verticalMin = verticalMax = 0.0;
    transformation = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    boundingBoxMin = Vector3d(huge, huge, huge);
    boundingBoxMax = Vector3d(-huge, -huge, -huge);
    unnamedDouble = 0.0;
    unnamedInteger = 0;
    text.clear();
    channels.clear();
    segments.clear();
}

bool TVXFileScanInfo::read(QDataStream& stream)
{
    reset();
    if (!readBeginTag(stream, beginTag))
        return false;
    readVector(stream, boundingBoxMin);
    readVector(stream, boundingBoxMax);
    stream >> unnamedDouble;
    for (double& m : transformation)
        stream >> m;
    stream >> unnamedInteger;
    readString(stream, text);
    stream >> scanKind >> tileSize >> columns >> rows;
    stream >> horizontalMin >> horizontalMax >> verticalMin >> verticalMax;

    quint32 count = 0;
    stream >> count;
    if (fitsCount(stream, count, channelBytes)) {
        channels.reserve(count);
        for (quint32 i = 0; i < count && readable(stream); ++i) {
            Channel channel;
            stream >> channel.type >> channel.parameter;
            channels.push_back(channel);
        }
    }
    count = 0;
    stream >> count;
    if (fitsCount(stream, count, segmentBytes)) {
        segments.reserve(count);
        for (quint32 i = 0; i < count && readable(stream); ++i) {
            Segment segment;
            readVector(stream, segment.from);
            readVector(stream, segment.to);
            segments.push_back(segment);
        }
    }

    return finishSection(stream, endTag, module, streamErrorLine);
}

void TVXFileScanInfo::write(QDataStream& stream) const
{
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << beginTag;
    writeVector(stream, boundingBoxMin);
    writeVector(stream, boundingBoxMax);
    stream << unnamedDouble;
    for (double m : transformation)
        stream << m;
    stream << unnamedInteger << text << scanKind << tileSize << columns << rows;
    stream << horizontalMin << horizontalMax << verticalMin << verticalMax;
    stream << quint32(channels.size());
    for (const Channel& channel : channels)
        stream << channel.type << channel.parameter;
    stream << quint32(segments.size());
    for (const Segment& segment : segments) {
        writeVector(stream, segment.from);
        writeVector(stream, segment.to);
    }
    stream << endTag;
}

Vector3d TVXFileScanInfo::translation() const
{
    return poseFromTransformation(transformation).translation;
}

Vector3d TVXFileScanInfo::toProjectFrame(const Vector3d& point) const
{
    return TVX::CORE::toProjectFrame(poseFromTransformation(transformation), point);
}

GridAngles TVXFileScanInfo::gridAngles() const
{
    return TVX::CORE::gridAngles(columns, rows, horizontalMin, horizontalMax, verticalMin, verticalMax);
}

double TVXFileScanInfo::horizontalStep() const
{
    return angleStep(horizontalMin, horizontalMax, columns);
}

double TVXFileScanInfo::verticalStep() const
{
    return angleStep(verticalMin, verticalMax, rows);
}

double TVXFileScanInfo::halfDiagonal() const
{
    return TVX::CORE::halfDiagonal(horizontalStep(), verticalStep());
}

quint32 TVXFileScanInfo::tilesX() const
{
    return tileSize == 0 ? 0 : tileCount(columns, tileSize);
}

quint32 TVXFileScanInfo::tilesY() const
{
    return tileSize == 0 ? 0 : tileCount(rows, tileSize);
}

namespace {
bool hasChannel(const std::vector<TVXFileScanInfo::Channel>& channels, quint32 type)
{
    return std::any_of(channels.cbegin(), channels.cend(),
                       [type](const TVXFileScanInfo::Channel& channel) { return channel.type == type; });
}
} // namespace

bool TVXFileScanInfo::hasDistance() const
{
    return hasChannel(channels, Distance);
}

bool TVXFileScanInfo::hasIntensity() const
{
    return hasChannel(channels, Intensity);
}

bool TVXFileScanInfo::hasColour() const
{
    return hasChannel(channels, Colour);
}

quint32 TVXFileScanInfo::recordSize() const
{
    return intensityOffset() + (hasIntensity() ? 1 : 0) + (hasColour() ? 3 : 0);
}

quint32 TVXFileScanInfo::intensityOffset() const
{
    return hasDistance() ? 5 : 0;
}

quint32 TVXFileScanInfo::colourOffset() const
{
    return intensityOffset() + (hasIntensity() ? 1 : 0);
}

} // namespace TVX::CORE
