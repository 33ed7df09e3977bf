#include "testregistry.h"

#include "mainwindow/interactionmodes.h"
#include "mainwindow/recentprojectlist.h"

#include <QSettings>
#include <QTest>

using namespace TVX::CORE;
using Pairs = std::vector<InteractionModes::Pair>;
Q_DECLARE_METATYPE(Pairs)
Q_DECLARE_METATYPE(InteractionModes::CheckedActions)

class MainWindowRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recentList_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("added");
        QTest::addColumn<QStringList>("after");
        const QStringList ten{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
        QTest::newRow("new path drops the tenth") << ten << "n" << QStringList{"n", "a", "b", "c", "d", "e", "f", "g", "h", "i"};
        QTest::newRow("known path moves to the top") << ten << "e" << QStringList{"e", "a", "b", "c", "d", "f", "g", "h", "i", "j"};
        QTest::newRow("into an empty list") << QStringList(10, QString()) << "n"
                                            << QStringList{"n", "", "", "", "", "", "", "", "", ""};
    }

    void recentList()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, added);
        QFETCH(QStringList, after);
        QSettings settings;
        settings.clear();
        for (int i = 0; i < before.size(); ++i)
            settings.setValue(QStringLiteral("global/recently_used_projectfiles/%1").arg(i), before[i]);
        RecentProjectList list;
        list.load(settings);
        list.add(added);
        list.save(settings);
        RecentProjectList reread;
        reread.load(settings);
        QCOMPARE(reread.entries(), after);
        settings.clear();
    }

    void recentListIgnoresWrongTypes()
    {
        QSettings settings;
        settings.clear();
        settings.setValue(QStringLiteral("global/recently_used_projectfiles/0"), 42);
        settings.setValue(QStringLiteral("global/recently_used_projectfiles/1"), QStringList{"x"});
        RecentProjectList list;
        list.load(settings);
        QCOMPARE(QStringList({list.at(0), list.at(1), list.at(-1), list.at(10)}), QStringList(4, QString()));
        settings.clear();
    }

    void displayText_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("shortened");
        QTest::newRow("60 characters whole") << 60 << false;
        QTest::newRow("61 characters shortened") << 61 << true;
    }

    void displayText()
    {
        QFETCH(int, length);
        QFETCH(bool, shortened);
        QString path = QStringLiteral("/");
        for (int i = 1; i < length; ++i)
            path += QChar(u'a' + i % 26);
        const QString shown = RecentProjectList::displayText(path);
        QCOMPARE(shown, shortened ? QStringLiteral("...") + path.right(57) : path);
    }

    void pairsForNewView_data()
    {
        QTest::addColumn<quint32>("activeOperator");
        QTest::addColumn<InteractionModes::CheckedActions>("checked");
        QTest::addColumn<Pairs>("pairs");
        InteractionModes::CheckedActions none;
        InteractionModes::CheckedActions deltaZ;
        deltaZ.deltaZ = true;
        InteractionModes::CheckedActions zoomOut;
        zoomOut.zoomOut = true;
        QTest::newRow("pick") << 1u << none << Pairs{{0, 0}};
        QTest::newRow("area selection") << 3u << none << Pairs{{5, 0}};
        QTest::newRow("Delta Z") << 38u << deltaZ << Pairs{{1, 6}};
        QTest::newRow("measurement without checked action") << 38u << none << Pairs{};
        QTest::newRow("modify text is editing") << 41u << none << Pairs{{2, 0}};
        QTest::newRow("Zoom Out") << 17u << zoomOut << Pairs{{3, 1}};
        QTest::newRow("unknown operator") << 99u << none << Pairs{};
    }

    void pairsForNewView()
    {
        QFETCH(quint32, activeOperator);
        QFETCH(InteractionModes::CheckedActions, checked);
        QFETCH(Pairs, pairs);
        QCOMPARE(InteractionModes::pairsForNewView(activeOperator, checked), pairs);
    }
};

TVX_TEST(MainWindowRulesTest)

#include "mainwindowrulestest.moc"
