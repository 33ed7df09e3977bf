#include "mainwindow/application.h"

#include "glviews/scanviewoperatormanager.h"
#include "project/basicproject.h"

namespace TVX::CORE {

struct Application::Private {
    std::unique_ptr<ScanViewOperatorManager> operatorManager;
};

Application::Application()
    : d(std::make_unique<Private>())
{
}

Application::~Application() = default;

Application& Application::instance()
{
    static Application application;
    return application;
}

BasicProject& Application::project()
{
    return BasicProject::instance();
}

ScanViewOperatorManager& Application::operatorManager()
{
    if (!d->operatorManager)
        d->operatorManager = ScanViewOperatorManager::createDefault();
    return *d->operatorManager;
}

} // namespace TVX::CORE
