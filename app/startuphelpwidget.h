#pragma once

#include <QDialog>

namespace TVX::VIEWER {

// A modal quick introduction to the viewer. Its check box "Show this help on startup" reads and
// writes "global/showStartUpHelp" (default true), written as soon as it is toggled.
class StartupHelpWidget final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(StartupHelpWidget)

public:
    explicit StartupHelpWidget(QWidget* parent = nullptr);

private:
    static QString introduction();
};

} // namespace TVX::VIEWER
