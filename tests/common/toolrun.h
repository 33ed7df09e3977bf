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

// The keys of a JSON object with the type of each value, in key order: "key:t" joined by spaces,
// t being one of a (array), b (bool), n (number), o (object), s (string), 0 (null).
QString jsonShape(const QJsonObject& object);

} // namespace TVX::TEST
