#include "testregistry.h"

#include "localinstancepeer.h"

#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>
#include <QtEndian>

#include <memory>
#include <vector>

using TVX::VIEWER::LocalInstancePeer;

namespace {

// This process already has its application object, so the single application itself runs in the
// peer program; here the channel is driven through the peer object it is built on.
const QString peerProgram = QStringLiteral(TVX_BIN_DIR "/tvxsingleapppeer");

QString uniqueId()
{
    return QStringLiteral("tvx-test-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QProcessEnvironment peerEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

// Runs the peer in send mode while this process's event loop keeps serving; its exit code, or -1
// when it crashed or hung.
int runSender(const QString& id, const QStringList& messages)
{
    QProcess sender;
    sender.setProcessEnvironment(peerEnvironment());
    QSignalSpy finished(&sender, &QProcess::finished);
    sender.start(peerProgram, QStringList{id, QStringLiteral("send")} + messages);
    if (!finished.wait(20000)) {
        sender.kill();
        sender.waitForFinished();
        return -1;
    }
    return sender.exitStatus() == QProcess::NormalExit ? sender.exitCode() : -1;
}

// The peer in serve mode: a real single application that owns `id` or finds it taken.
class OwnerProcess
{
public:
    explicit OwnerProcess(const QString& id, const QStringList& options = {})
        : m_socketPath(LocalInstancePeer(id).socketPath())
    {
        m_process.setProcessEnvironment(peerEnvironment());
        m_process.start(peerProgram, QStringList{id, QStringLiteral("serve")} + options);
    }
    // A killed owner leaves its socket behind.
    ~OwnerProcess()
    {
        kill();
        QLocalServer::removeServer(m_socketPath);
    }

    QString readLine()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return QStringLiteral("(no line; stderr: %1)").arg(QString::fromLocal8Bit(m_process.readAllStandardError()));
        }
        QString line = QString::fromUtf8(m_process.readLine());
        line.chop(1);
        return line;
    }

    // SIGKILL: nothing of the owner's clean-up runs.
    void kill()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

private:
    QString m_socketPath;
    QProcess m_process;
};

QByteArray lengthHeader(quint32 length)
{
    QByteArray header(4, Qt::Uninitialized);
    qToBigEndian(length, header.data());
    return header;
}

enum class Owner { None, Silent };

} // namespace

Q_DECLARE_METATYPE(Owner)

class SingleApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(peerProgram).isExecutable(), qPrintable(peerProgram)); }

    void deliversMessagesInOrder_data()
    {
        QTest::addColumn<QStringList>("messages");
        QTest::newRow("wake up, then a path with blanks and umlauts")
            << QStringList{QStringLiteral("WAKE_UP"), QStringLiteral("OPEN_VIEW /home/jörg/Scans Nord/tvx.prj")};
        // 60000 × 'ä' = 120000 UTF-8 bytes, more than one read brings in.
        QTest::newRow("long message") << QStringList{QString(60000, QChar(0x00E4)), QStringLiteral("after")};
    }

    void deliversMessagesInOrder()
    {
        QFETCH(QStringList, messages);
        LocalInstancePeer owner(uniqueId());
        QVERIFY(!owner.isRunning());
        QVERIFY(owner.isOwner());
        QSignalSpy received(&owner, &LocalInstancePeer::messageReceived);

        QCOMPARE(runSender(owner.id(), messages), 0);
        QStringList heard;
        for (const QList<QVariant>& arguments : std::as_const(received))
            heard << arguments.at(0).toString();
        QCOMPARE(heard, messages);
    }

    void applicationActivatesItsWindow_data()
    {
        QTest::addColumn<QStringList>("ownerOptions");
        QTest::addColumn<QString>("windowState"); // as the owner finds its window when the message is emitted
        QTest::newRow("activation on message") << QStringList() << QStringLiteral("restored");
        QTest::newRow("activation switched off") << QStringList{QStringLiteral("no-activate")} << QStringLiteral("minimised");
    }

    void applicationActivatesItsWindow()
    {
        QFETCH(QStringList, ownerOptions);
        QFETCH(QString, windowState);
        const QString id = uniqueId();
        OwnerProcess owner(id, ownerOptions);
        QCOMPARE(owner.readLine(), QStringLiteral("primary"));

        LocalInstancePeer sender(id);
        QVERIFY(sender.isRunning());
        QVERIFY(!sender.isOwner());
        const QStringList messages{QStringLiteral("WAKE_UP"), QStringLiteral("OPEN_VIEW /data/tvx.prj")};
        for (const QString& message : messages) {
            QVERIFY(sender.sendMessage(message, 5000));
            QCOMPARE(owner.readLine(), windowState + QLatin1Char(' ') + message);
        }
    }

    void socketOfKilledOwnerDoesNotBlockNewOwner()
    {
        LocalInstancePeer peer(uniqueId());
        OwnerProcess crashed(peer.id());
        QCOMPARE(crashed.readLine(), QStringLiteral("primary"));
        crashed.kill();
        QVERIFY2(QFileInfo::exists(peer.socketPath()), "the leftover is in place");

        QVERIFY(!peer.isRunning());
        QVERIFY(peer.isOwner());
        QSignalSpy received(&peer, &LocalInstancePeer::messageReceived);
        QCOMPARE(runSender(peer.id(), {QStringLiteral("WAKE_UP")}), 0);
        QCOMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("WAKE_UP"));
    }

    void simultaneousStartsElectOneOwner()
    {
        const QString id = uniqueId();
        std::vector<std::unique_ptr<OwnerProcess>> starts;
        for (int i = 0; i < 6; ++i)
            starts.push_back(std::make_unique<OwnerProcess>(id));
        QStringList answers;
        for (const auto& start : starts)
            answers << start->readLine();
        QCOMPARE(answers.count(QStringLiteral("primary")), 1);
        QCOMPARE(answers.count(QStringLiteral("running")), 5);
    }

    void sendFailsWithoutAcknowledgement_data()
    {
        QTest::addColumn<Owner>("owner");
        QTest::newRow("no owner") << Owner::None;
        QTest::newRow("owner never acknowledges") << Owner::Silent;
    }

    void sendFailsWithoutAcknowledgement()
    {
        QFETCH(Owner, owner);
        LocalInstancePeer peer(uniqueId());
        QLocalServer silent;
        if (owner == Owner::Silent)
            QVERIFY(silent.listen(peer.socketPath()));
        QVERIFY(!peer.sendMessage(QStringLiteral("WAKE_UP"), 300));
    }

    // A length beyond the limit is refused before anything is allocated for it.
    void oversizedFrameIsDropped()
    {
        LocalInstancePeer owner(uniqueId());
        QVERIFY(!owner.isRunning());
        QSignalSpy received(&owner, &LocalInstancePeer::messageReceived);

        QLocalSocket raw;
        QSignalSpy hungUp(&raw, &QLocalSocket::disconnected);
        raw.connectToServer(owner.socketPath());
        QVERIFY(raw.waitForConnected(1000));
        raw.write(lengthHeader(LocalInstancePeer::maxMessageBytes + 1) + "abc");
        raw.flush();
        QVERIFY(hungUp.wait(5000));

        // The owner still serves, and the broken frame never surfaces.
        QCOMPARE(runSender(owner.id(), {QStringLiteral("WAKE_UP")}), 0);
        QCOMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("WAKE_UP"));
    }
};

TVX_TEST(SingleApplicationTest)

#include "singleapplicationtest.moc"
