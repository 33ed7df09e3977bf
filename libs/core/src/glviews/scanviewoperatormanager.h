#pragma once

#include "glviews/activeview.h"

#include <QtGlobal>

#include <memory>
#include <vector>

namespace TVX::CORE {

class ScanViewOperator;
class ScanViewOperatorHost;
struct ScanViewEvent;

// Holds, for each interaction mode of the GL views, an ordered list of operators and offers each
// view event to the current mode's operators in order until one consumes it. An operator may sit
// in several lists; it is the same object in each.
class ScanViewOperatorManager final
{
public:
    using OperatorList = std::vector<std::shared_ptr<ScanViewOperator>>;

    // The modes of the default table, as the main window sets them.
    enum Mode : quint32 {
        NoMode = 0,
        PickMode = 1,
        AreaSelectionMode = 3,
        ZoomInMode = 16,
        ZoomOutMode = 17,
        CreatePolygonMode = 32,
        ModifyPolygonMode = 33,
        CreateEllipseMode = 34,
        ModifyEllipseMode = 35,
        CreateRectangleMode = 36,
        ModifyRectangleMode = 37,
        CreateMeasurementMode = 38,
        ModifyMeasurementMode = 39,
        CreateTextMode = 40,
        ModifyTextMode = 41,
        ScanPointSelectionMode = 4101,
        ObjectSelectionMode = 4102,
    };

    ScanViewOperatorManager();
    ~ScanViewOperatorManager();

    // One operator of each kind; every mode of the table lists its own operator first and the
    // camera move operator second, so that the middle button turns the view in every mode.
    static std::unique_ptr<ScanViewOperatorManager> createDefault();

    // Replaces the list of `mode`; the operators get the manager's active-view provider.
    void setOperators(quint32 mode, OperatorList operators);
    // Empty for a mode without a list.
    OperatorList operators(quint32 mode) const;
    // The first operator of the mode's list, or null.
    std::shared_ptr<ScanViewOperator> operatorFor(quint32 mode) const;

    quint32 currentMode() const;
    // Nothing when `mode` is current; otherwise each operator of the old list gets cancel, then
    // deactivate, in list order, and `mode` becomes current. The new mode's operators are not told.
    void setMode(quint32 mode);
    // Offers the event to the current mode's operators in order; true when one consumed it.
    bool dispatch(const ScanViewEvent& event);
    // For a view that closes: cancel, then reset, on each operator of the current mode.
    void resetActiveOperator();

    // How the operators learn the active sub window; without one, none is active.
    void setActiveViewProvider(ActiveViewProvider provider);
    // Where the operators report picks, the lens and changed annotations.
    void setHost(ScanViewOperatorHost* host);

private:
    Q_DISABLE_COPY(ScanViewOperatorManager)

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
