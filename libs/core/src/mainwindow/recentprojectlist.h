#pragma once

#include <QString>
#include <QStringList>

class QSettings;

namespace TVX::CORE {

// The ten most recently opened projects, position 0 the newest, kept in the settings under
// "global/recently_used_projectfiles/0" … "/9" (empty entries stand for unused positions).
class RecentProjectList final
{
public:
    static constexpr int size = 10;

    // Reads the ten keys; values that are not strings count as empty.
    void load(const QSettings& settings);
    // Writes all ten keys.
    void save(QSettings& settings) const;

    // A path already in the list moves to the top and the entries above it move down by one;
    // otherwise everything moves down by one, the last entry drops out and the path takes the top.
    void add(const QString& path);

    // Empty for a position outside 0 … 9.
    QString at(int position) const;
    const QStringList& entries() const { return m_entries; }

    // How a menu shows an entry: native separators, and beyond 60 characters "..." and the
    // last 57 of them.
    static QString displayText(const QString& path);

private:
    QStringList m_entries = QStringList(size, QString());
};

} // namespace TVX::CORE
