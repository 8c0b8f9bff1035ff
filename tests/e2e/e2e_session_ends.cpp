// Every way in which an evening ends, while anything may be under way: a signal, the window's button, the
// desktop, a crash. Guards that the session's file is written whole, that nothing half done gets into it, and
// that the program goes in time.

#include "SessionManager.h"
#include "SessionRun.h"
#include "StagePlaces.h"
#include "on_x_server.h"
#include "tunes.h"

#include <QDir>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace {

using Messages = SessionRun::Messages;

const QByteArray mainWindow = "Sorvane";
const QStringList evening{QStringLiteral("--power"), QStringLiteral("on"),
                          QStringLiteral("--tonic"), QStringLiteral("D#"),
                          QStringLiteral("--scale"), QStringLiteral("xoxxoxoxxoxo")};
constexpr int homeKey = 49;
constexpr QPoint newCategory(317, 179);

/// The white keys from middle C to the C above, in the scale of the evening.
constexpr int eveningPitches[] = {63, 65, 66, 68, 70, 71, 73, 75};

template <std::size_t count>
Messages taps(const int (&pitches)[count])
{
    Messages messages;
    for (const int pitch : pitches)
        messages += tap(pitch);
    return messages;
}

Messages octave()
{
    return tapWhiteKeys(60, 72);
}

} // namespace

class EndToEndSessionEnds : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void everyEndWritesTheSession_data();
    void everyEndWritesTheSession();
    void nohupStaysWhenTheTerminalGoes();
    void crashLeavesTheSessionBefore();
    void nothingHalfDoneIsWritten_data();
    void nothingHalfDoneIsWritten();
    void streamOfNotesIsInterrupted();
    void noteUnderThePointerEnds();
    void heldKeysEnd_data();
    void heldKeysEnd();
    void fileThatWillNotDoIsRefused_data();
    void fileThatWillNotDoIsRefused();
    void lockedFolderIsRefused();
    void fileThatCannotBeWrittenIsReported();
    void desktopThatEndsSavesAtOnce_data();
    void desktopThatEndsSavesAtOnce();
    void desktopThatStaysLeavesTheProgramAlone();

private:
    [[nodiscard]] bool playTheEvening();
    /// Makes the evening's session and goes on with it.
    [[nodiscard]] bool goOn();
    [[nodiscard]] bool changeTheTonic();
    [[nodiscard]] QStringList filesThere() const
    {
        return QDir(run.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    SessionRun run{QStringLiteral(SORVANE_PROGRAM)};
    QByteArray left; ///< the evening's session
};

void EndToEndSessionEnds::initTestCase()
{
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
}

void EndToEndSessionEnds::init()
{
    QVERIFY(run.forget());
    left.clear();
}

void EndToEndSessionEnds::cleanup()
{
    for (const int button : {1, 3}) // a test that ends in a gesture leaves one down
        QVERIFY(XServer::release(button));
    run.kill();
}

bool EndToEndSessionEnds::playTheEvening()
{
    return run.answerTo(octave()) == taps(eveningPitches);
}

bool EndToEndSessionEnds::goOn()
{
    if (!run.start(evening) || run.end(SIGTERM) != 0)
        return false;
    left = run.text();
    return run.start() && playTheEvening();
}

bool EndToEndSessionEnds::changeTheTonic()
{
    return XServer::click(stage::tonicPlace(7)) && run.heard(0).isEmpty();
}

void EndToEndSessionEnds::everyEndWritesTheSession_data()
{
    QTest::addColumn<int>("signal"); // 0: the window's button

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("window closed") << 0;
}

void EndToEndSessionEnds::everyEndWritesTheSession()
{
    QFETCH(const int, signal);
    QVERIFY(run.start(evening));
    QVERIFY(filesThere().isEmpty());
    QVERIFY(playTheEvening());
    QVERIFY(signal != 0 || closeWindowByItsButton(mainWindow));
    QCOMPARE(run.end(signal), 0);
    QCOMPARE(filesThere(), QStringList(QStringLiteral("last night.svdb")));
    const QByteArray first = run.text();
    QVERIFY(first.endsWith("}\n"));
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("D#")));
    QVERIFY(run.start());
    QVERIFY(playTheEvening());
    QVERIFY(changeTheTonic());
    QVERIFY(signal != 0 || closeWindowByItsButton(mainWindow));
    QCOMPARE(run.end(signal), 0);
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("G")));
    QVERIFY(first != run.text());
}

void EndToEndSessionEnds::nohupStaysWhenTheTerminalGoes()
{
    QVERIFY(run.startBy({QStringLiteral("nohup")}, evening));
    QVERIFY(playTheEvening());
    QVERIFY(changeTheTonic());
    QCOMPARE(::kill(run.pid(), SIGHUP), 0);
    for (int turn = 0; turn < 3; ++turn)
        QCOMPARE(run.answerTo(octave()).size(), 16);
    QVERIFY(run.isRunning() && filesThere().isEmpty());
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("G")));
}

