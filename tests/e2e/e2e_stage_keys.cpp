// The keys under a real hand: each of both keyboards pressed in the window, glissandos at the speed of a
// hand, and the ways in which a hand leaves a key other than by letting go of it there. Guards that no press
// is lost to what lies over the keys, and that every note that the hand began ends.

#include "OtherWindow.h"
#include "StagePlaces.h"
#include "StageRun.h"
#include "SweepModel.h"
#include "on_x_server.h"

#include <QtTest>

namespace {

using Messages = StageRun::Messages;
using stage::Keyboard;

constexpr int powerKey = 49;             // where the power button stands at the start
constexpr int footY = 433, blackY = 403; // of the in keys: below the black ones, and across them
constexpr int leftX = 43, rightX = 910;  // the middles of A0 and C8

// Larger than the window, so that the hand can leave it and another window find room.
constexpr QSize screenSize(1200, 600);
constexpr QPoint rightOfTheWindow(1100, 433), belowTheWindow(400, 560);

const char* const word = "xoxxoxoxxoxo"; // D# Aeolian: most keys play another pitch than their own
constexpr int tonic = 3;

Messages noteOn(int pitch)
{
    return {{0x90, pitch, 75}};
}

Messages noteOff(int pitch)
{
    return {{0x80, pitch, 0}};
}

/// The in key at a pixel, 0 for none.
int keyAt(QPoint pixel)
{
    for (int key = 21; key <= 108; ++key)
        if (stage::isOnInKey(key, pixel))
            return key;
    return 0;
}

QList<QPoint> path(int fromX, int toX, int step, int y)
{
    QList<QPoint> points;
    for (int x = fromX; fromX < toX ? x <= toX : x >= toX; x += fromX < toX ? step : -step)
        points.append(QPoint(x, y));
    return points;
}

} // namespace

class EndToEndStageKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void eachKeySoundsOnceUnderTheHand_data();
    void eachKeySoundsOnceUnderTheHand();
    void glissandoPlaysWhatTheHandCrosses_data();
    void glissandoPlaysWhatTheHandCrosses();
    void lostKeyIsFoundAgain();
    void outKeysAreNotSwept();
    void rightButtonPlaysNothing();
    void otherButtonsLeaveAHeldKeyAlone();
    void noteEndsWhenTheHandLetsGoBesideTheWindow_data();
    void noteEndsWhenTheHandLetsGoBesideTheWindow();
    void noteEndsWhenAnotherWindowTakesTheFocus_data();
    void noteEndsWhenAnotherWindowTakesTheFocus();

private:
    bool start(bool power);
    /// Presses at the first point, moves over the others, lets go; compares with the rule.
    void sweep(const QList<QPoint>& points, bool power);

    StageRun run{QStringLiteral(SORVANE_PROGRAM)};
};

void EndToEndStageKeys::initTestCase()
{
    if (!run.startService())
        QSKIP(qPrintable(run.reason()));
}

void EndToEndStageKeys::cleanup()
{
    for (const int button : {1, 2, 3}) // a test that failed may have left one down
        QVERIFY(XServer::release(button));
    QCOMPARE(run.stop(), 0);
}

bool EndToEndStageKeys::start(bool power)
{
    return run.start({QStringLiteral("--power"), power ? QStringLiteral("on") : QStringLiteral("off"),
                      QStringLiteral("--tonic"), QStringLiteral("D#"), QStringLiteral("--scale"),
                      QLatin1String(word)});
}

void EndToEndStageKeys::eachKeySoundsOnceUnderTheHand_data()
{
    QTest::addColumn<bool>("out");

    QTest::newRow("in keys") << false;
    QTest::newRow("out keys") << true;
}

