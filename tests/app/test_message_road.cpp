// The road of a message, from the signal of the input to the bytes that leave, case by case.

#include "RoadFixture.h"
#include "app/connecter.h"

#include <thread>

class TestMessageRoad : public RoadFixture
{
    Q_OBJECT

private slots:
    // What comes in
    void twoBytesReachNeitherKeyNorOutput();
    void noteBelowTheKeyboardIsDropped();
    void noteOnOfAnotherChannelPassesUnchanged();
    void zeroVelocityOfAFreeNoteIsDropped();
    void noteOffOfAnotherChannelReleasesAndPasses();
    void repeatedNoteOnDoesNotPressAgain();
    void powerKeyTogglesAndCountsAsHeld();
    void powerKeyWithADialogOpenOnlyCountsAsHeld();
    void controlChangePassesWithThePowerOff();
    void mappedNoteLeavesBeforeThePassedOne();
    void learnFlagsStopEverything();

    // What goes out
    void noteOffLeavesWithVelocityZero();
    void pointerPressLeavesWithVelocity75();
    void midiPressLeavesWithItsVelocity();
    void noteZeroIsSuppressed();
    void bothOpenPortsReceiveEachMessage();
    void portThatFailsHoldsNeitherTheOthersNorTheKey();
    void withoutPortsThePictureStillChanges();
    void longerListSendsThreeBytes();

    // The callback of the port's thread
    void callbackHandsOverFromItsOwnThread();
    void emptyMessageIsHarmless();
};

void TestMessageRoad::twoBytesReachNeitherKeyNorOutput()
{
    play({0xC0, 60});
    play({0x90, 60});
    QVERIFY(sent().isEmpty());
    QVERIFY(!window->findInNote(60)->isPushed);
}

void TestMessageRoad::noteBelowTheKeyboardIsDropped()
{
    play({0x90, 20, 100});
    QVERIFY(sent().isEmpty());
    QCOMPARE(window->inNoteHeld.at(20), 0);
}

void TestMessageRoad::noteOnOfAnotherChannelPassesUnchanged()
{
    window->setPower(true);
    play({0x91, 61, 100});
    QCOMPARE(sent(), (QList<QList<int>>{{0x91, 61, 100}}));
    QVERIFY(!window->findInNote(61)->isPushed);
}

void TestMessageRoad::zeroVelocityOfAFreeNoteIsDropped()
{
    play({0x90, 60, 0});
    QVERIFY(sent().isEmpty());
}

void TestMessageRoad::noteOffOfAnotherChannelReleasesAndPasses()
{
    play({0x90, 60, 90});
    play({0x81, 60, 33});
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 90}, {0x80, 60, 0}, {0x81, 60, 33}}));
    QVERIFY(!window->findInNote(60)->isPushed);
}

void TestMessageRoad::repeatedNoteOnDoesNotPressAgain()
{
    play({0x90, 60, 90});
    play({0x90, 60, 91});
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 90}}));
}

void TestMessageRoad::powerKeyTogglesAndCountsAsHeld()
{
    play({0x90, 49, 90});
    QVERIFY(window->powerItem->isSwitchOn());
    QCOMPARE(window->inNoteHeld.at(49), 1);
    play({0x80, 49, 0});
    QCOMPARE(window->inNoteHeld.at(49), 0);
    play({0x90, 49, 90});
    QVERIFY(!window->powerItem->isSwitchOn());
    QVERIFY(sent().isEmpty());
}

void TestMessageRoad::powerKeyWithADialogOpenOnlyCountsAsHeld()
{
    window->dialogOpen = true;
    play({0x90, 49, 90});
    QVERIFY(!window->powerItem->isSwitchOn());
    QCOMPARE(window->inNoteHeld.at(49), 1);
}

void TestMessageRoad::controlChangePassesWithThePowerOff()
{
    play({0xB0, 64, 127});
    play({0xE3, 1, 2});
    QCOMPARE(sent(), (QList<QList<int>>{{0xB0, 64, 127}, {0xE3, 1, 2}}));
}

void TestMessageRoad::mappedNoteLeavesBeforeThePassedOne()
{
    window->setPower(true);
    play({0x90, 62, 90});
    static_cast<void>(sent());
    play({0x95, 62, 0}); // any channel's zero velocity releases, and passes
    QCOMPARE(sent(), (QList<QList<int>>{{0x80, 62, 0}, {0x95, 62, 0}}));
}

