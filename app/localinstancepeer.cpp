#include "localinstancepeer.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QLoggingCategory>
#include <QPointer>
#include <QtEndian>

#include <algorithm>

Q_LOGGING_CATEGORY(lcSingleInstance, "tvx.app.singleinstance", QtWarningMsg)

namespace TVX::VIEWER {

namespace {

constexpr char acknowledgement = '\x06';
constexpr int headerBytes = 4;
// Connecting only tells whether someone listens; an owner's kernel queue answers at once.
constexpr int probeTimeoutMs = 1000;
// The lock is held only for a probe and a listen, so a longer wait means it is not coming.
constexpr int lockTimeoutMs = 5000;

int remainingMs(const QDeadlineTimer& deadline)
{
    return static_cast<int>(std::max<qint64>(deadline.remainingTime(), 0));
}

// Hands every complete frame to `deliver` and acknowledges it; a length beyond the limit drops
// the connection. A frame still incomplete waits for the next call.
template<typename Deliver>
void readFrames(QLocalSocket* socket, Deliver deliver)
{
    while (socket->bytesAvailable() >= headerBytes) {
        const QByteArray header = socket->peek(headerBytes);
        const quint32 length = qFromBigEndian<quint32>(header.constData());
        if (length > static_cast<quint32>(LocalInstancePeer::maxMessageBytes)) {
            qCWarning(lcSingleInstance) << "dropping a connection that announced a message of" << length
                                        << "bytes; at most" << LocalInstancePeer::maxMessageBytes << "are accepted";
            socket->abort();
            return;
        }
        if (socket->bytesAvailable() < headerBytes + static_cast<qint64>(length))
            return;
        socket->skip(headerBytes);
        const QByteArray body = socket->read(length);
        // Acknowledged before delivery: the receiver may open a dialog and the sender must not
        // wait for that.
        socket->write(&acknowledgement, 1);
        socket->flush();
        const QPointer<QLocalSocket> guard(socket);
        deliver(QString::fromUtf8(body));
        if (!guard)
            return;
    }
}

} // namespace

struct LocalInstancePeer::Private {
    QString id;
    QString socketPath;
    std::unique_ptr<QLocalServer> server;
};

LocalInstancePeer::LocalInstancePeer(const QString& id, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->id = id;
    // Socket paths are short on Unix (about 100 bytes), so the identifier is hashed.
    const QByteArray hash = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    d->socketPath = QDir(QDir::tempPath()).filePath(QStringLiteral("tvxsingle-") + QString::fromLatin1(hash));
}

LocalInstancePeer::~LocalInstancePeer()
{
    if (d->server)
        d->server->close();
}

QString LocalInstancePeer::id() const
{
    return d->id;
}

QString LocalInstancePeer::socketPath() const
{
    return d->socketPath;
}

bool LocalInstancePeer::isOwner() const
{
    return d->server && d->server->isListening();
}

bool LocalInstancePeer::isRunning()
{
    if (isOwner())
        return false;

    QLockFile lock(d->socketPath + QStringLiteral(".lock"));
    if (!lock.tryLock(lockTimeoutMs))
        qCWarning(lcSingleInstance) << "deciding without the lock" << d->socketPath + QStringLiteral(".lock")
                                    << "- error" << lock.error();

    {
        QLocalSocket probe;
        probe.connectToServer(d->socketPath);
        if (probe.waitForConnected(probeTimeoutMs)) {
            probe.disconnectFromServer();
            return true;
        }
    }

    // Nobody listens: whatever is left at the path belongs to an owner that died. Listening
    // would replace even a live owner's socket, which is why this runs under the lock.
    QLocalServer::removeServer(d->socketPath);
    d->server = std::make_unique<QLocalServer>();
    d->server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!d->server->listen(d->socketPath)) {
        qCWarning(lcSingleInstance) << "cannot listen on" << d->socketPath << ":" << d->server->errorString();
        d->server.reset();
        return false;
    }
    connect(d->server.get(), &QLocalServer::newConnection, this, &LocalInstancePeer::acceptConnections);
    return false;
}

void LocalInstancePeer::acceptConnections()
{
    while (QLocalSocket* socket = d->server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            readFrames(socket, [this](const QString& message) { emit messageReceived(message); });
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read();
    }
}

bool LocalInstancePeer::sendMessage(const QString& message, int timeout)
{
    if (isOwner())
        return false;
    const QByteArray body = message.toUtf8();
    if (body.size() > maxMessageBytes) {
        qCWarning(lcSingleInstance) << "not sending a message of" << body.size() << "bytes; at most"
                                    << maxMessageBytes << "are allowed";
        return false;
    }

    const QDeadlineTimer deadline(std::max(timeout, 0));
    QLocalSocket socket;
    socket.connectToServer(d->socketPath);
    if (!socket.waitForConnected(remainingMs(deadline)))
        return false;

    QByteArray frame(headerBytes, Qt::Uninitialized);
    qToBigEndian<quint32>(static_cast<quint32>(body.size()), frame.data());
    frame += body;
    socket.write(frame);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(remainingMs(deadline))) {
            qCInfo(lcSingleInstance) << "message not written to" << d->socketPath << ":" << socket.errorString();
            return false;
        }
    }
    while (socket.bytesAvailable() < 1) {
        if (!socket.waitForReadyRead(remainingMs(deadline))) {
            qCInfo(lcSingleInstance) << "message not acknowledged by" << d->socketPath << ":" << socket.errorString();
            return false;
        }
    }
    char answer = 0;
    const bool acknowledged = socket.getChar(&answer) && answer == acknowledgement;
    socket.disconnectFromServer();
    return acknowledged;
}

} // namespace TVX::VIEWER
