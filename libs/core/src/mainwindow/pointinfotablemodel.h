#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <memory>

namespace TVX::CORE {

// One picked point as the main window hands it over and reads it back. Coordinates are in the
// frame of the point's own scan, in metres; distance is measured from that scan's origin.
struct PointInfoEntry {
    quint32 scanId{0};
    qint32 row{0};
    qint32 column{0};
    double distance{0.0};
    double x{0.0};
    double y{0.0};
    double z{0.0};
    quint16 reflectance{0};
    QString filePath;
};

// The rows of the "Point Information" dock, in the order the points were picked. The model
// reports ten columns; column 10 (whether z is still the measured value) exists only through
// measuredZIndex(), so views never show it.
//
// clearAllItems() keeps the removed rows in an undo buffer until doUndo() brings them back or the
// next point is appended to the emptied table.
class PointInfoTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        GridColumnCol = 0,
        GridRowCol = 1,
        XCol = 2,
        YCol = 3,
        ZCol = 4,
        ReflectanceCol = 5,
        DistanceCol = 6,
        FileNameCol = 7,
        ScanIdCol = 8,
        DeleteCol = 9,
        MeasuredZCol = 10
    };
    static constexpr int visibleColumnCount = 10;

    explicit PointInfoTableModel(QObject* parent = nullptr);
    ~PointInfoTableModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    // Edit role only: x, y, z (columns 2 to 4) write both copies of the coordinate, column 6 the
    // distance, column 10 measuredZ. Everything else is refused.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    // False unless 1 <= count and all rows from `row` to `row + count - 1` exist.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

    // Appends a picked point at the end, z counting as measured. Appending to an empty table
    // forgets what the last clear kept for undo.
    void appendPoint(const PointInfoEntry& entry);
    int pointCount() const;
    // The row as it is now, edits included; a default entry for a row that does not exist.
    PointInfoEntry pointAt(int row) const;
    // The index of the hidden measuredZ column of a row; invalid for a row that does not exist.
    QModelIndex measuredZIndex(int row) const;
    bool canUndo() const;

public Q_SLOTS:
    // Moves all rows into the undo buffer (replacing its former content) and announces whether
    // there is something to undo now.
    void clearAllItems();
    // Appends the rows of the undo buffer after any rows present, empties the buffer and
    // announces that undo is no longer possible. Does nothing when the buffer is empty.
    void doUndo();

Q_SIGNALS:
    void signal_pointInfotable_undomode_changed(bool enabled);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
