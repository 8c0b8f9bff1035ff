// What the entries of the menu do: copy, paste, locks, erase, reset.

#include "HeaderFixture.h"

#include <QtTest>

class TestHeaderActions : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Copy, paste
    void copyTakesAllFieldsOnce();
    void pasteIntoAnotherHeaderLeavesTheSelectors();
    void pasteIntoTheActiveHeaderDrivesTheSelectors();
    void pasteOfSwitchedOffFieldsSwitchesOff();

    // Locks
    void locksOfTheActiveHeader();
    void locksOfAnotherHeader();
    void lockKeepsWhatTheOtherHeaderHeld();
    void lockWithThePowerOffStoresTheSelectors();

    // Erase, reset
    void eraseOfAnotherHeader();
    void eraseOfTheActiveHeader();
    void resetOfAnotherHeaderTakesTheLibrarysNames();
    void resetOfTheActiveHeader();
    void resetBringsTheAnchorsHomeWithThePowerOn();
};

void TestHeaderActions::copyTakesAllFieldsOnce()
{
    record(25) = fullRecord();
    openMenuOn(25);
    presets().copyHdr();
    record(25) = {};
    QVERIFY(presets().hasCopy);
    QCOMPARE(asText(presets().copyData), asText(fullRecord()));
    for (const int key : {27, 30}) { // any number of pastes
        openMenuOn(key);
        presets().pasteHdr();
        QCOMPARE(asText(record(key)), asText(fullRecord()));
    }
    QVERIFY(presets().hasCopy);
}

void TestHeaderActions::pasteIntoAnotherHeaderLeavesTheSelectors()
{
    window->setPower(true);
    presets().copyData = fullRecord();
    openMenuOn(25);
    QStringList wanted = state();
    wanted[1] = asText(fullRecord()) + QString::number(header_deactive);
    presets().pasteHdr();
    QCOMPARE(state(), wanted);
}

void TestHeaderActions::pasteIntoTheActiveHeaderDrivesTheSelectors()
{
    window->setPower(true);
    placeAnchors(34);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    presets().copyData = fullRecord();
    openMenuOn(firstActive);
    presets().pasteHdr();
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(anchors()->x(), 34.0); // the pitch position is copied, not applied
    header_data wanted = fullRecord();
    wanted.nameScenic1 = QStringLiteral("MAJOR");
    wanted.nameScenic2 = QStringLiteral("Lydian");
    QCOMPARE(asText(record(firstActive)), asText(wanted));
    QCOMPARE(library().currentScale(), lydian);
}

void TestHeaderActions::pasteOfSwitchedOffFieldsSwitchesOff()
{
    window->setPower(true);
    presets().copyData = {QString(), QString(), QStringLiteral("E"), off, QStringLiteral("E"), off, lydian};
    openMenuOn(firstActive);
    presets().pasteHdr();
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(scale().scaleModifier(), lydian); // the word is forced
    QVERIFY(!record(firstActive).tonicOn);
    QVERIFY(!record(firstActive).scaleOn);
    QCOMPARE(record(firstActive).nameScenic1, QString());
}

void TestHeaderActions::locksOfTheActiveHeader()
{
    window->setPower(true);
    setTonic("D");
    openMenuOn(firstActive);
    const header_data& data = record(firstActive);
    presets().unlockTonic();
    QVERIFY(!tonic().switchOn && scale().switchOn);
    QVERIFY(!data.tonicOn);
    QCOMPARE(data.nameTonic, QString());
    presets().lockTonic();
    QVERIFY(tonic().switchOn && data.tonicOn);
    QCOMPARE(data.nameTonic, QStringLiteral("D"));
    presets().unlockScale();
    QVERIFY(tonic().switchOn && !scale().switchOn);
    QVERIFY(!data.scaleOn);
    QCOMPARE(data.nameScenic2, QString());
    presets().lockScale();
    QVERIFY(scale().switchOn && data.scaleOn);
    QCOMPARE(data.scaleData, ionian);
    QCOMPARE(data.nameScenic2, QStringLiteral("Ionian"));
    presets().unlockBoth();
    QVERIFY(!tonic().switchOn && !scale().switchOn && !data.tonicOn && !data.scaleOn);
    presets().lockBoth();
    QVERIFY(tonic().switchOn && scale().switchOn && data.tonicOn && data.scaleOn);
    QCOMPARE(active(), firstActive);
}

