// Keys as they are pressed and released, mapped through their roles, and shown live or greyed.

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"

#include <QGraphicsItemGroup>
#include <QtTest>

class TestKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    // Roles and the map
    void powerOffEveryKeyDrivesItself();
    void powerOffIgnoresTonicAndScaleInTheMap();
    void membershipFollowsTonicAndScale();
    void clearedKeysHoldTheNumberMinusOne();
    void slidKeysHoldTextAndTheirTailNumbersOrText();
    void silentTailHoldsTheTextMinusOne();
    void blackKeysStaySilentUnderASlide();
    void keyOfAForeignIndexIsSkipped();
    void tonicModifierIsZeroWithoutKeyOrPower();
    void remapForgetsTheMapBefore();

    // Press and release
    void powerKeyNeverSounds();
    void pressedPowerKeyTogglesThePower();
    void blackKeyWithoutPresetIsSilentWithThePowerOn();
    void blackKeysSoundThemselvesWithThePowerOff();
    void heldNoteOutlivesARemapAndEndsWhatItBegan();
    void twoKeysCanDriveOneOutKey();
    void pressCountsEvenOnAGreyedKey();
    void greyedKeyIsSilentBothWays();
    void noteHangsIfItsKeyIsGreyedMeanwhile();
    void outKeyPressedDirectlySoundsItself();
    void secondReleaseOfAnOutKeyIsSilent();
    void outKeyNeverPressedStillSendsItsFirstRelease();
    void drivenLowestOutKeyShowsNoPress();
    void directlyPressedLowestOutKeyShowsItsPress();
    void targetlessPressKeepsTheSoundedPitch();
    void releaseRestoresTheColoursOfTheState();
    void learnedScaleKeyTogglesItsDegree();
    void learnedTonicKeyBecomesTheTonic();
    void blackOutReleaseSparesKeysWithoutABlackOneAbove();

    // Activation
    void powerOffLeavesEveryKeyActive();
    void pentatonicGreysBothEnds();
    void heldKeyKeepsTheInputColourWhenGreyed();
    void blackKeysAreAlwaysActive();
    void colouredOutKeysFollowTheScale();
    void heldOutKeyLosesItsPressedLookOnARemap();
    void allKeysCanBeMadeActive();

private:
    ResizableItem* in(int note) const { return window->findInNote(note); }
    ResizableItem* out(int note) const { return static_cast<ResizableItem*>(in(note)->pairedOutKey); }
    QList<QList<int>> sent() const { return port->takeLists(); }
    void setScale(const char* word) const;
    void setTonic(const char* name) const;
    /// Slides the map by white keys, as the main anchor would.
    void slideBy(int shift);
    bool shows(const ResizableItem* key, KeySheet sheet, KeyCell cell, KeyShine shine) const;

    std::unique_ptr<MainWnd> window;
    RecordingPort* port = nullptr; // owned by the window
    QGraphicsItemGroup anchor;
};

void TestKeys::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    port = new RecordingPort;
    window->outPorts[0] = port;
    window->midiOutOpen = true;
    window->setPower(true);
}

void TestKeys::setScale(const char* word) const
{
    static_cast<ScaleKeyController*>(window->scaleController)->setScaleModifier(QLatin1String(word), true);
}

void TestKeys::setTonic(const char* name) const
{
    static_cast<TonicKeyController*>(window->tonicController)
        ->setTonicModifier(QLatin1String(name), true, true);
}

void TestKeys::slideBy(int shift)
{
    anchor.setPos(-17.0 * shift, 0);
    window->powerItem->mainAnchorIn = &anchor;
    window->powerItem->changeScaleByTonic();
}

bool TestKeys::shows(const ResizableItem* key, KeySheet sheet, KeyCell cell, KeyShine shine) const
{
    const KeyShape shape = key_pictures::shapeOf(key_roles::name(key));
    return key->pixmap().cacheKey() == key_pictures::picture(sheet, shape, cell, shine).cacheKey();
}

void TestKeys::powerOffEveryKeyDrivesItself()
{
    window->setPower(false);
    for (int note = 21; note <= 108; ++note) {
        QCOMPARE(key_roles::target(in(note)), note);
        QVERIFY(key_roles::isInScale(in(note)));
        QVERIFY(key_roles::isColoured(out(note)));
    }
}

void TestKeys::powerOffIgnoresTonicAndScaleInTheMap()
{
    slideBy(3);
    setTonic("F");
    setScale("xooxooxooxoo");
    window->setPower(false);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
    for (int note = 21; note <= 108; ++note)
        QCOMPARE(key_roles::target(in(note)), note);
}

