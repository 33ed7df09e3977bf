#include "toolcommand.h"

namespace TVX::TOOL {

int runPoint(const QStringList&)
{
    throw CommandError("tvxtool point: not available yet");
}

} // namespace TVX::TOOL
