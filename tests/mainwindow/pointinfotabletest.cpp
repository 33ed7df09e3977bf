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
#include <QTest>
#include <QTimer>

#include <cmath>
#include <optional>

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

    explicit Fixture(std::initializer_list<PointInfoEntry> points = {point(1, 2, 3, "a.tvx"), point(1, 2, 3, "b.tvx"),
                                                                     point(1, 2, 3, "c.tvx")})
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
    // z, distance and whether every cell is magenta.
    QString zOf(int row) const
    {
        bool magenta = true;
        for (int column = 0; column < PointInfoTableModel::visibleColumnCount; ++column)
            magenta = magenta && model.index(row, column).data(Qt::ForegroundRole).value<QBrush>() == QBrush(Qt::magenta);
        return model.index(row, Col::ZCol).data().toString() + QLatin1Char(' ')
               + model.index(row, Col::DistanceCol).data().toString() + (magenta ? " magenta" : "");
    }
};

} // namespace

class PointInfoTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().remove(zKey); }
    void cleanup() { QSettings().remove(zKey); }

    void cellsAreFormatted()
    {
        PointInfoEntry entry = point(1.23456, -2.5, 0, QStringLiteral("Station 7.tvx"));
        entry.reflectance = 7;
        entry.distance = std::sqrt(14.0); // 3.7416…
        PointInfoTableModel model;
        model.appendPoint(point(9, 9, 9));
        model.appendPoint(entry);
        QStringList cells;
        for (int column : {Col::XCol, Col::YCol, Col::ReflectanceCol, Col::DistanceCol, Col::FileNameCol})
            cells << model.index(1, column).data().toString();
        QCOMPARE(cells, QStringList({"1.235", "-2.500", "    7", "3.742", "Station 7.tvx"}));
        QCOMPARE(model.headerData(1, Qt::Vertical).toInt(), 2);
    }

    // The points (3, 4, 10) and (6, 8, 1) with z replaced: distance = sqrt(x² + y² + z²). Every
    // row changes, not only the selected one.
    void zIsReplacedInEveryRow_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("reset to zero") << "Reset z-Coordinate to 0.0"
                                       << QStringList{"0.000 5.000 magenta", "0.000 10.000 magenta"};
        QTest::newRow("set value cancelled") << "Set Value of z-Coordinate"
                                             << QStringList{"10.000 11.180", "1.000 10.050"};
    }

    void zIsReplacedInEveryRow()
    {
        QFETCH(QString, entry);
        QFETCH(QStringList, rows);
        QSettings().setValue(zKey, 2.25);
        Fixture f({point(3, 4, 10), point(6, 8, 1)});
        QList<double> offered;
        f.view.setZValueAsker([&offered](double initial) {
            offered << initial;
            return std::optional<double>();
        });
        f.view.selectRow(1);
        const auto menu = f.view.buildHeaderMenu(Col::ZCol);
        for (QAction* action : menu->actions()) {
            if (action->text() == entry)
                action->trigger();
        }
        QCOMPARE(QStringList({f.zOf(0), f.zOf(1)}), rows);
        QCOMPARE(QSettings().value(zKey).toDouble(), 2.25);
        QCOMPARE(offered, entry.startsWith(QLatin1String("Set")) ? QList<double>{2.25} : QList<double>());
    }

    void zDialogReadsAPointInAnyLanguage()
    {
        // In German "7.25" would read as 725.
        struct GermanDefault {
            GermanDefault() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
            ~GermanDefault() { QLocale::setDefault(QLocale::c()); }
        } german;
        QSettings().setValue(zKey, 2.25);
        Fixture f({point(3, 4, 10)});
        QString seen;
        QTimer::singleShot(0, this, [&seen] {
            QWidget* dialog = QApplication::activeModalWidget();
            auto* spin = dialog ? dialog->findChild<QDoubleSpinBox*>() : nullptr;
            if (!spin) {
                if (dialog)
                    dialog->close();
                return;
            }
            seen = dialog->windowTitle() + QLatin1Char(' ') + QString::number(spin->value());
            spin->selectAll();
            QTest::keyClicks(spin, QStringLiteral("7.25"));
            QTest::keyClick(spin, Qt::Key_Return);
        });
        f.view.setValueForZ();
        QCOMPARE(seen, QStringLiteral("Specify z-Coordinate 2.25"));
        QCOMPARE(f.zOf(0), QStringLiteral("7.250 8.807 magenta")); // sqrt(9 + 16 + 52.5625) = 8.8070…
        QCOMPARE(QSettings().value(zKey).toDouble(), 7.25);
    }

    // A right click on a header opens that column's menu; only the z column adds its entries.
    void headerMenuOfOtherColumnsOnlySaves()
    {
        const int section = Col::YCol;
        Fixture f;
        QHeaderView* header = f.view.horizontalHeader();
        const QPoint at(header->sectionViewportPosition(section) + header->sectionSize(section) / 2, header->height() / 2);
        QStringList shown;
        QTimer::singleShot(0, this, [&shown] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                for (QAction* action : popup->actions())
                    shown << action->text();
                popup->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, header->viewport()->mapToGlobal(at));
        QApplication::sendEvent(header->viewport(), &event);
        QCOMPARE(shown, QStringList{QStringLiteral("Save Entries to File")});
    }

    void clickingDeleteIconRemovesThatRow()
    {
        Fixture f;
        const auto click = [&f](int column) {
            const QRect rect = f.view.visualRect(f.view.model()->index(1, column));
            QTest::mouseClick(f.view.viewport(), Qt::LeftButton, {}, rect.center());
        };
        click(Col::XCol);
        QCOMPARE(f.stored(), QStringList({"a.tvx", "b.tvx", "c.tvx"}));
        click(Col::DeleteCol);
        QCOMPARE(f.stored(), QStringList({"a.tvx", "c.tvx"}));
    }

    void rowsAreShownInPickOrderOrReversed()
    {
        Fixture f;
        QCOMPARE(f.shown(), QStringList({"a.tvx", "b.tvx", "c.tvx"}));
        f.view.reverseOrdering(true);
        QCOMPARE(f.shown(), QStringList({"c.tvx", "b.tvx", "a.tvx"}));
        f.model.appendPoint(point(0, 0, 0, "d.tvx"));
        QCOMPARE(f.shown(), QStringList({"d.tvx", "c.tvx", "b.tvx", "a.tvx"}));
        QCOMPARE(f.stored(), QStringList({"a.tvx", "b.tvx", "c.tvx", "d.tvx"}));
    }

    void removeRowsChecksTheRange_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("remaining"); // of a, b and c; all three: refused
        QTest::newRow("last row past the end") << 1 << 3 << QStringList{"a.tvx", "b.tvx", "c.tvx"};
        QTest::newRow("all") << 0 << 3 << QStringList{};
    }

    void removeRowsChecksTheRange()
    {
        QFETCH(int, row);
        QFETCH(int, count);
        QFETCH(QStringList, remaining);
        Fixture f;
        QSignalSpy removed(&f.model, &QAbstractItemModel::rowsRemoved);
        const bool expected = remaining.size() < 3;
        QCOMPARE(f.model.removeRows(row, count), expected);
        QCOMPARE(f.stored(), remaining);
        QCOMPARE(removed.count(), expected ? 1 : 0);
    }

    // Steps: c = clearAllItems(), u = doUndo(), n = append "n.tvx"; the table starts with a and b.
    void undoBufferFollowsClearAndAppend_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QList<bool>>("announced");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("append after clear forgets") << "cnu" << QList<bool>{true, false} << QStringList{"n.tvx"};
        QTest::newRow("second clear keeps the newer rows")
            << "cncu" << QList<bool>{true, false, true, false} << QStringList{"n.tvx"};
    }

    void undoBufferFollowsClearAndAppend()
    {
        QFETCH(QString, steps);
        QFETCH(QList<bool>, announced);
        QFETCH(QStringList, rows);
        Fixture f({point(0, 0, 0, "a.tvx"), point(0, 0, 0, "b.tvx")});
        QSignalSpy spy(&f.model, &PointInfoTableModel::signal_pointInfotable_undomode_changed);
        for (const QChar step : steps) {
            if (step == QLatin1Char('c'))
                f.model.clearAllItems();
            else if (step == QLatin1Char('u'))
                f.model.doUndo();
            else
                f.model.appendPoint(point(0, 0, 0, "n.tvx"));
        }
        QList<bool> heard;
        for (const auto& arguments : std::as_const(spy))
            heard << arguments.at(0).toBool();
        QCOMPARE(heard, announced);
        QCOMPARE(f.shown(), rows);
    }
};

TVX_TEST(PointInfoTableTest)

#include "pointinfotabletest.moc"
