// The pointer on the keys without a drag: what a press and a release do, by which button, and what they do
// while a dialog is open.

#include "StageFixture.h"

#include "SweepModel.h"
#include "header_pictures.h"
#include "keys/key_pictures.h"

#include <QtTest>

class TestKeyPointer : public StageFixture
{
    Q_OBJECT

private slots:
    // In keys
    void inKeySoundsItselfWithThePowerOff();
    void whiteInKeyPlaysItsTargetWithThePowerOn_data();
    void whiteInKeyPlaysItsTargetWithThePowerOn();
    void blackInKeyRecallsWithThePowerOn();
    void inKeyShowsItsPress();
    void heldKeyEndsTheNoteThatItBegan();
    void powerKeyLiesUnderTheButton_data();
    void powerKeyLiesUnderTheButton();
    void keyThatTheButtonLeftIsBare();

    // Out keys
    void outKeySoundsItself_data();
    void outKeySoundsItself();
    void outKeyIsNotSwept();

    // Buttons
    void otherButtonsDoNothing_data();
    void otherButtonsDoNothing();
    void onlyTheLeftButtonEndsTheNote_data();
    void onlyTheLeftButtonEndsTheNote();
    void secondPressOfADoubleClickSounds();

    // Dialogs
    void openDialogTakesNoPress();
    void dialogThatComesUpMeanwhileLeavesTheRelease();

private:
    QPointF placeIn(int note) const { return onKey(in(note)); }
    /// One place of each kind that a press does something at.
    QList<QPointF> pressables() const;
    static bool showsPressed(const ResizableItem* key);
};

bool TestKeyPointer::showsPressed(const ResizableItem* key)
{
    const KeyShape shape = key_pictures::shapeOf(key_roles::name(key));
    return isSame(key->pixmap(),
                  key_pictures::picture(KeySheet::in, shape, KeyCell::pressed, KeyShine::none));
}

QList<QPointF> TestKeyPointer::pressables() const
{
    return {placeIn(60), placeIn(61), boxOf(25), powerSquare(), powerSleeve()};
}

void TestKeyPointer::inKeySoundsItselfWithThePowerOff()
{
    for (int note = 21; note <= 108; ++note) {
        if (note == powerKey)
            continue;
        hand->press(placeIn(note));
        QCOMPARE(sent(), Messages{noteOn(note)});
        QVERIFY(in(note)->isPushed && in(note)->mouseHeld && in(note)->pressedByMouse);
        QVERIFY(scene()->leftDown);
        hand->release();
        QCOMPARE(sent(), Messages{noteOff(note)}); // without a move the key is released once
        QCOMPARE(unrest(), QString());
        QVERIFY(!in(note)->pressedByMouse);
    }
}

void TestKeyPointer::whiteInKeyPlaysItsTargetWithThePowerOn_data()
{
    QTest::addColumn<int>("tonicIndex");
    QTest::addColumn<QString>("word");
    QTest::newRow("C Ionian") << 0 << ionian;
    QTest::newRow("D Ionian") << 2 << ionian;
    QTest::newRow("A pentatonic, grey keys at both ends") << 9 << "xoxoxooxoxoo";
    QTest::newRow("B octaves, most keys grey") << 11 << octaves;
}

void TestKeyPointer::whiteInKeyPlaysItsTargetWithThePowerOn()
{
    QFETCH(int, tonicIndex);
    QFETCH(QString, word);
    static const char* names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    window->setPower(true);
    setTonic(names[tonicIndex]);
    setScale(word);
    for (const auto& [note, wanted] : whiteTargets(tonicIndex, word.toStdString())) {
        hand->press(placeIn(note));
        QCOMPARE(sent(), wanted == -1 ? Messages() : Messages{noteOn(wanted)});
        QVERIFY(in(note)->isPushed); // a grey key goes down too
        hand->release();
        QCOMPARE(sent(), wanted == -1 ? Messages() : Messages{noteOff(wanted)});
        QCOMPARE(unrest(), QString());
    }
}

