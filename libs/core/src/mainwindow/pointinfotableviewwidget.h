#pragma once

#include <QWidget>

#include <memory>

class QAction;
class QToolButton;

namespace TVX::CORE {

class MySortFilterProxyModel;
class PointInfoTableModel;
class PointInfoTableView;

// The content of the "Point Information" dock: a narrow column of tool buttons on the left (the
// main window adds them) and the point table on the right. The widget owns the model, the proxy
// and the view.
class PointInfoTableViewWidget final : public QWidget
{
    Q_OBJECT

public:
    explicit PointInfoTableViewWidget(QWidget* parent = nullptr);
    ~PointInfoTableViewWidget() override;

    PointInfoTableModel* model() const;
    MySortFilterProxyModel* proxyModel() const;
    PointInfoTableView* view() const;

    // Appends a button for the action below the buttons already in the tool column.
    QToolButton* addToolButton(QAction* action);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
