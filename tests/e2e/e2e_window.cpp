// The program's window under a real X server and a real hand: selectors dragged and clicked, ports opened and
// closed by their rows, while a JACK client plays and listens. Guards the stacking of the window's views and
// the gestures, which only real events can meet.

#include "JackPlayer.h"
#include "MappingRule.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"
#include "on_x_server.h"

#include <QtTest>

namespace {

using Messages = QList<JackPlayer::Message>;

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QString virtualIn = QStringLiteral(":Sorvane MIDI In");
const QString virtualOut = QStringLiteral(":Sorvane MIDI Out");
const QPoint tonicSwitch(134, 260), scaleSwitch(898, 260), portsButton(289, 196), firstInRow(420, 204),
    firstOutRow(630, 204), besideTheLists(473, 291);

// The heads of two flags: C Lydian over A#3 and D# Iwato over D#5.
const QPoint lydianFlag(426, 315), iwatoFlag(587, 343);

/// The middle of a selector key: the foot of a white one, the body of a black one.
QPoint keyPlace(int left, int index)
{
    constexpr int white[] = {0, -1, 1, -1, 2, 3, -1, 4, -1, 5, -1, 6};
    constexpr int black[] = {-1, 12, -1, 29, -1, -1, 63, -1, 80, -1, 97, -1};
    return white[index] >= 0 ? QPoint(left + white[index] * 17 + 8, 238)
                             : QPoint(left + black[index] + 5, 205);
}

QPoint tonicKey(int index)
{
    return keyPlace(35, index);
}

QPoint scaleKey(int index)
{
    return keyPlace(799, index);
}

} // namespace

class EndToEndWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void dragAcrossTheTonicRowMovesTheTonic();
    void clickChoosesTheTonic();
    void dragAcrossTheScaleRowTogglesEachKeyOnce();
    void clickTogglesOneDegree();
    void scaleSwitchOffStopsTheScaleGestures();
    void clickOnAFlagRecallsItsPreset();
    void arrowKeysRecallTheNeighbours();
    void menuOfAFlagWorksByKeyboard();
    void portIsClosedByItsRowWhileANoteIsHeld();
    void portThatCannotOpenIsReportedAndOpensOnceTheServiceIsBack();

private:
    /// Waits until the white keys answer as the tonic and scale say.
    bool playsAs(int tonic, const char* word);

    PipeWireDaemon daemon;
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> player;
};

void EndToEndWindow::initTestCase()
{
    if (!daemon.startForJack())
        QSKIP(qPrintable(daemon.reason()));
}

void EndToEndWindow::init()
{
    player = std::make_unique<JackPlayer>("player"); // first, so that the port lists hold it
    program = std::make_unique<ProgramUnderTest>(programPath);
    QVERIFY(program->start({"--midi-api", "jack"}));
    QVERIFY(player->connectOutputTo(virtualIn) && player->connectInputTo(virtualOut) &&
            player->waitForEcho());
    QVERIFY(XServer::key(QStringLiteral("space")));
    QVERIFY(playsAs(0, "xoxoxxoxoxox"));
}

void EndToEndWindow::cleanup()
{
    player.reset();
    const int status = program->stop();
    program.reset();
    QCOMPARE(status, 0);
}

bool EndToEndWindow::playsAs(int tonic, const char* word)
{
    std::bitset<12> degrees;
    for (std::size_t n = 0; n < 12; ++n)
        degrees[n] = word[n] == 'x';
    const MappingRule rule(tonic, degrees);
    Messages played, expected;
    for (int note = 48; note <= 73; ++note) {
        if (!isWhite(note)) // it would recall its preset
            continue;
        played += Messages{{0x90, note, 64}, {0x80, note, 0}};
        const int target = rule.target.at(note);
        if (target != -1)
            expected += Messages{{0x90, target, 64}, {0x80, target, 0}};
    }
    return QTest::qWaitFor([&] { return player->answerTo(played) == expected; }, 10000);
}

void EndToEndWindow::dragAcrossTheTonicRowMovesTheTonic()
{
    QVERIFY(XServer::drag({tonicKey(0), tonicKey(2), tonicKey(4), tonicKey(7)}));
    QVERIFY(playsAs(7, "xoxoxxoxoxox"));
}

void EndToEndWindow::clickChoosesTheTonic()
{
    for (const int index : {3, 11, 2}) {
        QVERIFY(XServer::click(tonicKey(index)));
        QVERIFY(playsAs(index, "xoxoxxoxoxox"));
    }
}

void EndToEndWindow::dragAcrossTheScaleRowTogglesEachKeyOnce()
{
    // Along the feet of the white keys: E, F and G go off, the pressed D stays.
    QVERIFY(XServer::drag({scaleKey(2), scaleKey(4), scaleKey(5), scaleKey(7), scaleKey(5)}));
    QVERIFY(playsAs(0, "xoxooooooxox"));
}

void EndToEndWindow::clickTogglesOneDegree()
{
    QVERIFY(XServer::click(scaleKey(6)));
    QVERIFY(playsAs(0, "xoxoxxxxoxox"));
    QVERIFY(XServer::click(scaleKey(5)));
    QVERIFY(playsAs(0, "xoxoxoxxoxox"));
}

