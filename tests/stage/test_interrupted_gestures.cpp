// Gestures that lose the pointer: the window goes to the back or away, a question comes up, the power goes
// off. Keys must be released, what was dragged must go home undropped, and the next gesture must be like any
// other.

#include "StageFixture.h"

#include "header_pictures.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QtTest>

#include <functional>
#include <vector>

class TestInterruptedGestures : public StageFixture
{
    Q_OBJECT

private slots:
    void everyGestureByEveryInterruption_data();
    void everyGestureByEveryInterruption();

    // Single rules
    void releaseAfterTheInterruptionIsSilent();
    void moveAfterTheInterruptionDoesNothing();
    void interruptionWithoutAGestureDoesNothing();
    void secondInterruptionDoesNothing();
    void interruptedDropSwapsNothing_data();
    void interruptedDropSwapsNothing();
    void interruptedPowerPressDoesNotSwitch();
    void interruptedAnchorDragStaysWhereItIs();
    void rightButtonStillHeldIsNoGesture();
    void pressBesideAHeldRightButtonIsItsOwn();

    // Released far away
    void releaseOutsideTheWindow_data();
    void releaseOutsideTheWindow();

    // The power goes off
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

    // The end
    void windowThatGoesEndsTheGesture_data();
    void windowThatGoesEndsTheGesture();

private:
    struct Gesture
    {
        const char* name;
        std::function<void()> begin;
    };
    struct Interruption
    {
        const char* name;
        std::function<void()> strike, recover;
    };
    std::vector<Gesture> gestures();
    std::vector<Interruption> interruptions();
    void addGestures();
    void addGesturesAnd(const char* column, const std::vector<const char*>& others) const;
    /// Begins the gesture of the data row.
    void begin(const QString& name);
    void activate() const;
    void expectTheNextGesturesToWork();
    QPointF anchorGrip() const { return {anchors()->x() + 399, 165}; }
    void toggleByMidi() const
    {
        window->receiveMessage({0x90, key_roles::pitch(power()), 100});
        window->receiveMessage({0x80, key_roles::pitch(power()), 0});
    }
};

std::vector<TestInterruptedGestures::Gesture> TestInterruptedGestures::gestures()
{
    return {
        {"key held", [this] { hand->press(onKey(in(60))); }},
        {"key held and moved on", [this] { hand->drag(onKey(in(60)), onKey(in(60)) + QPointF(2, 0)); }},
        {"sweep", [this] { hand->drag(onKey(in(60)), onKey(in(67))); }},
        {"preset key held", [this] { hand->press(onKey(in(61))); }},
        {"out key held", [this] { outHand->press(onKey(out(60))); }},
        {"power pressed", [this] { hand->press(powerSquare()); }},
        {"sleeve held", [this] { hand->press(powerSleeve()); }},
        {"power over a header", [this] { hand->drag(powerSleeve(), stemOf(32)); }},
        {"power over the active header", [this] { hand->drag(powerSleeve(), stemOf(firstActive)); }},
        {"power over nothing", [this] { hand->drag(powerSleeve(), nowhere()); }},
        {"header held", [this] { hand->press(boxOf(25)); }},
        {"header over a header", [this] { hand->drag(boxOf(25), stemOf(32)); }},
        {"header over the power", [this] { hand->drag(boxOf(25), powerSleeve() + QPointF(0, 14)); }},
        {"header over nothing", [this] { hand->drag(boxOf(25), nowhere()); }},
        {"press beside everything",
         [this] {
             hand->press({4, 130});
         }},
        {"anchors", [this] { hand->drag(anchorGrip(), anchorGrip() + QPointF(40, 0)); }},
    };
}

