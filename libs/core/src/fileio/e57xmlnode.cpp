#include "fileio/e57xmlnode.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace TVX::CORE {

bool E57XmlNode::parse(const QByteArray& xml, E57XmlNode& root, QString& error)
{
    QXmlStreamReader reader(xml);
    std::vector<E57XmlNode*> open;
    int nodes = 0;
    root = E57XmlNode();
    bool haveRoot = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (++nodes > maximumNodes || int(open.size()) >= maximumDepth) {
                error = QCoreApplication::translate("TVX::CORE::E57XmlNode", "line %1: the XML is too large or too deep")
                            .arg(reader.lineNumber());
                return false;
            }
            E57XmlNode* node = nullptr;
            if (open.empty()) {
                if (haveRoot)
                    break; // the reader reports the second root
                node = &root;
                haveRoot = true;
            } else {
                open.back()->children.emplace_back();
                node = &open.back()->children.back();
            }
            node->name = reader.name().toString();
            for (const QXmlStreamAttribute& attribute : reader.attributes()) {
                if (attribute.name() == QLatin1String("type"))
                    node->type = attribute.value().toString();
                else
                    node->attributes.emplace_back(attribute.name().toString(), attribute.value().toString());
            }
            open.push_back(node);
        } else if (token == QXmlStreamReader::EndElement) {
            open.back()->text = open.back()->text.trimmed();
            open.pop_back();
        } else if (token == QXmlStreamReader::Characters && !open.empty() && open.back()->children.empty()) {
            open.back()->text += reader.text();
        }
    }
    if (reader.hasError() || !haveRoot) {
        error = QCoreApplication::translate("TVX::CORE::E57XmlNode", "line %1: %2")
                    .arg(reader.lineNumber())
                    .arg(reader.hasError() ? reader.errorString() : QStringLiteral("no element"));
        return false;
    }
    return true;
}

const E57XmlNode* E57XmlNode::child(const QString& childName) const
{
    for (const E57XmlNode& node : children) {
        if (node.name == childName)
            return &node;
    }
    return nullptr;
}

QString E57XmlNode::attribute(const QString& attributeName) const
{
    for (const auto& [key, value] : attributes) {
        if (key == attributeName)
            return value;
    }
    return {};
}

} // namespace TVX::CORE
