#include "fileio/tvxprojectserializer.h"

#include "fileio/filereaderror.h"
#include "scene/softwareversion.h"

#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QtEndian>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

Q_LOGGING_CATEGORY(lcProjectFile, "tvx.fileio.project", QtWarningMsg)

namespace TVX::CORE {

namespace {

// Version of the software that writes the file, stored in its header.
constexpr quint32 writtenMajor = SoftwareVersion::major;
constexpr quint32 writtenMinor = SoftwareVersion::minor;
constexpr quint32 writtenPatch = SoftwareVersion::patch;

constexpr quint32 fileBeginTag = 0x200000;
constexpr quint32 projectBeginTag = 0x210000;
constexpr quint32 originTag = 0x210001;
constexpr quint32 coordinateSystemsTag = 0x210002;
constexpr quint32 scanListTag = 0x210003;
constexpr quint32 treeTag = 0x210004;
constexpr quint32 projectEndTag = 0x21FFFF;
constexpr quint32 fileEndTag = 0x2FFFFF;

constexpr quint32 folderRecord = TVXProjectContent::TreeRecord::Folder;
constexpr quint32 scanRecord = TVXProjectContent::TreeRecord::Scan;

// The smallest tree record: kind, flag, name length (of an empty name) and the child count or
// identifier. Every count that a record announces must fit into the bytes that remain.
constexpr qint64 minimumRecordSize = 4 + 1 + 8 + 8;
// Deeper folder nesting is refused, so that no tree can exhaust the stack of code that walks it.
constexpr int maximumFolderDepth = 1000;
// Project files are small; anything bigger is not read into memory.
constexpr qint64 maximumFileSize = qint64(64) * 1024 * 1024;

const char* const moduleName = "libs/core/src/fileio/tvxprojectserializer";

// Reads big-endian values from a byte buffer and never beyond it.
class Cursor
{
public:
    explicit Cursor(const QByteArray& bytes) : m_data(bytes.constData()), m_size(bytes.size()) {}

    qint64 position() const { return m_position; }
    qint64 remaining() const { return m_size - m_position; }

    bool u32(quint32& value) { return fixed(value); }
    bool i64(qint64& value) { return fixed(value); }
    bool i8(qint8& value) { return fixed(value); }
    bool f64(double& value)
    {
        quint64 bits = 0;
        if (!fixed(bits))
            return false;
        std::memcpy(&value, &bits, sizeof value);
        return true;
    }
    // An i64 byte count followed by that many bytes of UTF-8.
    bool utf8(QString& value)
    {
        qint64 length = 0;
        if (!i64(length) || length < 0 || length > remaining())
            return false;
        value = QString::fromUtf8(m_data + m_position, qsizetype(length));
        m_position += length;
        return true;
    }
    // A Qt string: u32 byte count (0xFFFFFFFF for a null string), then UTF-16 big-endian.
    bool qstring(QString& value)
    {
        quint32 bytes = 0;
        if (!u32(bytes))
            return false;
        if (bytes == 0xFFFFFFFFu) {
            value = QString();
            return true;
        }
        if (bytes % 2 != 0 || qint64(bytes) > remaining())
            return false;
        value.resize(qsizetype(bytes / 2));
        qFromBigEndian<char16_t>(m_data + m_position, qsizetype(bytes / 2), value.data());
        m_position += bytes;
        return true;
    }

private:
    template<typename T>
    bool fixed(T& value)
    {
        if (remaining() < qint64(sizeof(T)))
            return false;
        value = qFromBigEndian<T>(m_data + m_position);
        m_position += qint64(sizeof(T));
        return true;
    }

    const char* m_data;
    qint64 m_size;
    qint64 m_position{0};
};

} // namespace

struct TVXProjectSerializer::Private {
    QString path;
    QFile file;
    quint32 formatVersion{0};
    quint32 writerMajor{0};
    quint32 writerMinor{0};
    quint32 writerPatch{0};
    QString error;

