#include "project/projectmessages.h"

#include "fileio/tvxprojectserializer.h"

namespace TVX::CORE {

QString ProjectMessages::alreadyOpen()
{
    return tr("A project is already open. Close it before opening another one.\n");
}

QString ProjectMessages::lockFound(const QString& directory, const QStringList& users)
{
    QString message = tr("A lock file was found indicating that this directory is in use by another person or "
                         "application.\n\n");
    for (const QString& user : users) {
        message += tr("  user: %1\n").arg(user);
        message += tr("  directory: %1\n").arg(directory);
        message += tr("  lockfile: %1\n").arg(QStringLiteral("tvxlock~"));
    }
    return message;
}

QString ProjectMessages::lockNotRemoved(const QString& lockPath)
{
    return tr("The lock file %1 could not be removed. The project stays open.\n").arg(lockPath);
}

QString ProjectMessages::readFailure(const QString& projectPath, quint32 formatVersion, quint32 major, quint32 minor,
                                     quint32 patch)
{
    QString message = tr("An error occured reading the project file %1.\n\n").arg(projectPath);
    if (formatVersion > TVXProjectSerializer::currentFormatVersion) {
        message += tr("It was written with Tarvenix version: %1.%2.%3 using project format version: %4. ")
                       .arg(major)
                       .arg(minor)
                       .arg(patch)
                       .arg(formatVersion);
        message += tr("If this version is newer than the currently used version, you need to upgrade your Tarvenix "
                      "Software Suite.\n");
    }
    return message;
}

QString ProjectMessages::lockNotOwned(const QString& lockPath)
{
    return tr("The lock file %1 is no longer the one this application created; somebody else may have taken the "
              "project over. The project stays open.\n")
        .arg(lockPath);
}

QString ProjectMessages::olderFormat(quint32 formatVersion, quint32 major, quint32 minor, quint32 patch)
{
    return tr("Warning: Project file with was written with an older Tarvenix version (%1.%2.%3) using project format "
              "version: %4. ")
               .arg(major)
               .arg(minor)
               .arg(patch)
               .arg(formatVersion)
           + tr("If you save this project again, it can be re-opened only with applications supporting the new "
                "project format.\n");
}

QString ProjectMessages::cause(const QString& reason)
{
    return reason.isEmpty() ? QString() : tr("\nCause: %1\n").arg(reason);
}

QString ProjectMessages::readOnly()
{
    return tr("Changes could not be saved, because the project was opened in read-only mode.");
}

QString ProjectMessages::writeFailure(const QString& projectPath, const QString& reason)
{
    return tr("The project file %1 could not be written.\n").arg(projectPath) + cause(reason);
}

QString ProjectMessages::recovered(const QString& projectPath)
{
    return tr("The project file %1 was missing; it was restored from the copy that the last save left behind.\n")
        .arg(projectPath);
}

} // namespace TVX::CORE