void EndToEndStageKeys::eachKeySoundsOnceUnderTheHand()
{
    QFETCH(const bool, out);
    QVERIFY(start(false));
    QList<QPoint> places;
    Messages expected;
    for (int key = 21; key <= 108; ++key) {
        if (!out && key == powerKey)
            continue;
        places += stage::keyPlace(out ? Keyboard::out : Keyboard::in, key);
        expected += noteOn(key) + noteOff(key);
    }
    QVERIFY(XServer::clickAll(places));
    QCOMPARE(run.heard(expected.size()), expected);
}

// Moves that pile up are taken as one: each waits for the one before.
void EndToEndStageKeys::sweep(const QList<QPoint>& points, bool power)
{
    SweepModel model(power, powerKey, tonic, word);
    QVERIFY(XServer::move(points.first()));
    QVERIFY(XServer::press());
    Messages expected = model.press(keyAt(points.first()));
    for (int i = 1; i < points.size(); ++i) {
        QVERIFY(XServer::move(points.at(i)));
        QVERIFY(run.waitForMoves(i));
        expected += model.move(keyAt(points.at(i)));
    }
    QVERIFY(XServer::release());
    expected += model.release();
    QCOMPARE(run.heard(expected.size()), expected);
}

void EndToEndStageKeys::glissandoPlaysWhatTheHandCrosses_data()
{
    QTest::addColumn<QList<QPoint>>("points");
    QTest::addColumn<bool>("power");

    QTest::newRow("white keys up, slowly") << path(leftX, rightX, 4, footY) << true;
    QTest::newRow("white keys up, a key a step") << path(leftX, rightX, 17, footY) << false;
    QTest::newRow("white keys down, a key a step") << path(rightX, leftX, 17, footY) << true;
    QTest::newRow("white keys up, too fast") << path(leftX, rightX, 50, footY) << false;
    QTest::newRow("black keys up, power off") << path(leftX, rightX, 7, blackY) << false;
    QTest::newRow("black keys up, power on") << path(leftX, rightX, 7, blackY) << true;
    QTest::newRow("black keys down, power off") << path(rightX, leftX, 9, blackY) << false;
    QTest::newRow("black keys down, power on") << path(rightX, leftX, 9, blackY) << true;
}

void EndToEndStageKeys::glissandoPlaysWhatTheHandCrosses()
{
    QFETCH(const QList<QPoint>, points);
    QFETCH(const bool, power);
    QVERIFY(start(power));
    sweep(points, power);
}

void EndToEndStageKeys::lostKeyIsFoundAgain()
{
    QVERIFY(start(false));
    const auto at = [](int key) { return stage::keyPlace(Keyboard::in, key); };
    sweep({at(60), at(62), at(67), at(65), at(64), at(65), QPoint(at(65).x(), 200), at(67), at(60)}, false);
}

void EndToEndStageKeys::outKeysAreNotSwept()
{
    QVERIFY(start(false));
    const QPoint place = stage::keyPlace(Keyboard::out, 60);
    QVERIFY(XServer::move(place));
    QVERIFY(XServer::press());
    QCOMPARE(run.heard(1), noteOn(60));
    for (int i = 1; i <= 12; ++i) {
        QVERIFY(XServer::move(place + QPoint(5 * i, 0)));
        QVERIFY(run.waitForMoves(i));
    }
    QCOMPARE(run.heard(0), Messages());
    QVERIFY(XServer::release());
    QCOMPARE(run.heard(1), noteOff(60));
}

void EndToEndStageKeys::rightButtonPlaysNothing()
{
    QVERIFY(start(false));
    for (const Keyboard keyboard : {Keyboard::in, Keyboard::out}) {
        QVERIFY(XServer::move(stage::keyPlace(keyboard, 60)));
        QVERIFY(XServer::press(3));
        QVERIFY(XServer::move(stage::keyPlace(keyboard, 62)));
        QVERIFY(XServer::release(3));
        QCOMPARE(run.heard(0), Messages());
    }
    sweep({stage::keyPlace(Keyboard::in, 64), stage::keyPlace(Keyboard::in, 65)}, false);
}

