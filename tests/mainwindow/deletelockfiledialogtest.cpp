#include "testregistry.h"

#include "mainwindow/deletelockfiledialog.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>

using namespace TVX::CORE;

class DeleteLockFileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletionNeedsConfirmation_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("result");
        QTest::newRow("confirmed") << int(QMessageBox::Yes) << int(QDialog::Accepted);
        QTest::newRow("declined") << int(QMessageBox::No) << int(QDialog::Rejected);
    }

    void deletionNeedsConfirmation()
    {
        QFETCH(int, answer);
        QFETCH(int, result);
        const QString message = QStringLiteral("A lock file was found ...\n  user: anna\n");
        DeleteLockFileDialog dialog(message);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Could Not Open Project Directory"));
        const auto labels = dialog.findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [&message](QLabel* label) { return label->text() == message; }));
        dialog.show();
        bool asked = false;
        // The confirmation is modal: answer it from the event loop once it shows.
        QTimer::singleShot(0, this, [&asked, answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            asked = true;
            box->button(QMessageBox::StandardButton(answer))->click();
        });
        deleteButton(dialog)->click();
        QVERIFY(asked);
        if (result == QDialog::Rejected) {
            QVERIFY(dialog.isVisible());
            dialog.reject();
        }
        QCOMPARE(dialog.result(), result);
    }

private:
    static QPushButton* deleteButton(QDialog& dialog)
    {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String("Delete Lock File"))
                return button;
        }
        return nullptr;
    }
};

TVX_TEST(DeleteLockFileDialogTest)

#include "deletelockfiledialogtest.moc"
