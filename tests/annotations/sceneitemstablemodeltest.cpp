#include "testregistry.h"

#include "annotations/sceneitemstablemodel.h"
#include "scene/tvxsrectangle.h"

#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace TVX::CORE;

namespace {

// A model of `count` rectangle records whose common block numbers are 100, 101, ...
void fill(SceneItemsTableModel& model, int count)
{
    for (int i = 0; i < count; ++i)
        model.addItem(std::make_shared<TVXSRectangle>(QRectF(i, i, 1, 1), quint32(100 + i)));
}

QList<quint32> numbers(const SceneItemsTableModel& model)
{
    QList<quint32> result;
    for (const TVXSceneItemPtr& item : model.items())
        result << item->data().number;
    return result;
}

} // namespace

class SceneItemsTableModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The records' own values never show; the texts are fixed, and only for display.
    void display()
    {
        SceneItemsTableModel model;
        fill(model, 1);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        fill(model, 1);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), 1);
        QCOMPARE(model.columnCount(), 3);
        QCOMPARE(model.index(1, 0).data(), QVariant(QStringLiteral("1")));
        QCOMPARE(model.index(0, 1).data(), QVariant(QStringLiteral("object type")));
        QCOMPARE(model.index(1, 2).data(), QVariant(QStringLiteral("object name")));
        QVERIFY(!model.index(1, 0).data(Qt::EditRole).isValid());
        QVERIFY(!model.data(model.index(2, 0)).isValid());
        QVERIFY(!model.item(2) && !model.item(-1));
    }

    void removeRows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<quint32>>("remaining"); // of the five numbered 100 to 104
        QTest::addColumn<int>("first");                 // announced range; -1: no announcement
        QTest::addColumn<int>("last");

        QTest::newRow("one in the middle") << 2 << 1 << QList<quint32>{100, 101, 103, 104} << 2 << 2;
        // Out-of-range requests are cut to the rows there are, and never fail.
        QTest::newRow("running past the end") << 3 << 10 << QList<quint32>{100, 101, 102} << 3 << 4;
        QTest::newRow("starting before the first row") << -2 << 3 << QList<quint32>{101, 102, 103, 104} << 0 << 0;
        QTest::newRow("negative count") << 1 << -3 << QList<quint32>{100, 101, 102, 103, 104} << -1 << -1;
        QTest::newRow("huge count") << 1 << std::numeric_limits<int>::max() << QList<quint32>{100} << 1 << 4;
    }

    void removeRows()
    {
        QFETCH(int, row);
        QFETCH(int, count);
        QFETCH(QList<quint32>, remaining);
        QFETCH(int, first);
        QFETCH(int, last);

        SceneItemsTableModel model;
        fill(model, 5);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QVERIFY(model.removeRows(row, count));
        QCOMPARE(numbers(model), remaining);
        QCOMPARE(removed.count(), first < 0 ? 0 : 1);
        if (first >= 0) {
            QCOMPARE(removed.at(0).at(1).toInt(), first);
            QCOMPARE(removed.at(0).at(2).toInt(), last);
        }
        // The row numbers follow the rows.
        if (!remaining.isEmpty())
            QCOMPARE(model.index(model.rowCount() - 1, 0).data().toString(), QString::number(model.rowCount() - 1));
    }
};

TVX_TEST(SceneItemsTableModelTest)

#include "sceneitemstablemodeltest.moc"
