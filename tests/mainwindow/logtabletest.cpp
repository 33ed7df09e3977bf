#include "testregistry.h"

#include "mainwindow/logtablemodel.h"
#include "mainwindow/logtableview.h"

#include <QSignalSpy>
#include <QTest>

using namespace TVX::CORE;

class LogTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The type number is not shown: every row reads "Type". No gesture starts an editor.
    void entriesAreShownReadOnly()
    {
        LogTableModel model;
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        const QList<int> types{LogTableModel::Error, LogTableModel::Warning};
        for (int i = 0; i < types.size(); ++i)
            model.appendEntry(types[i], QTime(8, 0, i), QStringLiteral("entry %1").arg(i));
        QCOMPARE(inserted.count(), 2);
        QCOMPARE(inserted.at(1).at(1).toInt(), 1);
        for (int row = 0; row < 2; ++row) {
            QCOMPARE(model.index(row, 0).data().toString(), QStringLiteral("Type"));
            QCOMPARE(model.index(row, 1).data().toTime(), QTime(8, 0, row));
            QCOMPARE(model.entryType(row), types[row]);
        }

        LogTableView view;
        view.setModel(&model);
        view.resize(500, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QModelIndex message = model.index(1, 2);
        view.setCurrentIndex(message);
        const QPoint at = view.visualRect(message).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
        QTest::keyClick(&view, Qt::Key_F2);
        // Editors are children of the viewport, whatever the delegate makes.
        QVERIFY(view.viewport()->findChildren<QWidget*>().isEmpty());
        QVERIFY(!model.setData(message, QStringLiteral("changed")));
        QCOMPARE(message.data().toString(), QStringLiteral("entry 1"));
    }
};

TVX_TEST(LogTableTest)

#include "logtabletest.moc"
