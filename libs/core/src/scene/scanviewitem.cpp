#include "scene/scanviewitem.h"

namespace TVX::CORE {

ScanViewItem::ScanViewItem(std::vector<Vector3d> points) : m_points(std::move(points)) {}

ScanViewItem::~ScanViewItem() = default;

void ScanViewItem::setPoints(std::vector<Vector3d> points)
{
    m_points = std::move(points);
    ++m_changeCounter;
}

void ScanViewItem::setPoint(std::size_t index, const Vector3d& point)
{
    if (index >= m_points.size())
        return;
    m_points[index] = point;
    ++m_changeCounter;
}

void ScanViewItem::appendPoint(const Vector3d& point)
{
    m_points.push_back(point);
    ++m_changeCounter;
}

void ScanViewItem::removeLastPoint()
{
    if (m_points.empty())
        return;
    m_points.pop_back();
    ++m_changeCounter;
}

} // namespace TVX::CORE
