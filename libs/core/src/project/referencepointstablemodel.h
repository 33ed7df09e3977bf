#pragma once

#include <QAbstractTableModel>

#include <memory>

namespace TVX::CORE {

class TVXFile;

// The reference points and spheres of one scan (its reference information), one per row: name,
// kind, position x, y, z in the scan frame and, for spheres, the radius (metres, 3 decimals).
// Read-only; it keeps the scan's reader alive.
class ReferencePointsTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, KindColumn, XColumn, YColumn, ZColumn, RadiusColumn, ColumnCount };
    // The number behind a coordinate or radius cell, unrounded.
    static constexpr int ValueRole = Qt::UserRole + 1;

    explicit ReferencePointsTableModel(std::shared_ptr<TVXFile> file, QObject* parent = nullptr);
    ~ReferencePointsTableModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<TVXFile> m_file;
};

} // namespace TVX::CORE
