#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace TVX::TEST {

// One run of the built tvxtool as a separate process. The exit code stays -1 when the tool
// crashed or did not finish within five minutes.
struct ToolRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    // Standard output read as one JSON object.
    QJsonObject json() const;
};

ToolRun runTool(const QStringList& arguments, const QString& workingDirectory = QString());

} // namespace TVX::TEST
