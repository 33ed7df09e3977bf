#include "testregistry.h"

#include "localinstancepeer.h"

#include <QElapsedTimer>
#include <QFile>
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

struct DeliveryRow {
    QStringList messages;
};

struct ActivationRow {
    QStringList ownerOptions;
    QString windowState; // as the owner finds its window when the message is emitted
};

enum class Leftover { KilledOwner, PlainFile };

enum class Owner { None, ThisObject, Silent };

struct FailedSendRow {
    Owner owner{Owner::None};
    int timeout{0};
    qint64 minMs{0};
    qint64 maxMs{0};
};

struct MalformedRow {
    QByteArray bytes;
    bool ownerHangsUp{false};
};

} // namespace

Q_DECLARE_METATYPE(DeliveryRow)
Q_DECLARE_METATYPE(ActivationRow)
Q_DECLARE_METATYPE(Leftover)
Q_DECLARE_METATYPE(FailedSendRow)
Q_DECLARE_METATYPE(MalformedRow)

class SingleApplicationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFileInfo(peerProgram).isExecutable(), qPrintable(peerProgram)); }

    void deliversMessagesInOrder_data()
    {
        QTest::addColumn<DeliveryRow>("row");
        QTest::newRow("wake up only") << DeliveryRow{{QStringLiteral("WAKE_UP")}};
        QTest::newRow("wake up, then a path with blanks and umlauts")
            << DeliveryRow{{QStringLiteral("WAKE_UP"), QStringLiteral("OPEN_VIEW /home/jörg/Scans Nord/tvx.prj")}};
        QTest::newRow("empty message") << DeliveryRow{{QString()}};
        // 60000 × 'ä' = 120000 UTF-8 bytes, more than one read brings in.
        QTest::newRow("long message") << DeliveryRow{{QString(60000, QChar(0x00E4)), QStringLiteral("after")}};
    }

    void deliversMessagesInOrder()
    {
        QFETCH(DeliveryRow, row);
        LocalInstancePeer owner(uniqueId());
        QVERIFY(!owner.isRunning());
        QVERIFY(owner.isOwner());
        QSignalSpy received(&owner, &LocalInstancePeer::messageReceived);

        QCOMPARE(runSender(owner.id(), row.messages), 0);
        QCOMPARE(received.count(), row.messages.size());
        for (int i = 0; i < row.messages.size(); ++i)
            QCOMPARE(received.at(i).at(0).toString(), row.messages.at(i));
    }

    void applicationActivatesItsWindow_data()
    {
        QTest::addColumn<ActivationRow>("row");
        QTest::newRow("activation on message") << ActivationRow{{}, QStringLiteral("restored")};
        QTest::newRow("activation switched off")
            << ActivationRow{{QStringLiteral("no-activate")}, QStringLiteral("minimised")};
    }

    void applicationActivatesItsWindow()
    {
        QFETCH(ActivationRow, row);
        const QString id = uniqueId();
        OwnerProcess owner(id, row.ownerOptions);
        QCOMPARE(owner.readLine(), QStringLiteral("primary"));

        LocalInstancePeer sender(id);
        QVERIFY(sender.isRunning());
        QVERIFY(!sender.isOwner());
        const QStringList messages{QStringLiteral("WAKE_UP"), QStringLiteral("OPEN_VIEW /data/tvx.prj")};
        for (const QString& message : messages) {
            QVERIFY(sender.sendMessage(message, 5000));
            QCOMPARE(owner.readLine(), row.windowState + QLatin1Char(' ') + message);
        }
    }

    void leftoverSocketDoesNotBlockNewOwner_data()
    {
        QTest::addColumn<Leftover>("leftover");
        QTest::newRow("socket of a killed owner") << Leftover::KilledOwner;
        QTest::newRow("plain file at the socket path") << Leftover::PlainFile;
    }

    void leftoverSocketDoesNotBlockNewOwner()
    {
        QFETCH(Leftover, leftover);
        LocalInstancePeer peer(uniqueId());
        std::unique_ptr<OwnerProcess> crashed;
        if (leftover == Leftover::KilledOwner) {
            crashed = std::make_unique<OwnerProcess>(peer.id());
            QCOMPARE(crashed->readLine(), QStringLiteral("primary"));
            crashed->kill();
        } else {
            QFile file(peer.socketPath());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("left behind");
        }
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
        QTest::addColumn<FailedSendRow>("row");
        QTest::newRow("no owner") << FailedSendRow{Owner::None, 5000, 0, 1000};
        QTest::newRow("this object is the owner") << FailedSendRow{Owner::ThisObject, 5000, 0, 1000};
        // The timer's granularity allows a few ms less than asked for.
        QTest::newRow("owner never acknowledges") << FailedSendRow{Owner::Silent, 300, 290, 4000};
    }

    void sendFailsWithoutAcknowledgement()
    {
        QFETCH(FailedSendRow, row);
        LocalInstancePeer peer(uniqueId());
        QLocalServer silent;
        if (row.owner == Owner::ThisObject)
            QVERIFY(!peer.isRunning());
        if (row.owner == Owner::Silent)
            QVERIFY(silent.listen(peer.socketPath()));

        QElapsedTimer clock;
        clock.start();
        QVERIFY(!peer.sendMessage(QStringLiteral("WAKE_UP"), row.timeout));
        const qint64 elapsed = clock.elapsed();
        QVERIFY2(elapsed >= row.minMs && elapsed <= row.maxMs, qPrintable(QString::number(elapsed)));
    }

    void malformedFramesAreDropped_data()
    {
        QTest::addColumn<MalformedRow>("row");
        QTest::newRow("length beyond the limit")
            << MalformedRow{lengthHeader(LocalInstancePeer::maxMessageBytes + 1) + "abc", true};
        QTest::newRow("body shorter than announced") << MalformedRow{lengthHeader(10) + "abc", false};
        QTest::newRow("header cut short") << MalformedRow{lengthHeader(3).left(2), false};
    }

    void malformedFramesAreDropped()
    {
        QFETCH(MalformedRow, row);
        LocalInstancePeer owner(uniqueId());
        QVERIFY(!owner.isRunning());
        QSignalSpy received(&owner, &LocalInstancePeer::messageReceived);

        QLocalSocket raw;
        QSignalSpy hungUp(&raw, &QLocalSocket::disconnected);
        raw.connectToServer(owner.socketPath());
        QVERIFY(raw.waitForConnected(1000));
        raw.write(row.bytes);
        raw.flush();
        if (row.ownerHangsUp)
            QVERIFY(hungUp.wait(5000));
        else
            raw.disconnectFromServer();

        // The owner still serves, and the broken frame never surfaces.
        QCOMPARE(runSender(owner.id(), {QStringLiteral("WAKE_UP")}), 0);
        QCOMPARE(received.count(), 1);
        QCOMPARE(received.at(0).at(0).toString(), QStringLiteral("WAKE_UP"));
    }
};

TVX_TEST(SingleApplicationTest)

#include "singleapplicationtest.moc"
