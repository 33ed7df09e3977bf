#include "glviews/scanviewoperator.h"

#include "glviews/scanviewevent.h"

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

ActiveView ScanViewOperator::activeView() const
{
    return m_provider ? m_provider() : ActiveView{};
}

} // namespace TVX::CORE
