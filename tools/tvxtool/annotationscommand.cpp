#include "toolcommand.h"

namespace TVX::TOOL {

int runAnnotations(const QStringList&)
{
    throw CommandError("tvxtool annotations: not available yet");
}

} // namespace TVX::TOOL
