#include "toolcommand.h"

namespace TVX::TOOL {

int runCloud(const QStringList&)
{
    throw CommandError("tvxtool cloud: not available yet");
}

} // namespace TVX::TOOL
