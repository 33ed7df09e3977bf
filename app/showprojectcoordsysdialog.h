#pragma once

#include "fileio/tvxprojectcontent.h"

#include <QDialog>

#include <array>
#include <memory>
#include <vector>

namespace TVX::VIEWER {

// Shows the project's coordinate systems, one at a time, read-only. The first entry, "default",
// is the project origin without rotation; entry 1 + i is coordinateSystems[i]. A system's
// translation is shown in metres, its rotation as the three angles of quaternionToAngles() in
// degrees: the first in the x box, the second in y, the third in z. A value that is not a finite
// number is shown as a disabled box.
class ShowProjectCoordSysDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(ShowProjectCoordSysDialog)

public:
    // currentIndex counts the entries as above (0 is "default"); one past the list shows "default".
    ShowProjectCoordSysDialog(const std::array<double, 3>& origin,
                              const std::vector<TVX::CORE::TVXProjectContent::CoordinateSystem>& coordinateSystems,
                              quint32 currentIndex, QWidget* parent = nullptr);
    ~ShowProjectCoordSysDialog() override;

public Q_SLOTS:
    // Shows the entry with this index of "cb_coordinatesystem"; ignores an index off the list.
    void change_coord_sys(int index);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::VIEWER