void EndToEndWindow::scaleSwitchOffStopsTheScaleGestures()
{
    QVERIFY(XServer::click(scaleSwitch));
    QVERIFY(XServer::drag({scaleKey(2), scaleKey(4), scaleKey(5)}));
    QVERIFY(XServer::click(scaleKey(9)));
    QVERIFY(XServer::click(tonicKey(9))); // the tonic still answers: that the clicks arrived is known
    QVERIFY(playsAs(9, "xoxoxxoxoxox"));
    QVERIFY(XServer::click(tonicSwitch)); // and keeps its tonic with its own switch off
    QVERIFY(playsAs(9, "xoxoxxoxoxox"));
}

void EndToEndWindow::clickOnAFlagRecallsItsPreset()
{
    QVERIFY(XServer::click(lydianFlag));
    QVERIFY(playsAs(0, "xoxoxoxxoxox"));
    QVERIFY(XServer::click(iwatoFlag));
    QVERIFY(playsAs(3, "xxoooxxoooxo"));
    QVERIFY(XServer::click(scaleKey(4))); // belongs to the preset, and comes back with it
    QVERIFY(XServer::click(lydianFlag));
    QVERIFY(playsAs(0, "xoxoxoxxoxox"));
    QVERIFY(XServer::click(iwatoFlag));
    QVERIFY(playsAs(3, "xxooxxxoooxo"));
}

void EndToEndWindow::arrowKeysRecallTheNeighbours()
{
    QVERIFY(XServer::click(iwatoFlag));
    QVERIFY(XServer::key(QStringLiteral("ctrl+Left")));
    QVERIFY(playsAs(1, "xoxxoooxxoxo"));
    QVERIFY(XServer::key(QStringLiteral("ctrl+Right")));
    QVERIFY(playsAs(3, "xxoooxxoooxo"));
}

void EndToEndWindow::menuOfAFlagWorksByKeyboard()
{
    QVERIFY(XServer::click(iwatoFlag));
    QVERIFY(XServer::click(lydianFlag, 3));
    QVERIFY(XServer::key(QStringLiteral("Escape")));
    QVERIFY(playsAs(3, "xxoooxxoooxo"));
    QVERIFY(XServer::click(lydianFlag, 3));
    for (const char* key : {"Up", "Up", "Up", "Return"}) // the last but two: "Reset: C/Ionian"
        QVERIFY(XServer::key(QLatin1String(key)));
    QVERIFY(playsAs(3, "xxoooxxoooxo")); // another preset than the active one
    QVERIFY(XServer::click(lydianFlag));
    QVERIFY(playsAs(0, "xoxoxxoxoxox"));
}

void EndToEndWindow::portIsClosedByItsRowWhileANoteIsHeld()
{
    QVERIFY(XServer::click(portsButton));
    player->send({0x90, 60, 90});
    QCOMPARE(player->collect(1), (Messages{{0x90, 60, 90}}));
    // The rows are the system's ports, this player first among them, and the virtual one below.
    const QPoint virtualRow = firstInRow + QPoint(0, 15);
    QVERIFY(XServer::click(virtualRow));
    QVERIFY(QTest::qWaitFor(
        [&] {
            player->send({0xB0, 7, 1});
            return player->collect(1, 200).isEmpty();
        },
        10000));
    QVERIFY(XServer::click(besideTheLists)); // or the next click would be the second one of a double click
    QVERIFY(XServer::click(virtualRow));     // opened again: the key still counts as held
    QVERIFY(player->connectOutputTo(virtualIn));
    QVERIFY(player->waitForEcho());
    QCOMPARE(player->answerTo({{0x90, 60, 91}}), Messages());
    QCOMPARE(player->answerTo({{0x80, 60, 0}}), (Messages{{0x80, 60, 0}}));
}

// Last, since it ends the daemon.
void EndToEndWindow::portThatCannotOpenIsReportedAndOpensOnceTheServiceIsBack()
{
    QVERIFY(XServer::click(portsButton));
    player.reset();
    daemon.kill();
    QVERIFY(program->waitForError(QStringLiteral("MIDI service has stopped")));
    const QPoint virtualRow = firstInRow + QPoint(0, 15);
    const auto toggleRow = [&virtualRow] {
        return XServer::click(virtualRow) && XServer::click(besideTheLists);
    };
    QVERIFY(toggleRow() && toggleRow()); // off, and on again
    QVERIFY(program->waitForError(QStringLiteral("There was an error with selected MIDI port:<br/>")));
    QVERIFY(program->isRunning());

    QVERIFY(daemon.start());
    QVERIFY(toggleRow() && toggleRow());
    QVERIFY(XServer::click(firstOutRow + QPoint(0, 15)) && XServer::click(besideTheLists));
    QVERIFY(XServer::click(firstOutRow + QPoint(0, 15)));
    player = std::make_unique<JackPlayer>("player");
    QVERIFY(player->connectOutputTo(virtualIn) && player->connectInputTo(virtualOut) &&
            player->waitForEcho());
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndWindow>(argc, argv);
}

#include "e2e_window.moc"
