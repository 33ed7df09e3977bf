#pragma once

#include "../project/projectfixtures.h"

#include "mainwindow/userdialogs.h"
#include "project/basicproject.h"

#include <QAction>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <deque>
#include <functional>

namespace TVX::TEST {

// Answers the window's questions from a script and records what was shown.
class ScriptedDialogs final : public TVX::CORE::UserDialogs
{
public:
    std::deque<QMessageBox::StandardButton> answers;
    bool confirmLock{false};
    QString fileName;
    QString textAnswer; // null: the text question is cancelled
    QStringList shown; // "title: text" of every box, questions included
    std::function<void(const QString& title)> onQuestion;

    QMessageBox::StandardButton question(const QString& title, const QString& text, QMessageBox::StandardButtons,
                                         QMessageBox::StandardButton) override
    {
        shown << title + QStringLiteral(": ") + text;
        if (onQuestion)
            onQuestion(title);
        if (answers.empty())
            return QMessageBox::Cancel;
        const auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void information(const QString& title, const QString& text) override { shown << title + QStringLiteral(": ") + text; }
    void warning(const QString& title, const QString& text) override { shown << title + QStringLiteral(": ") + text; }
    QString openFileName(const QString&, const QString&, const QString&) override { return fileName; }
    QStringList fileNames; // the answer of the file dialog for several files
    QStringList openFileNames(const QString&, const QString&, const QString&) override { return fileNames; }
    bool textLine(const QString& title, const QString&, QString& text) override
    {
        shown << title;
        text = textAnswer;
        return !textAnswer.isNull();
    }
    bool confirmLockDeletion(const QString& message) override
    {
        shown << QStringLiteral("lock: ") + message;
        return confirmLock;
    }
};

inline QAction* actionNamed(QWidget& window, const QString& text)
{
    for (QAction* action : window.findChildren<QAction*>()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// A project with two scans (identifiers 0 and 1) whose stations stand apart, the second turned.
inline QString makeProject(const QTemporaryDir& dir)
{
    TestScan first;
    first.transformation = {1, 0, 0, 100, 0, 1, 0, 200, 0, 0, 1, 10, 0, 0, 0, 1};
    TestScan second;
    second.transformation = {0, -1, 0, 103, 1, 0, 0, 204, 0, 0, 1, 10.5, 0, 0, 0, 1};
    writeTestScan(dir.filePath(QStringLiteral("a.tvx")), first);
    writeTestScan(dir.filePath(QStringLiteral("b.tvx")), second);
    const QString path = dir.filePath(QStringLiteral("site.tvxprj"));
    TVX::CORE::BasicProject& project = TVX::CORE::BasicProject::instance();
    int code = 0;
    QString message;
    project.openProject(path, QStringLiteral("t"), code, message);
    project.addScan(QStringLiteral("a.tvx"));
    project.addScan(QStringLiteral("b.tvx"));
    project.saveProject(message);
    project.closeProject(code, message);
    return path;
}

inline void writePanorama(const QTemporaryDir& dir, const QString& name)
{
    QImage panorama(40, 30, QImage::Format_RGB32);
    panorama.fill(Qt::gray);
    QVERIFY(panorama.save(dir.filePath(name)));
}

} // namespace TVX::TEST
