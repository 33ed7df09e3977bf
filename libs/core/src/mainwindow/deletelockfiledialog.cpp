#include "mainwindow/deletelockfiledialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace TVX::CORE {

DeleteLockFileDialog::DeleteLockFileDialog(const QString& message, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Could Not Open Project Directory"));
    auto* text = new QLabel(message, this);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* deleteButton = buttons->addButton(tr("Delete Lock File"), QDialogButtonBox::DestructiveRole);
    connect(deleteButton, &QPushButton::clicked, this, &DeleteLockFileDialog::areYouSure);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
}

void DeleteLockFileDialog::areYouSure()
{
    const auto answer = QMessageBox::question(
        this, tr("Delete Lock File"),
        tr("Delete the lock file only when nobody else is working on this project. Changes of two people working "
           "on it at the same time would be lost.\n\nDelete the lock file?"),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer == QMessageBox::Yes)
        accept();
}

} // namespace TVX::CORE
