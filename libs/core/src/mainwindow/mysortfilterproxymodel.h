#pragma once

#include <QSortFilterProxyModel>

namespace TVX::CORE {

// The display order of the point table. Only the source row numbers count: without the reverse
// flag a later row is "less" than an earlier one, with it an earlier row is. Sorted descending,
// the table therefore lists the points as they were picked, or with the reverse flag the newest
// first.
//
// Kept on purpose: the comparison is not strict (a row is "less" than itself). Rows are distinct,
// so the order comes out the same.
class MySortFilterProxyModel final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit MySortFilterProxyModel(QObject* parent = nullptr);

    // Re-sorts at once when the flag changes.
    void setReverse(bool reverse);
    bool isReverse() const;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    bool m_reverse{false};
};

} // namespace TVX::CORE
