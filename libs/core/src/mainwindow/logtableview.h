#pragma once

#include <QTableView>

namespace TVX::CORE {

// The table of the "Report" dock. Read-only, whole rows selected; whatever model it gets, only
// the columns 0 to 2 (type, time, message) are shown.
class LogTableView final : public QTableView
{
    Q_OBJECT

public:
    explicit LogTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

private:
    void showLogColumnsOnly();
};

} // namespace TVX::CORE
