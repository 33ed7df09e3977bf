// tvxtool leaves import to tvxtool-full, which links QtGui for the panorama images (toolcommand.h).
#include "toolcommand.h"

namespace TVX::TOOL {

int runImport(const QStringList&)
{
    runInFullTool();
}

} // namespace TVX::TOOL