void TestKeys::membershipFollowsTonicAndScale()
{
    const char* names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
    for (const QByteArray word : {"xoxoxxoxoxox", "xooooooooooo", "xxoxxoxxoxxo"}) {
        setScale(word.constData());
        for (int tonic = 0; tonic < 12; ++tonic) {
            setTonic(names[tonic]);
            for (int note = 21; note <= 108; ++note) {
                const bool on = word.at((note + 12 - tonic) % 12) == 'x';
                QCOMPARE(key_roles::isInScale(in(note)), on);
                QCOMPARE(key_roles::isColoured(out(note)), on);
            }
        }
    }
}

void TestKeys::clearedKeysHoldTheNumberMinusOne()
{
    setScale("xoxoxooxoxoo");
    QCOMPARE(in(108)->data(99).type(), QVariant::Int);
    QCOMPARE(key_roles::targetText(in(108)), QStringLiteral("-1"));
    QCOMPARE(key_roles::target(in(108)), -1);
}

void TestKeys::slidKeysHoldTextAndTheirTailNumbersOrText()
{
    slideBy(-2); // 108 plays 105; below, the tail has nothing left
    QCOMPARE(key_roles::target(in(108)), 105);
    QCOMPARE(in(108)->data(99).type(), QVariant::String);
    QCOMPARE(in(21)->data(99), QVariant(QStringLiteral("-1")));
    setTonic("D"); // 21 played 23 before the slide: the tail finds 21, the fifth, below it
    QCOMPARE(in(24)->data(99), QVariant(QStringLiteral("23")));
    QCOMPARE(in(23)->data(99), QVariant(21));
    QCOMPARE(in(21)->data(99), QVariant(QStringLiteral("-1")));
}

void TestKeys::silentTailHoldsTheTextMinusOne()
{
    slideBy(2);
    for (const int note : {107, 108}) {
        QCOMPARE(in(note)->data(99), QVariant(QStringLiteral("-1")));
        QCOMPARE(key_roles::target(in(note)), -1);
    }
}

void TestKeys::blackKeysStaySilentUnderASlide()
{
    for (const int shift : {-5, 5, 60, -60}) {
        slideBy(shift);
        for (const int note : {22, 58, 61, 106})
            QCOMPARE(key_roles::target(in(note)), -1);
    }
}

void TestKeys::keyOfAForeignIndexIsSkipped()
{
    auto* foreign = new TonicKeyItem(tonic_key_scale, window->scaleController, 12);
    foreign->setParent(window->scaleController);
    foreign->setOn();
    window->scaleController->addKey(foreign);
    window->powerItem->changeScaleByTonic();
    QCOMPARE(key_roles::target(in(62)), 62);
}

void TestKeys::tonicModifierIsZeroWithoutKeyOrPower()
{
    setTonic("G");
    QCOMPARE(window->powerItem->getCurTonicModifier(), 7);
    window->powerItem->setSwithOn(false);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
    window->powerItem->setSwithOn(true);
    static_cast<TonicKeyController*>(window->tonicController)->setActiveKey(nullptr);
    QCOMPARE(window->powerItem->getCurTonicModifier(), 0);
}

void TestKeys::remapForgetsTheMapBefore()
{
    QList<int> before;
    for (int note = 21; note <= 108; ++note)
        before.append(key_roles::target(in(note)));
    setTonic("A");
    setScale("xooxoxxxooxo");
    slideBy(4);
    slideBy(0);
    setTonic("C");
    setScale("xoxoxxoxoxox");
    for (int note = 21; note <= 108; ++note)
        QCOMPARE(key_roles::target(in(note)), before.at(note - 21));
}

void TestKeys::powerKeyNeverSounds()
{
    for (const bool power : {true, false}) {
        window->setPower(power);
        in(49)->pushKey();
        QCOMPARE(window->powerItem->isSwitchOn(), !power);
        in(49)->releaseKey();
        QVERIFY(sent().isEmpty());
    }
}

void TestKeys::pressedPowerKeyTogglesThePower()
{
    in(49)->pushKey();
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(window->backgroundOff->isVisible());
    QCOMPARE(key_roles::target(in(61)), 61);
    in(49)->releaseKey();
    in(49)->pushKey();
    QVERIFY(window->powerItem->isSwitchOn());
    QCOMPARE(key_roles::target(in(61)), -1);
}

