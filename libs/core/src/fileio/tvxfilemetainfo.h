#pragma once

#include <QDataStream>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QVariant>

#include <array>

namespace TVX::CORE {

// The meta information section: sixteen texts, a date and time, a number, and the values of tags
// the viewer does not know. The files do not name the texts, so they are exposed by their tags.
class TVXFileMetaInfo final
{
public:
    static constexpr quint32 beginTag = 0x140000;
    static constexpr quint32 endTag = 0x14FFFF;
    static constexpr quint32 dateTimeTag = 0x140101;
    static constexpr quint32 numberTag = 0x140301;

    TVXFileMetaInfo();

    // The tags of the text fields 1 to 16, in that order.
    static const std::array<quint32, 16>& textTags();
    static bool isTextTag(quint32 tag);

    // The text of a text tag; a null string for any other tag.
    QString text(quint32 tag) const;
    // Ignored for a tag that is not a text tag.
    void setText(quint32 tag, const QString& text);

    // Resets to the defaults, then reads (tag, value) pairs up to the end tag. False on a wrong
    // begin tag; throws the read error ("libs/core/src/fileio/tvxfilemetainfo", line 113) when the
    // stream fails on any value.
    bool read(QDataStream& stream);
    // Writes the fields that differ from their defaults. Extra values under a tag of a known field
    // or under the end tag are left out: they would be read back as that field. An extra value of
    // a type the section cannot store sets the stream's status to WriteFailed.
    void write(QDataStream& stream) const;
    // Null texts, null date and time, number 0, no extra values.
    void reset();

    QDateTime dateTime;
    quint32 number = 0;
    // Values of unknown tags, by tag; a later value replaces an earlier one.
    QMap<quint32, QVariant> extra;

private:
    std::array<QString, 16> m_texts;
};

} // namespace TVX::CORE
