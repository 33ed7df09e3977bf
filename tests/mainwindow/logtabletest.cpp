#include "testregistry.h"

#include "mainwindow/logtablemodel.h"
#include "mainwindow/logtableview.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <vector>

using namespace TVX::CORE;

namespace {

struct ColumnsCase {
    const char* name;
    int columns;
    QList<bool> hidden;
};

struct GestureCase {
    const char* name;
    bool doubleClick; // else the key
    Qt::Key key;
};

template <typename Case>
void addRows(const std::vector<Case>& cases)
{
    QTest::addColumn<Case>("c");
    for (const Case& c : cases)
        QTest::newRow(c.name) << c;
}

} // namespace

Q_DECLARE_METATYPE(ColumnsCase)
Q_DECLARE_METATYPE(GestureCase)

class LogTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void viewShowsTheFirstThreeColumns_data()
    {
        addRows<ColumnsCase>({
            {"five columns", 5, {false, false, false, true, true}},
            {"three columns", 3, {false, false, false}},
        });
    }

    void viewShowsTheFirstThreeColumns()
    {
        QFETCH(ColumnsCase, c);
        LogTableView view;
        // A wider model first, so that a narrower one must show its columns again.
        QStandardItemModel wide(2, 6);
        view.setModel(&wide);
        QStandardItemModel model(2, c.columns);
        view.setModel(&model);
        QList<bool> hidden;
        for (int column = 0; column < c.columns; ++column)
            hidden << view.isColumnHidden(column);
        QCOMPARE(hidden, c.hidden);
    }

    void noGestureStartsAnEditor_data()
    {
        addRows<GestureCase>({
            {"double click", true, Qt::Key_unknown},
            {"F2", false, Qt::Key_F2},
        });
    }

    void noGestureStartsAnEditor()
    {
        QFETCH(GestureCase, c);
        LogTableModel model;
        model.appendEntry(LogTableModel::Warning, QTime(10, 15, 30), QStringLiteral("disk almost full"));
        LogTableView view;
        view.setModel(&model);
        view.resize(500, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QModelIndex message = model.index(0, 2);
        view.setCurrentIndex(message);
        if (c.doubleClick) {
            const QPoint at = view.visualRect(message).center();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
        } else {
            QTest::keyClick(&view, c.key);
        }
        // Editors are children of the viewport, whatever the delegate makes.
        QVERIFY(view.viewport()->findChildren<QWidget*>().isEmpty());
        QCOMPARE(message.data().toString(), QStringLiteral("disk almost full"));
    }

    void everyRowShowsType()
    {
        LogTableModel model;
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        const QList<int> types{LogTableModel::Error, LogTableModel::Information, LogTableModel::Warning};
        for (int i = 0; i < types.size(); ++i)
            model.appendEntry(types[i], QTime(8, 0, i), QStringLiteral("entry %1").arg(i));

        QCOMPARE(inserted.count(), 3);
        QCOMPARE(inserted.at(2).at(1).toInt(), 2);
        QCOMPARE(inserted.at(2).at(2).toInt(), 2);
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(model.index(row, 0).data().toString(), QStringLiteral("Type"));
            QCOMPARE(model.index(row, 1).data().toTime(), QTime(8, 0, row));
            QCOMPARE(model.index(row, 2).data().toString(), QStringLiteral("entry %1").arg(row));
            QCOMPARE(model.entryType(row), types[row]);
        }
    }
};

TVX_TEST(LogTableTest)

#include "logtabletest.moc"
