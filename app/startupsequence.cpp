#include "startupsequence.h"

#include <QSettings>

#include <boost/filesystem/path.hpp>
#include <boost/program_options.hpp>

#include <sstream>

namespace po = boost::program_options;

namespace TVX::VIEWER {

namespace {

po::options_description optionsDescription()
{
    po::options_description description("=== program options", 80, 40);
    description.add_options()("help,h", "print help message")("input-file,I", po::value<std::string>(), "input file");
    return description;
}

} // namespace

QString genericPath(const QString& path)
{
    QString generic = path;
    return generic.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

StartUpEnvironment::~StartUpEnvironment() = default;

CommandLine parseCommandLine(int argc, const char* const* argv)
{
    CommandLine result;
    const po::options_description description = optionsDescription();
    std::ostringstream help;
    help << description << '\n';
    result.helpText = help.str();
    po::variables_map variables;
    try {
        const po::parsed_options parsed = po::parse_command_line(argc, argv, description);
        po::store(parsed, variables);
        if (variables.count("help")) {
            result.help = true;
            return result;
        }
        // The parser lets a bare argument through and drops it; the project would silently not open.
        for (const po::option& option : parsed.options) {
            if (option.position_key >= 0) {
                result.error = "\"" + option.value.front()
                               + "\": a project file is given with -I PATH (or --input-file PATH), not as a bare argument";
                return result;
            }
        }
        po::notify(variables);
        if (variables.count("input-file"))
            result.inputFile = boost::filesystem::path(variables["input-file"].as<std::string>()).string();
    } catch (const po::error& error) {
        result.error = error.what();
    }
    return result;
}

QString localeForLanguage(const QVariant& useDefaultLanguage, const QVariant& nonDefaultLanguage,
                          const QString& systemLocale)
{
    const bool useDefault = useDefaultLanguage.isValid() ? useDefaultLanguage.toBool() : true;
    if (useDefault)
        return systemLocale;
    if (!nonDefaultLanguage.isValid())
        return {};
    const QString code = nonDefaultLanguage.toString();
    static const char* const mapping[][2] = {{"DE", "de_DE"}, {"IT", "it_IT"}, {"ES", "es_ES"}, {"FR", "fr_FR"}};
    for (const auto& [key, locale] : mapping) {
        if (code == QLatin1String(key))
            return QLatin1String(locale);
    }
    return {};
}

bool ensureUserName(QSettings& settings, const QString& homeFolderName,
                    const std::function<std::optional<QString>(const QString&)>& ask)
{
    const QString key = QStringLiteral("global/userName");
    if (settings.contains(key) && !settings.value(key).toString().isEmpty())
        return true;
    for (;;) {
        const std::optional<QString> name = ask(homeFolderName);
        if (!name)
            return false;
        if (!name->isEmpty()) {
            settings.setValue(key, *name);
            settings.sync();
            return true;
        }
    }
}

int runStartUp(int argc, const char* const* argv, StartUpEnvironment& environment)
{
    const CommandLine commandLine = parseCommandLine(argc, argv);
    if (commandLine.help) {
        environment.printHelp(commandLine.helpText);
        return 0;
    }
    if (!commandLine.error.empty()) {
        environment.printError(commandLine.error + "\n\n" + commandLine.helpText);
        return 2;
    }
    // Native narrow string to text as the file system names it.
    const QString inputFile = QString::fromLocal8Bit(commandLine.inputFile.c_str());

    if (environment.isRunning()) {
        environment.sendMessage(QStringLiteral("WAKE_UP"), 5000);
        environment.activateExistingWindow();
        if (!inputFile.isEmpty())
            environment.sendMessage(QStringLiteral("OPEN_VIEW ") + inputFile, 5000);
        return 0;
    }

    const QString locale = localeForLanguage(environment.setting(QStringLiteral("global/useDefaultLanguage")),
                                             environment.setting(QStringLiteral("global/nonDefaultLanguage")),
                                             environment.systemLocale());
    if (!locale.isEmpty())
        environment.loadTranslations(locale);
    if (!environment.ensureUserName())
        return -1;
    environment.createMainWindow();
    environment.showSplashAndWindow();
    if (!inputFile.isEmpty())
        environment.openProject(genericPath(inputFile));
    environment.connectMessages();
    const QVariant showHelp = environment.setting(QStringLiteral("global/showStartUpHelp"));
    if (!showHelp.isValid() || showHelp.toBool())
        environment.showStartUpHelp();
    return environment.exec();
}

} // namespace TVX::VIEWER
