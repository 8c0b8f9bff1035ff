// A hand that sweeps over the keys, message by message.

#include "StageFixture.h"
#include "SweepModel.h"

#include "MappingRule.h"

#include <QTimer>
#include <QtTest>

#include <random>

class TestGlissando : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    // The rule, in single steps
    void moveWithinTheKeyEndsItTwice();
    void firstMoveThatLeavesTheKeyReleasesIt();
    void oldKeyEndsBeforeTheNewOneBegins();
    void keyBeyondTwoSemitonesIsNotReached();
    void handThatCameTooFarGoesOnWhereItCanReach();
    void blackKeysAreSweptWithThePowerOff();
    void blackKeysArePassedOverWithThePowerOn();
    void powerKeyIsPassedOverWithThePowerOff();
    void greyKeysAreSweptInSilence();
    void sweepFromABlackKeyWithThePowerOff();
    void sweepFromABlackKeyWithThePowerOnRecallsOnce();
    void handThatLeavesTheKeyboardHoldsTheLastKey();
    void handThatComesBackElsewhereHoldsTheLastKey();
    void handThatComesBackNearbyGoesOn();
    void secondPressOfADoubleClickSweeps();
    void remapDuringASweepEndsWhatItBegan();
    void pressThatWasArmedTakesTheGesture();
    void moveDisarms();

    // Against the model
    void wholeKeyboard_data();
    void wholeKeyboard();
    void sweepsAtRandom_data();
    void sweepsAtRandom();

    // The event loop runs within a recall
    void gestureThatEndsWithinItsOwnPressIsOver();
    void messagesBehindAPressedPresetPlayTheNewMapping();

    // Learn modes
    void scaleLearnsEachSweptKeyOnce();
    void scaleLearnsBlackKeysAtAnyPower_data();
    void scaleLearnsBlackKeysAtAnyPower();
    void tonicLearnsTheLastSweptKey();
    void learnedPowerKeyDoesNotSwitch();
    void headerInLearnModeIsAKey();
    void releaseInLearnModeEndsTheGesture();

private:
    /// A white key below the black ones, and any key among them.
    QPointF low(int note) const { return {onKey(in(note)).x(), 130}; }
    QPointF high(int note) const { return {in(note)->sceneBoundingRect().center().x(), 100}; }
    QPoint inKeyboard(QPointF place) const { return (place - in(21)->pos()).toPoint(); }
    void setUp(bool switchedOn, const QString& word) const;
    static std::map<int, int> targetsOf(const QString& word);
};

// Recalls must not change the map under a sweep.
void TestGlissando::init()
{
    openStage();
    emptyHeaders();
}

void TestGlissando::setUp(bool switchedOn, const QString& word) const
{
    window->setPower(switchedOn);
    setScale(word);
}

std::map<int, int> TestGlissando::targetsOf(const QString& word)
{
    std::bitset<12> degrees;
    for (int i = 0; i < 12; ++i)
        degrees[std::size_t(i)] = word.at(i) == QLatin1Char('x');
    return MappingRule(0, degrees).target;
}

void TestGlissando::moveWithinTheKeyEndsItTwice()
{
    hand->press(low(60));
    hand->move(low(60) + QPointF(3, 5));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOff(60)}));
    QCOMPARE(unrest(), QString());
}

void TestGlissando::firstMoveThatLeavesTheKeyReleasesIt()
{
    hand->press(low(60));
    QCOMPARE(sent(), Messages{noteOn(60)});
    hand->move(low(62));
    QCOMPARE(sent(), (Messages{noteOff(60), noteOn(62)}));
    QVERIFY(!in(60)->isPushed && in(62)->isPushed);
    QCOMPARE(scene()->lastItem, in(62));
    QCOMPARE(scene()->currentItem, in(62));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOff(62), noteOff(60)}));
    QCOMPARE(unrest(), QString());
}

void TestGlissando::oldKeyEndsBeforeTheNewOneBegins()
{
    hand->drag(low(60), low(67));
    hand->glideTo(low(64));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(62), noteOff(62), noteOn(64), noteOff(64),
                               noteOn(65), noteOff(65), noteOn(67), noteOff(67), noteOn(65), noteOff(65),
                               noteOn(64), noteOff(64), noteOff(60)}));
}

