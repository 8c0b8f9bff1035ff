// The program on a real JACK interface: a native client plays into its virtual input and reads its virtual
// output. Guards the whole road of a note, ports and threads included: no unit test meets the library's own
// threads, its ring buffers or a server that dies.

#include "JackPlayer.h"
#include "MappingRule.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"

#include <QtTest>

#include <memory>
#include <vector>

namespace {

using Message = JackPlayer::Message;
using Messages = QList<Message>;

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QString virtualIn = QStringLiteral(":Sorvane MIDI In");
const QString virtualOut = QStringLiteral(":Sorvane MIDI Out");
const std::bitset<12> ionian(0b101010110101);

Messages pressAndRelease(int from, int to)
{
    Messages messages;
    for (int note = from; note <= to; ++note) {
        if (note == 49) // the power key
            continue;
        messages.append({0x90, note, note});
        messages.append({0x80, note, 64});
    }
    return messages;
}

/// With the power on a black key would recall its preset.
Messages pressAndReleaseWhite(int from, int to)
{
    Messages messages;
    for (int note = from; note <= to; ++note)
        if (isWhite(note))
            messages += Messages{{0x90, note, note}, {0x80, note, 64}};
    return messages;
}

/// What the white keys of a range answer under a tonic and scale.
Messages mappedAnswer(int from, int to, int tonic, const std::bitset<12>& degrees)
{
    const MappingRule rule(tonic, degrees);
    Messages messages;
    for (int note = from; note <= to; ++note) {
        const int target = isWhite(note) ? rule.target.at(note) : -1;
        if (target == -1)
            continue;
        messages.append({0x90, target, note});
        messages.append({0x80, target, 0});
    }
    return messages;
}

Messages plainAnswer(int from, int to)
{
    Messages messages;
    for (int note = from; note <= to; ++note) {
        if (note == 49)
            continue;
        messages.append({0x90, note, note});
        messages.append({0x80, note, 0});
    }
    return messages;
}

} // namespace

class EndToEndJack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { program = std::make_unique<ProgramUnderTest>(programPath); }
    void cleanup();

    void powerOffPassesEveryPitch();
    void noteFortyNineTogglesThePower();
    void commandLineSetsTonicAndScale();
    void otherChannelsAndControlChangesPassUnchanged();
    void systemPortsStayClosedOnAFirstRun();
    void twoInputsAndTwoOutputsAtOnce();
    void rowOpensItsOwnDeviceThoughTheNumbersHaveMoved();
    void heldNoteOfAClosedPortIsReleasedThroughAnother();
    void listPortsNamesBothDirections();
    void unknownPortNameEndsBeforeAnythingOpens();
    void endsCleanlyUnderFire();
    void daemonThatDiesLeavesTheProgramAlive();

private:
    bool startProgram(const QStringList& arguments);
    bool openWay(JackPlayer& player);

    std::unique_ptr<PipeWireDaemon> daemon;
    std::unique_ptr<ProgramUnderTest> program;
};

void EndToEndJack::initTestCase()
{
    daemon = std::make_unique<PipeWireDaemon>();
    if (!daemon->startForJack())
        QSKIP(qPrintable(daemon->reason()));
}

void EndToEndJack::cleanup()
{
    const bool ended = !program->isRunning() || program->stop() == 0;
    program.reset();
    QVERIFY(ended);
}

bool EndToEndJack::startProgram(const QStringList& arguments)
{
    return program->start(QStringList{"--headless", "--midi-api", "jack"} + arguments);
}

bool EndToEndJack::openWay(JackPlayer& player)
{
    return player.connectOutputTo(virtualIn) && player.connectInputTo(virtualOut) && player.waitForEcho();
}

