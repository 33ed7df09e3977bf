#include "toolrun.h"

#include <QJsonDocument>
#include <QProcess>

namespace TVX::TEST {

QJsonObject ToolRun::json() const
{
    return QJsonDocument::fromJson(out).object();
}

ToolRun runTool(const QStringList& arguments, const QString& workingDirectory)
{
    QProcess process;
    process.setWorkingDirectory(workingDirectory);
    process.start(QStringLiteral(TVX_BIN_DIR "/tvxtool"), arguments);
    ToolRun run;
    // The demo scene of the tool tests takes long under the sanitizers.
    if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit)
        return run;
    run.exitCode = process.exitCode();
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

} // namespace TVX::TEST
