#include "testregistry.h"

#include "showprojectcoordsysdialog.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QTest>

#include <cmath>
#include <limits>

using namespace TVX::VIEWER;
using TVX::CORE::TVXProjectContent;

namespace {

using Values = std::array<double, 6>; // rotation x, y, z in degrees, translation x, y, z in metres

const std::array<double, 3> origin{1000.5, -2000.25, 12.0};

// Half angles of the turns below: a turn by t about an axis is sin(t/2) on that axis, cos(t/2) as d.
std::vector<TVXProjectContent::CoordinateSystem> systems()
{
    const double deg = M_PI / 180.0;
    return {
        {QStringLiteral("north"), {1.5, 2.5, -3.5, 0, 0, std::sin(45 * deg), std::cos(45 * deg)}},  // 90° about z
        {QStringLiteral("tilted"), {0, 0, 0, std::sin(15 * deg), 0, 0, std::cos(15 * deg)}},        // 30° about x
        {QStringLiteral("sloped"), {-7, 8, 9, 0, std::sin(-20 * deg), 0, std::cos(-20 * deg)}},     // -40° about y
        {QStringLiteral("broken"), {std::numeric_limits<double>::quiet_NaN(), 0, 0, 0, 0, 0, 1}},
    };
}

struct Row {
    const char* name;
    int entry;
    Values shown;
    bool translationXValid;
};

const char* const boxNames[] = {"dsp_rotation_x", "dsp_rotation_y", "dsp_rotation_z",
                                "dsp_translation_x", "dsp_translation_y", "dsp_translation_z"};

} // namespace

Q_DECLARE_METATYPE(Values)

class ShowProjectCoordSysDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsChosenSystem_data()
    {
        QTest::addColumn<int>("entry");
        QTest::addColumn<Values>("shown");
        QTest::addColumn<bool>("translationXValid");
        const Row rows[] = {
            {"default is the origin unturned", 0, {0, 0, 0, 1000.5, -2000.25, 12.0}, true},
            {"turn about z in the z box", 1, {0, 0, 90, 1.5, 2.5, -3.5}, true},
            {"turn about y in the y box", 3, {0, -40, 0, -7, 8, 9}, true},
            {"no number in the file", 4, {0, 0, 0, 0, 0, 0}, false},
        };
        for (const Row& row : rows)
            QTest::newRow(row.name) << row.entry << row.shown << row.translationXValid;
    }

    void showsChosenSystem()
    {
        QFETCH(int, entry);
        QFETCH(Values, shown);
        QFETCH(bool, translationXValid);
        // Opens on another entry, so that every row comes from a choice in the box.
        ShowProjectCoordSysDialog dialog(origin, systems(), entry == 1 ? 2 : 1);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto* box = dialog.findChild<QComboBox*>(QStringLiteral("cb_coordinatesystem"));
        QVERIFY(box);
        QCOMPARE(box->count(), 5);
        QCOMPARE(box->itemText(0), QStringLiteral("default"));
        QCOMPARE(box->itemText(2), QStringLiteral("tilted"));
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < entry; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentIndex(), entry);

        for (size_t i = 0; i < shown.size(); ++i) {
            auto* value = dialog.findChild<QDoubleSpinBox*>(QLatin1String(boxNames[i]));
            QVERIFY(value);
            QVERIFY(value->isReadOnly());
            QVERIFY2(std::abs(value->value() - shown[i]) < 1e-3,
                     qPrintable(QStringLiteral("%1 shows %2").arg(boxNames[i]).arg(value->value())));
        }
        auto* translationX = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("dsp_translation_x"));
        QCOMPARE(translationX->isEnabled(), translationXValid);
        QCOMPARE(dialog.findChild<QDoubleSpinBox*>(QStringLiteral("dsp_rotation_z"))->suffix(), QStringLiteral(" °"));
    }

    // The boxes show the current system at once; an index past the list falls back to "default".
    void opensOnCurrentSystem()
    {
        for (const auto& [current, translationX] : {std::pair{3u, -7.0}, {9u, origin[0]}}) {
            ShowProjectCoordSysDialog dialog(origin, systems(), current);
            QCOMPARE(dialog.findChild<QComboBox*>(QStringLiteral("cb_coordinatesystem"))->currentIndex(),
                     current == 3 ? 3 : 0);
            QCOMPARE(dialog.findChild<QDoubleSpinBox*>(QStringLiteral("dsp_translation_x"))->value(), translationX);
        }
    }
};

TVX_TEST(ShowProjectCoordSysDialogTest)

#include "showprojectcoordsysdialogtest.moc"
