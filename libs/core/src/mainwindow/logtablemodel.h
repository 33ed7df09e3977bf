#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QTime>

namespace TVX::CORE {

// The entries of the "Report" dock: type, time and message, in the order they were appended.
// Read-only for views.
class LogTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EntryType { Information = 0, Warning = 1, Error = 2 };

    explicit LogTableModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    // Column 0 shows "Type" for every row, not the entry's type (kept as the table has it);
    // column 1 the time, column 2 the message, which is also its tooltip.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // `type` is an EntryType; other numbers are kept as they come.
    void appendEntry(int type, const QTime& time, const QString& message);
    // -1 for a row that does not exist.
    int entryType(int row) const;

private:
    struct Entry {
        int type{Information};
        QTime time;
        QString message;
    };
    QList<Entry> m_entries;
};

} // namespace TVX::CORE
