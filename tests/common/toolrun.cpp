#include "toolrun.h"

#include <QJsonDocument>
#include <QProcess>

namespace TVX::TEST {

QJsonObject ToolRun::json() const
{
    return QJsonDocument::fromJson(out).object();
}

QString jsonShape(const QJsonObject& object)
{
    QStringList parts;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const char* type = "0";
        switch (it.value().type()) {
        case QJsonValue::Array: type = "a"; break;
        case QJsonValue::Bool: type = "b"; break;
        case QJsonValue::Double: type = "n"; break;
        case QJsonValue::Object: type = "o"; break;
        case QJsonValue::String: type = "s"; break;
        default: break;
        }
        parts << it.key() + QLatin1Char(':') + QLatin1String(type);
    }
    return parts.join(QLatin1Char(' '));
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
