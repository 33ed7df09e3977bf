#pragma once

#include <QtGlobal>

#include <memory>

namespace TVX::CORE {

class BasicProject;
class ScanViewOperatorManager;

// The process-wide context: the one open project and the one operator manager of the GL views.
// Created on first use; reach for it only where a view or window cannot be handed what it needs.
class Application final
{
public:
    static Application& instance();

    BasicProject& project();
    // Built with the default operator table on first use.
    ScanViewOperatorManager& operatorManager();

private:
    Application();
    ~Application();
    Q_DISABLE_COPY(Application)

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::CORE