std::vector<TestInterruptedGestures::Interruption> TestInterruptedGestures::interruptions()
{
    return {
        {"window deactivated", [] { QApplication::setActiveWindow(nullptr); }, [this] { activate(); }},
        {"gestures ended", [this] { window->endGestures(); }, [] {}},
        {"question asked",
         [this] {
             const int before = seen;
             whenAsked([](QMessageBox& box) { box.reject(); });
             presets().resetAll();
             QCOMPARE(seen, before + 1);
         },
         [this] { activate(); }},
        {"window hidden", [this] { window->hide(); }, [this] { show(); }},
    };
}

void TestInterruptedGestures::addGesturesAnd(const char* column, const std::vector<const char*>& others) const
{
    QTest::addColumn<QString>("gesture");
    QTest::addColumn<QString>(column);
    for (const Gesture& gesture : const_cast<TestInterruptedGestures*>(this)->gestures())
        for (const char* other : others)
            QTest::addRow("%s, %s", gesture.name, other) << gesture.name << other;
}

void TestInterruptedGestures::addGestures()
{
    QTest::addColumn<QString>("gesture");
    for (const Gesture& gesture : gestures())
        QTest::newRow(gesture.name) << gesture.name;
}

void TestInterruptedGestures::begin(const QString& name)
{
    for (const Gesture& gesture : gestures())
        if (name == QLatin1String(gesture.name))
            gesture.begin();
    QVERIFY(hand->held() || outHand->held());
}

void TestInterruptedGestures::activate() const
{
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

void TestInterruptedGestures::expectTheNextGesturesToWork()
{
    sent();
    const int shift = int(anchors()->x()) / 17; // by as much do the white keys play lower
    static const int below[] = {60, 59, 57};
    QVERIFY(shift >= 0 && shift <= 2);
    hand->click(onKey(in(60)));
    QCOMPARE(sent(), (Messages{noteOn(below[shift]), noteOff(below[shift])}));
    hand->drag(onKey(in(60)), onKey(in(62)));
    hand->release();
    QCOMPARE(sent().size(), 5);
    outHand->click(onKey(out(60)));
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
    hand->drag(boxOf(27), stemOf(34));
    hand->release();
    QCOMPARE(active(), 34);
    hand->drag(powerSleeve(), stemOf(27));
    hand->release();
    QCOMPARE(key_roles::pitch(power()), 27);
    hand->click(powerSquare());
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::everyGestureByEveryInterruption_data()
{
    std::vector<const char*> names;
    for (const Interruption& interruption : interruptions())
        names.push_back(interruption.name);
    addGesturesAnd("interruption", names);
}

void TestInterruptedGestures::everyGestureByEveryInterruption()
{
    QFETCH(QString, gesture);
    QFETCH(QString, interruption);
    emptyHeaders();
    window->setPower(true);
    begin(gesture);
    for (const Interruption& other : interruptions()) {
        if (interruption != QLatin1String(other.name))
            continue;
        other.strike();
        QCOMPARE(unrest(), QString());
        QVERIFY(sounding().isEmpty());
        QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
        other.recover();
    }
    Hand& holding = hand->held() ? *hand : *outHand;
    holding.move(holding.place() + QPointF(20, 0)); // the hand does not know
    holding.release();
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
    expectTheNextGesturesToWork();
}

void TestInterruptedGestures::releaseAfterTheInterruptionIsSilent()
{
    hand->drag(onKey(in(60)), onKey(in(62)));
    sent();
    window->endGestures();
    QCOMPARE(sent(), (Messages{noteOff(62), noteOff(60)}));
    hand->release();
    QCOMPARE(sent(), Messages());
}

void TestInterruptedGestures::moveAfterTheInterruptionDoesNothing()
{
    window->setPower(true);
    hand->press(onKey(in(60)));
    window->endGestures();
    sent();
    hand->glideTo(onKey(in(72)));
    QCOMPARE(sent(), Messages());
    hand->release();
    hand->drag(boxOf(25), nowhere());
    window->endGestures();
    hand->glideTo(stemOf(32));
    QCOMPARE(header(32)->status(), header_deactive);
    QCOMPARE(unrest(), QString());
    hand->release();
}

void TestInterruptedGestures::interruptionWithoutAGestureDoesNothing()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        const QStringList before = state();
        for (const Interruption& interruption : interruptions()) {
            interruption.strike();
            interruption.recover();
            QCOMPARE(state(), before);
            QCOMPARE(sent(), Messages());
            QCOMPARE(unrest(), QString());
        }
    }
}