void TestKeyPointer::blackInKeyRecallsWithThePowerOn()
{
    window->setPower(true);
    for (int note = lowest; note <= highest; ++note) {
        if (isWhite(note) || note == powerKey)
            continue;
        record(note) = fullRecord();
        setScale(ionian);
        hand->press(placeIn(note));
        QCOMPARE(active(), note);
        QCOMPARE(scale().scaleModifier(), lydian);
        hand->release();
        QCOMPARE(active(), note);
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(sent(), Messages());
}

void TestKeyPointer::inKeyShowsItsPress()
{
    for (int note = 21; note <= 108; ++note) {
        if (note == powerKey)
            continue;
        const QPixmap idle = in(note)->pixmap();
        hand->press(placeIn(note));
        QVERIFY(showsPressed(in(note)));
        QCOMPARE(showsPressed(out(note)), note != 21); // a driven A0 shows no press
        hand->release();
        QVERIFY(isSame(in(note)->pixmap(), idle));
        QVERIFY(!showsPressed(out(note)));
    }
}

void TestKeyPointer::heldKeyEndsTheNoteThatItBegan()
{
    window->setPower(true);
    hand->press(placeIn(60));
    setTonic("E");
    hand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
    hand->click(placeIn(60));
    QCOMPARE(sent(), (Messages{noteOn(64), noteOff(64)}));
}

void TestKeyPointer::powerKeyLiesUnderTheButton_data()
{
    addPowers();
}

void TestKeyPointer::powerKeyLiesUnderTheButton()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    const QRectF key = in(powerKey)->sceneBoundingRect();
    for (qreal y = key.top() + 20; y < key.bottom(); ++y) { // the square ends above
        hand->press({key.center().x(), y});
        QVERIFY(!in(powerKey)->isPushed);
        QVERIFY(power()->mouseHeld);
        hand->release();
        QCOMPARE(power()->isSwitchOn(), switchedOn);
    }
    QCOMPARE(sent(), Messages());
    QCOMPARE(unrest(), QString());
}

void TestKeyPointer::keyThatTheButtonLeftIsBare()
{
    window->setPower(true);
    QVERIFY(scene()->swapHeader(header(61), power()));
    presets().setHeadersStatus(true);
    hand->click(placeIn(powerKey));
    QCOMPARE(active(), powerKey);
    QVERIFY(power()->isSwitchOn());
    hand->click(placeIn(61)); // the button's sleeve now
    QCOMPARE(active(), powerKey);
    QVERIFY(power()->isSwitchOn());
    window->setPower(false);
    hand->click(placeIn(powerKey));
    QCOMPARE(sent(), (Messages{noteOn(powerKey), noteOff(powerKey)}));
}

void TestKeyPointer::outKeySoundsItself_data()
{
    addPowers();
}

void TestKeyPointer::outKeySoundsItself()
{
    QFETCH(bool, switchedOn);
    window->setPower(switchedOn);
    setTonic("E");
    for (int note = 21; note <= 108; ++note) {
        const QPixmap idle = out(note)->pixmap();
        outHand->press(onKey(out(note)));
        QCOMPARE(sent(), Messages{noteOn(note)});
        QVERIFY(showsPressed(out(note)));
        QVERIFY(!in(note)->isPushed);
        outHand->release();
        QCOMPARE(sent(), Messages{noteOff(note)});
        QVERIFY(isSame(out(note)->pixmap(), idle));
        QCOMPARE(unrest(), QString());
    }
    QCOMPARE(power()->isSwitchOn(), switchedOn); // the out key of 49 is no switch
    QCOMPARE(active(), firstActive);
}

void TestKeyPointer::outKeyIsNotSwept()
{
    outHand->drag(onKey(out(60)), onKey(out(72)));
    QCOMPARE(sent(), Messages{noteOn(60)});
    QVERIFY(out(60)->isPushed);
    outHand->release();
    QCOMPARE(sent(), Messages{noteOff(60)});
    QCOMPARE(unrest(), QString());
}

