#include "glviews/scanviewoperator.h"

#include "glviews/scanviewevent.h"
#include "glviews/sphericalviewcontrol.h"

namespace TVX::CORE {

ScanViewOperator::ScanViewOperator() = default;
ScanViewOperator::~ScanViewOperator() = default;

void ScanViewOperator::deactivate() {}

void ScanViewOperator::cancel() {}

void ScanViewOperator::beginGesture()
{
    const ActiveView view = activeView();
    m_gestureScanId = view.scanId;
    m_gestureViewType = view.type;
    m_gestureSubWindow = view.type == ActiveView::Spherical ? view.subWindow : nullptr;
}

void ScanViewOperator::reset() {}

bool ScanViewOperator::mousePress(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::mouseRelease(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::mouseDoubleClick(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::mouseMove(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::wheel(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::keyPress(const ScanViewEvent&)
{
    return false;
}

bool ScanViewOperator::keyRelease(const ScanViewEvent&)
{
    return false;
}

void ScanViewOperator::setActiveViewProvider(ActiveViewProvider provider)
{
    m_provider = std::move(provider);
}

void ScanViewOperator::setHost(ScanViewOperatorHost* host)
{
    m_host = host;
}

ActiveView ScanViewOperator::activeView() const
{
    return m_provider ? m_provider() : ActiveView{};
}

SphericalViewControl* ScanViewOperator::activeSphericalView() const
{
    const ActiveView view = activeView();
    return view.isSpherical() ? view.spherical : nullptr;
}

SphericalViewControl* ScanViewOperator::gestureView() const
{
    const ActiveView view = activeView();
    if (!view.isSpherical() || !m_gestureSubWindow || view.subWindow != m_gestureSubWindow)
        return nullptr;
    return view.spherical;
}

} // namespace TVX::CORE
