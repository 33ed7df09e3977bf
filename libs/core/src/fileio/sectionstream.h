#pragma once

#include <QDataStream>
#include <QString>
#include <QVariant>

namespace TVX::CORE {

struct TVXSceneItemData;

// Stream helpers shared by the scan file's section readers and writers.
//
// Every count and length read from a file is checked against the bytes left in the stream's device
// before anything is allocated or looped over. A count that cannot fit leaves the stream as if it
// had been read to its end (device at its end, status ReadPastEnd): that is where Qt's own reading
// of the same bytes would end, only without allocating what the count claims. The device must be
// random-access (a file or a buffer).

// Big-endian, stream version 12 (Qt 4.6), doubles as 8 bytes.
void prepareScanFileStream(QDataStream& stream);

// A section's frame. readTag tells whether the next u32 is `tag`; readBeginTag first sets doubles
// to 8 bytes. finishSection reads the end tag and, when it matches but the stream failed before it,
// throws the read error of `module` at `line`.
bool readTag(QDataStream& stream, quint32 tag);
bool readBeginTag(QDataStream& stream, quint32 beginTag);
bool finishSection(QDataStream& stream, quint32 endTag, const char* module, int line);

inline bool streamOk(const QDataStream& stream)
{
    return stream.status() == QDataStream::Ok;
}
// Whether reading on is worth it: Qt's stream reads on after corrupt data (so a reader stays in
// step with what Qt would read), but past the end of the device every value reads as 0.
bool readable(const QDataStream& stream);
qint64 bytesLeft(const QDataStream& stream);
void markReadToEnd(QDataStream& stream);
// True when `count` items of at least `minItemBytes` bytes each can still be in the stream;
// otherwise marks the stream read to its end and returns false.
bool fitsCount(QDataStream& stream, quint64 count, quint64 minItemBytes);

// QString and QByteArray in Qt's encoding (32-bit byte length, 0xFFFFFFFF for null), their length
// checked first. A string of odd byte length sets ReadCorruptData, as Qt does.
void readString(QDataStream& stream, QString& string);
void readByteArray(QDataStream& stream, QByteArray& bytes);

// QVariant in Qt's version-12 encoding, for the types scan files carry: invalid, bool, the integer
// and floating-point types, QChar, QString, QStringList, QByteArray, QBitArray, QDate, QTime,
// QDateTime, QUrl, QLocale, QRect(F), QSize(F), QLine(F), QPoint(F), QColor (an invalid variant in a
// process without QtGui), and lists, maps and hashes of these nested up to 32 deep. Any other type
// sets ReadCorruptData: its length is unknown and Qt's own reader of it may allocate what the file
// claims or need a GUI application.
void readVariant(QDataStream& stream, QVariant& value);
bool isStorableVariant(const QVariant& value);
// Writes `value` when readVariant can read it back; otherwise logs its type and sets WriteFailed.
void writeVariant(QDataStream& stream, const QVariant& value);

// The descriptive trailer of 2D scene items and reference entries: a QString, u32 n × i32,
// u32 m × (QString key, i32, QVariant), u32 k × (i32 key, QVariant). Reading replaces the text,
// the integer list and the two maps of `data`; its number is not part of the trailer.
void readItemTrailer(QDataStream& stream, TVXSceneItemData& data);
void writeItemTrailer(QDataStream& stream, const TVXSceneItemData& data);

} // namespace TVX::CORE
