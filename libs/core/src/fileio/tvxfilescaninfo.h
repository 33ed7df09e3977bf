#pragma once

#include "glviews/vector3d.h"

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

    TVXFileScanInfo();

    // Resets to the defaults, then reads the section at the stream's position. False on a wrong
    // begin or end tag; throws the read error when the stream fails.
    bool read(QDataStream& stream);
    void reset();

    quint32 scanKind{1};
    quint32 tileSize{64};
    quint32 columns{0};
    quint32 rows{0};
    double horizontalMin{0.0};
    double horizontalMax{0.0};
    double verticalMin{0.0};
    double verticalMax{0.0};
    // Sixteen numbers in file order: rotation = rows 0 to 2 by columns 0 to 2, translation = m[3], m[7], m[11].
    std::array<double, 16> transformation{};
    Vector3d boundingBoxMin;
    Vector3d boundingBoxMax;
    double unnamedDouble{0.0};
    qint64 unnamedInteger{0};
    QString text;
    std::vector<Channel> channels;
    std::vector<Segment> segments;

    // Derived geometry.
    double horizontalStep() const;
    double verticalStep() const;
    double halfDiagonal() const;
    quint32 tilesX() const;
    quint32 tilesY() const;
    bool hasDistance() const;
    bool hasIntensity() const;
    bool hasColour() const;
    quint32 recordSize() const;      // 0, 1, 3, 4, 5, 6, 8 or 9 bytes
    quint32 intensityOffset() const; // 5
    quint32 colourOffset() const;    // 6 with an intensity channel, else 5
};

} // namespace TVX::CORE
