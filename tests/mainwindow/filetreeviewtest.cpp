#include "testregistry.h"

#include "../project/projectfixtures.h"

#include "mainwindow/filetreeview.h"
#include "project/filetreemodel.h"

#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using namespace TVX::CORE;
using TVX::TEST::sampleHolder;

namespace {

struct Fixture {
    FileTreeModel model;
    FileTreeView view;
    QStringList questions;
    bool answer = true;

    explicit Fixture(bool editable = true)
    {
        model.setRootHolder(sampleHolder());
        view.setModel(&model);
        view.setEditable(editable);
        view.setConfirmer([this](const QString& question) {
            questions << question;
            return answer;
        });
        view.resize(480, 320);
        view.show();
        view.expandAll();
    }

    // An index by its path of names, e.g. "scans/A/a1".
    QModelIndex at(const QString& path) const
    {
        QModelIndex index;
        for (const QString& name : path.split(QLatin1Char('/'))) {
            const QModelIndexList found = model.match(model.index(0, 0, index), Qt::DisplayRole, name, 1, Qt::MatchExactly);
            if (found.isEmpty() || found.first().parent() != index)
                return {};
            index = found.first();
        }
        return index;
    }
    QString pathOf(QModelIndex index) const
    {
        QStringList names;
        for (; index.isValid(); index = index.parent())
            names.prepend(index.data().toString());
        return names.join(QLatin1Char('/'));
    }
    QPoint centreOf(const QString& path) const { return view.visualRect(at(path)).center(); }

    void click(const QString& path, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, centreOf(path));
    }
    // Clicks the first, control-clicks the others.
    void select(const QStringList& paths)
    {
        for (const QString& path : paths)
            click(path, path == paths.first() ? Qt::NoModifier : Qt::ControlModifier);
    }
    QAction* entry(const QString& text)
    {
        menu.reset(view.buildContextMenu(&view));
        for (QAction* action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    std::unique_ptr<QMenu> menu;
};

const QStringList viewEntries{QStringLiteral("Open Planar View"), QStringLiteral("Open Spherical View"),
                              QStringLiteral("Open Pointcloud View"), QStringLiteral("Close Views of this Scan"),
                              QStringLiteral("Close Views of all other Scans")};

struct MenuCase {
    bool editable;
    QStringList selected;
    QStringList entries;
};

enum class Gesture { Return, DoubleClick };

struct OpenCase {
    QString path;
    Gesture gesture;
    QList<quint32> requested;
};

struct DeleteCase {
    bool editable;
    QStringList selected;
    bool answer;
    bool asked;
    QStringList deleted; // empty: no request
};

using Request = void (FileTreeView::*)(quint32);

} // namespace

Q_DECLARE_METATYPE(MenuCase)
Q_DECLARE_METATYPE(OpenCase)
Q_DECLARE_METATYPE(DeleteCase)
Q_DECLARE_METATYPE(Request)

class FileTreeViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contextMenuEntries_data()
    {
        QTest::addColumn<MenuCase>("c");
        const QString addScans = QStringLiteral("Add Scans"), addFolder = QStringLiteral("Add Folder"),
                      rename = QStringLiteral("Rename Folder"), remove = QStringLiteral("Delete Items"),
                      expand = QStringLiteral("Expand Folder"), collapse = QStringLiteral("Collapse Folder");
        QTest::newRow("read-only, scans") << MenuCase{false, {"scans/s", "scans/A/a1"}, viewEntries};
        QTest::newRow("one folder")
            << MenuCase{true, {"scans/B"}, {addScans, addFolder, rename, remove, expand, collapse}};
        QTest::newRow("scans only")
            << MenuCase{true, {"scans/t", "scans/B/B1/b"}, QStringList{addScans, addFolder, remove} + viewEntries};
    }

    void contextMenuEntries()
    {
        QFETCH(MenuCase, c);
        Fixture f(c.editable);
        f.select(c.selected);
        const std::unique_ptr<QMenu> menu(f.view.buildContextMenu(&f.view));
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << action->text();
        QCOMPARE(texts, c.entries);
    }

    void openingGestures_data()
    {
        QTest::addColumn<OpenCase>("c");
        QTest::newRow("Return on a scan") << OpenCase{"scans/s", Gesture::Return, {12}};
        QTest::newRow("double click on a scan") << OpenCase{"scans/B/B1/b", Gesture::DoubleClick, {11}};
        QTest::newRow("double click on a folder") << OpenCase{"scans/B", Gesture::DoubleClick, {}};
    }

