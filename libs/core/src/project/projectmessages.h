#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace TVX::CORE {

// The texts that the project operations return with their codes, for the main window and the
// command line to show. Paths appear as given.
class ProjectMessages final
{
    Q_DECLARE_TR_FUNCTIONS(TVX::CORE::ProjectMessages)

public:
    // Code 1.
    static QString alreadyOpen();
    // Code 3: the lock file's "user:" holders, each with the project directory and the lock name.
    static QString lockFound(const QString& directory, const QStringList& users);
    // Code 5.
    static QString lockNotRemoved(const QString& lockPath);
    // Code 7; format versions above the readable ones add the upgrade advice.
    static QString readFailure(const QString& projectPath, quint32 formatVersion, quint32 major, quint32 minor,
                               quint32 patch);
    // Code 8.
    static QString lockNotOwned(const QString& lockPath);
    // Code 9.
    static QString olderFormat(quint32 formatVersion, quint32 major, quint32 minor, quint32 patch);
    // A line with the technical cause, appended after a message; empty for an empty reason.
    static QString cause(const QString& reason);
    // Saving a project that was opened read-only.
    static QString readOnly();
    // Saving failed; names the file and the cause.
    static QString writeFailure(const QString& projectPath, const QString& reason);
    // Opening took the ".tmp" file of an interrupted save.
    static QString recovered(const QString& projectPath);
};

} // namespace TVX::CORE
