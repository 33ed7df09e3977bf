#include "jsonoutput.h"

#include <QJsonDocument>

#include <cstdio>

namespace TVX::TOOL {

void printJson(const QJsonObject& object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(json.constData(), 1, std::size_t(json.size()), stdout);
    std::fflush(stdout);
}

} // namespace TVX::TOOL
