#include "mainwindow/pointinfotablemodel.h"

#include <QBrush>
#include <QFileInfo>
#include <QPixmap>
#include <QSize>

#include <vector>

namespace TVX::CORE {

namespace {

struct PointRow {
    PointInfoEntry point;
    // Every edit writes these together with the shown coordinates; nothing reads them apart.
    double secondX{0.0};
    double secondY{0.0};
    double secondZ{0.0};
    bool measuredZ{true};
};

QString fixed3(double value)
{
    return QStringLiteral("%1").arg(value, 0, 'f', 3);
}

} // namespace

struct PointInfoTableModel::Private {
    std::vector<PointRow> rows;
    std::vector<PointRow> undoBuffer;

    const PointRow* rowAt(int row) const
    {
        return row >= 0 && row < int(rows.size()) ? &rows[size_t(row)] : nullptr;
    }
};

PointInfoTableModel::PointInfoTableModel(QObject* parent) : QAbstractTableModel(parent), d(std::make_unique<Private>())
{
}

PointInfoTableModel::~PointInfoTableModel() = default;

int PointInfoTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(d->rows.size());
}

int PointInfoTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : visibleColumnCount;
}

QVariant PointInfoTableModel::data(const QModelIndex& index, int role) const
{
    const PointRow* row = index.isValid() ? d->rowAt(index.row()) : nullptr;
    if (!row)
        return {};
    const PointInfoEntry& p = row->point;
    const int column = index.column();

    switch (role) {
    case Qt::DisplayRole:
        switch (column) {
        case GridColumnCol: return p.column;
        case GridRowCol: return p.row;
        case XCol: return fixed3(p.x);
        case YCol: return fixed3(p.y);
        case ZCol: return fixed3(p.z);
        case ReflectanceCol: return QStringLiteral("%1").arg(p.reflectance, 5);
        case DistanceCol: return fixed3(p.distance);
        case FileNameCol: return QFileInfo(p.filePath).fileName();
        case ScanIdCol: return p.scanId;
        case DeleteCol: return QPixmap(QStringLiteral(":/tvxcore/resources/delete.png"));
        case MeasuredZCol: return row->measuredZ;
        default: return {};
        }
    case Qt::EditRole:
        switch (column) {
        case GridColumnCol: return p.column;
        case GridRowCol: return p.row;
        case XCol: return p.x;
        case YCol: return p.y;
        case ZCol: return p.z;
        case ReflectanceCol: return p.reflectance;
        case DistanceCol: return p.distance;
        case FileNameCol: return p.filePath;
        case MeasuredZCol: return row->measuredZ;
        default: return {};
        }
    case Qt::DecorationRole:
        if (column == DeleteCol)
            return QPixmap(QStringLiteral(":/tvxcore/resources/delete.png"));
        return {};
    case Qt::SizeHintRole:
        if (column == DeleteCol)
            return QSize(16, 16);
        return {};
    case Qt::ForegroundRole:
        // A replaced z is no longer what the scanner measured; the whole row shows it.
        if (!row->measuredZ)
            return QBrush(Qt::magenta);
        return {};
    default:
        return {};
    }
}

QVariant PointInfoTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    switch (section) {
    case GridColumnCol: return tr("Column");
    case GridRowCol: return tr("Row");
    case XCol: return QStringLiteral("x");
    case YCol: return QStringLiteral("y");
    case ZCol: return QStringLiteral("z");
    case ReflectanceCol: return tr("Refl.");
    case DistanceCol: return tr("Distance");
    case FileNameCol: return tr("Filename");
    default: return {};
    }
}

bool PointInfoTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !d->rowAt(index.row()))
        return false;
    PointRow& row = d->rows[size_t(index.row())];
    switch (index.column()) {
    case XCol:
        row.point.x = row.secondX = value.toDouble();
        break;
    case YCol:
        row.point.y = row.secondY = value.toDouble();
        break;
    case ZCol:
        row.point.z = row.secondZ = value.toDouble();
        break;
    case DistanceCol:
        row.point.distance = value.toDouble();
        break;
    case MeasuredZCol:
        row.measuredZ = value.toBool();
        break;
    default:
        return false;
    }
    emit dataChanged(index, index);
    return true;
}

bool PointInfoTableModel::removeRows(int row, int count, const QModelIndex& parent)
{
    const int size = rowCount(parent);
    if (count < 1 || row < 0 || row >= size || row + count - 1 >= size)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    d->rows.erase(d->rows.begin() + row, d->rows.begin() + row + count);
    endRemoveRows();
    return true;
}

void PointInfoTableModel::appendPoint(const PointInfoEntry& entry)
{
    if (d->rows.empty() && !d->undoBuffer.empty()) {
        d->undoBuffer.clear();
        emit signal_pointInfotable_undomode_changed(false);
    }
    PointRow row;
    row.point = entry;
    row.secondX = entry.x;
    row.secondY = entry.y;
    row.secondZ = entry.z;
    const int at = int(d->rows.size());
    beginInsertRows(QModelIndex(), at, at);
    d->rows.push_back(std::move(row));
    endInsertRows();
}

int PointInfoTableModel::pointCount() const
{
    return int(d->rows.size());
}

PointInfoEntry PointInfoTableModel::pointAt(int row) const
{
    const PointRow* found = d->rowAt(row);
    return found ? found->point : PointInfoEntry();
}

QModelIndex PointInfoTableModel::measuredZIndex(int row) const
{
    return d->rowAt(row) ? createIndex(row, MeasuredZCol) : QModelIndex();
}

bool PointInfoTableModel::canUndo() const
{
    return !d->undoBuffer.empty();
}

void PointInfoTableModel::clearAllItems()
{
    d->undoBuffer = d->rows;
    emit signal_pointInfotable_undomode_changed(!d->undoBuffer.empty());
    if (d->rows.empty())
        return;
    beginRemoveRows(QModelIndex(), 0, int(d->rows.size()) - 1);
    d->rows.clear();
    endRemoveRows();
}

void PointInfoTableModel::doUndo()
{
    if (d->undoBuffer.empty())
        return;
    const int first = int(d->rows.size());
    beginInsertRows(QModelIndex(), first, first + int(d->undoBuffer.size()) - 1);
    d->rows.insert(d->rows.end(), d->undoBuffer.begin(), d->undoBuffer.end());
    d->undoBuffer.clear();
    endInsertRows();
    emit signal_pointInfotable_undomode_changed(false);
}

} // namespace TVX::CORE