    bool fail(const Cursor& cursor, const QString& what)
    {
        error = QStringLiteral("%1 at byte %2 of %3").arg(what).arg(cursor.position()).arg(path);
        qCInfo(lcProjectFile) << error;
        return false;
    }
    bool expectTag(Cursor& cursor, quint32 expected, const char* name)
    {
        quint32 tag = 0;
        if (!cursor.u32(tag))
            return fail(cursor, QStringLiteral("file ends before the %1 tag").arg(QLatin1String(name)));
        if (tag != expected) {
            return fail(cursor, QStringLiteral("%1 tag 0x%2 expected, 0x%3 found")
                                    .arg(QLatin1String(name))
                                    .arg(expected, 0, 16)
                                    .arg(tag, 0, 16));
        }
        return true;
    }
    bool readHeader(Cursor& cursor);
    bool readCoordinateSystems(Cursor& cursor, TVXProjectContent& content);
    bool readScanList(Cursor& cursor, TVXProjectContent& content);
    bool readTree(Cursor& cursor, TVXProjectContent& content);
};

bool TVXProjectSerializer::Private::readHeader(Cursor& cursor)
{
    quint32 fileMagic = 0;
    if (!cursor.u32(fileMagic) || fileMagic != magic)
        return fail(cursor, QStringLiteral("no project file header"));
    quint32 version = 0;
    if (!cursor.u32(version))
        return fail(cursor, QStringLiteral("file ends in the header"));
    formatVersion = version;
    quint32 major = 0, minor = 0, patch = 0;
    const bool writerRead = cursor.u32(major) && cursor.u32(minor) && cursor.u32(patch);
    writerMajor = major;
    writerMinor = minor;
    writerPatch = patch;
    if (!writerRead)
        return fail(cursor, QStringLiteral("file ends in the header"));
    if (formatVersion > currentFormatVersion)
        return fail(cursor, QStringLiteral("unsupported project format version %1").arg(formatVersion));
    quint32 stream = 0;
    if (!cursor.u32(stream))
        return fail(cursor, QStringLiteral("file ends in the header"));
    if (stream != streamVersion)
        return fail(cursor, QStringLiteral("unsupported stream version %1").arg(stream));
    return true;
}

bool TVXProjectSerializer::Private::readCoordinateSystems(Cursor& cursor, TVXProjectContent& content)
{
    quint32 count = 0;
    if (!cursor.u32(count))
        return fail(cursor, QStringLiteral("file ends in the coordinate systems"));
    // Each entry holds at least a string length and seven doubles.
    if (qint64(count) > cursor.remaining() / (4 + 7 * 8))
        return fail(cursor, QStringLiteral("%1 coordinate systems do not fit into the file").arg(count));
    content.coordinateSystems.reserve(count);
    for (quint32 i = 0; i < count; ++i) {
        TVXProjectContent::CoordinateSystem system;
        if (!cursor.qstring(system.name))
            return fail(cursor, QStringLiteral("bad name of coordinate system %1").arg(i));
        for (double& value : system.values) {
            if (!cursor.f64(value))
                return fail(cursor, QStringLiteral("file ends in coordinate system %1").arg(i));
        }
        content.coordinateSystems.push_back(std::move(system));
    }
    if (!cursor.u32(content.currentCoordinateSystem))
        return fail(cursor, QStringLiteral("file ends before the current coordinate system"));
    return true;
}

bool TVXProjectSerializer::Private::readScanList(Cursor& cursor, TVXProjectContent& content)
{
    qint64 count = 0;
    if (!cursor.i64(count))
        return fail(cursor, QStringLiteral("file ends in the scan list"));
    // Each entry holds at least its length.
    if (count < 0 || count > cursor.remaining() / 8)
        return fail(cursor, QStringLiteral("scan count %1 does not fit into the file").arg(count));
    content.scans.reserve(qsizetype(count));
    for (qint64 i = 0; i < count; ++i) {
        QString name;
        if (!cursor.utf8(name))
            return fail(cursor, QStringLiteral("bad name of scan %1").arg(i));
        content.scans.append(name);
    }
    return true;
}

bool TVXProjectSerializer::Private::readTree(Cursor& cursor, TVXProjectContent& content)
{
    // Depth first: every record belongs to the folder on top of the stack, and a folder stays
    // there until as many records as it announced children have been read for it. The stack starts
    // with a holder that takes exactly one record, the root folder.
    std::vector<qint64> stack{1};
    qint64 pendingTotal = 1;
    while (!stack.empty()) {
        if (stack.back() == 0) {
            stack.pop_back();
            continue;
        }
        const bool atRoot = content.tree.empty();
        --stack.back();
        --pendingTotal;

        TVXProjectContent::TreeRecord record;
        qint8 enabled = 0;
        if (!cursor.u32(record.kind))
            return fail(cursor, QStringLiteral("file ends in the tree"));
        if (record.kind != folderRecord && record.kind != scanRecord)
            return fail(cursor, QStringLiteral("unknown tree record kind %1").arg(record.kind));
        if (atRoot && record.kind != folderRecord)
            return fail(cursor, QStringLiteral("the tree does not start with a folder"));
        if (!cursor.i8(enabled) || !cursor.utf8(record.name) || !cursor.i64(record.number))
            return fail(cursor, QStringLiteral("file ends in a tree record"));
        record.enabled = enabled != 0;
        const qint64 number = record.number;
        const QString name = record.name;
        content.tree.push_back(std::move(record));
        if (content.tree.back().kind == scanRecord)
            continue;
        if (number < 0 || number > cursor.remaining() / minimumRecordSize - pendingTotal)
            return fail(cursor, QStringLiteral("folder \"%1\" claims %2 children, more than follow").arg(name).arg(number));
        if (number == 0)
            continue;
        if (int(stack.size()) > maximumFolderDepth)
            return fail(cursor, QStringLiteral("folders nested deeper than %1 levels").arg(maximumFolderDepth));
        stack.push_back(number);
        pendingTotal += number;
    }
    return true;
}

TVXProjectSerializer::TVXProjectSerializer(const QString& path) : d(std::make_unique<Private>())
{
    d->path = path;
}

TVXProjectSerializer::~TVXProjectSerializer() = default;

QString TVXProjectSerializer::path() const
{
    return d->path;
}

bool TVXProjectSerializer::open(Mode mode)
{
    close();
    if (mode == ReadOnly) {
        d->file.setFileName(d->path);
        return d->file.open(QIODevice::ReadOnly);
    }
    d->file.setFileName(d->path + QStringLiteral(".tmp"));
    return d->file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void TVXProjectSerializer::close()
{
    if (d->file.isOpen())
        d->file.close();
}

bool TVXProjectSerializer::read(TVXProjectContent& content)
{
    if (!d->file.isOpen() || !d->file.isReadable()) {
        d->error = QStringLiteral("%1 is not open for reading").arg(d->path);
        return false;
    }
    if (d->file.size() > maximumFileSize) {
        d->error = QStringLiteral("%1 is too big for a project file (%2 bytes)").arg(d->path).arg(d->file.size());
        return false;
    }
    d->file.seek(0);
    return read(d->file.readAll(), content);
}

bool TVXProjectSerializer::read(const QByteArray& bytes, TVXProjectContent& content)
{
    d->formatVersion = d->writerMajor = d->writerMinor = d->writerPatch = 0;
    d->error.clear();
    Cursor cursor(bytes);
    if (!d->readHeader(cursor) || !d->expectTag(cursor, fileBeginTag, "file begin")
        || !d->expectTag(cursor, projectBeginTag, "project begin") || !d->expectTag(cursor, originTag, "origin"))
        return false;
    for (double& value : content.origin) {
        if (!cursor.f64(value))
            return d->fail(cursor, QStringLiteral("file ends in the origin"));
    }
    if (d->formatVersion >= 2) {
        if (!d->expectTag(cursor, coordinateSystemsTag, "coordinate systems") || !d->readCoordinateSystems(cursor, content))
            return false;
    }
    return d->expectTag(cursor, scanListTag, "scan list") && d->readScanList(cursor, content)
           && d->expectTag(cursor, treeTag, "tree") && d->readTree(cursor, content)
           && d->expectTag(cursor, projectEndTag, "project end") && d->expectTag(cursor, fileEndTag, "file end");
}

QByteArray TVXProjectSerializer::encode(const TVXProjectContent& content)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_4_6); // stream version 12
    out.setByteOrder(QDataStream::BigEndian);
    out.setFloatingPointPrecision(QDataStream::DoublePrecision);
    const auto writeUtf8 = [&out](const QString& text) {
        const QByteArray utf8 = text.toUtf8();
        out << qint64(utf8.size());
        out.writeRawData(utf8.constData(), int(utf8.size()));
    };

