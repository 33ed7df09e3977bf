#include "testregistry.h"

#include "mainwindow/mysortfilterproxymodel.h"
#include "mainwindow/pointinfotablemodel.h"
#include "mainwindow/pointinfotableview.h"
#include "mainwindow/pointinfotableviewwidget.h"

#include <QAction>
#include <QApplication>
#include <QBrush>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTimer>

#include <cmath>
#include <optional>
#include <vector>

using namespace TVX::CORE;
using Col = PointInfoTableModel::Column;

namespace {

const QString zKey = QStringLiteral("modeler/pointinfotableview/setZValue");

PointInfoEntry point(double x, double y, double z, const QString& name = QStringLiteral("a.tvx"))
{
    PointInfoEntry entry;
    entry.x = x;
    entry.y = y;
    entry.z = z;
    entry.distance = std::sqrt(x * x + y * y + z * z);
    entry.filePath = QStringLiteral("/data/p/scans/") + name;
    return entry;
}

struct Fixture {
    PointInfoTableViewWidget widget;
    PointInfoTableModel& model = *widget.model();
    PointInfoTableView& view = *widget.view();

    explicit Fixture(std::initializer_list<PointInfoEntry> points = {})
    {
        for (const auto& p : points)
            model.appendPoint(p);
        widget.resize(900, 300);
        widget.show();
    }
    // File names top to bottom as the view shows them.
    QStringList shown() const
    {
        QStringList files;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            files << view.model()->index(row, Col::FileNameCol).data().toString();
        return files;
    }
    QStringList stored() const
    {
        QStringList files;
        for (int row = 0; row < model.pointCount(); ++row)
            files << model.pointAt(row).filePath.section(QLatin1Char('/'), -1);
        return files;
    }
    QString cell(int row, int column) const { return model.index(row, column).data().toString(); }
    bool isMagenta(int row) const
    {
        for (int column = 0; column < PointInfoTableModel::visibleColumnCount; ++column) {
            if (model.index(row, column).data(Qt::ForegroundRole).value<QBrush>() != QBrush(Qt::magenta))
                return false;
        }
        return true;
    }
};

const std::initializer_list<PointInfoEntry> abc = {point(1, 2, 3, "a.tvx"), point(1, 2, 3, "b.tvx"),
                                                   point(1, 2, 3, "c.tvx")};

struct DisplayCase {
    const char* name;
    PointInfoEntry entry;
    int column;
    QString shown;
};

struct ZCase {
    const char* name;
    QString entry;
    std::optional<double> answer; // nothing: the dialog was cancelled
    QString z;                    // of the point (3, 4, 10)
    QString distance;
    bool replaced;
    double stored; // 2.25 before
};

struct MenuCase {
    const char* name;
    int section;
    QStringList entries;
};

struct ClickCase {
    const char* name;
    int shownRow;
    int column;
    QStringList remaining;
};

struct RemoveCase {
    const char* name;
    int row;
    int count;
    QStringList remaining; // the rows are a, b and c; empty name: refused
};

// Steps: c = clearAllItems(), u = doUndo(), n = append "n.tvx"; the table starts with a and b.
struct UndoCase {
    const char* name;
    const char* steps;
    QList<bool> announced;
    QStringList rows;
};

template <typename Case>
void addRows(const std::vector<Case>& cases)
{
    QTest::addColumn<Case>("c");
    for (const Case& c : cases)
        QTest::newRow(c.name) << c;
}

PointInfoEntry withReflectance(quint16 reflectance)
{
    PointInfoEntry entry = point(0, 0, 0);
    entry.reflectance = reflectance;
    return entry;
}

} // namespace

Q_DECLARE_METATYPE(DisplayCase)
Q_DECLARE_METATYPE(ZCase)
Q_DECLARE_METATYPE(MenuCase)
Q_DECLARE_METATYPE(ClickCase)
Q_DECLARE_METATYPE(RemoveCase)
Q_DECLARE_METATYPE(UndoCase)

class PointInfoTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().remove(zKey); }
    void cleanup() { QSettings().remove(zKey); }

    void cellsAreFormatted_data()
    {
        addRows<DisplayCase>({
            {"reflectance 7 padded to five", withReflectance(7), Col::ReflectanceCol, "    7"},
            {"x rounded to mm", point(1.23456, 0, 0), Col::XCol, "1.235"},
            {"negative y with zeros", point(0, -2.5, 0), Col::YCol, "-2.500"},
            {"distance", point(1, 2, 3), Col::DistanceCol, "3.742"}, // sqrt(14) = 3.7416…
            {"file name only", point(0, 0, 0, "Station 7.tvx"), Col::FileNameCol, "Station 7.tvx"},
        });
    }

    void cellsAreFormatted()
    {
        QFETCH(DisplayCase, c);
        PointInfoTableModel model;
        model.appendPoint(point(9, 9, 9));
        model.appendPoint(c.entry);
        QCOMPARE(model.index(1, c.column).data().toString(), c.shown);
        QCOMPARE(model.headerData(1, Qt::Vertical).toInt(), 2);
    }

    void viewKeepsItsColumnsAcrossResets()
    {
        Fixture f(abc);
        const auto check = [&f] {
            QVERIFY(f.view.isColumnHidden(Col::ScanIdCol));
            QVERIFY(!f.view.isColumnHidden(Col::DeleteCol));
            QCOMPARE(f.view.columnWidth(Col::DeleteCol), 20);
            QCOMPARE(f.view.horizontalHeader()->sectionResizeMode(Col::FileNameCol), QHeaderView::Stretch);
        };
        check();
        // Through a model without columns and back, so that the header makes its sections anew.
        QStandardItemModel empty;
        f.widget.proxyModel()->setSourceModel(&empty);
        f.widget.proxyModel()->setSourceModel(&f.model);
        check();
    }

    void zIsReplacedInEveryRow_data()
    {
        // The point (3, 4, 10) with z replaced: distance = sqrt(9 + 16 + z²).
        addRows<ZCase>({
            {"reset to zero", "Reset z-Coordinate to 0.0", std::nullopt, "0.000", "5.000", true, 2.25},
            {"set value", "Set Value of z-Coordinate", -12.0, "-12.000", "13.000", true, -12.0},
            {"set value cancelled", "Set Value of z-Coordinate", std::nullopt, "10.000", "11.180", false, 2.25},
        });
    }

    void zIsReplacedInEveryRow()
    {
        QFETCH(ZCase, c);
        QSettings().setValue(zKey, 2.25);
        Fixture f({point(3, 4, 10), point(6, 8, 1)});
        std::vector<double> offered;
        f.view.setZValueAsker([&](double initial) {
            offered.push_back(initial);
            return c.answer;
        });
        f.view.selectRow(1);
        const auto menu = f.view.buildHeaderMenu(Col::ZCol);
        for (QAction* action : menu->actions()) {
            if (action->text() == c.entry)
                action->trigger();
        }
        QCOMPARE(f.cell(0, Col::ZCol), c.z);
        QCOMPARE(f.cell(0, Col::DistanceCol), c.distance);
        QCOMPARE(f.isMagenta(0), c.replaced);
        // Not only the selected row.
        QCOMPARE(f.isMagenta(1), c.replaced);
        QCOMPARE(QSettings().value(zKey).toDouble(), c.stored);
        QCOMPARE(offered.size(), c.entry.startsWith(QLatin1String("Set")) ? 1u : 0u);
        if (!offered.empty())
            QCOMPARE(offered.front(), 2.25);
    }

    void zDialogReadsAPointInAnyLanguage()
    {
        // In German "7.25" would read as 725.
        struct GermanDefault {
            GermanDefault() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
            ~GermanDefault() { QLocale::setDefault(QLocale::c()); }
        } german;
        Fixture f({point(3, 4, 10)});
        QString title;
        QTimer::singleShot(0, this, [&title] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            title = dialog->windowTitle();
            auto* spin = dialog->findChild<QDoubleSpinBox*>();
            if (!spin) {
                dialog->close();
                return;
            }
            spin->selectAll();
            QTest::keyClicks(spin, QStringLiteral("7.25"));
            QTest::keyClick(spin, Qt::Key_Return);
        });
        f.view.setValueForZ();
        QCOMPARE(title, QStringLiteral("Specify z-Coordinate"));
        QCOMPARE(f.model.pointAt(0).z, 7.25);
        QCOMPARE(QSettings().value(zKey).toDouble(), 7.25);
    }

    void headerMenuDependsOnSection_data()
    {
        const QString save = QStringLiteral("Save Entries to File");
        addRows<MenuCase>({
            {"column", Col::GridColumnCol, {save}},
            {"y", Col::YCol, {save}},
            {"z", Col::ZCol, {save, "Reset z-Coordinate to 0.0", "Set Value of z-Coordinate"}},
        });
    }

    void headerMenuDependsOnSection()
    {
        QFETCH(MenuCase, c);
        Fixture f(abc);
        QHeaderView* header = f.view.horizontalHeader();
        const QPoint at(header->sectionViewportPosition(c.section) + header->sectionSize(c.section) / 2,
                        header->height() / 2);
        QStringList entries;
        QTimer::singleShot(0, this, [&entries] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                for (QAction* action : popup->actions())
                    entries << action->text();
                popup->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, header->viewport()->mapToGlobal(at));
        QApplication::sendEvent(header->viewport(), &event);
        QCOMPARE(entries, c.entries);
    }

    void clickingDeleteIconRemovesThatRow_data()
    {
        addRows<ClickCase>({
            {"delete icon of the middle row", 1, Col::DeleteCol, {"a.tvx", "c.tvx"}},
            {"x cell", 1, Col::XCol, {"a.tvx", "b.tvx", "c.tvx"}},
            {"file name cell", 0, Col::FileNameCol, {"a.tvx", "b.tvx", "c.tvx"}},
        });
    }

    void clickingDeleteIconRemovesThatRow()
    {
        QFETCH(ClickCase, c);
        Fixture f(abc);
        const QRect rect = f.view.visualRect(f.view.model()->index(c.shownRow, c.column));
        QVERIFY(!rect.isEmpty());
        QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, rect.center());
        QCOMPARE(f.stored(), c.remaining);
    }

    void rowsAreShownInPickOrderOrReversed()
    {
        Fixture f(abc);
        QCOMPARE(f.shown(), QStringList({"a.tvx", "b.tvx", "c.tvx"}));
        f.view.reverseOrdering(true);
        QCOMPARE(f.shown(), QStringList({"c.tvx", "b.tvx", "a.tvx"}));
        f.model.appendPoint(point(0, 0, 0, "d.tvx"));
        QCOMPARE(f.shown(), QStringList({"d.tvx", "c.tvx", "b.tvx", "a.tvx"}));
        f.view.reverseOrdering(false);
        QCOMPARE(f.shown(), QStringList({"a.tvx", "b.tvx", "c.tvx", "d.tvx"}));
        QCOMPARE(f.stored(), f.shown());
    }

    void removeRowsChecksTheRange_data()
    {
        addRows<RemoveCase>({
            {"count 0", 0, 0, {"a.tvx", "b.tvx", "c.tvx"}},
            {"last row past the end", 1, 3, {"a.tvx", "b.tvx", "c.tvx"}},
            {"last row", 2, 1, {"a.tvx", "b.tvx"}},
            {"all", 0, 3, {}},
        });
    }

    void removeRowsChecksTheRange()
    {
        QFETCH(RemoveCase, c);
        Fixture f(abc);
        QSignalSpy removed(&f.model, &QAbstractItemModel::rowsRemoved);
        const bool expected = c.remaining.size() < 3;
        QCOMPARE(f.model.removeRows(c.row, c.count), expected);
        QCOMPARE(f.stored(), c.remaining);
        QCOMPARE(removed.count(), expected ? 1 : 0);
    }

    void undoBufferFollowsClearAndAppend_data()
    {
        addRows<UndoCase>({
            {"clear then undo", "cu", {true, false}, {"a.tvx", "b.tvx"}},
            {"append after clear forgets", "cnu", {true, false}, {"n.tvx"}},
            {"second clear keeps the newer rows", "cncu", {true, false, true, false}, {"n.tvx"}},
            {"clear of an empty table", "ccu", {true, false}, {}},
        });
    }

    void undoBufferFollowsClearAndAppend()
    {
        QFETCH(UndoCase, c);
        Fixture f({point(0, 0, 0, "a.tvx"), point(0, 0, 0, "b.tvx")});
        QSignalSpy spy(&f.model, &PointInfoTableModel::signal_pointInfotable_undomode_changed);
        for (const char* step = c.steps; *step; ++step) {
            if (*step == 'c')
                f.model.clearAllItems();
            else if (*step == 'u')
                f.model.doUndo();
            else
                f.model.appendPoint(point(0, 0, 0, "n.tvx"));
        }
        QList<bool> announced;
        for (const auto& arguments : spy)
            announced << arguments.at(0).toBool();
        QCOMPARE(announced, c.announced);
        QCOMPARE(f.shown(), c.rows);
    }
};

TVX_TEST(PointInfoTableTest)

#include "pointinfotabletest.moc"
