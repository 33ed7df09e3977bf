#include "mainwindow/recentprojectlist.h"

#include <QDir>
#include <QSettings>

namespace TVX::CORE {

namespace {

QString key(int position)
{
    return QStringLiteral("global/recently_used_projectfiles/%1").arg(position);
}

} // namespace

void RecentProjectList::load(const QSettings& settings)
{
    for (int i = 0; i < size; ++i) {
        const QVariant value = settings.value(key(i));
        m_entries[i] = value.typeId() == QMetaType::QString ? value.toString() : QString();
    }
}

void RecentProjectList::save(QSettings& settings) const
{
    for (int i = 0; i < size; ++i)
        settings.setValue(key(i), m_entries[i]);
}

void RecentProjectList::add(const QString& path)
{
    const qsizetype existing = m_entries.indexOf(path);
    m_entries.removeAt(existing >= 0 ? existing : size - 1);
    m_entries.prepend(path);
}

QString RecentProjectList::at(int position) const
{
    return position >= 0 && position < size ? m_entries[position] : QString();
}

QString RecentProjectList::displayText(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    return native.size() > 60 ? QStringLiteral("...") + native.right(57) : native;
}

} // namespace TVX::CORE
