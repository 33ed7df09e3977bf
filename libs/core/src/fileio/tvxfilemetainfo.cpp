#include "fileio/tvxfilemetainfo.h"

#include "fileio/filereaderror.h"
#include "fileio/sectionstream.h"

#include <algorithm>

namespace TVX::CORE {

namespace {
constexpr const char* module = "libs/core/src/fileio/tvxfilemetainfo";
constexpr int streamErrorLine = 113;

int textIndex(quint32 tag)
{
    const auto& tags = TVXFileMetaInfo::textTags();
    const auto it = std::find(tags.cbegin(), tags.cend(), tag);
    return it == tags.cend() ? -1 : int(it - tags.cbegin());
}
} // namespace

TVXFileMetaInfo::TVXFileMetaInfo() = default;

const std::array<quint32, 16>& TVXFileMetaInfo::textTags()
{
    static const std::array<quint32, 16> tags = {0x140001, 0x140002, 0x140003, 0x140004, 0x140102, 0x140103,
                                                 0x140104, 0x140201, 0x140202, 0x140203, 0x140302, 0x140F01,
                                                 0x140F02, 0x140F03, 0x140F04, 0x140F05};
    return tags;
}

bool TVXFileMetaInfo::isTextTag(quint32 tag)
{
    return textIndex(tag) >= 0;
}

QString TVXFileMetaInfo::text(quint32 tag) const
{
    const int index = textIndex(tag);
    return index < 0 ? QString() : m_texts[std::size_t(index)];
}

void TVXFileMetaInfo::setText(quint32 tag, const QString& text)
{
    const int index = textIndex(tag);
    if (index >= 0)
        m_texts[std::size_t(index)] = text;
}

void TVXFileMetaInfo::reset()
{
    for (QString& text : m_texts)
        text = QString();
    dateTime = QDateTime();
    number = 0;
    extra.clear();
}

bool TVXFileMetaInfo::read(QDataStream& stream)
{
    reset();
    if (!readBeginTag(stream, beginTag))
        return false;
    quint32 tag = 0;
    // Every pass consumes at least the tag, and a stream at its end fails the value: this ends.
    for (stream >> tag; tag != endTag; stream >> tag) {
        if (const int index = textIndex(tag); index >= 0) {
            readString(stream, m_texts[std::size_t(index)]);
        } else if (tag == dateTimeTag) {
            stream >> dateTime;
        } else if (tag == numberTag) {
            stream >> number;
        } else {
            QVariant value;
            readVariant(stream, value);
            extra.insert(tag, value);
        }
        if (!streamOk(stream))
            throw fileReadError(module, streamErrorLine);
    }
    return true;
}

void TVXFileMetaInfo::write(QDataStream& stream) const
{
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << beginTag;
    for (std::size_t i = 0; i < m_texts.size(); ++i)
        if (!m_texts[i].isNull())
            stream << textTags()[i] << m_texts[i];
    if (!dateTime.isNull())
        stream << dateTimeTag << dateTime;
    if (number != 0)
        stream << numberTag << number;
    for (auto it = extra.cbegin(); it != extra.cend(); ++it) {
        if (isTextTag(it.key()) || it.key() == dateTimeTag || it.key() == numberTag || it.key() == endTag)
            continue;
        stream << it.key();
        writeVariant(stream, it.value());
    }
    stream << endTag;
}

} // namespace TVX::CORE
