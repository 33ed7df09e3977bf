#include "fileio/tvxfilelayertable.h"

#include "fileio/sectionstream.h"

namespace TVX::CORE {

namespace {
constexpr quint64 minLayerBytes = sizeof(quint32) + sizeof(quint32) + 2; // id, name length, two flags
}

TVXFileLayerTable::TVXFileLayerTable()
{
    reset();
}

void TVXFileLayerTable::reset()
{
    layers = {{0, QStringLiteral("Standard")}, {1, QStringLiteral("Dimensioning")}, {2, QStringLiteral("References")}};
}

bool TVXFileLayerTable::read(QDataStream& stream)
{
    reset();
    if (!readBeginTag(stream, beginTag))
        return false;
    quint32 count = 0;
    stream >> count;
    std::vector<Layer> read;
    if (fitsCount(stream, count, minLayerBytes)) {
        read.reserve(count);
        for (quint32 i = 0; i < count && readable(stream); ++i) {
            Layer layer;
            stream >> layer.id;
            readString(stream, layer.name);
            stream >> layer.flag1 >> layer.flag2;
            read.push_back(layer);
        }
    }
    if (!readTag(stream, endTag) || !streamOk(stream))
        return false;
    layers = std::move(read);
    return true;
}

void TVXFileLayerTable::write(QDataStream& stream) const
{
    stream << beginTag << quint32(layers.size());
    for (const Layer& layer : layers)
        stream << layer.id << layer.name << layer.flag1 << layer.flag2;
    stream << endTag;
}

} // namespace TVX::CORE