    void openingGestures()
    {
        QFETCH(OpenCase, c);
        Fixture f;
        QSignalSpy spy(&f.view, &FileTreeView::requestToOpenPreferredView);
        const QModelIndex index = f.at(c.path);
        const bool wasExpanded = f.view.isExpanded(index);
        if (c.gesture == Gesture::Return) {
            f.click(c.path);
            QTest::keyClick(&f.view, Qt::Key_Return);
        } else {
            doubleClick(f, f.centreOf(c.path));
        }
        QList<quint32> requested;
        for (const QList<QVariant>& arguments : std::as_const(spy))
            requested << arguments.at(0).value<quint32>();
        QCOMPARE(requested, c.requested);
        // Folders keep the tree's own double click.
        if (c.gesture == Gesture::DoubleClick && f.model.hasChildren(index))
            QCOMPARE(f.view.isExpanded(index), !wasExpanded);
    }

    void viewRequestsPerSelectedScan_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<Request>("request");
        QTest::newRow("planar") << viewEntries[0] << Request(&FileTreeView::requestToOpenPlanarView);
        QTest::newRow("point cloud") << viewEntries[2] << Request(&FileTreeView::requestToOpenPointcloudView);
        QTest::newRow("close") << viewEntries[3] << Request(&FileTreeView::requestToCloseAllViewsOfAScan);
    }

    void viewRequestsPerSelectedScan()
    {
        QFETCH(QString, entry);
        QFETCH(Request, request);
        Fixture f;
        f.select({"scans/s", "scans/B/B1/b", "scans/A/a1"});
        QSignalSpy spy(&f.view, request);
        QAction* action = f.entry(entry);
        QVERIFY(action);
        action->trigger();
        // One request per scan, in the order the tree shows them: a1#10, b#11, s#12.
        QCOMPARE(spy.count(), 3);
        QCOMPARE(spy.at(0).at(0).value<quint32>(), 10u);
        QCOMPARE(spy.at(1).at(0).value<quint32>(), 11u);
        QCOMPARE(spy.at(2).at(0).value<quint32>(), 12u);
    }

    void addFolderThenRenameIt()
    {
        Fixture f;
        f.click(QStringLiteral("scans/A/a1"));
        f.entry(QStringLiteral("Add Folder"))->trigger();
        const QModelIndex added = f.at(QStringLiteral("scans/A/New Folder"));
        QVERIFY(added.isValid());
        QCOMPARE(added.row(), 0); // folders come before the scans
        auto* editor = qobject_cast<QLineEdit*>(f.view.indexWidget(added));
        QVERIFY(editor);
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("Site 2"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(added.data().toString(), QStringLiteral("Site 2")); // the delegate commits queued

        // F2 renames folders, but neither the root folder nor scans.
        f.click(QStringLiteral("scans"));
        QTest::keyClick(&f.view, Qt::Key_F2);
        QVERIFY(!f.view.indexWidget(f.at(QStringLiteral("scans"))));
        f.click(QStringLiteral("scans/A/Site 2"));
        QTest::keyClick(&f.view, Qt::Key_F2);
        QVERIFY(f.view.indexWidget(f.at(QStringLiteral("scans/A/Site 2"))));
    }

    void deleteKey_data()
    {
        QTest::addColumn<DeleteCase>("c");
        QTest::newRow("confirmed") << DeleteCase{true, {"scans/s", "scans/A"}, true, true, {"scans/A", "scans/s"}};
        QTest::newRow("declined") << DeleteCase{true, {"scans/s", "scans/A"}, false, true, {}};
        QTest::newRow("read-only") << DeleteCase{false, {"scans/s"}, true, false, {}};
        QTest::newRow("a folder with a scan inside")
            << DeleteCase{true, {"scans/A/a1", "scans/t", "scans/A"}, true, true, {"scans/A", "scans/t"}};
    }

    void deleteKey()
    {
        QFETCH(DeleteCase, c);
        Fixture f(c.editable);
        f.answer = c.answer;
        f.select(c.selected);
        QList<QStringList> requests;
        connect(&f.view, &FileTreeView::requestToDeleteItems, &f.view, [&f, &requests](QModelIndexList& items) {
            QStringList paths;
            for (const QModelIndex& index : items)
                paths << f.pathOf(index);
            requests << paths;
        });
        QTest::keyClick(&f.view, Qt::Key_Delete);
        const QStringList expectedQuestions{
            QStringLiteral("Delete the selected items from the project? The scan files stay on disk.")};
        QCOMPARE(f.questions, c.asked ? expectedQuestions : QStringList());
        QCOMPARE(requests, c.deleted.isEmpty() ? QList<QStringList>() : QList<QStringList>{c.deleted});
    }

private:
    // What a mouse sends: a click, then the second press as a double click, then its release.
    static void doubleClick(Fixture& f, const QPoint& at)
    {
        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(f.view.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(f.view.viewport(), Qt::LeftButton, {}, at);
    }
};

TVX_TEST(FileTreeViewTest)

#include "filetreeviewtest.moc"
