#pragma once

#include "fileio/scangeometry.h"
#include "scene/vector3d.h"

#include <QDataStream>
#include <QString>

#include <array>
#include <vector>

namespace TVX::CORE {

// The scan information section: grid geometry, channels, pose. Angles in radians.
class TVXFileScanInfo final
{
public:
    enum ChannelType : quint32 { Distance = 1, Intensity = 2, Colour = 3 };
    struct Channel {
        quint32 type = 0;
        quint32 parameter = 0; // carried, not interpreted
    };
    struct Segment {
        Vector3d from;
        Vector3d to;
    };

    static constexpr quint32 beginTag = 0x120000;
    static constexpr quint32 endTag = 0x12FFFF;

    TVXFileScanInfo();

    // Resets to the defaults, then reads the section at the stream's position. False on a wrong
    // begin tag (nothing more consumed) or end tag; throws the read error
    // ("libs/core/src/fileio/tvxfilescaninfo", line 170) when the stream failed before the end tag.
    bool read(QDataStream& stream);
    // The section as read() expects it.
    void write(QDataStream& stream) const;
    // Identity matrix, empty (inverted) bounding box, tile size 64, scan kind 1, the rest 0 or empty.
    void reset();

    quint32 scanKind{1};
    quint32 tileSize{64};
    quint32 columns{0};
    quint32 rows{0};
    double horizontalMin{0.0};
    double horizontalMax{0.0};
    double verticalMin{0.0};
    double verticalMax{0.0};
    // Sixteen numbers in file order, row by row: rotation = rows 0 to 2 by columns 0 to 2,
    // translation = m[3], m[7], m[11].
    std::array<double, 16> transformation{};
    Vector3d boundingBoxMin;
    Vector3d boundingBoxMax;
    double unnamedDouble{0.0};
    qint64 unnamedInteger{0};
    QString text;
    std::vector<Channel> channels;
    std::vector<Segment> segments;

    // The scan's pose from the transformation: a point of the scan frame in the project frame,
    // rotation × point + translation (metres).
    Vector3d translation() const;
    Vector3d toProjectFrame(const Vector3d& point) const;

    // Derived geometry (see scangeometry.h). With a tile size of 0 the grid has no tiles.
    GridAngles gridAngles() const;
    double horizontalStep() const;
    double verticalStep() const;
    double halfDiagonal() const;
    quint32 tilesX() const;
    quint32 tilesY() const;
    bool hasDistance() const;
    bool hasIntensity() const;
    bool hasColour() const;
    // Record layout: dx, dy and the 24-bit distance (5 bytes) with a distance channel, then the
    // intensity (1), then red, green, blue (3), each only with its channel.
    quint32 recordSize() const;      // 0, 1, 3, 4, 5, 6, 8 or 9 bytes
    quint32 intensityOffset() const; // 5 (0 without a distance channel)
    quint32 colourOffset() const;    // 6 with an intensity channel, else 5 (both 5 less without distance)
};

} // namespace TVX::CORE
