#include "toolcommand.h"

namespace TVX::TOOL {

int runDemo(const QStringList&)
{
    throw CommandError("tvxtool demo: not available yet");
}

} // namespace TVX::TOOL
