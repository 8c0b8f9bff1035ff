// The log's lines as datagrams: each line one, to the port of the loopback address, as a plain socket gets
// them.

#include "LogFixture.h"

#include "logging/LoggerFile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace log_fixture;

namespace {

constexpr int longestWaitMs = 10000;

/// A port of the loopback address, and what comes to it. Valid if `port` is not 0.
class Receiver
{
public:
    /// A port of 0 is any free one.
    explicit Receiver(quint16 wanted = 0) : socket(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(wanted);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        const int room = 4 << 20; // as much as the system gives
        setsockopt(socket, SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
        if (bind(socket, reinterpret_cast<sockaddr*>(&address), size) == 0 &&
            getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) == 0)
            port = ntohs(address.sin_port);
    }
    ~Receiver() { ::close(socket); }
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;

    /// The next datagram; "no datagram" if none comes.
    QByteArray next(int waitMs = longestWaitMs) const
    {
        pollfd wanted = {socket, POLLIN, 0};
        QByteArray datagram(65536, Qt::Uninitialized);
        if (poll(&wanted, 1, waitMs) != 1)
            return "no datagram";
        const ssize_t size = recv(socket, datagram.data(), std::size_t(datagram.size()), 0);
        datagram.truncate(int(qMax<ssize_t>(size, 0)));
        return datagram;
    }
    /// What there is already: on the loopback address a datagram is there when its sender returns.
    bool isEmpty() const { return next(0) == "no datagram"; }

    quint16 port = 0;

private:
    const int socket;
};

} // namespace

class TestLoggerSocket : public QObject
{
    Q_OBJECT

private slots:
    void nameTellsThePort_data();
    void nameTellsThePort();
    void lineIsOneDatagram_data();
    void lineIsOneDatagram();
    void entryOfSeveralLinesIsADatagramEach();
    void lineLongerThanADatagramComesInPieces_data();
    void lineLongerThanADatagramComesInPieces();
    void levelAndFilterExcludeAsForAFile();
    void entriesWithoutAListenerVanish();
    void readerThatStandsStillHoldsNobodyUp();
    void portZeroIsHarmless();
    void entriesOfSeveralThreadsComeWhole();
    void socketIsNeverRotated();
};

void TestLoggerSocket::nameTellsThePort_data()
{
    QTest::addColumn<unsigned>("port");
    for (const unsigned port : {0U, 1U, 80U, 40000U, 65535U})
        QTest::addRow("%u", port) << port;
}

void TestLoggerSocket::nameTellsThePort()
{
    QFETCH(unsigned, port);
    const LoggerFile log(static_cast<unsigned short>(port), LoggerModel::warn);
    QCOMPARE(log.mfGetLogFileName(), "socket:" + QString::number(port));
    QCOMPARE(log.mfGetLogLevel(), LoggerModel::warn);
    QVERIFY(log.mfIsValid());
}

void TestLoggerSocket::lineIsOneDatagram_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "plain";
    QTest::newRow("empty") << "";
    QTest::newRow("tabs and a null character") << QStringLiteral("a\tb") + QChar(0) + 'c';
    QTest::newRow("umlauts and more") << QStringLiteral("\u00e4\u00f6\u00fc\u00df \u20ac \U0001F3B9");
    QTest::newRow("about the buffers' sizes") << QString(16384, QChar(0x20ac));
    QTest::newRow("as long as a datagram may be") << QString(65507 - errorLine({}).size(), 'x');
}

void TestLoggerSocket::lineIsOneDatagram()
{
    QFETCH(QString, text);
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    for (const QString& each : {text, QStringLiteral("next"), text}) {
        write(log, each);
        const bool isSame = receiver.next() == errorLine(each);
        QVERIFY(isSame);
        QVERIFY(receiver.isEmpty());
    }
}

void TestLoggerSocket::entryOfSeveralLinesIsADatagramEach()
{
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    write(log, "first\n\nthird \u00e4\n");
    QCOMPARE(receiver.next(), errorLine("first"));
    QCOMPARE(receiver.next(), QByteArray("\n"));
    QCOMPARE(receiver.next(), QStringLiteral("third \u00e4\n").toUtf8());
    QCOMPARE(receiver.next(), QByteArray("\n"));
    QVERIFY(receiver.isEmpty());
}

