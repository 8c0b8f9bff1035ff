// Keys as they are pressed and released: what sounds, what is shown, and what is learnt.

#include "KeyFixture.h"

class TestKeyPresses : public KeyFixture
{
    Q_OBJECT

private slots:
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

    // Learning
    void learnedScaleKeyTogglesItsDegree();
    void learnedTonicKeyBecomesTheTonic();

    // Chords of a black key
    void blackOutReleaseSparesKeysWithoutABlackOneAbove();
};

void TestKeyPresses::powerKeyNeverSounds()
{
    for (const bool power : {true, false}) {
        window->setPower(power);
        in(49)->pushKey();
        QCOMPARE(window->powerItem->isSwitchOn(), !power);
        in(49)->releaseKey();
        QVERIFY(sent().isEmpty());
    }
}

void TestKeyPresses::pressedPowerKeyTogglesThePower()
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

void TestKeyPresses::blackKeyWithoutPresetIsSilentWithThePowerOn()
{
    in(61)->pushKey();
    in(61)->releaseKey();
    QVERIFY(sent().isEmpty());
    QVERIFY(shows(in(61), KeySheet::in, KeyCell::idle, KeyShine::blue));
}

void TestKeyPresses::blackKeysSoundThemselvesWithThePowerOff()
{
    window->setPower(false);
    in(61)->pushKey();
    in(61)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 61, 75}, {0x80, 61, 0}}));
}

void TestKeyPresses::heldNoteOutlivesARemapAndEndsWhatItBegan()
{
    in(62)->pushKey();
    setTonic("E");
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 62, 75}}));
    in(62)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 62, 0}}));
    QCOMPARE(key_roles::soundedOut(in(62)), 62);
}

void TestKeyPresses::twoKeysCanDriveOneOutKey()
{
    key_roles::setTarget(in(62), 60); // as a slid map may
    in(60)->pushKey();
    in(62)->pushKey();
    in(60)->releaseKey();
    QVERIFY(shows(out(60), KeySheet::out, KeyCell::idle, KeyShine::yellow));
    in(62)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 75}, {0x90, 60, 75}, {0x80, 60, 0}, {0x80, 60, 0}}));
}

void TestKeyPresses::pressCountsEvenOnAGreyedKey()
{
    setScale("xoxoxooxoxoo");
    in(96)->pushKey();
    QVERIFY(in(96)->isPushed);
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::pressed, KeyShine::none));
    in(96)->releaseKey();
    QVERIFY(!in(96)->isPushed);
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeyPresses::greyedKeyIsSilentBothWays()
{
    setScale("xoxoxooxoxoo");
    in(96)->pushOUTbyIN(60);
    in(96)->releaseOUTbyIN(60);
    in(21)->pushKey();
    in(21)->releaseKey();
    QVERIFY(sent().isEmpty());
}

void TestKeyPresses::noteHangsIfItsKeyIsGreyedMeanwhile()
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

void TestKeyPresses::outKeyPressedDirectlySoundsItself()
{
    setTonic("E");
    out(61)->pushKey();
    QVERIFY(shows(out(61), KeySheet::in, KeyCell::pressed, KeyShine::none));
    out(61)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 61, 75}, {0x80, 61, 0}}));
}

void TestKeyPresses::secondReleaseOfAnOutKeyIsSilent()
{
    out(64)->pushKey();
    out(64)->releaseKey();
    out(64)->releaseKey();
    QCOMPARE(sent().size(), 2);
}

void TestKeyPresses::outKeyNeverPressedStillSendsItsFirstRelease()
{
    out(64)->releaseKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 64, 0}}));
}

void TestKeyPresses::drivenLowestOutKeyShowsNoPress()
{
    in(21)->pushKey();
    QVERIFY(shows(out(21), KeySheet::in, KeyCell::idle, KeyShine::none));
    QVERIFY(shows(in(21), KeySheet::in, KeyCell::pressed, KeyShine::none));
    in(23)->pushKey();
    QVERIFY(shows(out(23), KeySheet::in, KeyCell::pressed, KeyShine::none));
}

void TestKeyPresses::directlyPressedLowestOutKeyShowsItsPress()
{
    out(21)->pushKey();
    QVERIFY(shows(out(21), KeySheet::in, KeyCell::pressed, KeyShine::none));
}

void TestKeyPresses::targetlessPressKeepsTheSoundedPitch()
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

void TestKeyPresses::releaseRestoresTheColoursOfTheState()
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

void TestKeyPresses::learnedScaleKeyTogglesItsDegree()
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
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxooxxoxoxxx"));
    QVERIFY(sent().isEmpty());
    QVERIFY(window->powerItem->isSwitchOn());
}

void TestKeyPresses::learnedTonicKeyBecomesTheTonic()
{
    window->learnTonic = true;
    in(66)->pushKey();
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("F#"));
    in(49)->pushKey(); // the power key selects like any other
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C#"));
    QVERIFY(window->powerItem->isSwitchOn());
    QVERIFY(sent().isEmpty());
}

void TestKeyPresses::blackOutReleaseSparesKeysWithoutABlackOneAbove()
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

QTEST_MAIN(TestKeyPresses)
#include "test_key_presses.moc"
