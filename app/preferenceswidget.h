#pragma once

#include <QDialog>

#include <memory>

namespace TVX::CORE {
class UserDialogs;
}

namespace TVX::VIEWER {

// Edits the application settings of the one settings store: language, station marks and the
// kind of view opened by default. The controls are filled from the store when the dialog is made
// and written back only on accept; a language change takes effect at the next start.
class PreferencesWidget final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(PreferencesWidget)

public:
    explicit PreferencesWidget(QWidget* parent = nullptr);
    ~PreferencesWidget() override;

    // Replaces how the dialog tells the user something (a test answers without showing a box).
    void setUserDialogs(std::unique_ptr<TVX::CORE::UserDialogs> dialogs);

public Q_SLOTS:
    // Writes every control to the store, then closes the dialog.
    void accept() override;
    // Clears the whole store, every key of the application, and tells the user to restart.
    // The controls show the defaults afterwards.
    void resetToDefaultSettings();

private:
    void buildLanguageGroup();
    void buildParameterGroup();
    void loadSettings();
    void saveSettings();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::VIEWER