void TestMessageRoad::learnFlagsStopEverything()
{
    for (bool MainWnd::*flag : {&MainWnd::learnTonic, &MainWnd::learnScale}) {
        window.get()->*flag = true;
        play({0xB0, 1, 1});
        play({0x90, 64, 90});
        play({0x80, 64, 0});
        window.get()->*flag = false;
    }
    QVERIFY(sent().isEmpty());
}

void TestMessageRoad::noteOffLeavesWithVelocityZero()
{
    play({0x90, 60, 90});
    play({0x80, 60, 77});
    QCOMPARE(sent().last(), (QList<int>{0x80, 60, 0}));
}

void TestMessageRoad::pointerPressLeavesWithVelocity75()
{
    window->findInNote(60)->pushKey();
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 75}}));
}

void TestMessageRoad::midiPressLeavesWithItsVelocity()
{
    play({0x90, 60, 100});
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 100}}));
    QCOMPARE(key_roles::velocity(window->findInNote(60)), 0);
}

void TestMessageRoad::noteZeroIsSuppressed()
{
    window->findInNote(60)->sendOutMidi(0x90, 0);
    QVERIFY(sent().isEmpty());
    window->findInNote(60)->sendOutMidi(0x90, -1);
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 75}}));
}

void TestMessageRoad::bothOpenPortsReceiveEachMessage()
{
    auto* second = new RecordingPort;
    window->outPorts.append(nullptr);
    window->outPorts.append(second);
    play({0x90, 60, 100});
    QCOMPARE(second->take(), port->take());
    delete window->outPorts[0];
    window->outPorts[0] = nullptr;
    play({0x80, 60, 0});
    QCOMPARE(second->messages().size(), std::size_t(1));
    QVERIFY(window->checkActiveMidiOut());
}

void TestMessageRoad::portThatFailsHoldsNeitherTheOthersNorTheKey()
{
    auto* second = new RecordingPort;
    window->outPorts.append(second);
    port->fail();
    QTest::ignoreMessage(QtWarningMsg, "MIDI error: no room");
    play({0x90, 60, 100});
    QTest::ignoreMessage(QtWarningMsg, "MIDI error: no room");
    play({0x80, 60, 0});
    QCOMPARE(second->takeLists(), (QList<QList<int>>{{0x90, 60, 100}, {0x80, 60, 0}}));
    QCOMPARE(window->inNoteHeld.at(60), 0);
}

void TestMessageRoad::withoutPortsThePictureStillChanges()
{
    delete window->outPorts[0];
    window->outPorts[0] = nullptr;
    window->midiOutOpen = window->checkActiveMidiOut();
    QVERIFY(!window->midiOutOpen);
    const auto* out = static_cast<ResizableItem*>(window->findInNote(60)->pairedOutKey);
    const qint64 idle = out->pixmap().cacheKey();
    play({0x90, 60, 100});
    QVERIFY(out->pixmap().cacheKey() != idle);
    play({0x80, 60, 100});
    QCOMPARE(out->pixmap().cacheKey(), idle);
}

void TestMessageRoad::longerListSendsThreeBytes()
{
    const QList<int> message{0x1B0, 0x101, 2, 3, 4};
    window->sendMidiOut(&message);
    QCOMPARE(sent(), (QList<QList<int>>{{0xB0, 1, 2}}));
}

// The callback comes on a thread of the library; nothing may happen there but the hand-over.
void TestMessageRoad::callbackHandsOverFromItsOwnThread()
{
    std::vector<unsigned char> message{0x90, 60, 200};
    std::thread midi([&message] { connecter::mycallback(0.0, &message, nullptr); });
    midi.join();
    QVERIFY(!window->findInNote(60)->isPushed);
    QCoreApplication::processEvents();
    QVERIFY(window->findInNote(60)->isPushed);
    QCOMPARE(sent(), (QList<QList<int>>{{0x90, 60, 200}})); // widened without a sign
}

void TestMessageRoad::emptyMessageIsHarmless()
{
    std::vector<unsigned char> message;
    connecter::mycallback(0.0, &message, nullptr);
    QCoreApplication::processEvents();
    QVERIFY(sent().isEmpty());
}

QTEST_MAIN(TestMessageRoad)
#include "test_message_road.moc"