void TestLoggerSocket::lineLongerThanADatagramComesInPieces_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one byte longer") << QString(65508 - errorLine({}).size(), 'x');
    QTest::newRow("two whole datagrams") << QString(2 * 65507 - errorLine({}).size(), 'x');
    QTest::newRow("200000 bytes") << QStringLiteral("0123456789").repeated(20000);
    QTest::newRow("200000 bytes of umlauts") << QString(100000, QChar(0xe4));
}

void TestLoggerSocket::lineLongerThanADatagramComesInPieces()
{
    QFETCH(QString, text);
    const QByteArray line = errorLine(text);
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    QByteArray joined;
    int pieces = 0;
    // Whoever reads meanwhile needs no room for all of them.
    std::thread reader([&] {
        for (; joined.size() < line.size() && !joined.endsWith("no datagram"); ++pieces)
            joined += receiver.next();
    });
    write(log, text);
    reader.join();
    const bool isSame = joined == line;
    QVERIFY(isSame);
    QCOMPARE(pieces, (line.size() + 65506) / 65507);
    write(log, "next");
    QCOMPARE(receiver.next(), errorLine("next"));
}

void TestLoggerSocket::levelAndFilterExcludeAsForAFile()
{
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::warn);
    log.mpSetFilter(1ULL << 63 | 1);
    LoggerItem below = entry("below", LoggerModel::info), filtered = entry("filtered");
    filtered.id = 1ULL << 63 | 1;
    log.mpLogEvent(below);
    log.mpLogEvent(filtered);
    write(log, "x");
    QCOMPARE(receiver.next(), errorLine("x"));
    QVERIFY(receiver.isEmpty());
}

void TestLoggerSocket::entriesWithoutAListenerVanish()
{
    const Messages messages;
    quint16 port = 0;
    {
        const Receiver early;
        port = early.port;
    }
    LoggerFile log(port, LoggerModel::error);
    for (int times = 0; times < 3; ++times)
        write(log, "to nobody");
    QVERIFY(log.mfIsValid());
    const Receiver late(port);
    QCOMPARE(late.port, port);
    write(log, "to somebody");
    QCOMPARE(late.next(), errorLine("to somebody"));
    QVERIFY(late.isEmpty());
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerSocket::readerThatStandsStillHoldsNobodyUp()
{
    const Messages messages;
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    const QString text(10000, 'x');
    for (int times = 0; times < 3000; ++times) // more than it has room for
        write(log, text);
    QByteArray line = receiver.next();
    while (line != "no datagram") { // those that had room came whole
        QCOMPARE(line, errorLine(text));
        line = receiver.next(0);
    }
    write(log, "after");
    QCOMPARE(receiver.next(), errorLine("after"));
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerSocket::portZeroIsHarmless()
{
    const Messages messages;
    LoggerFile log(static_cast<unsigned short>(0), LoggerModel::error);
    write(log, "x\ny");
    write(log, QString(200000, 'x'));
    log.mpRenewLogFile();
    QCOMPARE(Messages::all().join("; "), QString());
}

void TestLoggerSocket::entriesOfSeveralThreadsComeWhole()
{
    constexpr int threads = 4, entries = 25; // few enough for the room there is
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    std::vector<std::thread> writers;
    QList<QByteArray> expected, received;
    for (int number = 0; number < threads; ++number) {
        const QString text = QString::number(number).repeated(700 + number);
        writers.emplace_back([&log, text] {
            for (int times = 0; times < entries; ++times)
                write(log, text);
        });
        for (int times = 0; times < entries; ++times)
            expected.append(errorLine(text));
    }
    for (std::thread& writer : writers)
        writer.join();
    for (int count = 0; count < threads * entries; ++count)
        received.append(receiver.next());
    std::sort(received.begin(), received.end());
    std::sort(expected.begin(), expected.end());
    QCOMPARE(received, expected);
    QVERIFY(receiver.isEmpty());
}

void TestLoggerSocket::socketIsNeverRotated()
{
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path())); // where files of its name would be
    const Receiver receiver;
    LoggerFile log(receiver.port, LoggerModel::error);
    log.mpSetFileSize(1);
    log.mpSetBackupFileCount(2);
    for (int times = 0; times < 3; ++times) {
        write(log, "x");
        log.mpRenewLogFile();
        QCOMPARE(receiver.next(), errorLine("x"));
        QVERIFY(receiver.isEmpty());
    }
    QCOMPARE(namesIn(folder.path()), QStringList());
    QVERIFY(QDir::setCurrent(QDir::tempPath()));
}

QTEST_GUILESS_MAIN(TestLoggerSocket)
#include "test_logger_socket.moc"
