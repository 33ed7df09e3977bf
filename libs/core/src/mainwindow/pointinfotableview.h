#pragma once

#include <QTableView>

#include <functional>
#include <memory>
#include <optional>

class QMenu;

namespace TVX::CORE {

class PointInfoTableModel;

// The table of the "Point Information" dock, shown through a MySortFilterProxyModel over a
// PointInfoTableModel. Clicking the delete icon of a row removes that row; the horizontal header
// has a context menu with the z-value entries. Both z operations change every row, not only the
// selected ones, and mark z as no longer measured.
class PointInfoTableView final : public QTableView
{
    Q_OBJECT

public:
    // Asks for a new z value, starting from `initial`; nothing when the user cancelled.
    using ZValueAsker = std::function<std::optional<double>(double initial)>;

    explicit PointInfoTableView(QWidget* parent = nullptr);
    ~PointInfoTableView() override;

    // Applies the column layout (hidden scan id, stretching file name, narrow delete column).
    void setModel(QAbstractItemModel* model) override;

    // Replaces the input dialog of setValueForZ() (for tests and scripted use).
    void setZValueAsker(ZValueAsker asker);

    // The header's context menu is offered only while this is on (it is from construction).
    void setHeaderMenuEnabled(bool enabled);
    bool isHeaderMenuEnabled() const;

    // The context menu for a horizontal header section (logical index), parented to this view.
    std::unique_ptr<QMenu> buildHeaderMenu(int section);

Q_SIGNALS:
    // Only announces the wish; nothing in the viewer connects to it.
    void signal_saveTableEntrieToFile();

public Q_SLOTS:
    void elementClicked(const QModelIndex& index);
    // p in the header's viewport coordinates, as the header reports a context menu request.
    void customContextMenu(const QPoint& p);
    void saveEntriesToFile();
    void resetZValuesToZero();
    // Asks for the value, starting from the one used last (setting
    // "modeler/pointinfotableview/setZValue"), and stores it when accepted.
    void setValueForZ();
    // On: newest point at the top. Re-sorts at once.
    void reverseOrdering(bool value);
    void rowsInserted(const QModelIndex& parent, int start, int end) override;

    void reset() override;

private:
    PointInfoTableModel* pointModel() const;
    void replaceZ(double z);
    void applyColumnLayout();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