void TestGlissando::keyBeyondTwoSemitonesIsNotReached()
{
    for (const int far : {64, 65, 72, 57, 36}) {
        hand->press(low(60));
        hand->move(low(far));
        hand->move(low(far) + QPointF(1, 0));
        hand->release();
        QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOff(60)}));
    }
    for (const int near : {62, 59}) {
        hand->press(low(60));
        hand->move(low(near));
        hand->release();
        QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(near), noteOff(near), noteOff(60)}));
    }
}

void TestGlissando::handThatCameTooFarGoesOnWhereItCanReach()
{
    hand->press(low(60));
    hand->move(low(67)); // lost
    hand->move(low(65));
    QCOMPARE(sent(), Messages{noteOn(60)});
    hand->move(low(62));
    hand->move(low(64));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOff(60), noteOn(62), noteOff(62), noteOn(64), noteOff(64), noteOff(60)}));
}

void TestGlissando::blackKeysAreSweptWithThePowerOff()
{
    hand->press(high(60) + QPointF(-2, 0));
    for (const int note : {61, 62, 63})
        hand->move(high(note));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(61), noteOff(61), noteOn(62), noteOff(62),
                               noteOn(63), noteOff(63), noteOff(60)}));
}

void TestGlissando::blackKeysArePassedOverWithThePowerOn()
{
    setUp(true, ionian);
    hand->press(low(60));
    hand->move(high(61));
    QCOMPARE(sent(), Messages{noteOn(60)}); // the last white key goes on sounding
    QVERIFY(in(60)->isPushed && !in(61)->isPushed);
    QCOMPARE(scene()->lastItem, in(60));
    hand->move(low(62));
    QCOMPARE(sent(), (Messages{noteOff(60), noteOn(62)}));
    hand->move(high(63));
    hand->release(); // on a black key
    QCOMPARE(sent(), (Messages{noteOff(62), noteOff(60)}));
    QCOMPARE(active(), firstActive);
    QCOMPARE(unrest(), QString());
}

void TestGlissando::powerKeyIsPassedOverWithThePowerOff()
{
    hand->press(low(48));
    hand->move(high(powerKey)); // under the button, which a sweep does not mind
    QCOMPARE(sent(), Messages{noteOn(48)});
    hand->move(low(50));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOff(48), noteOn(50), noteOff(50), noteOff(48)}));
    QVERIFY(!power()->isSwitchOn());
}

void TestGlissando::greyKeysAreSweptInSilence()
{
    setUp(true, octaves); // C alone: 60 plays 60, 62 plays 72, 67 plays 108 and no key beyond
    hand->press(low(65));
    for (const int note : {67, 69, 71})
        hand->move(low(note));
    QVERIFY(in(71)->isPushed);
    hand->move(low(69));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(96), noteOff(96), noteOn(108), noteOff(108), noteOff(96)}));
    QCOMPARE(unrest(), QString());
}

void TestGlissando::sweepFromABlackKeyWithThePowerOff()
{
    hand->press(high(61));
    hand->move(low(62));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(61), noteOff(61), noteOn(62), noteOff(62), noteOff(61)}));
}

void TestGlissando::sweepFromABlackKeyWithThePowerOnRecallsOnce()
{
    setUp(true, ionian);
    hand->press(high(61));
    QCOMPARE(active(), 61);
    hand->move(high(61) + QPointF(1, 0));
    QVERIFY(in(61)->isPushed);
    hand->move(low(62));
    QVERIFY(!in(61)->isPushed && in(62)->isPushed);
    hand->move(high(63));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(62), noteOff(62)}));
    QCOMPARE(active(), 61);
    QCOMPARE(unrest(), QString());
}

void TestGlissando::handThatLeavesTheKeyboardHoldsTheLastKey()
{
    for (const QPointF& away : {QPointF(500, 20), QPointF(500, 160), QPointF(2, 130), QPointF(-900, -900)}) {
        hand->drag(low(60), low(62));
        sent();
        hand->move(away);
        QCOMPARE(sent(), Messages());
        QVERIFY(in(62)->isPushed);
        hand->release();
        QCOMPARE(sent(), (Messages{noteOff(62), noteOff(60)}));
        QCOMPARE(unrest(), QString());
    }
}

void TestGlissando::handThatComesBackElsewhereHoldsTheLastKey()
{
    hand->drag(low(60), low(62));
    sent();
    hand->move({500, 20});
    hand->move(low(84));
    QCOMPARE(sent(), Messages());
    hand->release();
    QCOMPARE(sent(), (Messages{noteOff(62), noteOff(60)}));
}