void EndToEndStageKeys::otherButtonsLeaveAHeldKeyAlone()
{
    QVERIFY(start(false));
    for (const int other : {2, 3}) {
        QVERIFY(XServer::move(stage::keyPlace(Keyboard::in, 60)));
        QVERIFY(XServer::press());
        QCOMPARE(run.heard(1), noteOn(60));
        QVERIFY(XServer::press(other));
        QVERIFY(XServer::release(other));
        QCOMPARE(run.heard(0), Messages());
        QVERIFY(XServer::press(other));
        QVERIFY(XServer::move(stage::keyPlace(Keyboard::in, 62)));
        QCOMPARE(run.heard(2), noteOff(60) + noteOn(62)); // the glissando goes on
        QVERIFY(XServer::release());
        QCOMPARE(run.heard(2), noteOff(62) + noteOff(60));
        QVERIFY(XServer::release(other));
        QCOMPARE(run.heard(0), Messages());
    }
}

void EndToEndStageKeys::noteEndsWhenTheHandLetsGoBesideTheWindow_data()
{
    QTest::addColumn<bool>("out");
    QTest::addColumn<QPoint>("outside");

    QTest::newRow("in key, right of the window") << false << rightOfTheWindow;
    QTest::newRow("in key, below the window") << false << belowTheWindow;
    QTest::newRow("out key, right of the window") << true << rightOfTheWindow;
}

void EndToEndStageKeys::noteEndsWhenTheHandLetsGoBesideTheWindow()
{
    QFETCH(const bool, out);
    QFETCH(const QPoint, outside);
    QVERIFY(start(false));
    const QPoint place = stage::keyPlace(out ? Keyboard::out : Keyboard::in, 60);
    QVERIFY(XServer::move(place));
    QVERIFY(XServer::press());
    QCOMPARE(run.heard(1), noteOn(60));
    QVERIFY(XServer::move(outside));
    QCOMPARE(run.heard(0), Messages());
    QVERIFY(XServer::release());
    const Messages end = out ? noteOff(60) : noteOff(60) + noteOff(60);
    QCOMPARE(run.heard(end.size()), end);
    QVERIFY(XServer::move(place));
    QCOMPARE(run.heard(0), Messages());
}

void EndToEndStageKeys::noteEndsWhenAnotherWindowTakesTheFocus_data()
{
    QTest::addColumn<bool>("out");
    QTest::addColumn<bool>("swept");

    QTest::newRow("pressed in key") << false << false;
    QTest::newRow("swept in key") << false << true;
    QTest::newRow("pressed out key") << true << false;
}

void EndToEndStageKeys::noteEndsWhenAnotherWindowTakesTheFocus()
{
    QFETCH(const bool, out);
    QFETCH(const bool, swept);
    QVERIFY(start(false));
    const auto at = [out](int key) { return stage::keyPlace(out ? Keyboard::out : Keyboard::in, key); };
    QVERIFY(XServer::move(at(60)));
    QVERIFY(XServer::press());
    QCOMPARE(run.heard(1), noteOn(60));
    if (swept) {
        QVERIFY(XServer::move(at(62)));
        QCOMPARE(run.heard(2), noteOff(60) + noteOn(62));
    }

    OtherWindow other;
    QVERIFY(other.takeFocus());
    const Messages end = swept ? noteOff(62) + noteOff(60) : noteOff(60);
    QCOMPARE(run.heard(end.size()), end);
    QVERIFY(XServer::move(at(64)));
    QVERIFY(XServer::release());
    QCOMPARE(run.heard(0), Messages()); // the hand has nothing left to end
    QVERIFY(XServer::press());
    QCOMPARE(run.heard(1), noteOn(64));
    QVERIFY(XServer::release());
    QCOMPARE(run.heard(1), noteOff(64));
}

int main(int argc, char** argv)
{
    return runOnXServer<EndToEndStageKeys>(argc, argv, screenSize);
}

#include "e2e_stage_keys.moc"
