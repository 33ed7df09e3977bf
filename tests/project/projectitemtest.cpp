#include "testregistry.h"

#include "projectfixtures.h"

#include "project/projectitemscangroup.h"

#include <QTest>

using namespace TVX::CORE;
using namespace TVX::TEST;

class ProjectItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foldersComeBeforeScans()
    {
        const int folders = 2;
        const int scans = 3;
        // Scans are added first, folders afterwards: the children still list folders first.
        const auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
        for (int i = 0; i < scans; ++i)
            root->appendScan(ProjectItemScan::create(QStringLiteral("s%1").arg(i), quint64(10 + i)));
        for (int i = 0; i < folders; ++i)
            root->appendFolder(ProjectItemScanGroup::create(QStringLiteral("f%1").arg(i)));

        QCOMPARE(root->childCount(), folders + scans);
        for (int i = 0; i < folders + scans; ++i) {
            const ProjectItemPtr child = root->child(i);
            QVERIFY(child);
            const bool folder = i < folders;
            QCOMPARE(child->itemType(), folder ? 2u : 3u);
            QCOMPARE(child->name(), folder ? QStringLiteral("f%1").arg(i) : QStringLiteral("s%1").arg(i - folders));
            QCOMPARE(child->row(), i);
            QCOMPARE(child->parent(), root);
            QVERIFY(child->isEnabled());
        }
        QVERIFY(!root->child(folders + scans));
        QVERIFY(!root->child(-1));
        QVERIFY(!root->parent());
        QCOMPARE(root->row(), -1);
    }

    void takeChildDetachesIt()
    {
        const auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
        const auto folder = ProjectItemScanGroup::create(QStringLiteral("f"));
        root->appendFolder(folder);
        root->appendScan(ProjectItemScan::create(QStringLiteral("a"), 0));
        root->appendScan(ProjectItemScan::create(QStringLiteral("b"), 1));
        folder->appendScan(ProjectItemScan::create(QStringLiteral("c"), 2));

        const ProjectItemPtr a = root->takeChild(1);
        QCOMPARE(a->name(), QStringLiteral("a"));
        QVERIFY(!a->parent());
        QCOMPARE(describe(root), QStringLiteral("scans+(f+(c#2+) b#1+)"));
        QVERIFY(!root->takeChild(5));
        QVERIFY(folder->child(0)->hasAncestor(root.get()));
        QVERIFY(!root->hasAncestor(folder.get()));
        root->insertScan(0, std::static_pointer_cast<ProjectItemScan>(a));
        root->insertFolder(-3, ProjectItemScanGroup::create(QStringLiteral("g"))); // clamped to the front
        QCOMPARE(describe(root), QStringLiteral("scans+(g+() f+(c#2+) a#0+ b#1+)"));
    }

    void scansAreVisitedInTreeOrder()
    {
        // scans( F1( F3( x#5 ) a#3 b#1 ) F2( c#0 ) d#4 e#2 ): each folder's sub-tree before its
        // scans and before its next sibling.
        const auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
        const auto f1 = ProjectItemScanGroup::create(QStringLiteral("F1"));
        const auto f2 = ProjectItemScanGroup::create(QStringLiteral("F2"));
        const auto f3 = ProjectItemScanGroup::create(QStringLiteral("F3"));
        root->appendScan(ProjectItemScan::create(QStringLiteral("d"), 4));
        root->appendFolder(f1);
        root->appendScan(ProjectItemScan::create(QStringLiteral("e"), 2));
        root->appendFolder(f2);
        f1->appendScan(ProjectItemScan::create(QStringLiteral("a"), 3));
        f1->appendScan(ProjectItemScan::create(QStringLiteral("b"), 1));
        f1->appendFolder(f3);
        f3->appendScan(ProjectItemScan::create(QStringLiteral("x"), 5));
        f2->appendScan(ProjectItemScan::create(QStringLiteral("c"), 0));

        QList<quint64> ids;
        root->forEachScan([&ids](const ProjectItemScanPtr& scan) { ids << scan->scanId(); });
        QCOMPARE(ids, QList<quint64>({5, 3, 1, 0, 4, 2}));
    }

    void deepTreeIsDestroyedWithoutRecursion()
    {
        // Nested a hundred thousand folders deep: destroying it level by level must not exhaust
        // the stack (a recursive teardown would, at about 8 MB of stack).
        auto root = ProjectItemScanGroup::create(QStringLiteral("scans"));
        auto folder = root;
        for (int i = 0; i < 100000; ++i) {
            auto sub = ProjectItemScanGroup::create(QStringLiteral("f"));
            folder->appendFolder(sub);
            folder = sub;
        }
        folder.reset();
        root.reset();
        QVERIFY(!root);
    }
};

TVX_TEST(ProjectItemTest)

#include "projectitemtest.moc"
