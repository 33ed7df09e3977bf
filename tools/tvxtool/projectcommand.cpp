#include "toolcommand.h"

namespace TVX::TOOL {

int runProject(const QStringList&)
{
    throw CommandError("tvxtool project: not available yet");
}

} // namespace TVX::TOOL