void EndToEndSessionEnds::crashLeavesTheSessionBefore()
{
    QVERIFY(goOn());
    QVERIFY(changeTheTonic());
    run.kill();
    QCOMPARE(run.text(), left);
    QCOMPARE(filesThere(), QStringList(QStringLiteral("last night.svdb")));
    QVERIFY(run.start());
    QVERIFY(playTheEvening());
}

void EndToEndSessionEnds::nothingHalfDoneIsWritten_data()
{
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QPoint>("press");
    QTest::addColumn<QPoint>("dragTo"); // null: a click
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("window"); // that must be there

    const QPoint nowhere;
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    row("question") << QStringList("ctrl+r") << nowhere << nowhere << 1 << QString();
    row("file to open") << QStringList("ctrl+o") << nowhere << nowhere << 1 << "^Open a database$";
    row("file to save") << QStringList("ctrl+s") << nowhere << nowhere << 1 << "^Save a database$";
    row("menu of a flag") << QStringList() << stage::flagPlace(58) << nowhere << 3 << QString();
    row("power button in the hand") << QStringList() << stage::powerSleeve(homeKey) << stage::flagPlace(75)
                                    << 1 << QString();
    row("flag in the hand") << QStringList() << stage::flagPlace(63) << stage::flagPlace(75) << 1
                            << QString();
}

// What is shown by then is not waited for, but for a window of its own: both orders must come out right.
void EndToEndSessionEnds::nothingHalfDoneIsWritten()
{
    QFETCH(const QStringList, keys);
    QFETCH(const QPoint, press);
    QFETCH(const QPoint, dragTo);
    QFETCH(const int, button);
    QFETCH(const QString, window);
    QVERIFY(goOn());
    const QImage before = SessionRun::picture();
    for (const QString& key : keys)
        QVERIFY(XServer::key(key));
    if (!press.isNull()) {
        QVERIFY(XServer::move(press) && XServer::press(button));
        for (const QPoint& point : {press + QPoint(12, 0), dragTo})
            QVERIFY(dragTo.isNull() || XServer::move(point));
        QVERIFY(!dragTo.isNull() || XServer::release(button));
    }
    QVERIFY(window.isEmpty() || QTest::qWaitFor([&] { return SessionRun::hasWindow(window); }));
    const auto isSeen = [&] { return QGuiApplication::primaryScreen()->grabWindow(0).toImage() != before; };
    QVERIFY(QTest::qWaitFor(isSeen));
    QVERIFY(run.heard(0).isEmpty());
    QVERIFY(playTheEvening()); // and notes go on being played
    QCOMPARE(run.end(SIGTERM), 0);
    QString text = QString::fromUtf8(run.text()); // which tells where a dialog for files began
    text.remove(QRegularExpression(QStringLiteral(" *\"DatabasePath\".*\n")));
    QCOMPARE(text, QString::fromUtf8(left));
}

void EndToEndSessionEnds::streamOfNotesIsInterrupted()
{
    QVERIFY(goOn());
    JackPlayer busyHands("hands"); // which outlive the program
    QVERIFY(busyHands.connectOutputTo(QStringLiteral(":Sorvane MIDI In")));
    QTimer stream;
    connect(&stream, &QTimer::timeout, this, [&busyHands] {
        for (const auto& message : octave())
            busyHands.send(message);
    });
    stream.start(10);
    QVERIFY(run.player().collect(200).size() >= 200);
    QCOMPARE(run.end(SIGTERM), 0);
    stream.stop();
    QCOMPARE(run.text(), left);
    QVERIFY(run.start());
    QVERIFY(playTheEvening());
}

void EndToEndSessionEnds::noteUnderThePointerEnds()
{
    QVERIFY(goOn());
    QVERIFY(XServer::move(stage::keyPlace(stage::Keyboard::in, 60)) && XServer::press());
    QCOMPARE(run.heard(1), (Messages{{0x90, 63, 75}}));
    ::kill(run.pid(), SIGTERM);
    QCOMPARE(run.player().collect(1), (Messages{{0x80, 63, 0}}));
    QCOMPARE(run.end(0), 0);
    QCOMPARE(run.text(), left);
}

// The player's own releases come too late for the program.
void EndToEndSessionEnds::heldKeysEnd_data()
{
    QTest::addColumn<int>("signal"); // 0: the window's button

    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("window closed") << 0;
}

void EndToEndSessionEnds::heldKeysEnd()
{
    QFETCH(const int, signal);
    QVERIFY(goOn());
    const Messages chord{{0x90, 60, 64}, {0x90, 64, 64}};
    QCOMPARE(run.answerTo(chord), (Messages{{0x90, 63, 64}, {0x90, 66, 64}}));
    QVERIFY(signal == 0 ? closeWindowByItsButton(mainWindow) : ::kill(run.pid(), signal) == 0);
    Messages ends = run.player().collect(2);
    std::sort(ends.begin(), ends.end());
    QCOMPARE(ends, (Messages{{0x80, 63, 0}, {0x80, 66, 0}}));
    QCOMPARE(run.end(0), 0);
    QCOMPARE(run.text(), left);
}

