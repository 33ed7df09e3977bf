#pragma once

#include <QString>
#include <QtGlobal>

namespace TVX::CORE {

// The mark of another scan's station in a spherical view.
struct SphericalStationMark {
    quint32 scanId{0};
    float distance{0.0f}; // metres between the two stations
    QString name;
    quint32 size{24}; // pixels; the view makes it even and clamps it to 16 … 32
    // The unit direction to the station in the viewing scan's frame; the mark is drawn there.
    float x{0.0f};
    float y{0.0f};
    float z{0.0f};
    // Set by each paint: whether the mark is on screen, and where (origin at the lower left).
    bool visible{false};
    qint32 screenX{0};
    qint32 screenY{0};
};

} // namespace TVX::CORE
