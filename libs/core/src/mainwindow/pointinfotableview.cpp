#include "mainwindow/pointinfotableview.h"

#include "mainwindow/mysortfilterproxymodel.h"
#include "mainwindow/pointinfotablemodel.h"

#include <QCursor>
#include <QHeaderView>
#include <QInputDialog>
#include <QLocale>
#include <QLoggingCategory>
#include <QMenu>
#include <QSettings>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TVX::CORE {

namespace {

Q_LOGGING_CATEGORY(lcPointInfoTable, "tvx.mainwindow.pointinfo", QtWarningMsg)

const QString zValueKey = QStringLiteral("modeler/pointinfotableview/setZValue");

std::optional<double> askWithDialog(QWidget* parent, double initial)
{
    QInputDialog dialog(parent);
    dialog.setWindowTitle(PointInfoTableView::tr("Specify z-Coordinate"));
    dialog.setLabelText(QStringLiteral("z: "));
    dialog.setInputMode(QInputDialog::DoubleInput);
    dialog.setDoubleDecimals(5);
    dialog.setDoubleRange(-2147483647.0, 2147483647.0);
    dialog.setDoubleValue(initial);
    // A decimal point whatever the system language, as the stored value uses.
    dialog.setLocale(QLocale::c());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.doubleValue();
}

} // namespace

struct PointInfoTableView::Private {
    ZValueAsker askZValue;
    bool headerMenuEnabled{true};
};

PointInfoTableView::PointInfoTableView(QWidget* parent) : QTableView(parent), d(std::make_unique<Private>())
{
    d->askZValue = [this](double initial) { return askWithDialog(this, initial); };
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    verticalHeader()->setVisible(true);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
            &PointInfoTableView::customContextMenu);
    connect(this, &QAbstractItemView::clicked, this, &PointInfoTableView::elementClicked);
    applyColumnLayout();
}

PointInfoTableView::~PointInfoTableView() = default;

void PointInfoTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    applyColumnLayout();
}

void PointInfoTableView::setZValueAsker(ZValueAsker asker)
{
    d->askZValue = std::move(asker);
}

void PointInfoTableView::setHeaderMenuEnabled(bool enabled)
{
    d->headerMenuEnabled = enabled;
}

bool PointInfoTableView::isHeaderMenuEnabled() const
{
    return d->headerMenuEnabled;
}

std::unique_ptr<QMenu> PointInfoTableView::buildHeaderMenu(int section)
{
    auto menu = std::make_unique<QMenu>(this);
    menu->addAction(tr("Save Entries to File"), this, &PointInfoTableView::saveEntriesToFile);
    if (section == PointInfoTableModel::ZCol) {
        menu->addAction(tr("Reset z-Coordinate to 0.0"), this, &PointInfoTableView::resetZValuesToZero);
        menu->addAction(tr("Set Value of z-Coordinate"), this, &PointInfoTableView::setValueForZ);
    }
    return menu;
}

void PointInfoTableView::elementClicked(const QModelIndex& index)
{
    if (index.isValid() && index.column() == PointInfoTableModel::DeleteCol && model())
        model()->removeRow(index.row(), index.parent());
}

void PointInfoTableView::customContextMenu(const QPoint& p)
{
    if (!d->headerMenuEnabled)
        return;
    const auto menu = buildHeaderMenu(horizontalHeader()->logicalIndexAt(p));
    menu->exec(QCursor::pos());
}

void PointInfoTableView::saveEntriesToFile()
{
    emit signal_saveTableEntrieToFile();
}

void PointInfoTableView::resetZValuesToZero()
{
    replaceZ(0.0);
}

void PointInfoTableView::setValueForZ()
{
    QSettings settings;
    const double initial = settings.value(zValueKey, 0.0).toDouble();
    const std::optional<double> z = d->askZValue ? d->askZValue(initial) : std::nullopt;
    if (!z)
        return;
    replaceZ(*z);
    settings.setValue(zValueKey, *z);
}

void PointInfoTableView::reverseOrdering(bool value)
{
    if (auto* proxy = qobject_cast<MySortFilterProxyModel*>(model()))
        proxy->setReverse(value);
    sortByColumn(0, Qt::DescendingOrder);
}

void PointInfoTableView::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QTableView::rowsInserted(parent, start, end);
    sortByColumn(0, Qt::DescendingOrder);
}

void PointInfoTableView::reset()
{
    QTableView::reset();
    applyColumnLayout();
}

PointInfoTableModel* PointInfoTableView::pointModel() const
{
    if (auto* proxy = qobject_cast<QSortFilterProxyModel*>(model()))
        return qobject_cast<PointInfoTableModel*>(proxy->sourceModel());
    return qobject_cast<PointInfoTableModel*>(model());
}

// Done on the source model: the measuredZ column is reachable only through its own indexes.
void PointInfoTableView::replaceZ(double z)
{
    PointInfoTableModel* points = pointModel();
    if (!points) {
        qCWarning(lcPointInfoTable) << "z not replaced: the view shows no point table";
        return;
    }
    for (int row = 0; row < points->rowCount(); ++row) {
        const double x = points->index(row, PointInfoTableModel::XCol).data(Qt::EditRole).toDouble();
        const double y = points->index(row, PointInfoTableModel::YCol).data(Qt::EditRole).toDouble();
        points->setData(points->index(row, PointInfoTableModel::ZCol), z);
        points->setData(points->index(row, PointInfoTableModel::DistanceCol), std::sqrt(x * x + y * y + z * z));
        points->setData(points->measuredZIndex(row), false);
    }
}

void PointInfoTableView::applyColumnLayout()
{
    if (!model())
        return;
    QHeaderView* header = horizontalHeader();
    const int columns = model()->columnCount();
    for (int column = 0; column < columns; ++column)
        setColumnHidden(column, column == PointInfoTableModel::ScanIdCol || column > PointInfoTableModel::DeleteCol);
    if (PointInfoTableModel::FileNameCol < columns)
        header->setSectionResizeMode(PointInfoTableModel::FileNameCol, QHeaderView::Stretch);
    if (PointInfoTableModel::DeleteCol < columns) {
        // The style's minimum section width would widen the icon column.
        header->setMinimumSectionSize(std::min(header->minimumSectionSize(), 20));
        header->setSectionResizeMode(PointInfoTableModel::DeleteCol, QHeaderView::Fixed);
        setColumnWidth(PointInfoTableModel::DeleteCol, 20);
    }
}

} // namespace TVX::CORE