void EndToEndSessionEnds::fileThatWillNotDoIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no JSON") << QByteArray("not a database");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("array") << QByteArray("[1, 2]");
    QTest::newRow("cut in the middle") << QByteArray("{\"TonicModifier\": \"G\", \"Scal");
}

void EndToEndSessionEnds::fileThatWillNotDoIsRefused()
{
    QFETCH(const QByteArray, content);
    const QString other = run.folder() + QStringLiteral("/other.svdb");
    for (const QString& file : {run.file(), other}) {
        QFile out(file);
        QVERIFY(out.open(QIODevice::WriteOnly) && out.write(content) == content.size());
    }
    QCOMPARE(run.run({"--midi-api", "jack", "--session", run.file()}), 2);
    QCOMPARE(run.errors().count(QLatin1Char('\n')), 1);
    QVERIFY2(run.errors().startsWith(QStringLiteral("sorvane: --session ") + run.file()),
             qPrintable(run.errors()));
    QCOMPARE(run.text(), content);
    QVERIFY(QFile::remove(run.file()));
    QCOMPARE(run.run({"--midi-api", "jack", "--session", run.file(), "--import", other}), 2);
    QVERIFY(run.errors().startsWith(QStringLiteral("sorvane: --import ") + other));
    QCOMPARE(filesThere(), QStringList(QStringLiteral("other.svdb")));
}

// Nothing is locked for the superuser, who therefore becomes somebody else.
void EndToEndSessionEnds::lockedFolderIsRefused()
{
    QStringList asNobody;
    if (::geteuid() == 0)
        asNobody = QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
    if (run.run({"--version"}, asNobody) != 0)
        QSKIP(qPrintable(QStringLiteral("the program cannot be run as somebody else: ") + run.errors()));
    const QFile::Permissions open = QFile::permissions(run.folder()) | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(run.folder(), open & ~(QFile::WriteOwner | QFile::WriteUser)));
    const int status = run.run({"--headless", "--session", run.file()}, asNobody);
    const QString errors = run.errors();
    QVERIFY(QFile::setPermissions(run.folder(), open | QFile::WriteOwner));
    QCOMPARE(status, 2);
    QVERIFY2(errors.endsWith(QStringLiteral("sorvane: --session %1: Permission denied.\n").arg(run.file())),
             qPrintable(errors));
    QVERIFY(filesThere().isEmpty());
}

void EndToEndSessionEnds::fileThatCannotBeWrittenIsReported()
{
    QVERIFY(run.start(evening));
    QVERIFY(QDir(run.folder()).removeRecursively());
    QCOMPARE(run.end(SIGTERM), 1);
    QCOMPARE(run.errors().count(QStringLiteral("sorvane: ")), 1);
    QVERIFY2(run.errors().contains(
                 QStringLiteral("sorvane: --session %1: There is no such folder.\n").arg(run.file())),
             qPrintable(run.errors()));
}

void EndToEndSessionEnds::desktopThatEndsSavesAtOnce_data()
{
    QTest::addColumn<bool>("mayAsk");

    QTest::newRow("no questions") << false;
    QTest::newRow("programs may ask") << true;
}

void EndToEndSessionEnds::desktopThatEndsSavesAtOnce()
{
    QFETCH(const bool, mayAsk);
    QVERIFY(goOn());
    QCOMPARE(run.end(SIGTERM), 0);
    SessionManager desktop;
    QVERIFY(desktop.start());
    QVERIFY(run.start());
    QVERIFY(desktop.waitForClient());
    QVERIFY(changeTheTonic());
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("D#")));
    QVERIFY(desktop.askToSave(mayAsk));
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("G"))); // by now
    const QByteArray saved = run.text();
    desktop.end();
    QCOMPARE(run.end(0), 0);
    QCOMPARE(run.text(), saved);
}

void EndToEndSessionEnds::desktopThatStaysLeavesTheProgramAlone()
{
    SessionManager desktop;
    QVERIFY(desktop.start());
    QVERIFY(run.start(evening));
    QVERIFY(desktop.waitForClient());
    QVERIFY(desktop.askToSave(true));
    desktop.stay();
    QVERIFY2(playTheEvening(), run.isRunning() ? "is deaf" : "has ended");
    QVERIFY(SessionRun::hasWindow(QStringLiteral("^Sorvane$")));
    QVERIFY(changeTheTonic());
    QCOMPARE(run.answerTo(octave()).size(), 16);
    QVERIFY(run.isRunning());
    QCOMPARE(run.end(SIGTERM), 0);
    QCOMPARE(run.value(QStringLiteral("TonicModifier")), QVariant(QStringLiteral("G")));
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndSessionEnds>(argc, argv);
}

#include "e2e_session_ends.moc"
