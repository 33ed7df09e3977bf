#include "testregistry.h"

#include "startupsequence.h"

#include <QSettings>
#include <QStringList>
#include <QTest>

#include <vector>

using namespace TVX::VIEWER;

namespace {

// Records what start-up does, in order.
class RecordingEnvironment final : public StartUpEnvironment
{
public:
    QStringList steps;
    bool running{false};
    bool nameGiven{true};
    QVariantMap settings;

    void printHelp(const std::string&) override { steps << "help"; }
    void printError(const std::string&) override { steps << "error"; }
    bool isRunning() override
    {
        steps << "running?";
        return running;
    }
    bool sendMessage(const QString& message, int timeout) override
    {
        steps << QStringLiteral("send %1 %2").arg(message).arg(timeout);
        return true;
    }
    void activateExistingWindow() override { steps << "activate"; }
    void loadTranslations(const QString& locale) override { steps << "translations " + locale; }
    bool ensureUserName() override
    {
        steps << "user name";
        return nameGiven;
    }
    void createMainWindow() override { steps << "window"; }
    void showSplashAndWindow() override { steps << "splash, show window"; }
    void openProject(const QString& path) override { steps << "open " + path; }
    void connectMessages() override { steps << "connect messages"; }
    void showStartUpHelp() override { steps << "start-up help"; }
    int exec() override
    {
        steps << "exec";
        return 7;
    }
    QVariant setting(const QString& key) const override { return settings.value(key); }
    QString systemLocale() const override { return QStringLiteral("it_IT"); }
};

int run(RecordingEnvironment& environment, const QStringList& arguments)
{
    std::vector<QByteArray> bytes{"tvxviewer"};
    for (const QString& argument : arguments)
        bytes.push_back(argument.toLocal8Bit());
    std::vector<const char*> argv;
    for (const QByteArray& b : bytes)
        argv.push_back(b.constData());
    return runStartUp(int(argv.size()), argv.data(), environment);
}

} // namespace

class StartUpSequenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("running");
        QTest::addColumn<bool>("nameGiven");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QStringList>("steps");
        const QStringList firstInstance{"user name", "window", "splash, show window"};
        // Help comes before the instance check, so a running instance is never contacted.
        QTest::newRow("help while another instance runs") << QStringList{"-h", "-I", "p"} << true << true << 0 << QStringList{"help"};
        QTest::newRow("second start with a project")
            << QStringList{"-I", "/data/p.tvxprj"} << true << true << 0
            << QStringList{"running?", "send WAKE_UP 5000", "activate", "send OPEN_VIEW /data/p.tvxprj 5000"};
        // The project opens after the window shows, and messages are taken only after that.
        QTest::newRow("first start with a project")
            << QStringList{"--input-file", "C:\\data\\p.tvxprj"} << false << true << 7
            << QStringList{"running?", "translations it_IT"} + firstInstance
                   + QStringList{"open C:/data/p.tvxprj", "connect messages", "start-up help", "exec"};
        QTest::newRow("user name prompt cancelled")
            << QStringList{} << false << false << -1 << QStringList{"running?", "translations it_IT", "user name"};
        QTest::newRow("unknown option") << QStringList{"--bogus"} << false << true << 2 << QStringList{"error"};
    }

    void order()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, running);
        QFETCH(bool, nameGiven);
        QFETCH(int, exitCode);
        QFETCH(QStringList, steps);
        RecordingEnvironment environment;
        environment.running = running;
        environment.nameGiven = nameGiven;
        QCOMPARE(run(environment, arguments), exitCode);
        QCOMPARE(environment.steps, steps);
    }

    void startUpHelpFollowsItsSetting()
    {
        RecordingEnvironment environment;
        environment.settings[QStringLiteral("global/showStartUpHelp")] = false;
        environment.settings[QStringLiteral("global/useDefaultLanguage")] = false;
        QCOMPARE(run(environment, {}), 7);
        QVERIFY(!environment.steps.contains(QStringLiteral("start-up help")));
        QVERIFY(!environment.steps.join(' ').contains(QStringLiteral("translations")));
    }

    void bareArgumentPointsToTheOption()
    {
        const char* argv[] = {"tvxviewer", "p.tvxprj"};
        const CommandLine commandLine = parseCommandLine(2, argv);
        QVERIFY(QByteArray::fromStdString(commandLine.error).contains("-I"));
        QVERIFY(QByteArray::fromStdString(commandLine.helpText).startsWith("=== program options:\n"));
    }

    void language_data()
    {
        QTest::addColumn<QVariant>("useDefault");
        QTest::addColumn<QVariant>("language");
        QTest::addColumn<QString>("locale");
        QTest::newRow("no keys: the system's") << QVariant() << QVariant() << "pt_BR";
        QTest::newRow("German") << QVariant(false) << QVariant("DE") << "de_DE";
        QTest::newRow("lower case is not a code") << QVariant(false) << QVariant("de") << "";
        QTest::newRow("English is untranslated") << QVariant(false) << QVariant("EN") << "";
    }

    void language()
    {
        QFETCH(QVariant, useDefault);
        QFETCH(QVariant, language);
        QFETCH(QString, locale);
        QCOMPARE(localeForLanguage(useDefault, language, QStringLiteral("pt_BR")), locale);
    }

    void userName_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QStringList>("answers"); // a null string cancels
        QTest::addColumn<bool>("result");
        QTest::addColumn<int>("asked");
        QTest::addColumn<QVariant>("written");
        QTest::newRow("known name, no prompt") << QVariant("anna") << QStringList{} << true << 0 << QVariant("anna");
        QTest::newRow("empty answer asks again, a blank is a name")
            << QVariant() << QStringList{"", " "} << true << 2 << QVariant(" ");
        QTest::newRow("cancel writes nothing") << QVariant() << QStringList{QString()} << false << 1 << QVariant();
    }

    void userName()
    {
        QFETCH(QVariant, stored);
        QFETCH(QStringList, answers);
        QFETCH(bool, result);
        QFETCH(int, asked);
        QFETCH(QVariant, written);
        QSettings settings;
        settings.clear();
        if (stored.isValid())
            settings.setValue(QStringLiteral("global/userName"), stored);
        int calls = 0;
        const bool ok = ensureUserName(settings, QStringLiteral("home"), [&](const QString& initial) -> std::optional<QString> {
            if (initial != QLatin1String("home") || calls >= answers.size())
                return std::nullopt;
            const QString answer = answers[calls++];
            return answer.isNull() ? std::nullopt : std::optional<QString>(answer);
        });
        QCOMPARE(ok, result);
        QCOMPARE(calls, asked);
        QCOMPARE(settings.value(QStringLiteral("global/userName")), written);
        settings.clear();
    }
};

TVX_TEST(StartUpSequenceTest)

#include "startupsequencetest.moc"