void TestInterruptedGestures::secondInterruptionDoesNothing()
{
    hand->press(onKey(in(60)));
    window->endGestures();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
    window->endGestures();
    QApplication::setActiveWindow(nullptr);
    QCOMPARE(sent(), Messages());
    activate();
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::interruptedDropSwapsNothing_data()
{
    QTest::addColumn<QString>("gesture");
    for (const char* name : {"power over a header", "power over the active header", "header over a header",
                             "header over the power"})
        QTest::newRow(name) << name;
}

void TestInterruptedGestures::interruptedDropSwapsNothing()
{
    QFETCH(QString, gesture);
    window->setPower(true);
    recall(25);
    const QStringList before = state();
    begin(gesture);
    QVERIFY(scene()->dropTarget);
    QVERIFY(state() != before || scene()->dropTarget == power()); // a header lights up
    window->endGestures();
    QCOMPARE(state(), before);
    hand->release();
    QCOMPARE(state(), before);
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
}

void TestInterruptedGestures::interruptedPowerPressDoesNotSwitch()
{
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        hand->press(powerSquare());
        window->endGestures();
        QVERIFY(!power()->powerGrabbed && !power()->pressedByMouse);
        hand->release();
        QCOMPARE(power()->isSwitchOn(), switchedOn);
        QVERIFY(shows(power(), switchedOn ? QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")
                                          : QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
    }
}

void TestInterruptedGestures::interruptedAnchorDragStaysWhereItIs()
{
    window->setPower(true);
    hand->drag(anchorGrip(), anchorGrip() + QPointF(36, 0));
    QCOMPARE(anchors()->x(), 34.0);
    window->endGestures();
    QCOMPARE(anchors()->x(), 34.0);
    QCOMPARE(record(firstActive).anchorPos, 34); // as at a release
    hand->move(anchorGrip() + QPointF(200, 0));
    QCOMPARE(anchors()->x(), 34.0);
    hand->release();
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::rightButtonStillHeldIsNoGesture()
{
    hand->press(onKey(in(60)));
    hand->press(onKey(in(60)), Qt::RightButton);
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
    QApplication::setActiveWindow(nullptr);
    hand->glideTo(onKey(in(64)));
    activate();
    hand->release(Qt::RightButton);
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

// The item of the gesture before kept the mouse as long as any button was down, and took this press.
void TestInterruptedGestures::pressBesideAHeldRightButtonIsItsOwn()
{
    hand->press(powerSleeve());
    hand->press(powerSleeve(), Qt::RightButton);
    hand->release();
    hand->press(onKey(in(76)));
    QCOMPARE(sent(), Messages{noteOn(76)});
    hand->release();
    hand->release(Qt::RightButton);
    QCOMPARE(sent(), Messages{noteOff(76)});
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::releaseOutsideTheWindow_data()
{
    addGesturesAnd("side", {"left", "right", "above", "below"});
}

void TestInterruptedGestures::releaseOutsideTheWindow()
{
    QFETCH(QString, gesture);
    QFETCH(QString, side);
    static const QMap<QString, QPointF> sides = {
        {"left", {-2000, 70}}, {"right", {4000, 70}}, {"above", {500, -3000}}, {"below", {500, 3000}}};
    emptyHeaders();
    window->setPower(true);
    begin(gesture);
    Hand& holding = hand->held() ? *hand : *outHand;
    holding.move(sides.value(side));
    holding.release();
    QCOMPARE(unrest(), QString());
    QVERIFY(sounding().isEmpty());
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestInterruptedGestures::powerOffEndsAHeaderDrag_data()
{
    QTest::addColumn<QString>("gesture");
    for (const char* name :
         {"header held", "header over a header", "header over the power", "header over nothing"})
        QTest::newRow(name) << name;
}

void TestInterruptedGestures::powerOffEndsAHeaderDrag()
{
    QFETCH(QString, gesture);
    window->setPower(true);
    recall(25);
    const QStringList before = state();
    begin(gesture);
    toggleByMidi();
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(unrest(), QString());
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
    hand->move(stemOf(34));
    hand->release();
    QCOMPARE(unrest(), QString());
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
    toggleByMidi();
    QCOMPARE(state(), before);
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::powerOffDuringAPowerDragShowsAtItsEnd()
{
    for (const bool switchedOn : {true, false}) {
        window->setPower(switchedOn);
        hand->drag(powerSleeve(), stemOf(32));
        toggleByMidi();
        QCOMPARE(power()->isSwitchOn(), !switchedOn);
        hand->glideTo(nowhere());
        hand->release();
        QCOMPARE(power()->isSwitchOn(), !switchedOn);
        QVERIFY(shows(power(), switchedOn ? QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")
                                          : QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
        QCOMPARE(unrest(), QString());
    }
}

void TestInterruptedGestures::powerDuringAPressInTheSquare()
{
    hand->press(powerSquare());
    toggleByMidi();
    QVERIFY(power()->isSwitchOn());
    hand->release();
    QVERIFY(!power()->isSwitchOn()); // from what it is, not from what it was at the press
    QCOMPARE(unrest(), QString());
}

void TestInterruptedGestures::powerOffDuringASweepEndsTheNote()
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

void TestInterruptedGestures::questionEndsTheGestureBeforeItIsAsked_data()
{
    addGestures();
}

void TestInterruptedGestures::questionEndsTheGestureBeforeItIsAsked()
{
    QFETCH(QString, gesture);
    emptyHeaders();
    window->setPower(true);
    begin(gesture);
    QString faults = QStringLiteral("not asked");
    QSet<int> heard;
    whenAsked([&](QMessageBox& box) {
        faults = unrest();
        heard = sounding();
        box.reject();
    });
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 1);
    QCOMPARE(faults, QString());
    QVERIFY(heard.isEmpty());
    activate();
    Hand& holding = hand->held() ? *hand : *outHand;
    holding.release();
    expectTheNextGesturesToWork();
}

void TestInterruptedGestures::acceptedQuestionFindsEverythingAtHome()
{
    window->setPower(true);
    recall(25);
    hand->drag(powerSleeve(), stemOf(32));
    whenAsked([](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            if (box.buttonRole(button) == QMessageBox::AcceptRole)
                button->click();
    });
    presets().resetAll();
    QCOMPARE(seen, 1);
    activate();
    hand->release();
    QCOMPARE(key_roles::pitch(power()), 61); // where a reset puts it
    QCOMPARE(unrest(), QString());
}

// What the hand holds on the other keyboard is no matter: the headers do not ask there.
void TestInterruptedGestures::menuDoesNotOpenWhileSomethingIsHeld_data()
{
    QTest::addColumn<QString>("gesture");
    for (const Gesture& gesture : gestures())
        if (qstrcmp(gesture.name, "out key held") != 0)
            QTest::newRow(gesture.name) << gesture.name;
}

void TestInterruptedGestures::menuDoesNotOpenWhileSomethingIsHeld()
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

void TestInterruptedGestures::menuOpensBetweenGestures()
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

void TestInterruptedGestures::windowThatGoesEndsTheGesture_data()
{
    addGestures();
}

// The program may be ended from outside while a hand holds something.
void TestInterruptedGestures::windowThatGoesEndsTheGesture()
{
    QFETCH(QString, gesture);
    window->setPower(true);
    begin(gesture);
    closeWindow();
    openStage();
    QCOMPARE(unrest(), QString());
}

QTEST_MAIN(TestInterruptedGestures)
#include "test_interrupted_gestures.moc"
