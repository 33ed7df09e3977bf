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

int runInfo(const QStringList& arguments);
int runPoint(const QStringList& arguments);
int runCloud(const QStringList& arguments);
int runAnnotations(const QStringList& arguments);
int runProject(const QStringList& arguments);
int runDemo(const QStringList& arguments);

} // namespace TVX::TOOL
