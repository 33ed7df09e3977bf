#include "mainwindow/logtableview.h"

#include <QHeaderView>

namespace TVX::CORE {

LogTableView::LogTableView(QWidget* parent) : QTableView(parent)
{
    setAlternatingRowColors(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    horizontalHeader()->setStretchLastSection(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    showLogColumnsOnly();
}

void LogTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    showLogColumnsOnly();
}

void LogTableView::showLogColumnsOnly()
{
    if (!model())
        return;
    const int columns = model()->columnCount();
    for (int column = 0; column < columns; ++column)
        setColumnHidden(column, column > 2);
}

} // namespace TVX::CORE
