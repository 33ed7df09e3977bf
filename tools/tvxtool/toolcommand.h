#pragma once

#include <QStringList>

#include <stdexcept>

namespace TVX::TOOL {

// Thrown by a command for wrong usage; main prints the usage text and exits with 2.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Thrown for a request beyond a limit of a command; main prints the message, which names the
// limit, then the usage text, and exits with 2.
class LimitError : public UsageError
{
public:
    using UsageError::UsageError;
};

// Thrown by a command for a failure the user must see; main prints the message and exits with 1.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A subcommand: its arguments (after the command name) in, its exit code out.
struct ToolCommand {
    const char* name;
    const char* synopsis;
    int (*run)(const QStringList& arguments);
};

// tvxtool itself links QtCore alone. The commands that need the library's object models (the
// project class, the annotation models, whose moc code comes with the project's tree model) or
// images link QtGui and with it GL and D-Bus libraries; they are built into tvxtool-full, the
// whole tool, which tvxtool starts in its own place for them (runInFullTool, with the arguments
// that main received). In tvxtool-full they run directly.
char** processArguments();
[[noreturn]] void runInFullTool();

int runInfo(const QStringList& arguments);
int runPoint(const QStringList& arguments);
int runCloud(const QStringList& arguments);
int runAnnotations(const QStringList& arguments);
int runProject(const QStringList& arguments);
int runDemo(const QStringList& arguments);
int runImport(const QStringList& arguments);

} // namespace TVX::TOOL
