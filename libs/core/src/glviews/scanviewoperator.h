#pragma once

#include "glviews/activeview.h"

#include <QPointer>
#include <QWidget>

namespace TVX::CORE {

struct ScanViewEvent;
class ScanViewOperatorHost;
class SphericalViewControl;

// An operator of the GL views: it turns view events into actions on the active spherical view.
// Operators are shared between the mode lists of the operator manager; each event operation
// returns true when it consumed the event, and the base consumes nothing.
class ScanViewOperator
{
public:
    ScanViewOperator();
    virtual ~ScanViewOperator();

    // Called when the operator's mode is left, after cancel.
    virtual void deactivate();
    // Called first when the operator's mode is left, and when a view closes.
    virtual void cancel();
    // Records the active sub window as the gesture's view; called at the start of a press.
    virtual void beginGesture();
    // Back to idle; called at the end of each finished or abandoned gesture.
    virtual void reset();
    virtual bool mousePress(const ScanViewEvent& event);
    virtual bool mouseRelease(const ScanViewEvent& event);
    virtual bool mouseDoubleClick(const ScanViewEvent& event);
    virtual bool mouseMove(const ScanViewEvent& event);
    virtual bool wheel(const ScanViewEvent& event);
    virtual bool keyPress(const ScanViewEvent& event);
    virtual bool keyRelease(const ScanViewEvent& event);

    // Without a provider no sub window counts as active.
    void setActiveViewProvider(ActiveViewProvider provider);
    // Where picks, the lens and modified annotations are reported; without one they are not.
    void setHost(ScanViewOperatorHost* host);

    // The view on which the last gesture began; the sub window is empty unless it is spherical.
    quint32 gestureScanId() const { return m_gestureScanId; }
    quint32 gestureViewType() const { return m_gestureViewType; }
    QWidget* gestureSubWindow() const { return m_gestureSubWindow; }

protected:
    // The active sub window now.
    ActiveView activeView() const;
    ScanViewOperatorHost* host() const { return m_host; }
    // The active view when it is spherical, else null; valid while the event is handled.
    SphericalViewControl* activeSphericalView() const;
    // The active view when it is the spherical view on which the last gesture began, else null.
    SphericalViewControl* gestureView() const;

private:
    Q_DISABLE_COPY(ScanViewOperator)

    ActiveViewProvider m_provider;
    ScanViewOperatorHost* m_host{nullptr};
    quint32 m_gestureScanId{0};
    quint32 m_gestureViewType{ActiveView::None};
    QPointer<QWidget> m_gestureSubWindow;
};

} // namespace TVX::CORE
