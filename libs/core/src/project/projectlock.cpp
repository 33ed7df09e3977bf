#include "project/projectlock.h"

#include <QDir>
#include <QFile>

namespace TVX::CORE {

namespace {

// A lock file holds a few short lines; nothing beyond this is looked at.
constexpr qint64 maximumLockFileSize = 1024 * 1024;
constexpr qsizetype maximumUserNameLength = 1024;

bool readLockFile(const QString& path, QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    content = file.read(maximumLockFileSize);
    return true;
}

} // namespace

const QString ProjectLock::fileName = QStringLiteral("tvxlock~");

ProjectLock::ProjectLock(const QString& directory) : m_path(QDir(directory).filePath(fileName)) {}

QString ProjectLock::path() const
{
    return m_path;
}

bool ProjectLock::exists() const
{
    return QFile::exists(m_path);
}

ProjectLock::Outcome ProjectLock::acquire(const QString& userName)
{
    if (exists())
        return Outcome::HeldByOthers;
    QFile file(m_path);
    // NewOnly: of two processes racing for the lock only one creates it.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return exists() ? Outcome::HeldByOthers : Outcome::NotCreated;
    m_content = "user:" + userName.toUtf8() + '\n';
    const bool written = file.write(m_content) == m_content.size() && file.flush();
    file.close();
    // A lock without its line would tell others nothing (and look taken over to us): without a
    // complete line there is no lock, and the project opens read-only.
    if (!written || file.error() != QFileDevice::NoError) {
        QFile::remove(m_path);
        m_content.clear();
        return Outcome::NotCreated;
    }
    return Outcome::Created;
}

bool ProjectLock::readHolders(QStringList& users) const
{
    QByteArray content;
    if (!readLockFile(m_path, content))
        return false;
    for (const QByteArray& line : content.split('\n')) {
        if (line.startsWith("user:"))
            users << QString::fromUtf8(line.mid(5)).left(maximumUserNameLength);
    }
    return true;
}

bool ProjectLock::isStillOurs() const
{
    QByteArray content;
    if (!exists() || !readLockFile(m_path, content))
        return true;
    return content == m_content;
}

bool ProjectLock::release()
{
    return !exists() || QFile::remove(m_path);
}

} // namespace TVX::CORE
