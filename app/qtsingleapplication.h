#pragma once

#include <QApplication>
#include <QString>

#include <memory>

class QWidget;

// The application object of a program that runs once per user login. The constructor claims the
// identifier when nobody owns it; later processes find it running and hand their messages over
// with `sendMessage`. The owner emits `messageReceived` on the GUI thread for every message, also
// before anything is connected to it (messages are not queued).
class QtSingleApplication final : public QApplication
{
    Q_OBJECT
    Q_DISABLE_COPY(QtSingleApplication)

public:
    // The identifier is the application name and the user id, one per user login.
    // `guiEnabled` is kept for the old signature; the application always has a GUI.
    QtSingleApplication(int& argc, char** argv, bool guiEnabled = true);
    QtSingleApplication(const QString& id, int& argc, char** argv);
    ~QtSingleApplication() override;

    QString id() const;

    // True when another process owns the identifier. When that owner has ended meanwhile, this
    // process takes the identifier over and false is returned.
    bool isRunning();
    // Sends to the owning process and waits at most `timeout` ms for the acknowledgement; false
    // when there is no other owner or the time ran out.
    bool sendMessage(const QString& message, int timeout = 5000);

    // The window `activateWindow()` brings to the front; not owned, may be null.
    // With `activateOnMessage` every received message activates it before it is emitted.
    void setActivationWindow(QWidget* widget, bool activateOnMessage = true);
    QWidget* activationWindow() const;

public slots:
    // Clears the minimised state of the activation window, shows, raises and activates it.
    void activateWindow();

signals:
    void messageReceived(const QString& message);

private:
    void receiveMessage(const QString& message);

    struct Private;
    std::unique_ptr<Private> d;
};
