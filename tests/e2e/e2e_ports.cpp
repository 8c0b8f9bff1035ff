// Ports chosen by a real hand, with native JACK clients at both ends: the rows are clicked or walked by keys,
// and what is played into one client is heard at the others. Guards the whole way from a row to a sounding
// port.

#include "JackPlayer.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"
#include "answer.h"
#include "on_x_server.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QtTest>

#include <memory>

namespace {

using Messages = QList<JackPlayer::Message>;

const QString programPath = QStringLiteral(SORVANE_PROGRAM);
const QString virtualIn = QStringLiteral("Sorvane MIDI In"), virtualOut = QStringLiteral("Sorvane MIDI Out");
const QString alertText = QStringLiteral("There was an error with selected MIDI port:");
constexpr char longName[] = "A keyboard controller whose name is wider than its row";

// Of the stage.
constexpr QPoint portsButton(289, 196), besideTheLists(473, 291), farAway(940, 150);
constexpr QRect inList(351, 196, 185, 75), outList(548, 196, 160, 75);
constexpr int rowHeight = 15;

QRect rowPlace(const QRect& list, int row)
{
    return {list.left(), list.top() + rowHeight * row, list.width(), rowHeight};
}

/// What is written in a part of the screen that is not selected.
QRect inkIn(const QImage& picture, const QRect& place)
{
    QRect ink;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (qGray(picture.pixel(x, y)) < 150)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

Messages notes(int from, int to)
{
    Messages messages;
    for (int note = from; note <= to; ++note)
        if (note != 49) // the power key
            messages += Messages{{0x90, note, 1 + note}, {0x80, note, 0}};
    return messages;
}

/// Played at one client, heard at another.
struct Route
{
    JackPlayer& from;
    JackPlayer& to;

    void send(const JackPlayer::Message& message) { from.send(message); }
    [[nodiscard]] JackPlayer::Message read() { return to.read(); }

    /// What arrives; all of it, and nothing else, if the way is open.
    [[nodiscard]] Messages carry(const Messages& messages)
    {
        const JackPlayer::Message echo{0xBE, 119, number = (number + 1) % 128};
        return answerBeforeEcho(*this, messages, echo, 5000);
    }
    /// Plays a control change until one arrives, and drops the others that are under way.
    [[nodiscard]] bool waitUntilOpen()
    {
        const auto passes = [this] {
            send({0xBE, 118, 1});
            return !to.collect(1, 250).isEmpty();
        };
        return QTest::qWaitFor(passes, 10000) && (static_cast<void>(carry({})), true);
    }
    [[nodiscard]] bool waitUntilShut()
    {
        const auto isShut = [this] {
            send({0xBE, 118, 2});
            return to.collect(1, 300).isEmpty();
        };
        return QTest::qWaitFor(isShut, 10000);
    }

    int number = 0;
};

} // namespace

class EndToEndPorts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void clickedRowsCarryEveryNote();
    void twoInputsAndTwoOutputsAtOnce();
    void nothingSoundsAfterTheLastOutputIsDeselected();
    void keyboardAloneChoosesPorts();
    void longNamesAreElided();
    void goneInputIsReportedAndTriedAgain();
    void goneOutputIsReportedAndTriedAgain();

private:
    [[nodiscard]] bool readRows();
    [[nodiscard]] bool click(QPoint place);
    [[nodiscard]] bool clickIn(const QString& name)
    {
        return click(rowPlace(inList, row(inRows, name)).center());
    }
    [[nodiscard]] bool clickOut(const QString& name)
    {
        return click(rowPlace(outList, row(outRows, name)).center());
    }
    [[nodiscard]] static int row(const QStringList& rows, const QString& name);
    [[nodiscard]] bool walk(const char* key, int times);
    [[nodiscard]] static QImage screen();
    [[nodiscard]] static bool isSelected(const QRect& rowRect);
    [[nodiscard]] int alerts() { return program->errors().count(alertText); }
    [[nodiscard]] bool waitForAlerts(int count);

    PipeWireDaemon daemon{1024};
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> piano, pads, controller; ///< listed in the rows
    std::unique_ptr<JackPlayer> witness;                 ///< at the program's own ports
    QStringList inRows, outRows;
};

void EndToEndPorts::initTestCase()
{
    if (!daemon.startForJack())
        QSKIP(qPrintable(daemon.reason()));
}

void EndToEndPorts::init()
{
    piano = std::make_unique<JackPlayer>("piano");
    pads = std::make_unique<JackPlayer>("pads");
    controller = std::make_unique<JackPlayer>(longName);
    QVERIFY(readRows());
    program = std::make_unique<ProgramUnderTest>(programPath);
    QVERIFY(program->start({"--midi-api", "jack"}));
    QVERIFY(XServer::bringToOrigin(QStringLiteral("^Sorvane$")));
    witness = std::make_unique<JackPlayer>("witness");
    QVERIFY(witness->connectOutputTo(virtualIn) && witness->connectInputTo(virtualOut) &&
            witness->waitForEcho());
    QVERIFY(click(portsButton));
}

