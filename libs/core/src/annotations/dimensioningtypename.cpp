#include "annotations/dimensioningtypename.h"

#include <iterator>

namespace TVX::CORE {

namespace {
const char16_t* const typeNames[] = {u"3D", u"DZ", u"XY"};
constexpr int typeCount = int(std::size(typeNames));
} // namespace

QString dimensioningTypeName(qint64 type)
{
    if (type < 0 || type >= typeCount)
        return {};
    return QString::fromUtf16(typeNames[type]);
}

int dimensioningTypeFromName(QStringView name)
{
    for (int type = 0; type < typeCount; ++type) {
        if (name == QStringView(typeNames[type]))
            return type;
    }
    return -1;
}

} // namespace TVX::CORE
