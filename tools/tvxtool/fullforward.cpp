// The commands that tvxtool leaves to tvxtool-full (see toolcommand.h): each starts it in this
// process's place with the same arguments, so that its output and exit code are the command's.
#include "projectcommand.h"
#include "toolcommand.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

namespace TVX::TOOL {

void runInFullTool()
{
    const QString full = QCoreApplication::applicationDirPath() + QStringLiteral("/tvxtool-full");
    const QByteArray program = QFile::encodeName(full);
    char** arguments = processArguments();
    std::fflush(nullptr);
    ::execv(program.constData(), arguments);
    throw CommandError(
        QStringLiteral("cannot start %1: %2").arg(full, QString::fromLocal8Bit(std::strerror(errno))).toStdString());
}

int runAnnotations(const QStringList&)
{
    runInFullTool();
}

int runDemo(const QStringList&)
{
    runInFullTool();
}

int runProjectScans(const QString&)
{
    runInFullTool();
}

} // namespace TVX::TOOL
