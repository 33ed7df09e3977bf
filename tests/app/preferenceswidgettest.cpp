#include "testregistry.h"

#include "preferenceswidget.h"

#include "mainwindow/userdialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QTest>

using namespace TVX::VIEWER;

namespace {

// Records the messages instead of showing them.
class RecordingDialogs final : public TVX::CORE::UserDialogs
{
public:
    explicit RecordingDialogs(QStringList& log) : m_log(log) {}
    void information(const QString& title, const QString& text) override { m_log << title << text; }

private:
    QStringList& m_log;
};

// What the controls show.
struct Shown {
    bool systemLanguage;
    int language;
    bool stationMarks;
    double minDist;
    double maxDist;
    int viewType;
};

const Shown defaults{true, 0, true, 0.2, 15.0, 0};

struct OpenRow {
    const char* name;
    QVariantMap stored;
    Shown shown;
};

// A user's choices in the dialog and the keys that result.
struct EditRow {
    const char* name;
    int language; // -1: the system's language
    QString code;
    bool stationMarks;
    QString minDist; // typed
    QString maxDist;
    int viewType;
    bool accepted;
};

template <typename T>
T* child(QWidget& parent, const char* name)
{
    auto* widget = parent.findChild<T*>(QLatin1String(name));
    if (!widget)
        qFatal("no child %s", name);
    return widget;
}

void typeInto(QDoubleSpinBox* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    QTest::keyClick(box, Qt::Key_Tab);
}

void choose(QComboBox* box, int index)
{
    // Home, then down arrow steps, as a person does with the keyboard.
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(box, Qt::Key_Down);
}

} // namespace

Q_DECLARE_METATYPE(Shown)
Q_DECLARE_METATYPE(EditRow)

class PreferencesWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void cleanup() { QSettings().clear(); }

    void showsStoredValues_data()
    {
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<Shown>("shown");
        const OpenRow rows[] = {
            {"empty store", {}, defaults},
            {"everything stored",
             {{"global/useDefaultLanguage", false},
              {"global/nonDefaultLanguage", "ES"},
              {"global/showStationMarks", false},
              {"global/stationMarksMinDist", 1.5},
              {"global/stationMarksMaxDist", 40.25},
              {"global/default_view_type", 2}},
             {false, 3, false, 1.5, 40.25, 2}},
            {"texts where numbers and flags belong",
             {{"global/useDefaultLanguage", "maybe"},
              {"global/showStationMarks", "sometimes"},
              {"global/stationMarksMinDist", "near"},
              {"global/stationMarksMaxDist", "far"},
              {"global/default_view_type", "spherical"}},
             defaults},
        };
        for (const OpenRow& row : rows)
            QTest::newRow(row.name) << row.stored << row.shown;
    }

    void showsStoredValues()
    {
        QFETCH(QVariantMap, stored);
        QFETCH(Shown, shown);
        {
            QSettings settings;
            for (auto it = stored.cbegin(); it != stored.cend(); ++it)
                settings.setValue(it.key(), it.value());
        }
        PreferencesWidget dialog;
        QCOMPARE(child<QRadioButton>(dialog, "rb_systemlang")->isChecked(), shown.systemLanguage);
        QCOMPARE(child<QRadioButton>(dialog, "rb_nonsystemlang")->isChecked(), !shown.systemLanguage);
        QCOMPARE(child<QComboBox>(dialog, "cb_language")->currentIndex(), shown.language);
        QCOMPARE(child<QCheckBox>(dialog, "cb_showStationMarks")->isChecked(), shown.stationMarks);
        auto* minDist = child<QDoubleSpinBox>(dialog, "dsb_stationmarksMinDist");
        auto* maxDist = child<QDoubleSpinBox>(dialog, "dsb_stationmarksMaxDist");
        QCOMPARE(minDist->value(), shown.minDist);
        QCOMPARE(maxDist->value(), shown.maxDist);
        QCOMPARE(minDist->isEnabled(), shown.stationMarks);
        QCOMPARE(maxDist->isEnabled(), shown.stationMarks);
        QCOMPARE(child<QComboBox>(dialog, "cb_defaultViewOpeningType")->currentIndex(), shown.viewType);
    }

    void writesOnAcceptOnly_data()
    {
        QTest::addColumn<EditRow>("row");
        const EditRow rows[] = {
            {"German, marks off", 1, "DE", false, "1", "100", 2, true},
            {"cancel writes nothing", 2, "", false, "5", "6", 2, false},
        };
        for (const EditRow& row : rows)
            QTest::newRow(row.name) << row;
    }

    void writesOnAcceptOnly()
    {
        QFETCH(EditRow, row);
        const auto& [name, language, code, stationMarks, minDist, maxDist, viewType, accepted] = row;
        PreferencesWidget dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));

        auto* languages = child<QComboBox>(dialog, "cb_language");
        QVERIFY(!languages->isEnabled());
        if (language >= 0) {
            QTest::mouseClick(child<QRadioButton>(dialog, "rb_nonsystemlang"), Qt::LeftButton);
            QVERIFY(languages->isEnabled());
            choose(languages, language);
        }
        const QLocale locale = child<QDoubleSpinBox>(dialog, "dsb_stationmarksMinDist")->locale();
        typeInto(child<QDoubleSpinBox>(dialog, "dsb_stationmarksMinDist"), locale.toString(minDist.toDouble()));
        typeInto(child<QDoubleSpinBox>(dialog, "dsb_stationmarksMaxDist"), locale.toString(maxDist.toDouble()));
        // Switching the marks off greys out the distances but keeps them.
        if (!stationMarks)
            QTest::keyClick(child<QCheckBox>(dialog, "cb_showStationMarks"), Qt::Key_Space);
        QCOMPARE(child<QDoubleSpinBox>(dialog, "dsb_stationmarksMinDist")->isEnabled(), stationMarks);
        QCOMPARE(child<QDoubleSpinBox>(dialog, "dsb_stationmarksMaxDist")->isEnabled(), stationMarks);
        choose(child<QComboBox>(dialog, "cb_defaultViewOpeningType"), viewType);

        auto* buttons = child<QDialogButtonBox>(dialog, "");
        QTest::mouseClick(buttons->button(accepted ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel), Qt::LeftButton);
        QCOMPARE(dialog.result(), accepted ? int(QDialog::Accepted) : int(QDialog::Rejected));

        const QSettings settings;
        if (!accepted) {
            QCOMPARE(settings.allKeys(), QStringList());
            return;
        }
        QCOMPARE(settings.value("global/useDefaultLanguage").toBool(), language < 0);
        QCOMPARE(settings.value("global/nonDefaultLanguage").toString(), code);
        QCOMPARE(settings.value("global/showStationMarks").toBool(), stationMarks);
        QCOMPARE(settings.value("global/stationMarksMinDist").toDouble(), minDist.toDouble());
        QCOMPARE(settings.value("global/stationMarksMaxDist").toDouble(), maxDist.toDouble());
        QCOMPARE(settings.value("global/default_view_type").toInt(), viewType);

        // Read back by a new dialog, the choices show again.
        PreferencesWidget again;
        QCOMPARE(child<QComboBox>(again, "cb_language")->currentIndex(), qMax(language, 0));
        QCOMPARE(child<QDoubleSpinBox>(again, "dsb_stationmarksMaxDist")->value(), maxDist.toDouble());
        QCOMPARE(child<QComboBox>(again, "cb_defaultViewOpeningType")->currentIndex(), viewType);
    }

    void resetClearsTheWholeStore()
    {
        {
            QSettings settings;
            settings.setValue("global/userName", "anna");
            settings.setValue("global/recently_used_projectfiles/0", "/data/site/tvx.prj");
            settings.setValue("global/stationMarksMaxDist", 50.0);
            settings.setValue("viewer/mainwindow/geometry", QByteArray("xyz"));
        }
        PreferencesWidget dialog;
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Edit Preferences"));
        QStringList told;
        dialog.setUserDialogs(std::make_unique<RecordingDialogs>(told));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto* reset = child<QPushButton>(dialog, "pb_resetToDefaultSettings");
        QCOMPARE(reset->text(), QStringLiteral("Reset Application Settings to Defaults"));
        QTest::mouseClick(reset, Qt::LeftButton);

        QCOMPARE(QSettings().allKeys(), QStringList());
        QCOMPARE(told, QStringList({QStringLiteral("Reset Application Settings"),
                                    QStringLiteral("All application settings are reset to their defaults. Please "
                                                   "restart all Tarvnix applications before you continue.")}));
        QCOMPARE(child<QDoubleSpinBox>(dialog, "dsb_stationmarksMaxDist")->value(), 15.0);
        QVERIFY(dialog.isVisible());
    }
};

TVX_TEST(PreferencesWidgetTest)

#include "preferenceswidgettest.moc"
