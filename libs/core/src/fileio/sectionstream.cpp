#include "fileio/sectionstream.h"

#include "scene/tvxsceneitem.h"
#include "fileio/filereaderror.h"
#include "fileio/scanfilelog.h"

#include <QBitArray>
#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QIODevice>
#include <QLine>
#include <QLineF>
#include <QLocale>
#include <QMap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QTime>
#include <QUrl>
#include <QtEndian>

#include <algorithm>

namespace TVX::CORE {

void prepareScanFileStream(QDataStream& stream)
{
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setVersion(QDataStream::Qt_4_6);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

bool readTag(QDataStream& stream, quint32 tag)
{
    quint32 read = 0;
    stream >> read;
    return read == tag;
}

bool readBeginTag(QDataStream& stream, quint32 beginTag)
{
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    return readTag(stream, beginTag);
}

bool finishSection(QDataStream& stream, quint32 endTag, const char* module, int line)
{
    if (!readTag(stream, endTag))
        return false;
    if (!streamOk(stream))
        throw fileReadError(module, line);
    return true;
}

qint64 bytesLeft(const QDataStream& stream)
{
    const QIODevice* device = stream.device();
    return device ? device->bytesAvailable() : 0;
}

bool readable(const QDataStream& stream)
{
    return streamOk(stream) || (stream.device() && !stream.device()->atEnd());
}

void markReadToEnd(QDataStream& stream)
{
    if (QIODevice* device = stream.device())
        device->seek(device->size());
    stream.setStatus(QDataStream::ReadPastEnd);
}

bool fitsCount(QDataStream& stream, quint64 count, quint64 minItemBytes)
{
    const qint64 left = bytesLeft(stream);
    if (minItemBytes == 0 || count <= quint64(left) / minItemBytes)
        return true;
    markReadToEnd(stream);
    return false;
}

namespace {

constexpr quint32 nullLength = 0xFFFFFFFF;

// Checks the 32-bit length at the stream's position (not consumed): its payload of `bitsPerUnit`
// bits per counted unit must fit behind it. With fewer than four bytes left the reader itself fails.
bool lengthFits(QDataStream& stream, quint64 bitsPerUnit)
{
    QIODevice* device = stream.device();
    if (!device)
        return true;
    char raw[4];
    if (device->peek(raw, 4) != 4)
        return true;
    const quint32 length = qFromBigEndian<quint32>(raw);
    if (length == nullLength)
        return true;
    const quint64 payload = (quint64(length) * bitsPerUnit + 7) / 8;
    if (payload <= quint64(bytesLeft(stream) - 4))
        return true;
    markReadToEnd(stream);
    return false;
}

// Length units in bits: strings and byte arrays count bytes, bit arrays count bits.
constexpr quint64 byteUnit = 8;
constexpr quint64 bitUnit = 1;

// Type identifiers of the version-12 variant encoding (the Qt 4 numbering).
enum WireType : quint32 {
    Invalid = 0,
    Map = 8,
    List = 9,
    String = 10,
    StringList = 11,
    ByteArray = 12,
    BitArray = 13,
    Url = 17,
    Locale = 18,
    Hash = 28,
};

constexpr int maxVariantDepth = 32;
constexpr quint64 minVariantBytes = 5; // type and null flag
constexpr quint64 minStringBytes = 4;  // the length

// A value of fixed size on the wire, read as `Wire` and held as `T`.
template <typename T, typename Wire = T>
QVariant readPlain(QDataStream& stream, bool isNull)
{
    Wire wire{};
    stream >> wire;
    return isNull ? QVariant(QMetaType::fromType<T>()) : QVariant::fromValue(T(wire));
}

// A colour's type lives in QtGui, which tools that need no GUI do not load: the value is read
// through its meta type when the process has one, else its bytes are passed over.
QVariant readColour(QDataStream& stream, bool isNull)
{
    constexpr int colourBytes = 11; // colour model, alpha, three components, padding
    const QMetaType type(QMetaType::QColor);
    if (!type.isValid()) {
        qCDebug(lcScanFile) << "a colour value is skipped: no GUI library loaded";
        stream.skipRawData(colourBytes);
        return QVariant();
    }
    QVariant value(type);
    type.load(stream, value.data());
    return isNull ? QVariant(type) : value;
}

struct PlainType {
    quint32 wireType;
    int metaType;
    qint64 bytes; // with doubles at 8 bytes
    QVariant (*read)(QDataStream&, bool);
};

// long and unsigned long travel as 64-bit numbers, float as a double (double precision).
const PlainType plainTypes[] = {
    {1, QMetaType::Bool, 1, readPlain<bool>},
    {2, QMetaType::Int, 4, readPlain<qint32>},
    {3, QMetaType::UInt, 4, readPlain<quint32>},
    {4, QMetaType::LongLong, 8, readPlain<qint64>},
    {5, QMetaType::ULongLong, 8, readPlain<quint64>},
    {6, QMetaType::Double, 8, readPlain<double>},
    {7, QMetaType::QChar, 2, readPlain<QChar>},
    {14, QMetaType::QDate, 4, readPlain<QDate>},
    {15, QMetaType::QTime, 4, readPlain<QTime>},
    {16, QMetaType::QDateTime, 9, readPlain<QDateTime>},
    {19, QMetaType::QRect, 16, readPlain<QRect>},
    {20, QMetaType::QRectF, 32, readPlain<QRectF>},
    {21, QMetaType::QSize, 8, readPlain<QSize>},
    {22, QMetaType::QSizeF, 16, readPlain<QSizeF>},
    {23, QMetaType::QLine, 16, readPlain<QLine>},
    {24, QMetaType::QLineF, 32, readPlain<QLineF>},
    {25, QMetaType::QPoint, 8, readPlain<QPoint>},
    {26, QMetaType::QPointF, 16, readPlain<QPointF>},
    {67, QMetaType::QColor, 11, readColour},
    {129, QMetaType::Long, 8, readPlain<long, qint64>},
    {130, QMetaType::Short, 2, readPlain<short, qint16>},
    {131, QMetaType::Char, 1, readPlain<char, qint8>},
    {132, QMetaType::ULong, 8, readPlain<unsigned long, quint64>},
    {133, QMetaType::UShort, 2, readPlain<ushort, quint16>},
    {134, QMetaType::UChar, 1, readPlain<uchar, quint8>},
    {135, QMetaType::Float, 8, readPlain<float, double>},
    {137, QMetaType::SChar, 1, readPlain<signed char, qint8>},
};

const PlainType* plainTypeOfWire(quint32 wireType)
{
    for (const PlainType& type : plainTypes)
        if (type.wireType == wireType)
            return &type;
    return nullptr;
}

bool isPlainMetaType(int metaType)
{
    for (const PlainType& type : plainTypes)
        if (type.metaType == metaType)
            return true;
    return false;
}

template <typename T>
QVariant held(const T& value, bool isNull)
{
    return isNull ? QVariant(QMetaType::fromType<T>()) : QVariant::fromValue(value);
}

void readVariantAt(QDataStream& stream, QVariant& value, int depth);

// A u32 count, then that many items of at least `minItemBytes` each, read by `readItem` while the
// stream stays readable; none when the count cannot fit.
template <typename List, typename ReadItem>
List readCounted(QDataStream& stream, quint64 minItemBytes, ReadItem readItem)
{
    quint32 count = 0;
    stream >> count;
    List list;
    if (!fitsCount(stream, count, minItemBytes))
        return list;
    for (quint32 i = 0; i < count && readable(stream); ++i) {
        typename List::value_type item{};
        readItem(item);
        list.append(item);
    }
    return list;
}

template <typename Container>
void readStringKeyed(QDataStream& stream, Container& container, int depth)
{
    quint32 count = 0;
    stream >> count;
    if (!fitsCount(stream, count, minStringBytes + minVariantBytes))
        return;
    for (quint32 i = 0; i < count && readable(stream); ++i) {
        QString key;
        QVariant item;
        readString(stream, key);
        readVariantAt(stream, item, depth + 1);
        container.insert(key, item);
    }
}

void readVariantAt(QDataStream& stream, QVariant& value, int depth)
{
    value = QVariant();
    quint32 wireType = 0;
    qint8 isNull = 0;
    stream >> wireType >> isNull;
    if (const PlainType* plain = plainTypeOfWire(wireType)) {
        if (bytesLeft(stream) < plain->bytes) {
            markReadToEnd(stream);
            return;
        }
        value = plain->read(stream, isNull != 0);
        return;
    }
    if (depth >= maxVariantDepth && (wireType == Map || wireType == List || wireType == Hash)) {
        qCDebug(lcScanFile) << "variant nested deeper than" << maxVariantDepth;
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    switch (wireType) {
    case Invalid: {
        QString ignored; // an invalid variant is followed by an empty string
        readString(stream, ignored);
        return;
    }
    case String: {
        QString string;
        readString(stream, string);
        value = held(string, isNull);
        return;
    }
    case ByteArray: {
        QByteArray bytes;
        readByteArray(stream, bytes);
        value = held(bytes, isNull);
        return;
    }
    case Url: {
        QByteArray encoded;
        readByteArray(stream, encoded);
        value = held(QUrl(QString::fromLatin1(encoded)), isNull);
        return;
    }
    case Locale: {
        QString name;
        readString(stream, name);
        value = held(QLocale(name), isNull);
        return;
    }
    case BitArray: {
        QBitArray bits;
        if (lengthFits(stream, bitUnit))
            stream >> bits;
        value = held(bits, isNull);
        return;
    }
    case StringList: {
        const auto list = readCounted<QStringList>(stream, minStringBytes, [&stream](QString& string) {
            readString(stream, string);
        });
        value = held(list, isNull);
        return;
    }
    case List: {
        const auto list = readCounted<QVariantList>(stream, minVariantBytes, [&stream, depth](QVariant& item) {
            readVariantAt(stream, item, depth + 1);
        });
        value = held(list, isNull);
        return;
    }
    case Map: {
        QVariantMap map;
        readStringKeyed(stream, map, depth);
        value = held(map, isNull);
        return;
    }
    case Hash: {
        QVariantHash hash;
        readStringKeyed(stream, hash, depth);
        value = held(hash, isNull);
        return;
    }
    default:
        qCDebug(lcScanFile) << "variant of unsupported type" << wireType;
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
}

bool isStorableAt(const QVariant& value, int depth);

template <typename Container>
bool allStorable(const Container& container, int depth)
{
    return std::all_of(container.cbegin(), container.cend(),
                       [depth](const QVariant& item) { return isStorableAt(item, depth); });
}

bool isStorableAt(const QVariant& value, int depth)
{
    const int type = value.typeId();
    if (type == QMetaType::UnknownType || isPlainMetaType(type))
        return true;
    switch (type) {
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QBitArray:
    case QMetaType::QUrl:
    case QMetaType::QLocale:
        return true;
    case QMetaType::QVariantList:
        return depth < maxVariantDepth && allStorable(value.toList(), depth + 1);
    case QMetaType::QVariantMap:
        return depth < maxVariantDepth && allStorable(value.toMap(), depth + 1);
    case QMetaType::QVariantHash:
        return depth < maxVariantDepth && allStorable(value.toHash(), depth + 1);
    default:
        return false;
    }
}

} // namespace

void readString(QDataStream& stream, QString& string)
{
    string.clear();
    if (lengthFits(stream, byteUnit))
        stream >> string;
}

void readByteArray(QDataStream& stream, QByteArray& bytes)
{
    bytes.clear();
    if (lengthFits(stream, byteUnit))
        stream >> bytes;
}

void readVariant(QDataStream& stream, QVariant& value)
{
    readVariantAt(stream, value, 0);
}

bool isStorableVariant(const QVariant& value)
{
    return isStorableAt(value, 0);
}

void writeVariant(QDataStream& stream, const QVariant& value)
{
    if (isStorableVariant(value)) {
        stream << value;
        return;
    }
    qCWarning(lcScanFile) << "a scan file cannot store a value of type" << value.metaType().name();
    stream.setStatus(QDataStream::WriteFailed);
}

void readItemTrailer(QDataStream& stream, TVXSceneItemData& data)
{
    data.integers.clear();
    data.namedValues.clear();
    data.numberedValues.clear();
    readString(stream, data.text);

    quint32 count = 0;
    stream >> count;
    if (!fitsCount(stream, count, sizeof(qint32)))
        return;
    data.integers.reserve(qsizetype(count));
    for (quint32 i = 0; i < count && readable(stream); ++i) {
        qint32 value = 0;
        stream >> value;
        data.integers.append(value);
    }

    stream >> count;
    if (!fitsCount(stream, count, minStringBytes + sizeof(qint32) + minVariantBytes))
        return;
    for (quint32 i = 0; i < count && readable(stream); ++i) {
        QString key;
        qint32 number = 0;
        QVariant value;
        readString(stream, key);
        stream >> number;
        readVariant(stream, value);
        data.namedValues.insert(key, qMakePair(number, value));
    }

    stream >> count;
    if (!fitsCount(stream, count, sizeof(qint32) + minVariantBytes))
        return;
    for (quint32 i = 0; i < count && readable(stream); ++i) {
        qint32 key = 0;
        QVariant value;
        stream >> key;
        readVariant(stream, value);
        data.numberedValues.insert(key, value);
    }
}

void writeItemTrailer(QDataStream& stream, const TVXSceneItemData& data)
{
    stream << data.text << quint32(data.integers.size());
    for (qint32 value : data.integers)
        stream << value;
    stream << quint32(data.namedValues.size());
    for (auto it = data.namedValues.cbegin(); it != data.namedValues.cend(); ++it) {
        stream << it.key() << it.value().first;
        writeVariant(stream, it.value().second);
    }
    stream << quint32(data.numberedValues.size());
    for (auto it = data.numberedValues.cbegin(); it != data.numberedValues.cend(); ++it) {
        stream << it.key();
        writeVariant(stream, it.value());
    }
}

} // namespace TVX::CORE
