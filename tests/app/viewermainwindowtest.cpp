#include "testregistry.h"


#include "viewermainwindow.h"

#include "mainwindow/userdialogs.h"
#include "project/basicproject.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

using namespace TVX::CORE;
using namespace TVX::VIEWER;

namespace {

class AnsweringDialogs final : public UserDialogs
{
public:
    QMessageBox::StandardButton answer{QMessageBox::Cancel};
    int asked{0};
    QMessageBox::StandardButton question(const QString&, const QString&, QMessageBox::StandardButtons,
                                         QMessageBox::StandardButton) override
    {
        ++asked;
        return answer;
    }
};

} // namespace

class ViewerMainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Closing asks before discarding changes; a cancelled close keeps the window, the project and
    // its lock, a confirmed one releases the lock and keeps the window's geometry.
    void closingAsksAndKeepsGeometry_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true;
    }

    void closingAsksAndKeepsGeometry()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QSettings().clear();
        QTemporaryDir dir;
        ViewerMainWindow window;
        QVERIFY(window.findChild<QToolBar*>(QStringLiteral("toolbar_info")));
        auto dialogs = std::make_unique<AnsweringDialogs>();
        AnsweringDialogs* answering = dialogs.get();
        answering->answer = QMessageBox::StandardButton(answer);
        window.setUserDialogs(std::move(dialogs));
        window.show();
        QVERIFY(window.openProject(dir.filePath(QStringLiteral("new.tvxprj"))));
        BasicProject::instance().setOrigin({1, 2, 3});

        QCOMPARE(window.close(), closes);
        QCOMPARE(answering->asked, 1);
        QCOMPARE(BasicProject::instance().isOpen(), !closes);
        QCOMPARE(QFile::exists(dir.filePath(QStringLiteral("tvxlock~"))), !closes);
        QCOMPARE(QSettings().contains(QStringLiteral("viewer/mainwindow/geometry")), closes);
        if (!closes) {
            answering->answer = QMessageBox::Discard;
            QVERIFY(window.close());
        }
        QSettings().clear();
    }
};

TVX_TEST(ViewerMainWindowTest)

#include "viewermainwindowtest.moc"
