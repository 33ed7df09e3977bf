#pragma once

#include <QList>
#include <QMap>
#include <QPair>
#include <QString>
#include <QVariant>

#include <memory>

namespace TVX::CORE {

// The descriptive block that every record carries. The scan file stores it as the trailer of each
// 2D item and reference entry: the text, the integer list and the two maps; the number is the last
// constructor argument of the 2D records.
struct TVXSceneItemData {
    QString text;
    quint32 number = 0;
    QList<qint32> integers;
    QMap<QString, QPair<qint32, QVariant>> namedValues;
    QMap<qint32, QVariant> numberedValues;
};

// Base of the records in which scan files keep 2D annotations and reference objects.
class TVXSceneItem
{
public:
    TVXSceneItem();
    TVXSceneItem(const TVXSceneItem& other);
    TVXSceneItem& operator=(const TVXSceneItem& other);
    virtual ~TVXSceneItem();

    // 0 for a plain record, 1 for reference objects, 2 for 2D records.
    virtual quint32 category() const;
    // A new record copied from this one. Only the reference objects clone as their own class: a
    // 2D record clones into a plain record that holds just a copy of the common block.
    virtual std::shared_ptr<TVXSceneItem> clone() const;

    const TVXSceneItemData& data() const { return *m_data; }
    TVXSceneItemData& data() { return *m_data; }

private:
    std::unique_ptr<TVXSceneItemData> m_data;
};

using TVXSceneItemPtr = std::shared_ptr<TVXSceneItem>;

} // namespace TVX::CORE
