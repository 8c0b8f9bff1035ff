// Gestures that lose the pointer. Keys must be released, what was dragged must go home undropped, and the
// next gesture must be like any other.

#include "GestureFixture.h"

#include <QApplication>
#include <QtTest>

class TestInterruptedGestures : public GestureFixture
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

    // The end
    void windowThatGoesEndsTheGesture_data();
    void windowThatGoesEndsTheGesture();

private:
    struct Interruption
    {
        const char* name;
        std::function<void()> strike, recover;
    };
    std::vector<Interruption> interruptions();
    void addGesturesAnd(const char* column, const std::vector<const char*>& others) const;
};

std::vector<TestInterruptedGestures::Interruption> TestInterruptedGestures::interruptions()
{
    return {
        {"window deactivated", [] { QApplication::setActiveWindow(nullptr); }, [this] { activate(); }},
        {"gestures ended", [this] { window->endGestures(); }, [] {}},
        {"question asked",
         [this] {
             const int before = seen;
             answer(false);
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
    for (const Gesture& gesture : gestures())
        for (const char* other : others)
            QTest::addRow("%s, %s", gesture.name, other) << gesture.name << other;
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
        QVERIFY(powerShows({"On"}));
        other.recover();
    }
    holding().move(holding().place() + QPointF(20, 0)); // the hand does not know
    holding().release();
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
    QVERIFY(powerShows({"On"}));
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
        QVERIFY(powerShows({switchedOn ? "On" : "Off"}));
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
    holding().move(sides.value(side));
    holding().release();
    QCOMPARE(unrest(), QString());
    QVERIFY(sounding().isEmpty());
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(key_roles::pitch(power()), powerKey);
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
