// The road of a message, from the signal of the port's thread to the bytes that leave, against a model.

#include "RecordingPort.h"
#include "RoadModel.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "app/connecter.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/tonic_names.h"

#include <QRandomGenerator>
#include <QtTest>

#include <thread>

class TestMessageRoad : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void everyThreeByteMessage_data();
    void everyThreeByteMessage();
    void otherLengthsReachNothing();

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

    void noteOffLeavesWithVelocityZero();
    void pointerPressLeavesWithVelocity75();
    void midiPressLeavesWithItsVelocity();
    void noteZeroIsSuppressed();
    void bothOpenPortsReceiveEachMessage();
    void portThatFailsHoldsNeitherTheOthersNorTheKey();
    void withoutPortsThePictureStillChanges();
    void longerListSendsThreeBytes();

    void callbackHandsOverFromItsOwnThread();
    void emptyMessageIsHarmless();

    void randomStreams_data();
    void randomStreams();

private:
    void play(const QList<int>& message) { emit window->signalKey(message); }
    QList<QList<int>> sent() const { return port->takeLists(); }
    void setPower(bool on);

    std::unique_ptr<MainWnd> window;
    RecordingPort* port = nullptr; // owned by the window
};

void TestMessageRoad::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    port = new RecordingPort;
    window->outPorts[0] = port;
    window->midiOutOpen = true;
}

void TestMessageRoad::setPower(bool on)
{
    if (window->powerItem->isSwitchOn() != on)
        window->setPower(on);
}

void TestMessageRoad::everyThreeByteMessage_data()
{
    QTest::addColumn<bool>("power");
    QTest::addColumn<bool>("held");
    QTest::newRow("off, free") << false << false;
    QTest::newRow("off, held") << false << true;
    QTest::newRow("on, free") << true << false;
    QTest::newRow("on, held") << true << true;
}

void TestMessageRoad::everyThreeByteMessage()
{
    QFETCH(bool, power);
    QFETCH(bool, held);
    RoadModel model;
    model.setTonic(2);
    static_cast<TonicKeyController*>(window->tonicController)->setTonicModifier("D", true, true);
    for (int status = 0x80; status <= 0xFF; ++status)
        for (int note = 0; note < 128; ++note)
            for (const int velocity : {0, 1, 64, 127}) {
                setPower(power);
                if (model.presets.power != power)
                    model.setPower(power);
                model.held[static_cast<std::size_t>(note)] = held;
                window->inNoteHeld[note] = held ? 1 : 0;
                model.receive({status, note, velocity});
                play({status, note, velocity});
                const auto got = port->take();
                if (got != model.sent ||
                    (window->inNoteHeld.at(note) == 1) != model.held[static_cast<std::size_t>(note)] ||
                    window->powerItem->isSwitchOn() != model.presets.power)
                    QFAIL(qPrintable(QStringLiteral("%1 %2 %3").arg(status).arg(note).arg(velocity)));
                model.sent.clear();
            }
}

void TestMessageRoad::otherLengthsReachNothing()
{
    for (int status = 0x80; status <= 0xFF; ++status)
        for (const int length : {0, 1, 2, 4, 5, 1000}) {
            QList<int> message;
            for (int i = 0; i < length; ++i)
                message.append(i == 0 ? status : 60);
            play(message);
        }
    QVERIFY(sent().isEmpty());
    QVERIFY(!window->inNoteHeld.contains(1));
}

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

void TestMessageRoad::randomStreams_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {1U, 20U, 300U, 4000U, 50000U})
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
}

// 50,000 messages in all, with the power, the tonic and the scale changed between them.
void TestMessageRoad::randomStreams()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    RoadModel model;
    const auto byte = [&random](int from, int to) { return random.bounded(from, to + 1); };
    for (int i = 0; i < 10000; ++i) {
        if (byte(0, 199) == 0) {
            const int tonic = byte(0, 11);
            QByteArray word("x");
            for (int n = 1; n < 12; ++n)
                word.append(byte(0, 1) ? 'x' : 'o');
            const bool power = byte(0, 1);
            static_cast<TonicKeyController*>(window->tonicController)
                ->setTonicModifier(tonicModifierName.at(static_cast<std::size_t>(tonic)), true, true);
            static_cast<ScaleKeyController*>(window->scaleController)
                ->setScaleModifier(QLatin1String(word), true);
            window->setPower(power);
            model.setTonic(tonic);
            model.setScale(word.constData());
            model.setPower(power);
        }
        std::vector<int> message;
        const int length = byte(0, 9) == 0 ? byte(0, 5) : 3;
        for (int n = 0; n < length; ++n)
            message.push_back(byte(0, 255));
        if (length == 3 && byte(0, 3) != 0) // mostly notes, mostly of the first channel
            message = {byte(0, 1) ? 0x90 : byte(0x80, 0x9F), byte(15, 112), byte(0, 2) ? byte(0, 127) : 0};
        model.receive(message);
        play(QList<int>(message.begin(), message.end()));
        QCOMPARE(port->take(), model.sent);
        QCOMPARE(window->powerItem->isSwitchOn(), model.presets.power);
        model.sent.clear();
    }
}

QTEST_MAIN(TestMessageRoad)
#include "test_message_road.moc"