void TestKeyPointer::otherButtonsDoNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void TestKeyPointer::otherButtonsDoNothing()
{
    QFETCH(int, button);
    const auto other = static_cast<Qt::MouseButton>(button);
    for (const bool switchedOn : {false, true}) {
        window->setPower(switchedOn);
        const QStringList before = state();
        const QPixmap picture = power()->pixmap();
        for (const QPointF& place : pressables()) {
            hand->press(place, other);
            QVERIFY(!scene()->leftDown);
            hand->move(place + QPointF(30, 0));
            hand->release(other);
            QCOMPARE(unrest(), QString());
        }
        outHand->click(onKey(out(60)), other);
        QCOMPARE(sent(), Messages());
        QCOMPARE(state(), before);
        QVERIFY(isSame(power()->pixmap(), picture));
    }
}

void TestKeyPointer::onlyTheLeftButtonEndsTheNote_data()
{
    QTest::addColumn<QString>("order"); // capital letters go down
    QTest::addColumn<int>("begins");
    QTest::addColumn<int>("ends");
    QTest::newRow("right within left") << "LRrl" << 0 << 3;
    QTest::newRow("right outlasts left") << "LRlr" << 0 << 2;
    QTest::newRow("left within right") << "RLlr" << 1 << 2;
    QTest::newRow("left outlasts right") << "RLrl" << 1 << 3;
    QTest::newRow("right twice within left") << "LRrRrl" << 0 << 5;
}

void TestKeyPointer::onlyTheLeftButtonEndsTheNote()
{
    QFETCH(QString, order);
    QFETCH(int, begins);
    QFETCH(int, ends);
    for (int i = 0; i < order.size(); ++i) {
        const QChar letter = order.at(i);
        const Qt::MouseButton button = letter.toLower() == 'l' ? Qt::LeftButton : Qt::RightButton;
        if (letter.isUpper())
            hand->press(placeIn(60), button);
        else
            hand->release(button);
        QCOMPARE(sent(), i == begins ? Messages{noteOn(60)} : i == ends ? Messages{noteOff(60)} : Messages());
    }
    QCOMPARE(unrest(), QString());
}

void TestKeyPointer::secondPressOfADoubleClickSounds()
{
    for (const int note : {60, 61}) {
        hand->click(placeIn(note));
        hand->pressAgain(placeIn(note));
        QCOMPARE(sent(), (Messages{noteOn(note), noteOff(note), noteOn(note)}));
        hand->release();
        QCOMPARE(sent(), Messages{noteOff(note)});
    }
    outHand->click(onKey(out(60)));
    outHand->pressAgain(onKey(out(60)));
    outHand->release();
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60), noteOn(60), noteOff(60)}));
}

void TestKeyPointer::openDialogTakesNoPress()
{
    window->setPower(true);
    const QStringList before = state();
    window->dialogOpen = true;
    for (const QPointF& place : pressables()) {
        hand->press(place);
        hand->move(place + QPointF(30, 0));
        hand->release();
        hand->pressAgain(place);
        hand->release();
        QCOMPARE(unrest(), QString());
    }
    outHand->click(onKey(out(60)));
    window->dialogOpen = false;
    QCOMPARE(sent(), Messages());
    QCOMPARE(state(), before);
    QVERIFY(powerShows({"On"}));
    hand->click(placeIn(60));
    QCOMPARE(sent(), (Messages{noteOn(60), noteOff(60)}));
}

void TestKeyPointer::dialogThatComesUpMeanwhileLeavesTheRelease()
{
    hand->press(placeIn(60));
    window->dialogOpen = true;
    hand->move(placeIn(62));
    QCOMPARE(sent(), Messages{noteOn(60)}); // no sweep
    hand->release();
    window->dialogOpen = false;
    QCOMPARE(sent(), Messages{noteOff(60)});
    QCOMPARE(unrest(), QString());
}

QTEST_MAIN(TestKeyPointer)
#include "test_key_pointer.moc"
