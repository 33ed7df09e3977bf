// tvxtool: command-line access to scan files, annotation files and projects, for tests, scripts
// and support. Output is JSON on stdout; errors go to stderr with exit code 1, wrong usage with 2.
#include "toolcommand.h"

#include <QCoreApplication>

#include <cstdio>
#include <iterator>

using namespace TVX::TOOL;

namespace {

const ToolCommand commands[] = {
    {"info", "info SCAN.tvx", runInfo},
    {"point", "point SCAN.tvx COLUMN ROW", runPoint},
    {"cloud", "cloud SCAN.tvx --output FILE [--step N]", runCloud},
    {"annotations", "annotations SCAN.tvx [--rewrite OUT.xml]", runAnnotations},
    {"project", "project PROJECT_FILE [--scans]", runProject},
    {"demo", "demo DIR [--scans N] [--columns C] [--rows R] [--seed S]", runDemo},
    {"import", "import INPUT.{ptx,e57} PROJECT_DIR [--step DEGREES]", runImport},
};

// As main received them, for starting tvxtool-full in this process's place.
char** processArgv = nullptr;

QByteArray usageText()
{
    QByteArray text("usage: tvxtool COMMAND [ARGUMENTS]\n\ncommands:\n");
    for (const ToolCommand& command : commands)
        text += QByteArray("  tvxtool ") + command.synopsis + '\n';
    return text;
}

} // namespace

char** TVX::TOOL::processArguments()
{
    return processArgv;
}

int main(int argc, char** argv)
{
    processArgv = argv;
    QCoreApplication app(argc, argv);
    QStringList arguments = app.arguments().mid(1);
    if (arguments.size() == 1 && (arguments.first() == QLatin1String("--help") || arguments.first() == QLatin1String("-h"))) {
        std::fputs(usageText().constData(), stdout);
        return 0;
    }
    const ToolCommand* command = nullptr;
    if (!arguments.isEmpty()) {
        for (const ToolCommand& candidate : commands) {
            if (arguments.first() == QLatin1String(candidate.name))
                command = &candidate;
        }
    }
    if (!command) {
        std::fputs(usageText().constData(), stderr);
        return 2;
    }
    try {
        return command->run(arguments.mid(1));
    } catch (const LimitError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        std::fputs(usageText().constData(), stderr);
        return 2;
    } catch (const UsageError&) {
        std::fputs(usageText().constData(), stderr);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
