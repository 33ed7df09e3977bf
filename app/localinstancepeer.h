#pragma once

#include <QObject>
#include <QString>

#include <memory>

namespace TVX::VIEWER {

// One end of the single-instance channel: a local socket named after a hash of the identifier.
// The first process that asks `isRunning()` becomes the owner and listens; later processes send
// to it. A message travels as a 4-byte big-endian length followed by its UTF-8 bytes, one message
// per connection, and is acknowledged with one byte once it has been read completely.
// Everything runs on the thread that owns the object; `sendMessage` blocks until acknowledged.
class LocalInstancePeer final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(LocalInstancePeer)

public:
    // Longer messages are refused by the sender and dropped by the owner.
    static constexpr int maxMessageBytes = 1 << 20;

    // Touches nothing yet; the identifier is claimed by the first `isRunning()`.
    explicit LocalInstancePeer(const QString& id, QObject* parent = nullptr);
    ~LocalInstancePeer() override;

    QString id() const;
    // Absolute path of the socket (in the temporary folder); its lock file is this plus ".lock".
    QString socketPath() const;

    // True when another process owns the identifier. Otherwise this object takes it over (a
    // socket left behind by a crashed owner is removed) and false is returned, now and on every
    // later call. A lock file keeps two processes deciding at the same moment apart.
    bool isRunning();
    // True while this object owns the identifier.
    bool isOwner() const;

    // Sends to the owning process and waits at most `timeout` ms for the acknowledgement.
    // False when there is no owner, this object is the owner, the message is too long, or the
    // time ran out.
    bool sendMessage(const QString& message, int timeout);

signals:
    // A complete message from another process (only while this object is the owner).
    void messageReceived(const QString& message);

private:
    void acceptConnections();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace TVX::VIEWER
