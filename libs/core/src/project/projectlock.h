#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace TVX::CORE {

// The lock file "tvxlock~" of a project directory: plain text, one line "user:<name>" per holder.
// It exists while somebody has the project open for writing.
class ProjectLock final
{
public:
    static const QString fileName; // "tvxlock~"
    enum class Outcome { Created, HeldByOthers, NotCreated };

    explicit ProjectLock(const QString& directory);

    QString path() const;
    bool exists() const;

    // Creates the lock file holding "user:<userName>\n". HeldByOthers when it exists already,
    // NotCreated when it cannot be made or its line cannot be written (the project can then only
    // be read; a half-written lock file is removed again).
    Outcome acquire(const QString& userName);

    // The names of the lines that begin with "user:" (in this letter case), in file order, each cut
    // to 1024 characters. False when the lock file cannot be opened.
    bool readHolders(QStringList& users) const;

    // False when the lock file holds something other than what acquire() wrote: somebody deleted
    // it and took the project over. A lock file that is gone or cannot be read counts as ours.
    bool isStillOurs() const;

    // Removes the lock file if it exists; false when that fails.
    bool release();

private:
    QString m_path;
    QByteArray m_content; // what acquire() wrote
};

} // namespace TVX::CORE
