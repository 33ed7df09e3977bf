#include "annotations/sceneitemstablemodel.h"

#include <algorithm>

namespace TVX::CORE {

SceneItemsTableModel::SceneItemsTableModel(QObject* parent) : QAbstractTableModel(parent) {}

int SceneItemsTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_items.size());
}

int SceneItemsTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 3;
}

QVariant SceneItemsTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case 0:
        return QString::number(index.row());
    // The records' own values are not shown: both texts stay fixed and untranslated.
    case 1:
        return QStringLiteral("object type");
    case 2:
        return QStringLiteral("object name");
    default:
        return {};
    }
}

bool SceneItemsTableModel::removeRows(int row, int count, const QModelIndex& parent)
{
    // Callers rely on true whatever they pass; the range is only clipped so that nothing breaks.
    const int first = std::max(row, 0);
    const int last = int(std::min<qint64>(qint64(row) + count, rowCount())) - 1;
    if (parent.isValid() || last < first)
        return true;
    beginRemoveRows(QModelIndex(), first, last);
    m_items.erase(m_items.begin() + first, m_items.begin() + last + 1);
    endRemoveRows();
    return true;
}

void SceneItemsTableModel::addItem(const TVXSceneItemPtr& item)
{
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    m_items.push_back(item);
    endInsertRows();
}

TVXSceneItemPtr SceneItemsTableModel::item(int row) const
{
    if (row < 0 || row >= rowCount())
        return {};
    return m_items[std::size_t(row)];
}

void SceneItemsTableModel::clear()
{
    beginResetModel();
    m_items.clear();
    endResetModel();
}

} // namespace TVX::CORE