void TestGlissando::handThatComesBackNearbyGoesOn()
{
    hand->drag(low(60), low(62));
    sent();
    hand->move({500, 20});
    hand->move(low(62));
    QCOMPARE(sent(), Messages()); // it sounds still
    hand->move({500, 20});
    hand->move(low(64));
    QCOMPARE(sent(), (Messages{noteOff(62), noteOn(64)}));
    hand->release();
}

void TestGlissando::secondPressOfADoubleClickSweeps()
{
    hand->click(low(60));
    sent();
    hand->pressAgain(low(60));
    hand->move(low(62));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(62), noteOff(62), noteOff(60)}));
    QCOMPARE(unrest(), QString());
}

void TestGlissando::remapDuringASweepEndsWhatItBegan()
{
    setUp(true, ionian);
    hand->press(low(60));
    hand->move(low(62));
    setTonic("E");
    hand->move(low(64));
    window->setPower(false);
    hand->move(low(65));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(62), noteOff(62), noteOn(68), noteOff(68),
                               noteOn(65), noteOff(65), noteOff(60)}));
}

// Nobody arms a press yet; it is read all the same.
void TestGlissando::pressThatWasArmedTakesTheGesture()
{
    scene()->armed = true;
    scene()->lastItem = in(21);
    hand->press(low(60));
    QVERIFY(!scene()->armed);
    QVERIFY(scene()->leftDown);
    QCOMPARE(scene()->currentItem, in(60));
    QVERIFY(!scene()->lastItem && !scene()->dropTarget);
    hand->release();
    QCOMPARE(unrest(), QString());
    hand->press(low(60));
    QVERIFY(!scene()->currentItem); // not armed
    hand->release();
}

void TestGlissando::moveDisarms()
{
    hand->press(low(60));
    scene()->armed = true;
    hand->move(low(60) + QPointF(1, 0));
    QVERIFY(!scene()->armed);
    hand->release();
}

void TestGlissando::wholeKeyboard_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("step");
    for (const int step : {1, 5, 17, 34, 60})
        for (const int row : {15, 40, 84}) { // two rows cross the black keys
            QTest::addRow("off, row %d, %d px", row, step) << false << ionian << row << step;
            QTest::addRow("on, row %d, %d px", row, step) << true << ionian << row << step;
            QTest::addRow("grey keys, row %d, %d px", row, step) << true << octaves << row << step;
        }
}

void TestGlissando::wholeKeyboard()
{
    QFETCH(bool, switchedOn);
    QFETCH(QString, word);
    QFETCH(int, row);
    QFETCH(int, step);
    setUp(switchedOn, word);
    SweepModel model(switchedOn, targetsOf(word));
    const QPointF origin = in(21)->pos();
    const auto place = [&](int x) { return QPoint(x, row); };
    hand->press(origin + place(1));
    model.press(place(1));
    int x = 1;
    for (const int way : {step, -step})
        for (; x >= 1 && x < 52 * 17; x += way) {
            hand->move(origin + place(x));
            model.move(place(x));
            const Messages wanted = model.take(), got = sent();
            QVERIFY2(got == wanted, qPrintable(QStringLiteral("at %1").arg(x)));
            if (way > 0 && x + way >= 52 * 17)
                break;
        }
    hand->release();
    model.release();
    QCOMPARE(sent(), model.take());
    QVERIFY(sounding().isEmpty());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::sweepsAtRandom_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 3; ++seed) {
        QTest::addRow("off, seed %d", seed) << false << ionian << seed;
        QTest::addRow("on, seed %d", seed) << true << ionian << seed;
        QTest::addRow("grey keys, seed %d", seed) << true << octaves << seed;
    }
}

void TestGlissando::sweepsAtRandom()
{
    QFETCH(bool, switchedOn);
    QFETCH(QString, word);
    QFETCH(int, seed);
    setUp(switchedOn, word);
    SweepModel model(switchedOn, targetsOf(word));
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(random);
    };
    const QPointF origin = in(21)->pos();
    for (int gesture = 0; gesture < 60; ++gesture) {
        QPoint place(number(0, 52 * 17 - 1), number(65, 98));
        hand->press(origin + place);
        model.press(place);
        for (int moves = number(0, 40); moves > 0; --moves) {
            place += QPoint(number(-20, 20), number(-15, 15));
            hand->move(origin + place);
            model.move(place);
        }
        hand->release();
        model.release();
        QCOMPARE(sent(), model.take());
        QCOMPARE(unrest(), QString());
    }
    QVERIFY(sounding().isEmpty());
}

