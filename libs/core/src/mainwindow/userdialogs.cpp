#include "mainwindow/userdialogs.h"

#include "mainwindow/deletelockfiledialog.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>

namespace TVX::CORE {

UserDialogs::~UserDialogs() = default;

QMessageBox::StandardButton UserDialogs::question(const QString& title, const QString& text,
                                                  QMessageBox::StandardButtons buttons,
                                                  QMessageBox::StandardButton defaultButton)
{
    return QMessageBox::question(m_parent, title, text, buttons, defaultButton);
}

void UserDialogs::information(const QString& title, const QString& text)
{
    QMessageBox::information(m_parent, title, text);
}

void UserDialogs::warning(const QString& title, const QString& text)
{
    QMessageBox::warning(m_parent, title, text);
}

QString UserDialogs::openFileName(const QString& caption, const QString& directory, const QString& filter)
{
    return QFileDialog::getOpenFileName(m_parent, caption, directory, filter);
}

QStringList UserDialogs::openFileNames(const QString& caption, const QString& directory, const QString& filter)
{
    return QFileDialog::getOpenFileNames(m_parent, caption, directory, filter);
}

bool UserDialogs::textLine(const QString& title, const QString& label, QString& text)
{
    bool ok = false;
    text = QInputDialog::getText(m_parent, title, label, QLineEdit::Normal, text, &ok);
    return ok;
}

bool UserDialogs::confirmLockDeletion(const QString& lockMessage)
{
    DeleteLockFileDialog dialog(lockMessage, m_parent);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace TVX::CORE
