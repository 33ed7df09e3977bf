#include "testregistry.h"

#include "startuphelpwidget.h"

#include <QCheckBox>
#include <QSettings>
#include <QTest>
#include <QTextBrowser>

using namespace TVX::VIEWER;

namespace {
struct Row {
    const char* name;
    QVariant stored; // invalid: absent
    bool checked;
};
} // namespace

class StartupHelpWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings().clear(); }
    void cleanup() { QSettings().clear(); }

    void checkBoxFollowsTheSetting_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("checked");
        const Row rows[] = {
            {"absent shows the help", QVariant(), true},
            {"switched off", false, false},
        };
        for (const Row& row : rows)
            QTest::newRow(row.name) << row.stored << row.checked;
    }

    void checkBoxFollowsTheSetting()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, checked);
        const QString key = QStringLiteral("global/showStartUpHelp");
        if (stored.isValid())
            QSettings().setValue(key, stored);
        StartupHelpWidget help;
        QVERIFY(help.isModal());
        QVERIFY(!help.findChild<QTextBrowser*>()->toPlainText().isEmpty());
        help.show();
        QVERIFY(QTest::qWaitForWindowExposed(&help));
        auto* box = help.findChild<QCheckBox*>(QStringLiteral("cb_show_on_startup"));
        QVERIFY(box);
        QCOMPARE(box->text(), QStringLiteral("Show this help on startup"));
        QCOMPARE(box->isChecked(), checked);

        QTest::keyClick(box, Qt::Key_Space);
        QCOMPARE(QSettings().value(key).toBool(), !checked);
        QTest::keyClick(box, Qt::Key_Space);
        QCOMPARE(QSettings().value(key).toBool(), checked);
    }
};

TVX_TEST(StartupHelpWidgetTest)

#include "startuphelpwidgettest.moc"