// The press of a preset's key runs the event loop; what happens in there may take the pointer away.
void TestGlissando::gestureThatEndsWithinItsOwnPressIsOver()
{
    window->setPower(true);
    bool ended = false;
    QTimer::singleShot(0, window.get(), [&] {
        ended = true;
        QVERIFY(in(61)->isPushed);
        window->endGestures();
    });
    hand->press(high(61));
    QVERIFY(ended);
    QCOMPARE(active(), 61);
    QVERIFY(!in(61)->mouseHeld && !in(61)->isPushed);
    QVERIFY(!scene()->leftDown);
    hand->move(low(62)); // the hand does not know
    hand->release();
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
    hand->drag(low(60), low(62));
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(62), noteOff(62), noteOff(60)}));
}

void TestGlissando::messagesBehindAPressedPresetPlayTheNewMapping()
{
    window->setPower(true);
    record(61) = {QString(), QString(), QString(), on, QStringLiteral("D"), on, ionian};
    for (const QList<int>& message : {QList<int>{0x90, 60, 9}, QList<int>{0x80, 60, 0}})
        QMetaObject::invokeMethod(
            window.get(), [this, message] { window->receiveMessage(message); }, Qt::QueuedConnection);
    hand->press(high(61));
    QCOMPARE(sent(), Messages()); // they wait for the recall
    hand->move(low(62));
    QCOMPARE(sent(), Messages{noteOn(64)});
    QCoreApplication::processEvents();
    QCOMPARE(sent(), (Messages{{0x90, 62, 9}, noteOff(62)}));
    hand->release();
    QCOMPARE(sent(), Messages{noteOff(64)});
    QCOMPARE(unrest(), QString());
}

void TestGlissando::scaleLearnsEachSweptKeyOnce()
{
    setUp(true, ionian);
    window->learnScale = true;
    window->learnPending = true;
    hand->press(low(62));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    QVERIFY(!window->learnPending);
    for (int x = 0; x < 4; ++x)
        hand->move(low(62) + QPointF(x, 0));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    hand->move(low(64));
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xooooxoxoxox"));
    hand->move(low(62)); // back again
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoxooxoxoxox"));
    hand->release();
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoxooxoxoxox"));
    window->learnScale = false;
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::scaleLearnsBlackKeysAtAnyPower_data()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::newRow("power off") << false;
    QTest::newRow("power on") << true;
}

void TestGlissando::scaleLearnsBlackKeysAtAnyPower()
{
    QFETCH(bool, switchedOn);
    setUp(switchedOn, ionian);
    window->learnScale = true;
    hand->press(low(60)); // the tonic stays
    hand->move(high(61));
    hand->move(low(62));
    hand->move(high(63));
    hand->release();
    window->learnScale = false;
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxoxxxoxoxox"));
    QCOMPARE(active(), firstActive);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::tonicLearnsTheLastSweptKey()
{
    setUp(true, ionian);
    window->learnTonic = true;
    hand->press(low(64));
    QCOMPARE(tonic().tonicModifierIndex(), 4);
    hand->move(low(65));
    QCOMPARE(tonic().tonicModifierIndex(), 5);
    hand->move(high(66));
    QCOMPARE(tonic().tonicModifierIndex(), 6);
    hand->release();
    window->learnTonic = false;
    QCOMPARE(tonic().tonicModifierIndex(), 6);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::learnedPowerKeyDoesNotSwitch()
{
    window->learnTonic = true;
    hand->press(low(48));
    hand->move(high(powerKey));
    QCOMPARE(tonic().tonicModifierIndex(), 1);
    hand->release();
    window->learnTonic = false;
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::headerInLearnModeIsAKey()
{
    window->setPower(true);
    const QStringList before = state();
    window->learnTonic = true;
    hand->press(boxOf(25));
    QVERIFY(header(25)->isPushed);
    hand->glideTo(stemOf(32));
    QCOMPARE(header(25)->pos(), header(25)->homePos);
    hand->release();
    window->learnTonic = false;
    QCOMPARE(state(), before);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestGlissando::releaseInLearnModeEndsTheGesture()
{
    hand->press(low(60));
    hand->move(low(62));
    window->learnScale = true;
    hand->release();
    QCOMPARE(unrest(), QString());
    window->learnScale = false;
    // Kept: what a learn mode catches while it sounds goes on sounding, since no message leaves in it.
    QCOMPARE(sounding(), QSet<int>{62});
}

QTEST_MAIN(TestGlissando)
#include "test_glissando.moc"
