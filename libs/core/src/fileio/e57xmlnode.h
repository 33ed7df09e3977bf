#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace TVX::CORE {

// One element of an E57 file's XML section: its name, its E57 type ("Structure", "Vector",
// "CompressedVector", "Integer", "ScaledInteger", "Float", "String", "Blob"), its attributes, the
// text of a leaf and the child elements in document order.
class E57XmlNode final
{
public:
    static constexpr int maximumDepth = 64;
    static constexpr int maximumNodes = 1'000'000;

    // Parses the XML section; false with the line and reason in `error` for XML that does not
    // parse, nests deeper than maximumDepth or holds more than maximumNodes elements.
    static bool parse(const QByteArray& xml, E57XmlNode& root, QString& error);

    QString name;
    QString type;
    QString text;
    std::vector<std::pair<QString, QString>> attributes;
    std::vector<E57XmlNode> children;

    // The first child of that name, or nullptr.
    const E57XmlNode* child(const QString& childName) const;
    // An attribute's value, empty when missing.
    QString attribute(const QString& attributeName) const;
};

} // namespace TVX::CORE
