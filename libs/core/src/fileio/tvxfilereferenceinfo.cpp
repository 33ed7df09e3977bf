#include "fileio/tvxfilereferenceinfo.h"

#include "scene/tvxsreferencepoint.h"
#include "scene/tvxsreferencesphere.h"
#include "fileio/scanfilelog.h"
#include "fileio/sectionstream.h"

namespace TVX::CORE {

namespace {
constexpr const char* module = "libs/core/src/fileio/tvxfilereferenceinfo";
constexpr int streamErrorLine = 203;
// Smallest entry: a type of no known kind, then five doubles, an empty name and the flag.
constexpr quint64 minEntryBytes = sizeof(quint32) + 5 * sizeof(double) + sizeof(quint32) + 1;

// One entry; the object it builds, or none for the kinds that are dropped.
std::shared_ptr<TVXSReferenceObject> readEntry(QDataStream& stream)
{
    quint32 type = 0;
    stream >> type;
    TVXSReferencePoint::Values values{};
    if (type == TVXFileReferenceInfo::PointEntry || type == TVXFileReferenceInfo::SphereEntry) {
        for (std::size_t i = 0; i < 5; ++i)
            stream >> values[i];
    } else if (type == TVXFileReferenceInfo::OldEntry3 || type == TVXFileReferenceInfo::OldEntry4) {
        // Six numbers into five places: the third lands on the second, which is lost (as the
        // format's readers have always done).
        stream >> values[0] >> values[1] >> values[1] >> values[2] >> values[3] >> values[4];
    }
    for (std::size_t i = 5; i < 10; ++i)
        stream >> values[i];
    QString name;
    bool flag = false;
    readString(stream, name);
    stream >> flag;
    if (type != TVXFileReferenceInfo::PointEntry && type != TVXFileReferenceInfo::SphereEntry)
        return nullptr;

    std::shared_ptr<TVXSReferencePoint> object;
    if (type == TVXFileReferenceInfo::PointEntry)
        object = std::make_shared<TVXSReferencePoint>(name, values);
    else
        object = std::make_shared<TVXSReferenceSphere>(name, values);
    object->setFlag(flag);
    readItemTrailer(stream, object->data());
    return object;
}
} // namespace

TVXFileReferenceInfo::TVXFileReferenceInfo() = default;
TVXFileReferenceInfo::~TVXFileReferenceInfo() = default;

void TVXFileReferenceInfo::reset()
{
    name.clear();
    flag = false;
    m_objects.clear();
}

bool TVXFileReferenceInfo::read(QDataStream& stream)
{
    reset();
    if (!readBeginTag(stream, beginTag))
        return false;
    stream >> flag;
    readString(stream, name);
    qint32 count = 0;
    stream >> count;
    if (count > 0 && fitsCount(stream, quint64(count), minEntryBytes)) {
        for (qint32 i = 0; i < count && readable(stream); ++i)
            if (auto object = readEntry(stream))
                m_objects.push_back(object);
    }
    return finishSection(stream, endTag, module, streamErrorLine);
}

void TVXFileReferenceInfo::write(QDataStream& stream) const
{
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << beginTag << flag << name << qint32(m_objects.size());
    for (const auto& object : m_objects) {
        const auto* point = dynamic_cast<const TVXSReferencePoint*>(object.get());
        if (!point) {
            qCWarning(lcScanFile) << "a scan file stores reference points and spheres only, not kind" << object->kind();
            stream.setStatus(QDataStream::WriteFailed);
            return;
        }
        stream << quint32(dynamic_cast<const TVXSReferenceSphere*>(point) ? SphereEntry : PointEntry);
        for (double value : point->values())
            stream << value;
        stream << point->name() << point->flag();
        writeItemTrailer(stream, point->data());
    }
    stream << endTag;
}

int TVXFileReferenceInfo::objectCount() const
{
    return int(m_objects.size());
}

std::shared_ptr<TVXSReferenceObject> TVXFileReferenceInfo::object(int index) const
{
    if (index < 0 || index >= objectCount())
        return nullptr;
    return m_objects[std::size_t(index)];
}

bool TVXFileReferenceInfo::removeObjects(int index, int count)
{
    if (count <= 0 || index < 0 || qint64(index) + count > objectCount())
        return false;
    m_objects.erase(m_objects.begin() + index, m_objects.begin() + index + count);
    return true;
}

void TVXFileReferenceInfo::appendObject(const std::shared_ptr<TVXSReferenceObject>& object)
{
    m_objects.push_back(object);
}

} // namespace TVX::CORE
