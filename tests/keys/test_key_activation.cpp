// Which keys are live and which are greyed, and how either looks.

#include "KeyFixture.h"

class TestKeyActivation : public KeyFixture
{
    Q_OBJECT

private slots:
    void powerOffLeavesEveryKeyActive();
    void pentatonicGreysBothEnds();
    void heldKeyKeepsTheInputColourWhenGreyed();
    void blackKeysAreAlwaysActive();
    void colouredOutKeysFollowTheScale();
    void heldOutKeyLosesItsPressedLookOnARemap();
    void allKeysCanBeMadeActive();
};

void TestKeyActivation::powerOffLeavesEveryKeyActive()
{
    setScale("xooooooooooo");
    window->setPower(false);
    for (int note = 21; note <= 108; ++note) {
        QVERIFY(!key_roles::isDeactive(in(note)));
        QVERIFY(shows(in(note), KeySheet::plain, KeyCell::idle, KeyShine::blue));
    }
}

void TestKeyActivation::pentatonicGreysBothEnds()
{
    setScale("xoxoxooxoxoo");
    for (int note = 21; note <= 108; ++note) {
        const bool white = !key_roles::isBlack(in(note));
        QCOMPARE(key_roles::isDeactive(in(note)), white && (note >= 96 || note <= 31));
    }
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeyActivation::heldKeyKeepsTheInputColourWhenGreyed()
{
    in(96)->pushKey();
    setScale("xoxoxooxoxoo");
    QVERIFY(key_roles::isDeactive(in(96)));
    QVERIFY(shows(in(96), KeySheet::in, KeyCell::idle, KeyShine::blue));
    in(96)->releaseKey();
    QVERIFY(shows(in(96), KeySheet::deactive, KeyCell::idle, KeyShine::blue));
}

void TestKeyActivation::blackKeysAreAlwaysActive()
{
    setScale("xooooooooooo");
    for (const int note : {22, 49, 61, 106}) {
        QVERIFY(!key_roles::isDeactive(in(note)));
        QCOMPARE(key_roles::target(in(note)), -1);
        QVERIFY(shows(in(note), KeySheet::in, KeyCell::idle, KeyShine::blue));
    }
}

void TestKeyActivation::colouredOutKeysFollowTheScale()
{
    setTonic("D");
    QVERIFY(shows(out(66), KeySheet::out, KeyCell::idle, KeyShine::yellow));   // F sharp
    QVERIFY(shows(out(65), KeySheet::plain, KeyCell::idle, KeyShine::yellow)); // F
}

void TestKeyActivation::heldOutKeyLosesItsPressedLookOnARemap()
{
    in(62)->pushKey();
    setTonic("D");
    QVERIFY(shows(out(62), KeySheet::out, KeyCell::idle, KeyShine::yellow));
}

void TestKeyActivation::allKeysCanBeMadeActive()
{
    setScale("xooooooooooo");
    window->powerItem->setAllKeysActive();
    for (int note = 21; note <= 108; ++note)
        QVERIFY(!key_roles::isDeactive(in(note)));
    QVERIFY(shows(in(96), KeySheet::plain, KeyCell::idle, KeyShine::blue));
}

QTEST_MAIN(TestKeyActivation)
#include "test_key_activation.moc"
