#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

namespace TVX::CORE {

// The modal questions and messages of the main window, in one place: the window asks through
// this object, and tests install one that answers without showing anything.
class UserDialogs
{
public:
    explicit UserDialogs(QWidget* parent = nullptr) : m_parent(parent) {}
    virtual ~UserDialogs();
    UserDialogs(const UserDialogs&) = delete;
    UserDialogs& operator=(const UserDialogs&) = delete;

    virtual QMessageBox::StandardButton question(const QString& title, const QString& text,
                                                 QMessageBox::StandardButtons buttons,
                                                 QMessageBox::StandardButton defaultButton);
    virtual void information(const QString& title, const QString& text);
    virtual void warning(const QString& title, const QString& text);
    // A file to open; empty when the user cancelled.
    virtual QString openFileName(const QString& caption, const QString& directory, const QString& filter);
    // Files to open; empty when the user cancelled.
    virtual QStringList openFileNames(const QString& caption, const QString& directory, const QString& filter);
    // A line of text; false when the user cancelled.
    virtual bool textLine(const QString& title, const QString& label, QString& text);
    // The lock dialog of a project in use: true when the user confirmed deleting the lock file.
    virtual bool confirmLockDeletion(const QString& lockMessage);

protected:
    QWidget* parent() const { return m_parent; }

private:
    QWidget* m_parent;
};

} // namespace TVX::CORE
