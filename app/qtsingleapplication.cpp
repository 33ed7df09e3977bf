#include "qtsingleapplication.h"

#include "localinstancepeer.h"

#include <QPointer>
#include <QWidget>

#include <unistd.h>

using TVX::VIEWER::LocalInstancePeer;

struct QtSingleApplication::Private {
    std::unique_ptr<LocalInstancePeer> peer;
    QPointer<QWidget> window;
    bool activateOnMessage{false};
};

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*guiEnabled*/)
    : QtSingleApplication(QString(), argc, argv)
{
}

QtSingleApplication::QtSingleApplication(const QString& id, int& argc, char** argv)
    : QApplication(argc, argv)
    , d(std::make_unique<Private>())
{
    // The application name is known only now: it defaults to the executable's name.
    const QString identifier =
        id.isEmpty() ? applicationName() + QLatin1Char('-') + QString::number(::getuid()) : id;
    d->peer = std::make_unique<LocalInstancePeer>(identifier);
    connect(d->peer.get(), &LocalInstancePeer::messageReceived, this, &QtSingleApplication::receiveMessage);
    // Claimed at once, so that the first process owns the identifier before it asks.
    d->peer->isRunning();
}

QtSingleApplication::~QtSingleApplication() = default;

QString QtSingleApplication::id() const
{
    return d->peer->id();
}

bool QtSingleApplication::isRunning()
{
    return d->peer->isRunning();
}

bool QtSingleApplication::sendMessage(const QString& message, int timeout)
{
    return d->peer->sendMessage(message, timeout);
}

void QtSingleApplication::setActivationWindow(QWidget* widget, bool activateOnMessage)
{
    d->window = widget;
    d->activateOnMessage = activateOnMessage;
}

QWidget* QtSingleApplication::activationWindow() const
{
    return d->window;
}

void QtSingleApplication::activateWindow()
{
    if (!d->window)
        return;
    d->window->setWindowState(d->window->windowState() & ~Qt::WindowMinimized);
    d->window->show();
    d->window->raise();
    d->window->activateWindow();
}

void QtSingleApplication::receiveMessage(const QString& message)
{
    if (d->activateOnMessage)
        activateWindow();
    emit messageReceived(message);
}