void TestKeys::blackKeyWithoutPresetIsSilentWithThePowerOn()
{
    in(61)->pushKey();
    in(61)->releaseKey();
    QVERIFY(sent().isEmpty());
    QVERIFY(shows(in(61), KeySheet::in, KeyCell::idle, KeyShine::blue));
}

void TestKeys::blackKeysSoundThemselvesWithThePowerOff()
{
    window->setPower(false);
    in(61)->pushKey();
    in(61)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 61, 75}, {0x80, 61, 0}}));
}

void TestKeys::heldNoteOutlivesARemapAndEndsWhatItBegan()
{
    in(62)->pushKey();
    setTonic("E");
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 62, 75}}));
    in(62)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 62, 0}}));
    QCOMPARE(key_roles::soundedOut(in(62)), 62);
}

void TestKeys::twoKeysCanDriveOneOutKey()
{
    key_roles::setTarget(in(62), 60); // as a slid map may
    in(60)->pushKey();
    in(62)->pushKey();
    in(60)->releaseKey();
    QVERIFY(shows(out(60), KeySheet::out, KeyCell::idle, KeyShine::yellow));
    in(62)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 75}, {0x90, 60, 75}, {0x80, 60, 0}, {0x80, 60, 0}}));
}

void TestKeys::pressCountsEvenOnAGreyedKey()
{
    setScale("xoxoxooxoxoo");
    in(96)->pushKey();
    QVERIFY(in(96)->isPushed);
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::pressed, KeyShine::none));
    in(96)->releaseKey();
    QVERIFY(!in(96)->isPushed);
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeys::greyedKeyIsSilentBothWays()
{
    setScale("xoxoxooxoxoo");
    in(96)->pushOUTbyIN(60);
    in(96)->releaseOUTbyIN(60);
    in(21)->pushKey();
    in(21)->releaseKey();
    QVERIFY(sent().isEmpty());
}

void TestKeys::noteHangsIfItsKeyIsGreyedMeanwhile()
{
    in(96)->pushKey();
    setScale("xoxoxooxoxoo");
    in(96)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 96, 75}})); // kept: no note-off
    setScale("xoxoxxoxoxox");
    in(96)->pushKey();
    in(96)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 96, 75}, {0x80, 96, 0}}));
}

void TestKeys::outKeyPressedDirectlySoundsItself()
{
    setTonic("E");
    out(61)->pushKey();
    QVERIFY(shows(out(61), KeySheet::in, KeyCell::pressed, KeyShine::none));
    out(61)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 61, 75}, {0x80, 61, 0}}));
}

void TestKeys::secondReleaseOfAnOutKeyIsSilent()
{
    out(64)->pushKey();
    out(64)->releaseKey();
    out(64)->releaseKey();
    QCOMPARE(sent().size(), 2);
}

void TestKeys::outKeyNeverPressedStillSendsItsFirstRelease()
{
    out(64)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 64, 0}}));
}

void TestKeys::drivenLowestOutKeyShowsNoPress()
{
    in(21)->pushKey();
    QVERIFY(shows(out(21), KeySheet::in, KeyCell::idle, KeyShine::none));
    QVERIFY(shows(in(21), KeySheet::in, KeyCell::pressed, KeyShine::none));
    in(23)->pushKey();
    QVERIFY(shows(out(23), KeySheet::in, KeyCell::pressed, KeyShine::none));
}

void TestKeys::directlyPressedLowestOutKeyShowsItsPress()
{
    out(21)->pushKey();
    QVERIFY(shows(out(21), KeySheet::in, KeyCell::pressed, KeyShine::none));
}

void TestKeys::targetlessPressKeepsTheSoundedPitch()
{
    in(61)->pushKey(); // power on: no target
    QCOMPARE(key_roles::soundedOut(in(61)), 0);
    window->setPower(false);
    in(61)->releaseKey(); // no out key has pitch 0
    in(61)->pushKey();
    window->setPower(true);
    in(61)->releaseKey();
    window->setPower(false);
    static_cast<void>(sent());
    in(61)->releaseKey(); // harmless note-off of the older pitch
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 61, 0}}));
}

void TestKeys::releaseRestoresTheColoursOfTheState()
{
    in(62)->pushKey();
    QVERIFY(shows(out(62), KeySheet::in, KeyCell::pressed, KeyShine::none));
    in(62)->releaseKey();
    QVERIFY(shows(in(62), KeySheet::plain, KeyCell::idle, KeyShine::blue));
    QVERIFY(shows(out(62), KeySheet::out, KeyCell::idle, KeyShine::yellow));
    window->setPower(false);
    in(62)->pushKey();
    in(62)->releaseKey();
    QVERIFY(shows(out(62), KeySheet::plain, KeyCell::idle, KeyShine::yellow));
}

