#include "mainwindow/mysortfilterproxymodel.h"

namespace TVX::CORE {

MySortFilterProxyModel::MySortFilterProxyModel(QObject* parent) : QSortFilterProxyModel(parent)
{
}

void MySortFilterProxyModel::setReverse(bool reverse)
{
    if (reverse == m_reverse)
        return;
    m_reverse = reverse;
    // Sorting again by the same column and order is skipped by the base class.
    invalidate();
}

bool MySortFilterProxyModel::isReverse() const
{
    return m_reverse;
}

bool MySortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (!left.isValid() || !right.isValid())
        return false;
    return m_reverse ? left.row() <= right.row() : left.row() >= right.row();
}

} // namespace TVX::CORE