// An empty header takes what the selectors hold, and the active one comes back as it was.
void TestHeaderActions::locksOfAnotherHeader()
{
    window->setPower(true);
    setTonic("D");
    setScale(wholeTone);
    record(25) = {};
    openMenuOn(25);
    const header_data& data = record(25);
    presets().lockTonic();
    QVERIFY(data.tonicOn && !data.scaleOn);
    QCOMPARE(data.nameTonic, QStringLiteral("D"));
    QCOMPARE(data.tonicData, QStringLiteral("D"));
    presets().lockScale();
    QVERIFY(data.tonicOn && data.scaleOn);
    QCOMPARE(data.scaleData, wholeTone);
    QCOMPARE(data.nameScenic2, QStringLiteral("WholeT."));
    presets().unlockTonic();
    QVERIFY(!data.tonicOn && data.scaleOn);
    QCOMPARE(data.nameTonic, QString());
    presets().unlockScale();
    QVERIFY(!data.tonicOn && !data.scaleOn);
    QCOMPARE(data.nameScenic2, QString());
    presets().lockBoth();
    QVERIFY(data.tonicOn && data.scaleOn);
    presets().unlockBoth();
    QVERIFY(!data.tonicOn && !data.scaleOn);
    QCOMPARE(active(), firstActive);
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(header(firstActive)->status(), header_active);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
}

// Kept: going back saves the selectors as a whole, so what was neither locked nor loaded is lost.
void TestHeaderActions::lockKeepsWhatTheOtherHeaderHeld()
{
    window->setPower(true);
    const header_data unlocked{QString(), QString(), QString(), off, QStringLiteral("E"), off, lydian};
    openMenuOn(25);
    record(25) = unlocked;
    presets().lockTonic();
    QCOMPARE(fields(record(25)).mid(2, 5), (QStringList{"E", "on", "E", "off", ionian}));
    record(25) = unlocked;
    presets().lockScale();
    QCOMPARE(asText(record(25)), asText({QStringLiteral("MAJOR"), QStringLiteral("Lydian"), QString(), off,
                                         QString(), on, lydian}));
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
}

// Kept: going back saves the selectors, which the other header did not load.
void TestHeaderActions::lockWithThePowerOffStoresTheSelectors()
{
    setTonic("D");
    record(25) = fullRecord();
    openMenuOn(25);
    presets().unlockTonic();
    QVERIFY(record(25).tonicOn);
    QCOMPARE(record(25).nameTonic, QStringLiteral("D"));
    QCOMPARE(record(25).tonicData, QStringLiteral("D"));
    QCOMPARE(record(25).scaleData, ionian);
    QCOMPARE(active(), firstActive);
}

void TestHeaderActions::eraseOfAnotherHeader()
{
    window->setPower(true);
    record(25) = fullRecord();
    openMenuOn(25);
    QStringList wanted = state();
    presets().eraseHdr();
    header_data erased;
    erased.erase();
    wanted[1] = asText(erased) + QString::number(header_deactive);
    QCOMPARE(state(), wanted);
}

void TestHeaderActions::eraseOfTheActiveHeader()
{
    emptyHeaders();
    window->setPower(true);
    setTonic("D");
    tonic().setSwitchOff(true);
    scale().setSwitchOff(true);
    openMenuOn(firstActive);
    presets().eraseHdr();
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), octaves);
    QVERIFY(tonic().switchOn && scale().switchOn);
    // No category holds the single note.
    QCOMPARE(asText(record(firstActive)),
             asText({QStringLiteral("User"), QStringLiteral("1"), QStringLiteral("C"), on,
                     QStringLiteral("C"), on, octaves}));
    QCOMPARE(target(62), 72);
}

void TestHeaderActions::resetOfAnotherHeaderTakesTheLibrarysNames()
{
    window->setPower(true);
    openMenuOn(25);
    QStringList wanted = state();
    presets().resetHdr();
    wanted[1] = asText({QStringLiteral("MAJOR"), QStringLiteral("Ionian"), QStringLiteral("C"), on,
                        QStringLiteral("C"), on, ionian}) +
                QString::number(header_deactive);
    QCOMPARE(state(), wanted);
    library().clear(); // now its own names stay
    presets().resetHdr();
    QCOMPARE(record(25).nameScenic1, QStringLiteral("ION"));
    QCOMPARE(record(25).nameScenic2, QStringLiteral("Major"));
}

void TestHeaderActions::resetOfTheActiveHeader()
{
    window->setPower(true);
    setTonic("D");
    setScale(wholeTone);
    tonic().setSwitchOff(true);
    scale().setSwitchOff(true);
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(asText(record(firstActive)), asText({QStringLiteral("MAJOR"), QStringLiteral("Ionian"),
                                                  QStringLiteral("C"), on, QStringLiteral("C"), on, ionian}));
    QCOMPARE(target(62), 62);
}

void TestHeaderActions::resetBringsTheAnchorsHomeWithThePowerOn()
{
    placeAnchors(-34);
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(anchors()->pos(), QPointF(-34, 7)); // the power is off
    window->setPower(true);
    QCOMPARE(target(60), 64);
    openMenuOn(25);
    presets().resetHdr();
    QCOMPARE(anchors()->pos(), QPointF(-34, 7)); // not the active header
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(anchors()->pos(), QPointF(0, 7));
    QCOMPARE(target(60), 60);
}

QTEST_MAIN(TestHeaderActions)
#include "test_header_actions.moc"
