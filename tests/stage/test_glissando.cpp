// A hand that sweeps over the keys, message by message: which key each move ends, which it begins, and what
// a recall or a remap in between does to it.

#include "StageFixture.h"

#include <QTimer>
#include <QtTest>

class TestGlissando : public StageFixture
{
    Q_OBJECT

private slots:
    void init();

    // In single steps
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

    // The event loop runs within a recall
    void gestureThatEndsWithinItsOwnPressIsOver();
    void messagesBehindAPressedPresetPlayTheNewMapping();
};

// Recalls must not change the map under a sweep.
void TestGlissando::init()
{
    openStage();
    emptyHeaders();
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
    chooseMap(true, ionian);
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
    chooseMap(true, octaves); // C alone: 60 plays 60, 62 plays 72, 67 plays 108 and no key beyond
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
    chooseMap(true, ionian);
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
    chooseMap(true, ionian);
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

QTEST_MAIN(TestGlissando)
#include "test_glissando.moc"
