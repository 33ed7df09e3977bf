#pragma once

#include "scene/tvxsceneitem.h"

#include <QAbstractTableModel>

#include <vector>

namespace TVX::CORE {

// The planar scene records of a scan, one per row: three columns, the row number and two fixed texts.
class SceneItemsTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit SceneItemsTableModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    // Appends a record as the last row.
    void addItem(const TVXSceneItemPtr& item);
    // The record of a row; empty when the row is out of range.
    TVXSceneItemPtr item(int row) const;
    const std::vector<TVXSceneItemPtr>& items() const { return m_items; }
    void clear();

private:
    std::vector<TVXSceneItemPtr> m_items;
};

} // namespace TVX::CORE