void EndToEndJack::powerOffPassesEveryPitch()
{
    QVERIFY(startProgram({}));
    JackPlayer player("player");
    QVERIFY(openWay(player));
    QCOMPARE(player.answerTo(pressAndRelease(21, 108)), plainAnswer(21, 108));
    QCOMPARE(player.answerTo({{0x90, 20, 1}, {0x90, 109, 1}}), Messages());
}

void EndToEndJack::noteFortyNineTogglesThePower()
{
    QVERIFY(startProgram({}));
    JackPlayer player("player");
    QVERIFY(openWay(player));
    const Messages toggle{{0x90, 49, 100}, {0x80, 49, 0}};
    QCOMPARE(player.answerTo({{0x90, 61, 9}, {0x80, 61, 0}}), (Messages{{0x90, 61, 9}, {0x80, 61, 0}}));
    QCOMPARE(player.answerTo(toggle), Messages());
    QCOMPARE(player.answerTo(pressAndReleaseWhite(60, 72)), mappedAnswer(60, 72, 0, ionian));
    QCOMPARE(player.answerTo({{0x90, 61, 9}, {0x80, 61, 0}}), Messages()); // black keys are silent
    QCOMPARE(player.answerTo(toggle), Messages());
    QCOMPARE(player.answerTo(pressAndRelease(60, 72)), plainAnswer(60, 72));
}

void EndToEndJack::commandLineSetsTonicAndScale()
{
    QVERIFY(startProgram({"--power", "on", "--tonic", "D", "--scale", "xoxooxoxoxoo"}));
    JackPlayer player("player");
    QVERIFY(openWay(player));
    const std::bitset<12> degrees(0b001010100101); // letter 0 in the lowest bit
    QCOMPARE(player.answerTo(pressAndReleaseWhite(21, 108)), mappedAnswer(21, 108, 2, degrees));
}

void EndToEndJack::otherChannelsAndControlChangesPassUnchanged()
{
    QVERIFY(startProgram({"--power", "on", "--tonic", "E"}));
    JackPlayer player("player");
    QVERIFY(openWay(player));
    const Messages passing{{0x91, 61, 5}, {0x81, 61, 6}, {0xB0, 64, 127}, {0xE0, 1, 2}, {0xA0, 60, 3}};
    QCOMPARE(player.answerTo(passing), passing);
    QCOMPARE(player.answerTo({{0xC0, 5}, {0xD0, 5}}), Messages()); // two bytes go nowhere
    QCOMPARE(player.answerTo({{0x90, 60, 9}, {0x83, 60, 7}}),
             (Messages{{0x90, 64, 9}, {0x80, 64, 0}, {0x83, 60, 7}}));
}

void EndToEndJack::systemPortsStayClosedOnAFirstRun()
{
    JackPlayer other("other device");
    QVERIFY(startProgram({}));
    JackPlayer player("player");
    QVERIFY(openWay(player)); // the virtual ports are open by now, 200 milliseconds after the start
    other.send({0xB0, 7, 1});
    QCOMPARE(player.answerTo({{0x90, 60, 9}, {0x80, 60, 0}}), (Messages{{0x90, 60, 9}, {0x80, 60, 0}}));
    QVERIFY(other.read().isEmpty());
}

void EndToEndJack::twoInputsAndTwoOutputsAtOnce()
{
    JackPlayer second("second keyboard");
    QVERIFY(second.isOpen());
    QVERIFY(startProgram({"--power", "on", "--in", "second keyboard", "--out", "second keyboard"}));
    JackPlayer first("player");
    QVERIFY(openWay(first));
    QVERIFY(second.waitForEcho());
    for (JackPlayer* player : {&first, &second}) // the other one's echoes
        static_cast<void>(player->collect(1000000, 500));

    first.send({0x90, 60, 10});
    const Messages one{{0x90, 60, 10}};
    QCOMPARE(first.collect(1), one);
    QCOMPARE(second.collect(1), one);
    second.send({0x90, 62, 20});
    second.send({0x80, 60, 0}); // the other keyboard's key
    const Messages two{{0x90, 62, 20}, {0x80, 60, 0}};
    QCOMPARE(first.collect(2), two);
    QCOMPARE(second.collect(2), two);
}