void TestKeys::learnedScaleKeyTogglesItsDegree()
{
    window->learnScale = true;
    window->learnPending = true;
    in(62)->pushKey();
    QVERIFY(shows(in(62), KeySheet::learn, KeyCell::idle, KeyShine::blue)); // repainted by the remap
    QVERIFY(!window->learnPending);
    in(61)->pushKey(); // "C#", told by the key below
    in(60)->pushKey(); // the tonic degree never changes
    in(22)->pushKey(); // "A#"
    window->learnScale = false;
    QCOMPARE(static_cast<ScaleKeyController*>(window->scaleController)->scaleModifier(),
             QStringLiteral("xxooxxoxoxxx"));
    QVERIFY(sent().isEmpty());
    QVERIFY(window->powerItem->isSwitchOn());
}

void TestKeys::learnedTonicKeyBecomesTheTonic()
{
    window->learnTonic = true;
    in(66)->pushKey();
    QCOMPARE(static_cast<TonicKeyController*>(window->tonicController)->tonicModifier(),
             QStringLiteral("F#"));
    in(49)->pushKey(); // the power key selects like any other
    QCOMPARE(static_cast<TonicKeyController*>(window->tonicController)->tonicModifier(),
             QStringLiteral("C#"));
    QVERIFY(window->powerItem->isSwitchOn());
    QVERIFY(sent().isEmpty());
}

void TestKeys::blackOutReleaseSparesKeysWithoutABlackOneAbove()
{
    ResizableItem* key = in(60);
    key->setData(ROLE_BLACK_OUT, 61);
    for (const int note : {23, 28, 35, 40, 47, 52, 59, 64, 71, 76, 83, 88, 95, 100, 107, 108})
        key->findAndReleaseBlackOut(note);
    QVERIFY(sent().isEmpty());
    for (const int note : {21, 60, 61, 62, 105})
        key->findAndReleaseBlackOut(note);
    QCOMPARE(sent().size(), 5);
}

void TestKeys::powerOffLeavesEveryKeyActive()
{
    setScale("xooooooooooo");
    window->setPower(false);
    for (int note = 21; note <= 108; ++note) {
        QVERIFY(!key_roles::isDeactive(in(note)));
        QVERIFY(shows(in(note), KeySheet::plain, KeyCell::idle, KeyShine::blue));
    }
}

void TestKeys::pentatonicGreysBothEnds()
{
    setScale("xoxoxooxoxoo");
    for (int note = 21; note <= 108; ++note) {
        const bool white = !key_roles::isBlack(in(note));
        QCOMPARE(key_roles::isDeactive(in(note)), white && (note >= 96 || note <= 31));
    }
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeys::heldKeyKeepsTheInputColourWhenGreyed()
{
    in(96)->pushKey();
    setScale("xoxoxooxoxoo");
    QVERIFY(key_roles::isDeactive(in(96)));
    QVERIFY(shows(in(96), KeySheet::in, KeyCell::idle, KeyShine::blue));
    in(96)->releaseKey();
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeys::blackKeysAreAlwaysActive()
{
    setScale("xooooooooooo");
    for (const int note : {22, 49, 61, 106}) {
        QVERIFY(!key_roles::isDeactive(in(note)));
        QCOMPARE(key_roles::target(in(note)), -1);
        QVERIFY(shows(in(note), KeySheet::in, KeyCell::idle, KeyShine::blue));
    }
}

void TestKeys::colouredOutKeysFollowTheScale()
{
    setTonic("D");
    QVERIFY(shows(out(66), KeySheet::out, KeyCell::idle, KeyShine::yellow));   // F sharp
    QVERIFY(shows(out(65), KeySheet::plain, KeyCell::idle, KeyShine::yellow)); // F
}

void TestKeys::heldOutKeyLosesItsPressedLookOnARemap()
{
    in(62)->pushKey();
    setTonic("D");
    QVERIFY(shows(out(62), KeySheet::out, KeyCell::idle, KeyShine::yellow));
}

void TestKeys::allKeysCanBeMadeActive()
{
    setScale("xooooooooooo");
    window->powerItem->setAllKeysActive();
    for (int note = 21; note <= 108; ++note)
        QVERIFY(!key_roles::isDeactive(in(note)));
    QVERIFY(shows(in(96), KeySheet::plain, KeyCell::idle, KeyShine::blue));
}

QTEST_MAIN(TestKeys)
#include "test_keys.moc"
