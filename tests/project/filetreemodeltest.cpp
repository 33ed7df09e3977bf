#include "testregistry.h"

#include "projectfixtures.h"

#include "project/filetreemodel.h"

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <set>

using namespace TVX::CORE;
using namespace TVX::TEST;

namespace {

// An index by the names along its path, e.g. {"scans", "B", "B1"}; the empty path is the
// invalid index.
QModelIndex indexAt(const FileTreeModel& model, const QStringList& names)
{
    QModelIndex index;
    for (const QString& name : names) {
        QModelIndex child;
        for (int row = 0; row < model.rowCount(index) && !child.isValid(); ++row) {
            if (model.index(row, 0, index).data().toString() == name)
                child = model.index(row, 0, index);
        }
        if (!child.isValid())
            return {};
        index = child;
    }
    return index;
}

struct Fixture {
    ProjectItemScanGroupPtr holder = sampleHolder();
    FileTreeModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};

    Fixture() { model.setRootHolder(holder); }
    QString tree() const { return describe(holder->child(0)); }
    QModelIndex at(const QStringList& names) const { return indexAt(model, names); }
};

QImage imageOf(const QVariant& icon)
{
    return icon.value<QIcon>().pixmap(16, 16).toImage();
}

struct EditRow {
    const char* rowName;
    QStringList path;
    QString name; // null: remove instead
    int count;
    bool editable;
    bool accepted;
    QList<quint32> removedScans;
    QString tree;
};

} // namespace

Q_DECLARE_METATYPE(EditRow)

class FileTreeModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Folders come before scans in every folder; the model's own consistency is the tester's job.
    void rowsFollowTheTree()
    {
        Fixture f;
        const QModelIndex root = f.model.index(0, 0);
        QCOMPARE(root.data().toString(), QStringLiteral("scans"));
        QCOMPARE(f.model.index(0, 0, root).data(FileTreeModel::ItemTypeRole).toUInt(), 2u);
        QCOMPARE(f.model.index(3, 0, root).data(FileTreeModel::ScanIdRole).toUInt(), 13u);
        const QModelIndex b = f.at({QStringLiteral("scans"), QStringLiteral("B"), QStringLiteral("B1"), QStringLiteral("b")});
        QCOMPARE(f.model.indexOfScan(11), b);
        QVERIFY(!f.model.indexOfScan(99).isValid());
        f.model.setRootHolder(nullptr);
        QCOMPARE(f.model.rowCount(), 0);
    }

    // The view columns show whether a view of the scan is open, and follow when that changes.
    void decorations()
    {
        Fixture f;
        std::set<std::pair<quint32, int>> open{{12, 2}};
        f.model.setViewStateProvider([&open](quint32 id, int kind) { return open.count({id, kind}) > 0; });
        const QModelIndex s = f.model.indexOfScan(12);
        const auto expect = [](const char* name) { return QIcon(QString::fromLatin1(name)).pixmap(16, 16).toImage(); };
        QCOMPARE(imageOf(s.siblingAtColumn(1).data(Qt::DecorationRole)), expect(":/icons/shared/planarview_inactive.png"));
        QCOMPARE(imageOf(s.siblingAtColumn(2).data(Qt::DecorationRole)), expect(":/icons/shared/sphericalview_active.png"));
        // Folders have no view icons and no check box.
        const QModelIndex a = f.at({QStringLiteral("scans"), QStringLiteral("A")});
        QVERIFY(!a.siblingAtColumn(1).data(Qt::DecorationRole).isValid());
        QVERIFY(!a.data(Qt::CheckStateRole).isValid());

        QSignalSpy changed(&f.model, &QAbstractItemModel::dataChanged);
        open = {{12, 1}};
        f.model.scanViewsChanged(12);
        QCOMPARE(imageOf(s.siblingAtColumn(1).data(Qt::DecorationRole)), expect(":/icons/shared/planarview_active.png"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).value<QModelIndex>(), s.siblingAtColumn(1));
    }

    // Check boxes work in a read-only project too; only a cleared box disables its scan.
    void checkBoxes_data()
    {
        QTest::addColumn<quint32>("scanId");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("editable");
        QTest::addColumn<QList<quint32>>("disabled");
        QTest::addColumn<int>("stateSignals");
        QTest::newRow("clearing a checked scan") << 12u << int(Qt::Unchecked) << true << QList<quint32>{12} << 1;
        QTest::newRow("checking a checked scan") << 12u << int(Qt::Checked) << true << QList<quint32>{} << 0;
        QTest::newRow("clearing in a sub-folder, read-only") << 11u << int(Qt::Unchecked) << false << QList<quint32>{11} << 1;
    }

    void checkBoxes()
    {
        QFETCH(quint32, scanId);
        QFETCH(int, state);
        QFETCH(bool, editable);
        QFETCH(QList<quint32>, disabled);
        QFETCH(int, stateSignals);
        Fixture f;
        f.model.setEditable(editable);
        QSignalSpy disabledSpy(&f.model, &FileTreeModel::checkBoxScanDisabled);
        QSignalSpy stateChanged(&f.model, &FileTreeModel::checkBoxStateChanged);
        QSignalSpy relevant(&f.model, &FileTreeModel::relevantDataChanged);
        QSignalSpy changed(&f.model, &QAbstractItemModel::dataChanged);
        const QModelIndex scan = f.model.indexOfScan(scanId);
        QVERIFY(f.model.setData(scan, state, Qt::CheckStateRole));
        QCOMPARE(scan.data(Qt::CheckStateRole).toInt(), state);
        QCOMPARE(f.model.item(scan)->isEnabled(), state == Qt::Checked);
        QList<quint32> heard;
        for (const QList<QVariant>& arguments : std::as_const(disabledSpy))
            heard << arguments.at(0).toUInt();
        QCOMPARE(heard, disabled);
        QCOMPARE(stateChanged.count(), stateSignals);
        QCOMPARE(relevant.count(), stateSignals);
        QCOMPARE(changed.count(), stateSignals);
        if (stateSignals > 0)
            QCOMPARE(changed.at(0).at(0).value<QModelIndex>(), scan);
    }

    // A null name removes `count` rows from the node at the path on; any other renames the node.
    void edits_data()
    {
        QTest::addColumn<EditRow>("row");
        const QString unchanged = QStringLiteral("scans+(A+(a1#10+) B+(B1+(b#11+)) s#12+ t#13-)");
        const EditRow rows[] = {
            {"rename a folder", {"scans", "B", "B1"}, QStringLiteral("  Level 1 "), 0, true, true, {},
             QStringLiteral("scans+(A+(a1#10+) B+(Level 1+(b#11+)) s#12+ t#13-)")},
            {"rename the root folder", {"scans"}, "X", 0, true, false, {}, unchanged},
            {"remove a folder and a scan", {"scans", "B"}, QString(), 2, true, true, {11, 12},
             QStringLiteral("scans+(A+(a1#10+) t#13-)")},
            {"remove, read-only", {"scans", "A"}, QString(), 1, false, false, {}, unchanged},
        };
        for (const EditRow& row : rows)
            QTest::newRow(row.rowName) << row;
    }

    void edits()
    {
        QFETCH(EditRow, row);
        Fixture f;
        f.model.setEditable(row.editable);
        QSignalSpy relevant(&f.model, &FileTreeModel::relevantDataChanged);
        QSignalSpy removed(&f.model, &FileTreeModel::scansRemoved);
        const QModelIndex index = f.at(row.path);
        QVERIFY(index.isValid());
        QCOMPARE(row.name.isNull() ? f.model.removeRows(index.row(), row.count, index.parent())
                                   : f.model.setData(index, row.name, Qt::EditRole),
                 row.accepted);
        QCOMPARE(f.tree(), row.tree);
        QList<quint32> heard;
        for (const QList<QVariant>& arguments : std::as_const(removed))
            heard += arguments.at(0).value<QList<quint32>>();
        QCOMPARE(heard, row.removedScans);
        if (!row.name.isNull())
            QCOMPARE(relevant.count(), row.accepted ? 1 : 0);
    }

    void addingNodes()
    {
        Fixture f;
        QSignalSpy inserted(&f.model, &QAbstractItemModel::rowsInserted);
        // The invalid index stands for the root folder; a new folder goes after the folders.
        const QModelIndex c = f.model.addFolder(QModelIndex(), QStringLiteral("C"));
        QCOMPARE(c.data().toString(), QStringLiteral("C"));
        QCOMPARE(c.row(), 2);
        const QModelIndex n = f.model.addScan(c, ProjectItemScan::create(QStringLiteral("n"), 14));
        QCOMPARE(n, f.model.indexOfScan(14));
        QVERIFY(!f.model.addFolder(f.model.indexOfScan(12), QStringLiteral("in a scan")).isValid());
        QCOMPARE(f.tree(), QStringLiteral("scans+(A+(a1#10+) B+(B1+(b#11+)) C+(n#14+) s#12+ t#13-)"));
        QCOMPARE(inserted.count(), 2);
    }

    void dragAndDrop_data()
    {
        QTest::addColumn<QList<QStringList>>("dragged");
        QTest::addColumn<QStringList>("target");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("allowed");
        QTest::addColumn<QString>("tree");
        const QString unchanged = QStringLiteral("scans+(A+(a1#10+) B+(B1+(b#11+)) s#12+ t#13-)");
        QTest::newRow("scan into a folder") << QList<QStringList>{{"scans", "s"}} << QStringList{"scans", "A"} << -1
                                            << true << QStringLiteral("scans+(A+(a1#10+ s#12+) B+(B1+(b#11+)) t#13-)");
        QTest::newRow("folder with its own scan and another")
            << QList<QStringList>{{"scans", "B", "B1", "b"}, {"scans", "t"}, {"scans", "B"}} << QStringList{"scans", "A"}
            << -1 << true << QStringLiteral("scans+(A+(B+(B1+(b#11+)) a1#10+ t#13-) s#12+)");
        QTest::newRow("folder into its own sub-folder") << QList<QStringList>{{"scans", "B"}}
                                                        << QStringList{"scans", "B", "B1"} << -1 << false << unchanged;
        QTest::newRow("onto empty space") << QList<QStringList>{{"scans", "t"}} << QStringList{} << -1 << false
                                          << unchanged;
    }

    void dragAndDrop()
    {
        QFETCH(QList<QStringList>, dragged);
        QFETCH(QStringList, target);
        QFETCH(int, row);
        QFETCH(bool, allowed);
        QFETCH(QString, tree);
        Fixture f;
        QModelIndexList indexes;
        for (const QStringList& path : dragged) {
            indexes << f.at(path);
            QVERIFY(indexes.last().isValid());
        }
        const QModelIndex targetIndex = f.at(target);
        QSignalSpy moved(&f.model, &QAbstractItemModel::rowsMoved);
        std::unique_ptr<QMimeData> mime(f.model.mimeData(indexes));
        QVERIFY(mime);
        QVERIFY(mime->hasFormat(QStringLiteral("application/x-tarvenix-projectnode")));
        QCOMPARE(f.model.canDropMimeData(mime.get(), Qt::MoveAction, row, 0, targetIndex), allowed);
        // The model moves the nodes itself and answers false, so that a view removes nothing.
        QVERIFY(!f.model.dropMimeData(mime.get(), Qt::MoveAction, row, 0, targetIndex));
        QCOMPARE(f.tree(), tree);
        QCOMPARE(moved.count() > 0, allowed);
    }

    void dropsOnlyFromThisModel_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("drag of another model") << QStringLiteral("other model");
        QTest::newRow("read-only project") << QStringLiteral("read-only");
    }

    void dropsOnlyFromThisModel()
    {
        QFETCH(QString, source);
        Fixture f;
        Fixture other;
        const QModelIndex target = f.at({QStringLiteral("scans"), QStringLiteral("A")});
        const bool fromOther = source == QLatin1String("other model");
        Fixture& from = fromOther ? other : f;
        std::unique_ptr<QMimeData> mime(from.model.mimeData({from.model.indexOfScan(12)}));
        f.model.setEditable(fromOther);
        QVERIFY(!f.model.canDropMimeData(mime.get(), Qt::MoveAction, -1, 0, target));
        QVERIFY(!f.model.dropMimeData(mime.get(), Qt::MoveAction, -1, 0, target));
        QCOMPARE(f.tree(), QStringLiteral("scans+(A+(a1#10+) B+(B1+(b#11+)) s#12+ t#13-)"));
        QCOMPARE(other.tree(), QStringLiteral("scans+(A+(a1#10+) B+(B1+(b#11+)) s#12+ t#13-)"));
    }
};

TVX_TEST(FileTreeModelTest)

#include "filetreemodeltest.moc"
