#pragma once

#include <QDataStream>
#include <QString>

#include <vector>

namespace TVX::CORE {

// The layer table section: the layers that a scan's items belong to. The two flags are carried
// as read; the viewer does not interpret them.
class TVXFileLayerTable final
{
public:
    static constexpr quint32 beginTag = 0x130000;
    static constexpr quint32 endTag = 0x13FFFF;

    struct Layer {
        quint32 id = 0;
        QString name;
        bool flag1 = true;
        bool flag2 = true;
    };

    TVXFileLayerTable();

    // Resets to the defaults, then reads the section at the stream's position. The layers read
    // replace the defaults only when the end tag follows them; false otherwise (wrong begin or end
    // tag, or a stream that failed).
    bool read(QDataStream& stream);
    void write(QDataStream& stream) const;
    // Layers 0 "Standard", 1 "Dimensioning", 2 "References", both flags set.
    void reset();

    std::vector<Layer> layers;
};

} // namespace TVX::CORE
