#pragma once

// Test data of the project tests: project files put together by hand from the format's table, and
// small scans written with the project's own scan writer (scanfixture.h).
#include "scanfixture.h"
#include "testfiles.h"

#include "project/projectitemscangroup.h"

#include <QByteArray>
#include <QDataStream>
#include <QFile>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <array>
#include <cmath>
#include <functional>

namespace TVX::TEST {

// A project file put together field by field, straight from the format's table, so that the
// tests do not depend on the serializer's own writer. Every field can be spoilt on its own.
struct ProjectFileFields {
    quint32 magic = 0x54565848; // "TVXH"
    quint32 formatVersion = 3;
    quint32 major = 2021, minor = 1, patch = 151;
    quint32 streamVersion = 12;
    quint32 fileBegin = 0x200000, projectBegin = 0x210000, originTag = 0x210001;
    double origin[3] = {1.5, -2.25, 310.0};
    quint32 coordinateSystemsTag = 0x210002;
    QByteArray coordinateSystems; // count, entries and current index, see coordinateSystems()
    quint32 scanListTag = 0x210003;
    QByteArray scanList;
    quint32 treeTag = 0x210004;
    QByteArray tree;
    quint32 projectEnd = 0x21FFFF, fileEnd = 0x2FFFFF;
};

inline QByteArray utf8Field(const QByteArray& text)
{
    return bytesOf(qint64(text.size())) + text;
}

inline QByteArray folderRecord(bool enabled, const QByteArray& name, qint64 children)
{
    return bytesOf(quint32(1), qint8(enabled)) + utf8Field(name) + bytesOf(children);
}

inline QByteArray scanRecord(bool enabled, const QByteArray& name, qint64 id)
{
    return bytesOf(quint32(2), qint8(enabled)) + utf8Field(name) + bytesOf(id);
}

inline QByteArray scanList(const QList<QByteArray>& names)
{
    QByteArray bytes = bytesOf(qint64(names.size()));
    for (const QByteArray& name : names)
        bytes += utf8Field(name);
    return bytes;
}

inline QByteArray coordinateSystems(const QList<QPair<QString, double>>& systems, quint32 current)
{
    // The seven values of a system are its base value + 0..6, enough to tell them apart.
    QByteArray bytes = bytesOf(quint32(systems.size()));
    for (const auto& [name, base] : systems) {
        bytes += bytesOf(name);
        for (int i = 0; i < 7; ++i)
            bytes += bytesOf(base + i);
    }
    return bytes + bytesOf(current);
}

inline ProjectFileFields typicalFields()
{
    ProjectFileFields f;
    f.coordinateSystems = coordinateSystems({{QStringLiteral("Site grid"), 10.0}, {QStringLiteral("Gauß-Krüger"), 20.0}}, 1);
    f.scanList = scanList({"scans/north.tvx", "scans/süd.tvx", "scans/east.tvx"});
    // scans( Facade( north#0 ) süd#1 -east#2 )
    f.tree = folderRecord(true, "scans", 3) + folderRecord(true, "Facade", 1) + scanRecord(true, "north", 0)
             + scanRecord(true, "süd", 1) + scanRecord(false, "east", 2);
    return f;
}

inline QByteArray build(const ProjectFileFields& f)
{
    QByteArray bytes = bytesOf(f.magic, f.formatVersion, f.major, f.minor, f.patch, f.streamVersion, f.fileBegin,
                               f.projectBegin, f.originTag, f.origin[0], f.origin[1], f.origin[2]);
    if (f.formatVersion >= 2)
        bytes += bytesOf(f.coordinateSystemsTag) + f.coordinateSystems;
    bytes += bytesOf(f.scanListTag) + f.scanList + bytesOf(f.treeTag) + f.tree + bytesOf(f.projectEnd, f.fileEnd);
    return bytes;
}

// The tree of the tree model and view tests: scans( A( a1#10 ) B( B1( b#11 ) ) s#12 -t#13 ), held
// by a nameless holder.
inline CORE::ProjectItemScanGroupPtr sampleHolder()
{
    const auto holder = CORE::ProjectItemScanGroup::create(QString());
    const auto root = CORE::ProjectItemScanGroup::create(QStringLiteral("scans"));
    holder->appendFolder(root);
    const auto a = CORE::ProjectItemScanGroup::create(QStringLiteral("A"));
    const auto b = CORE::ProjectItemScanGroup::create(QStringLiteral("B"));
    const auto b1 = CORE::ProjectItemScanGroup::create(QStringLiteral("B1"));
    root->appendScan(CORE::ProjectItemScan::create(QStringLiteral("s"), 12));
    const auto t = CORE::ProjectItemScan::create(QStringLiteral("t"), 13);
    t->setEnabled(false);
    root->appendScan(t);
    root->appendFolder(a);
    root->appendFolder(b);
    a->appendScan(CORE::ProjectItemScan::create(QStringLiteral("a1"), 10));
    b->appendFolder(b1);
    b1->appendScan(CORE::ProjectItemScan::create(QStringLiteral("b"), 11));
    return holder;
}

// The tree as text: a folder is name[flag](children), a scan name#id[flag]; flag + or -.
inline QString describe(const CORE::ProjectItemPtr& item)
{
    const QString flag = item->isEnabled() ? QStringLiteral("+") : QStringLiteral("-");
    if (item->isScan()) {
        return QStringLiteral("%1#%2%3")
            .arg(item->name())
            .arg(std::static_pointer_cast<CORE::ProjectItemScan>(item)->scanId())
            .arg(flag);
    }
    const auto folder = std::static_pointer_cast<CORE::ProjectItemScanGroup>(item);
    QStringList children;
    for (int i = 0; i < folder->childCount(); ++i)
        children << describe(folder->child(i));
    return QStringLiteral("%1%2(%3)").arg(item->name(), flag, children.join(QLatin1Char(' ')));
}

} // namespace TVX::TEST
