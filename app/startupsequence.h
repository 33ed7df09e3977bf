#pragma once

#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <string>

class QSettings;

namespace TVX::VIEWER {

// What the command line asked for.
struct CommandLine {
    bool help{false};
    std::string inputFile; // empty when none was given
    std::string helpText;  // the options description as the option library prints it
    std::string error;     // non-empty when the parser refused the command line
};

// A path in generic form: every backslash replaced by a forward slash.
QString genericPath(const QString& path);

// Parses the arguments with the options "help,h" and "input-file,I" (one string); never throws.
CommandLine parseCommandLine(int argc, const char* const* argv);

// The locale whose translations start-up loads, from "global/useDefaultLanguage" and
// "global/nonDefaultLanguage" (passed as read, invalid when absent): the system locale when the
// default is followed; "DE", "IT", "ES" or "FR" (exact letter case) mapped to their locale;
// empty, meaning no translator, for anything else.
QString localeForLanguage(const QVariant& useDefaultLanguage, const QVariant& nonDefaultLanguage,
                          const QString& systemLocale);

// Asks for a user name until one is given, unless "global/userName" holds a non-empty one.
// `ask(initialText)` shows the prompt and returns the text, or nothing when it was cancelled.
// The name is written to the settings at once; false when the prompt was cancelled.
bool ensureUserName(QSettings& settings, const QString& homeFolderName,
                    const std::function<std::optional<QString>(const QString&)>& ask);

// The outside world of start-up: the real one (main.cpp) runs the viewer, a test records the order.
class StartUpEnvironment
{
public:
    virtual ~StartUpEnvironment();
    virtual void printHelp(const std::string& text) = 0;
    virtual void printError(const std::string& text) = 0;
    virtual bool isRunning() = 0;
    virtual bool sendMessage(const QString& message, int timeout) = 0;
    virtual void activateExistingWindow() = 0;
    virtual void loadTranslations(const QString& locale) = 0;
    virtual bool ensureUserName() = 0;
    virtual void createMainWindow() = 0;
    virtual void showSplashAndWindow() = 0;
    virtual void openProject(const QString& path) = 0;
    virtual void connectMessages() = 0;
    virtual void showStartUpHelp() = 0;
    virtual int exec() = 0;
    // The language settings and the system locale.
    virtual QVariant setting(const QString& key) const = 0;
    virtual QString systemLocale() const = 0;
};

// Steps 3 to 16 of start-up, after the resources were registered and the single-instance
// application object was made. Returns the process's exit code: 0 after help or hand-over to a
// running instance, 2 for a command line the parser refused, -1 when the user name prompt was
// cancelled, else the event loop's result.
int runStartUp(int argc, const char* const* argv, StartUpEnvironment& environment);

} // namespace TVX::VIEWER
