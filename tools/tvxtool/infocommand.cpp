#include "toolcommand.h"

namespace TVX::TOOL {

int runInfo(const QStringList&)
{
    throw CommandError("tvxtool info: not available yet");
}

} // namespace TVX::TOOL
