#pragma once

#include <QDialog>

namespace TVX::CORE {

// Offered when a project is locked by somebody else: shows the lock message and lets the user
// delete the lock file after a confirmation. The dialog is accepted only when the user confirmed;
// the caller then deletes "tvxlock~" and opens the project again.
class DeleteLockFileDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit DeleteLockFileDialog(const QString& message, QWidget* parent = nullptr);

public Q_SLOTS:
    // Asks whether the lock file should really go; accepts the dialog on yes.
    void areYouSure();
};

} // namespace TVX::CORE
