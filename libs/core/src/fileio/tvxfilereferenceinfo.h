#pragma once

#include "scene/tvxsreferenceobject.h"

#include <QDataStream>
#include <QString>

#include <memory>
#include <vector>

namespace TVX::CORE {

// The reference information section: the name of the coordinate system the references belong to,
// a flag, and the reference points and spheres of the scan (positions in the scan frame, metres).
class TVXFileReferenceInfo final
{
public:
    static constexpr quint32 beginTag = 0x150000;
    static constexpr quint32 endTag = 0x15FFFF;
    // Entry types: points and spheres are built; the two older kinds are read and dropped.
    enum EntryType : quint32 { PointEntry = 1, SphereEntry = 2, OldEntry3 = 3, OldEntry4 = 4 };

    TVXFileReferenceInfo();
    ~TVXFileReferenceInfo();

    // Resets to the defaults, then reads the section at the stream's position. False on a wrong
    // begin or end tag; throws the read error ("libs/core/src/fileio/tvxfilereferenceinfo",
    // line 203) when the stream failed before the end tag.
    bool read(QDataStream& stream);
    // Points as entries of type 1, spheres of type 2. An object that is neither sets the stream's
    // status to WriteFailed.
    void write(QDataStream& stream) const;
    // Empty name, flag false, no objects.
    void reset();

    QString name; // of the coordinate system
    bool flag = false;

    int objectCount() const;
    // The object at `index`; empty when out of range.
    std::shared_ptr<TVXSReferenceObject> object(int index) const;
    const std::vector<std::shared_ptr<TVXSReferenceObject>>& objects() const { return m_objects; }
    // Removes `count` objects from `index` on; false (and nothing removed) when count is not
    // positive or the run does not lie inside the list.
    bool removeObjects(int index, int count);
    void appendObject(const std::shared_ptr<TVXSReferenceObject>& object);

private:
    std::vector<std::shared_ptr<TVXSReferenceObject>> m_objects;
};

} // namespace TVX::CORE
