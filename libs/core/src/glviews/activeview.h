#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace TVX::CORE {

class SphericalViewControl;

// The main window's active sub window as the operators see it.
struct ActiveView {
    // Numbered as the sub window kinds.
    enum Type : quint32 { None = 0, Planar = 1, Spherical = 2, PointCloud = 3 };

    QPointer<QWidget> subWindow;
    quint32 scanId{0};
    quint32 type{None};
    // Set for a spherical view only; valid only while the event that asked for it is handled.
    SphericalViewControl* spherical{nullptr};

    bool isSpherical() const { return type == Spherical && spherical; }
};

// Answers which sub window is active now; the main window installs one.
using ActiveViewProvider = std::function<ActiveView()>;

} // namespace TVX::CORE
