#pragma once

#include "fileio/tvxprojectcontent.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace TVX::CORE {

// Reads and writes the project file: a big-endian data stream (stream version 12) holding the
// header "TVXH", format and writer versions, the origin, the coordinate systems, the scan list and
// the item tree, each behind its tag. Reading accepts format versions up to 3 and leaves out what
// older formats lack (no coordinate systems below version 2); writing always writes version 3.
//
// A file is written to "<path>.tmp" first, flushed to the disk and renamed over the project file
// in one atomic step, so that a crash leaves either the old or the new file (and at worst a
// complete ".tmp" file that opening a project recovers). Writing failures throw
// std::ios_base::failure "file read error libs/core/src/fileio/tvxprojectserializer, line N":
// 508 when the old project file is write-protected or not a file (the ".tmp" file is removed
// then), 515 when the rename fails (the ".tmp" file stays as the only copy), 520 when the stream
// fails. errorString() then tells the cause.
class TVXProjectSerializer final
{
public:
    enum Mode { ReadOnly = 0, WriteOnly = 1 };

    static constexpr quint32 magic = 0x54565848; // "TVXH"
    static constexpr quint32 currentFormatVersion = 3;
    static constexpr quint32 streamVersion = 12;

    explicit TVXProjectSerializer(const QString& path);
    ~TVXProjectSerializer();
    TVXProjectSerializer(const TVXProjectSerializer&) = delete;
    TVXProjectSerializer& operator=(const TVXProjectSerializer&) = delete;

    QString path() const;

    // ReadOnly opens the project file, WriteOnly creates "<path>.tmp". False when that fails.
    bool open(Mode mode);
    void close();

    // Reads the whole project file (after open(ReadOnly)). False, with errorString() saying why,
    // when the file is not a project file of a readable format or is damaged anywhere; `content`
    // is then left partly filled. The header fields below are set as far as they were read.
    bool read(TVXProjectContent& content);
    // The same from the bytes of a project file.
    bool read(const QByteArray& bytes, TVXProjectContent& content);

    // Writes `content` (after open(WriteOnly)) and replaces the project file; throws as above.
    // `content.tree` starts with the root folder.
    void write(const TVXProjectContent& content);
    // The bytes write() puts into the file.
    static QByteArray encode(const TVXProjectContent& content);

    // Header of the file last read or written; 0 before.
    quint32 formatVersion() const;
    quint32 writerMajor() const;
    quint32 writerMinor() const;
    quint32 writerPatch() const;

    // Why the last read or write failed, naming the byte position or the file and the system's
    // reason; empty after a successful read.
    QString errorString() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
