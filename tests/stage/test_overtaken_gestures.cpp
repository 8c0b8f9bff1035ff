// What else happens while a hand holds something: the power is switched by a message, a question is asked, a
// menu is asked for.

#include "GestureFixture.h"
#include "screen/AlertWidget.h"

#include <QMenu>
#include <QtTest>

class TestOvertakenGestures : public GestureFixture
{
    Q_OBJECT

private slots:
    // The power
    void powerOffEndsAHeaderDrag_data();
    void powerOffEndsAHeaderDrag();
    void powerOffDuringAPowerDragShowsAtItsEnd();
    void powerDuringAPressInTheSquare();
    void powerOffDuringASweepEndsTheNote();

    // The question
    void questionEndsTheGestureBeforeItIsAsked_data();
    void questionEndsTheGestureBeforeItIsAsked();
    void acceptedQuestionFindsEverythingAtHome();

    // The menu
    void menuDoesNotOpenWhileSomethingIsHeld_data();
    void menuDoesNotOpenWhileSomethingIsHeld();
    void menuOpensBetweenGestures();

private:
    void toggleByMidi() const
    {
        window->receiveMessage({0x90, key_roles::pitch(power()), 100});
        window->receiveMessage({0x80, key_roles::pitch(power()), 0});
    }
};

void TestOvertakenGestures::powerOffEndsAHeaderDrag_data()
{
    QTest::addColumn<QString>("gesture");
    for (const char* name :
         {"header held", "header over a header", "header over the power", "header over nothing"})
        QTest::newRow(name) << name;
}

void TestOvertakenGestures::powerOffEndsAHeaderDrag()
{
    QFETCH(QString, gesture);
    window->setPower(true);
    recall(25);
    const QStringList before = state();
    begin(gesture);
    toggleByMidi();
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
    QVERIFY(powerShows({"Off"}));
    hand->move(stemOf(34));
    hand->release();
    QCOMPARE(unrest(), QString());
    QVERIFY(powerShows({"Off"}));
    toggleByMidi();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestOvertakenGestures::powerOffDuringAPowerDragShowsAtItsEnd()
{
    for (const bool switchedOn : {true, false}) {
        window->setPower(switchedOn);
        hand->drag(powerSleeve(), stemOf(32));
        toggleByMidi();
        QCOMPARE(power()->isSwitchOn(), !switchedOn);
        hand->glideTo(nowhere());
        hand->release();
        QCOMPARE(power()->isSwitchOn(), !switchedOn);
        QVERIFY(powerShows({switchedOn ? "Off" : "On"}));
        QCOMPARE(unrest(), QString());
    }
}

void TestOvertakenGestures::powerDuringAPressInTheSquare()
{
    hand->press(powerSquare());
    toggleByMidi();
    QVERIFY(power()->isSwitchOn());
    hand->release();
    QVERIFY(!power()->isSwitchOn()); // from what it is, not from what it was at the press
    QCOMPARE(unrest(), QString());
}

void TestOvertakenGestures::powerOffDuringASweepEndsTheNote()
{
    window->setPower(true);
    setTonic("E");
    hand->drag(onKey(in(60)), onKey(in(62)));
    QCOMPARE(sounding(), QSet<int>{66});
    toggleByMidi();
    QCOMPARE(sounding(), QSet<int>{66});
    hand->glideTo(onKey(in(64)));
    QCOMPARE(sounding(), QSet<int>{64});
    hand->release();
    QVERIFY(sounding().isEmpty());
    QCOMPARE(unrest(), QString());
}

void TestOvertakenGestures::questionEndsTheGestureBeforeItIsAsked_data()
{
    addGestures();
}

void TestOvertakenGestures::questionEndsTheGestureBeforeItIsAsked()
{
    QFETCH(QString, gesture);
    emptyHeaders();
    window->setPower(true);
    begin(gesture);
    QString faults = QStringLiteral("not asked");
    QSet<int> heard;
    whenAsked([&](AlertWidget& alert) {
        faults = unrest();
        heard = sounding();
        alert.reject();
    });
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 1);
    QCOMPARE(faults, QString());
    QVERIFY(heard.isEmpty());
    activate();
    holding().release();
    expectTheNextGesturesToWork();
}

void TestOvertakenGestures::acceptedQuestionFindsEverythingAtHome()
{
    window->setPower(true);
    recall(25);
    hand->drag(powerSleeve(), stemOf(32));
    answer(true);
    presets().resetAll();
    QCOMPARE(seen, 1);
    activate();
    hand->release();
    QCOMPARE(key_roles::pitch(power()), 61); // where a reset puts it
    QCOMPARE(unrest(), QString());
}

// What the hand holds on the other keyboard is no matter: the headers do not ask there.
void TestOvertakenGestures::menuDoesNotOpenWhileSomethingIsHeld_data()
{
    QTest::addColumn<QString>("gesture");
    for (const Gesture& gesture : gestures())
        if (qstrcmp(gesture.name, "out key held") != 0)
            QTest::newRow(gesture.name) << gesture.name;
}

void TestOvertakenGestures::menuDoesNotOpenWhileSomethingIsHeld()
{
    QFETCH(QString, gesture);
    window->setPower(true);
    begin(gesture);
    whenMenuIsUp([](QMenu& menu) { menu.close(); });
    Hand asking(window->ui.inKeyboardGraphicsView);
    for (const QPointF& place : {boxOf(25), boxOf(32), boxOf(firstActive)})
        asking.askForMenuAt(place);
    QCOMPARE(seen, 0);
    QVERIFY(!presets().contextHeader);
    QVERIFY(!presets().menu->isVisible());
    hand->release();
    QVERIFY(sounding().isEmpty());
}

void TestOvertakenGestures::menuOpensBetweenGestures()
{
    window->setPower(true);
    hand->drag(boxOf(25), nowhere());
    hand->release();
    whenMenuIsUp([](QMenu& menu) { menu.close(); });
    hand->askForMenuAt(boxOf(25));
    QCOMPARE(seen, 1);
    QCOMPARE(presets().contextHeader, header(25));
    QCOMPARE(unrest(), QString());
}

QTEST_MAIN(TestOvertakenGestures)
#include "test_overtaken_gestures.moc"