void EndToEndPorts::cleanup()
{
    for (auto* player : {&witness, &controller, &pads, &piano})
        player->reset();
    const int status = program ? program->stop() : 0;
    program.reset();
    QCOMPARE(status, 0);
}

// The program's own list, in the order of the rows, once all clients are in it.
bool EndToEndPorts::readRows()
{
    const auto isComplete = [this] {
        ProgramUnderTest lister(programPath);
        if (lister.run({"--list-ports", "--midi-api", "jack"}) != 0)
            return false;
        const QStringList parts = lister.output().split(QStringLiteral("Outputs:\n"));
        const auto rowsOf = [](const QString& part) {
            return part.split(QLatin1Char('\n')).filter(QRegularExpression(QStringLiteral("^  ")));
        };
        inRows = rowsOf(parts.value(0));
        outRows = rowsOf(parts.value(1));
        return inRows.size() == 4 && outRows.size() == 4;
    };
    return QTest::qWaitFor(isComplete, 10000);
}

int EndToEndPorts::row(const QStringList& rows, const QString& name)
{
    for (int i = 0; i < rows.size(); ++i)
        if (rows.at(i).contains(name))
            return i;
    return -1;
}

// The pointer leaves the row, or the next click there would be the second one of a double click.
bool EndToEndPorts::click(QPoint place)
{
    return XServer::click(place) && XServer::click(besideTheLists);
}

bool EndToEndPorts::walk(const char* key, int times)
{
    for (int i = 0; i < times; ++i)
        if (!XServer::key(QLatin1String(key)))
            return false;
    return true;
}

QImage EndToEndPorts::screen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

bool EndToEndPorts::isSelected(const QRect& rowRect)
{
    const auto isDark = [&] {
        return qGray(screen().pixel(rowRect.right() - 20, rowRect.center().y())) < 120;
    };
    return QTest::qWaitFor(isDark, 5000);
}

bool EndToEndPorts::waitForAlerts(int count)
{
    return QTest::qWaitFor([&] { return alerts() >= count; }, 10000) && alerts() == count;
}

void EndToEndPorts::clickedRowsCarryEveryNote()
{
    Route there{*piano, *pads}, back{*pads, *piano};
    QVERIFY(clickIn("piano") && clickOut("pads"));
    QVERIFY(there.waitUntilOpen());
    QCOMPARE(there.carry(notes(21, 108)), notes(21, 108));
    back.send({0x90, 60, 1}); // no row of this direction is selected
    QVERIFY(piano->collect(1, 300).isEmpty());
    QVERIFY(clickIn("piano") && clickOut("pads") && clickIn("pads") && clickOut("piano"));
    QVERIFY(back.waitUntilOpen());
    QCOMPARE(back.carry(notes(40, 80)), notes(40, 80));
    QVERIFY(there.waitUntilShut());
    Route own{*witness, *piano}; // the program's own input has stayed open
    QVERIFY(own.waitUntilOpen());
    QCOMPARE(own.carry(notes(60, 72)), notes(60, 72));
}

void EndToEndPorts::twoInputsAndTwoOutputsAtOnce()
{
    for (const char* name : {"piano", "pads"})
        QVERIFY(clickIn(QLatin1String(name)) && clickOut(QLatin1String(name)));
    Route low{*piano, *pads}, high{*pads, *piano};
    QVERIFY(low.waitUntilOpen() && high.waitUntilOpen());
    for (JackPlayer* each : {piano.get(), pads.get(), witness.get()})
        static_cast<void>(each->collect(1000, 300));
    const Messages lowNotes = notes(30, 45), highNotes = notes(70, 85);
    for (int i = 0; i < lowNotes.size(); ++i) {
        piano->send(lowNotes.at(i));
        pads->send(highNotes.at(i));
    }
    for (JackPlayer* each : {piano.get(), pads.get(), witness.get()}) {
        const Messages heard = each->collect(lowNotes.size() + highNotes.size());
        QCOMPARE(heard.size(), lowNotes.size() + highNotes.size());
        Messages lowHeard, highHeard;
        for (const JackPlayer::Message& message : heard)
            (message.at(1) < 60 ? lowHeard : highHeard) += message;
        QCOMPARE(lowHeard, lowNotes); // each input's notes in their order
        QCOMPARE(highHeard, highNotes);
    }
}

