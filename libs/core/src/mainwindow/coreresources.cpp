#include "mainwindow/coreresources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used outside of any namespace.
static void initResourceBundle()
{
    Q_INIT_RESOURCE(tvxresources);
}

namespace TVX::CORE {

void registerCoreResources()
{
    initResourceBundle();
}

} // namespace TVX::CORE