    out << magic << currentFormatVersion << writtenMajor << writtenMinor << writtenPatch << streamVersion;
    out << fileBeginTag << projectBeginTag << originTag;
    for (double value : content.origin)
        out << value;
    out << coordinateSystemsTag << quint32(content.coordinateSystems.size());
    for (const auto& system : content.coordinateSystems) {
        out << system.name;
        for (double value : system.values)
            out << value;
    }
    out << content.currentCoordinateSystem;
    out << scanListTag << qint64(content.scans.size());
    for (const QString& scan : content.scans)
        writeUtf8(scan);

    out << treeTag;
    for (const TVXProjectContent::TreeRecord& record : content.tree) {
        out << record.kind << qint8(record.enabled ? 1 : 0);
        writeUtf8(record.name);
        out << record.number;
    }
    out << projectEndTag << fileEndTag;
    return bytes;
}

void TVXProjectSerializer::write(const TVXProjectContent& content)
{
    const QString temporary = d->path + QStringLiteral(".tmp");
    if (!d->file.isOpen() || !d->file.isWritable() || d->file.fileName() != temporary)
        throw fileReadError(moduleName, 520);
    const QByteArray bytes = encode(content);
    // The bytes reach the disk before the rename, so that a crash leaves the old or the new file.
    const bool written = d->file.write(bytes) == bytes.size() && d->file.flush() && ::fsync(d->file.handle()) == 0;
    const QString writeError = d->file.errorString();
    d->file.close();
    if (!written || d->file.error() != QFileDevice::NoError) {
        d->error = QStringLiteral("%1: %2").arg(temporary, writeError);
        QFile::remove(temporary);
        throw fileReadError(moduleName, 520);
    }
    d->formatVersion = currentFormatVersion;
    d->writerMajor = writtenMajor;
    d->writerMinor = writtenMinor;
    d->writerPatch = writtenPatch;

    // One rename replaces the old file atomically, so there is no moment without a project file
    // (instead of removing the old file first). A write-protected file, or something that is not
    // a file, is refused before, as its removal would have been.
    const QFileInfo old(d->path);
    if (old.exists() && (!old.isFile() || !old.isWritable())) {
        d->error = QStringLiteral("%1 is write-protected or not a file and cannot be replaced").arg(d->path);
        QFile::remove(temporary);
        throw fileReadError(moduleName, 508);
    }
    if (std::rename(QFile::encodeName(temporary).constData(), QFile::encodeName(d->path).constData()) != 0) {
        d->error = QStringLiteral("renaming %1: %2").arg(temporary, QString::fromLocal8Bit(std::strerror(errno)));
        throw fileReadError(moduleName, 515);
    }
}

quint32 TVXProjectSerializer::formatVersion() const
{
    return d->formatVersion;
}

quint32 TVXProjectSerializer::writerMajor() const
{
    return d->writerMajor;
}

quint32 TVXProjectSerializer::writerMinor() const
{
    return d->writerMinor;
}

quint32 TVXProjectSerializer::writerPatch() const
{
    return d->writerPatch;
}

QString TVXProjectSerializer::errorString() const
{
    return d->error;
}

} // namespace TVX::CORE