void EndToEndPorts::nothingSoundsAfterTheLastOutputIsDeselected()
{
    QVERIFY(clickIn("piano") && clickOut("pads"));
    Route own{*piano, *witness}, other{*piano, *pads};
    QVERIFY(own.waitUntilOpen() && other.waitUntilOpen());
    QVERIFY(clickOut(virtualOut));
    QVERIFY(own.waitUntilShut());
    static_cast<void>(other.carry({})); // what the waiting has left there
    QCOMPARE(other.carry(notes(60, 64)), notes(60, 64));
    QVERIFY(clickOut("pads"));
    QVERIFY(other.waitUntilShut());
    for (const JackPlayer::Message& message : notes(60, 72))
        piano->send(message);
    for (JackPlayer* each : {pads.get(), witness.get(), piano.get()})
        QCOMPARE(each->collect(1, 300), Messages());
    QVERIFY(clickOut("pads"));
    QVERIFY(other.waitUntilOpen());
    QCOMPARE(other.carry(notes(60, 64)), notes(60, 64));
}

void EndToEndPorts::keyboardAloneChoosesPorts()
{
    QVERIFY(click(portsButton)); // back to the default scene, from which the key leads
    QVERIFY(XServer::key(QStringLiteral("ctrl+m")));
    QVERIFY(walk("Down", row(inRows, "pads")) && walk("Return", 1));
    QVERIFY(walk("Right", 1) && walk("Down", row(outRows, "piano")) && walk("Return", 1));
    Route route{*pads, *piano};
    QVERIFY(route.waitUntilOpen());
    QCOMPARE(route.carry(notes(21, 60)), notes(21, 60));
    QVERIFY(isSelected(rowPlace(inList, row(inRows, "pads"))) &&
            isSelected(rowPlace(outList, row(outRows, "piano"))));
    QVERIFY(walk("Return", 1)); // the keyboard has stayed on the row
    QVERIFY(route.waitUntilShut());
    QVERIFY(walk("Return", 1));
    QVERIFY(route.waitUntilOpen());
    QVERIFY(walk("Escape", 1) && walk("Return", 1)); // no row has the keyboard any more
    QCOMPARE(route.carry(notes(61, 90)), notes(61, 90));
}

// The text ends in dots: its last pixels have ink near the baseline only.
void EndToEndPorts::longNamesAreElided()
{
    QVERIFY(XServer::move(farAway));
    constexpr int dotsWidth = 7, aboveDots = 8;
    for (const auto& [list, rows] : {std::pair(inList, inRows), std::pair(outList, outRows)}) {
        const QRect place = rowPlace(list, row(rows, longName));
        QTRY_VERIFY(inkIn(screen(), place).width() > place.width() / 2);
        const QRect ink = inkIn(screen(), place);
        const QRect end(ink.right() - dotsWidth, place.top(), dotsWidth + 1, aboveDots);
        QVERIFY(ink.right() > place.right() - place.height());
        QVERIFY(ink.right() < place.right());
        QVERIFY(inkIn(screen(), end).isEmpty());
    }
    QVERIFY(QDir().mkpath(QStringLiteral(SCENE_PICTURES)));
    QVERIFY(screen().save(QStringLiteral(SCENE_PICTURES "/ports-long-names.png")));
}

void EndToEndPorts::goneInputIsReportedAndTriedAgain()
{
    piano.reset();
    const QRect pianoRow = rowPlace(inList, row(inRows, "piano"));
    QVERIFY(clickIn("piano"));
    QVERIFY(waitForAlerts(1));
    QVERIFY(isSelected(pianoRow));
    QCOMPARE(witness->answerTo(notes(60, 72)), notes(60, 72)); // the other ports play on
    QVERIFY(clickIn("pads"));                                  // a change of the selection tries again
    QVERIFY(waitForAlerts(2));
    Route route{*pads, *witness};
    QVERIFY(route.waitUntilOpen());
    QVERIFY(clickIn("piano")); // deselected: nothing to try
    QVERIFY(clickIn("piano"));
    QVERIFY(waitForAlerts(3));
    piano = std::make_unique<JackPlayer>("piano");
    QVERIFY(clickIn("piano") && clickIn("piano"));
    Route again{*piano, *witness};
    QVERIFY(again.waitUntilOpen());
    QCOMPARE(again.carry(notes(60, 72)), notes(60, 72));
    QCOMPARE(alerts(), 3);
}

void EndToEndPorts::goneOutputIsReportedAndTriedAgain()
{
    pads.reset();
    QVERIFY(clickOut("pads"));
    QVERIFY(waitForAlerts(1));
    QVERIFY(isSelected(rowPlace(outList, row(outRows, "pads"))));
    QVERIFY(program->errors().contains(QRegularExpression(QStringLiteral(
        "(^|\n)sorvane\\.app: There was an error with selected MIDI port:<br/>.+<br/>Please check if "
        "this port is not opened in some other software\\.\n"))));
    QCOMPARE(witness->answerTo(notes(60, 72)), notes(60, 72));
    pads = std::make_unique<JackPlayer>("pads");
    QVERIFY(clickOut("pads") && clickOut("pads"));
    Route route{*witness, *pads};
    QVERIFY(route.waitUntilOpen());
    QCOMPARE(route.carry(notes(60, 72)), notes(60, 72));
    QCOMPARE(alerts(), 1);
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndPorts>(argc, argv);
}

#include "e2e_ports.moc"
