#include "testregistry.h"

#include "project/projectitemscangroup.h"

#include <QTest>

using namespace TVX::CORE;

class ProjectItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