// A client that came between the listing and the opening took a freed number below that of the wanted device,
// so the row's index opened the newcomer. The window's own delay of 200 milliseconds leaves room for that.
void EndToEndJack::rowOpensItsOwnDeviceThoughTheNumbersHaveMoved()
{
    std::vector<std::unique_ptr<JackPlayer>> early;
    for (int i = 0; i < 12; ++i)
        early.push_back(std::make_unique<JackPlayer>("early"));
    JackPlayer wanted("wanted keyboard");
    early.clear(); // their numbers are free again
    QVERIFY(startProgram({"--in", "wanted keyboard", "--no-virtual", "--out", "wanted keyboard", "--debug"}));
    std::vector<std::unique_ptr<JackPlayer>> newcomers;
    for (int i = 0; i < 8; ++i) {
        newcomers.push_back(std::make_unique<JackPlayer>("newcomer"));
        QTest::qWait(40); // spread over the listing, wherever it falls
    }
    QVERIFY(wanted.waitForEcho());
}

void EndToEndJack::heldNoteOfAClosedPortIsReleasedThroughAnother()
{
    auto second = std::make_unique<JackPlayer>("second keyboard");
    QVERIFY(startProgram({"--in", "second keyboard"}));
    JackPlayer first("player");
    QVERIFY(openWay(first));
    second->send({0x90, 64, 50});
    QCOMPARE(first.collect(1), (Messages{{0x90, 64, 50}}));
    second.reset(); // pulled out while the key is down
    QCOMPARE(first.answerTo({{0x90, 64, 51}}), Messages());
    QCOMPARE(first.answerTo({{0x80, 64, 0}, {0x90, 64, 52}}), (Messages{{0x80, 64, 0}, {0x90, 64, 52}}));
}

void EndToEndJack::listPortsNamesBothDirections()
{
    const JackPlayer other("other device");
    QCOMPARE(program->run({"--list-ports", "--midi-api", "jack"}), 0);
    const QString text = program->output();
    for (const char* part : {"JACK", "Inputs:", "Outputs:", "other device:out", "other device:in",
                             "Sorvane MIDI In", "Sorvane MIDI Out"})
        QVERIFY2(text.contains(QLatin1String(part)), part);
}

void EndToEndJack::unknownPortNameEndsBeforeAnythingOpens()
{
    QCOMPARE(program->run({"--headless", "--midi-api", "jack", "--in", "no such device"}), 2);
    QCOMPARE(program->ownErrorLines().size(), 1);
}

// Messages go on arriving while the program takes its world apart.
void EndToEndJack::endsCleanlyUnderFire()
{
    QVERIFY(startProgram({"--power", "on"}));
    JackPlayer player("player");
    QVERIFY(openWay(player));
    for (int i = 0; i < 20000; ++i)
        player.send({i % 2 ? 0x80 : 0x90, 60 + i / 2 % 12, 64});
    QCOMPARE(program->stop(), 0);
}

// Last, since it ends the daemon. A client of a dead server that goes on writing would wait for ever on its
// ring.
void EndToEndJack::daemonThatDiesLeavesTheProgramAlive()
{
    QVERIFY(startProgram({"--power", "on"}));
    {
        JackPlayer player("player");
        QVERIFY(openWay(player));
        for (int i = 0; i < 5000; ++i)
            player.send({0xB0, 1, i % 128});
        daemon->kill();
    }
    QVERIFY2(program->waitForError(QStringLiteral("MIDI service has stopped")),
             qPrintable(program->errors()));
    QVERIFY(program->isRunning());
    QCOMPARE(program->stop(), 0);
}

QTEST_GUILESS_MAIN(EndToEndJack)
#include "e2e_jack.moc"
