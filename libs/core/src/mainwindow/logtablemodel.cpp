#include "mainwindow/logtablemodel.h"

namespace TVX::CORE {

LogTableModel::LogTableModel(QObject* parent) : QAbstractTableModel(parent)
{
}

int LogTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int LogTableModel::columnCount(const QModelIndex&) const
{
    return 3;
}

QVariant LogTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const Entry& entry = m_entries.at(index.row());
    if (role == Qt::ToolTipRole && index.column() == 2)
        return entry.message;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case 0: return QStringLiteral("Type");
    case 1: return entry.time;
    case 2: return entry.message;
    default: return {};
    }
}

bool LogTableModel::setData(const QModelIndex&, const QVariant&, int)
{
    return false;
}

QVariant LogTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case 0: return tr("Type", "Type of Log Message (Warning, Error, ...");
    case 1: return tr("Time");
    case 2: return QStringLiteral("Message");
    default: return {};
    }
}

Qt::ItemFlags LogTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsEnabled;
    // Never takes effect: the view starts no editor and setData refuses.
    return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

void LogTableModel::appendEntry(int type, const QTime& time, const QString& message)
{
    const int row = int(m_entries.size());
    beginInsertRows(QModelIndex(), row, row);
    m_entries.append(Entry{type, time, message});
    endInsertRows();
}

int LogTableModel::entryType(int row) const
{
    return row >= 0 && row < m_entries.size() ? m_entries.at(row).type : -1;
}

} // namespace TVX::CORE
