// Headers in play: black keys, clicks, and the messages that come in during a recall.

#include "HeaderFixture.h"
#include "RoadModel.h"

#include <QtTest>

#include <algorithm>
#include <cstdint>
#include <thread>
#include <vector>

class TestHeaderPlaying : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Keys
    void blackKeyRecallsWithThePowerOn();
    void blackKeyDoesNotRecallOtherwise();
    void powerKeyToggles();
    void powerKeyMovesWithTheButton();
    void learnModeStoresTheWordOfASwitchedOnScale();

    // Clicks
    void clickRecalls();
    void clickDoesNotRecallOtherwise();

    // Queues
    void messagesBehindABlackKeyPlayTheNewMapping();
    void floodOfBlackKeysNeitherNestsNorLosesANote();

private:
    void press(int note) const { window->pushKeySlot({0x90, note, 100}); }
    void release(int note) const { window->pushKeySlot({0x80, note, 0}); }
    /// Plays the messages from a thread of their own, as a port does.
    void send(const std::vector<std::vector<unsigned char>>& messages) const;
};

void TestHeaderPlaying::send(const std::vector<std::vector<unsigned char>>& messages) const
{
    std::thread midi([&] {
        for (std::vector<unsigned char> message : messages)
            window->inSigReceived(0.0, &message, nullptr);
    });
    midi.join();
}

void TestHeaderPlaying::blackKeyRecallsWithThePowerOn()
{
    window->setPower(true);
    record(61) = fullRecord();
    press(61);
    QCOMPARE(active(), 61);
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(record(firstActive).scaleData, ionian); // with store
    release(61);
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        if (key == powerKey)
            continue;
        press(key);
        release(key);
        QCOMPARE(active(), key);
    }
    QVERIFY(port->messages().empty()); // a recall makes no sound
}

void TestHeaderPlaying::blackKeyDoesNotRecallOtherwise()
{
    press(61); // the power is off
    release(61);
    QCOMPARE(active(), firstActive);
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x90, 61, 100}, {0x80, 61, 0}}));
    window->setPower(true);
    press(60); // a white key
    release(60);
    QCOMPARE(active(), firstActive);
    window->dialogOpen = true;
    press(61);
    release(61);
    QCOMPARE(active(), firstActive);
    window->dialogOpen = false;
    window->learnTonic = true;
    press(61);
    release(61);
    QCOMPARE(active(), firstActive);
}

void TestHeaderPlaying::powerKeyToggles()
{
    for (const bool wanted : {true, false, true}) {
        press(powerKey);
        release(powerKey);
        QCOMPARE(power()->isSwitchOn(), wanted);
        QCOMPARE(header(51)->isVisible(), wanted);
        QVERIFY(!header(powerKey)->isVisible());
    }
    QCOMPARE(active(), firstActive);
    QVERIFY(port->messages().empty());
}

void TestHeaderPlaying::powerKeyMovesWithTheButton()
{
    window->setPower(true);
    QVERIFY(scene()->swapHeader(header(61), power()));
    press(powerKey);
    release(powerKey);
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(active(), powerKey); // it is a preset like any other now
    press(61);
    release(61);
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(active(), powerKey);
}

void TestHeaderPlaying::learnModeStoresTheWordOfASwitchedOnScale()
{
    window->setPower(true);
    for (const bool scaleOn : {true, false}) {
        setScale(ionian);
        record(firstActive) = {QString(), QString(), QString(), off, QString(), scaleOn, wholeTone};
        window->learnScale = true;
        window->findInNote(62)->pushKey(); // takes the second degree out
        window->findInNote(62)->releaseKey();
        window->learnScale = false;
        QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
        QCOMPARE(record(firstActive).scaleData, scaleOn ? scale().scaleModifier() : wholeTone);
        QCOMPARE(record(firstActive).nameScenic1, scaleOn ? QStringLiteral("User") : QString());
    }
}

void TestHeaderPlaying::clickRecalls()
{
    show();
    window->setPower(true);
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    for (HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        if (key == powerKey)
            continue;
        item->record = fullRecord();
        setScale(ionian);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, placeOf(key));
        QCOMPARE(active(), key);
        QCOMPARE(scale().scaleModifier(), lydian);
        QCOMPARE(item->pos(), item->homePos);
    }
}

void TestHeaderPlaying::clickDoesNotRecallOtherwise()
{
    show();
    window->setPower(true);
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    const auto click = [&](Qt::MouseButton button) {
        QTest::mouseClick(viewport, button, {}, placeOf(25));
        return active();
    };
    QCOMPARE(click(Qt::RightButton), firstActive);
    QCOMPARE(click(Qt::MiddleButton), firstActive);
    window->dialogOpen = true;
    QCOMPARE(click(Qt::LeftButton), firstActive);
    window->dialogOpen = false;
    window->setPower(false); // the headers are hidden
    QCOMPARE(click(Qt::LeftButton), firstActive);
    window->setPower(true);
    QCOMPARE(click(Qt::LeftButton), 25);
}

// The event loop runs within a recall. What it delivers must wait for the new mapping, in its order.
void TestHeaderPlaying::messagesBehindABlackKeyPlayTheNewMapping()
{
    window->setPower(true);
    record(61) = {QString(), QString(), QString(), on, QStringLiteral("D"), on, ionian};
    record(66) = {QString(), QString(), QString(), on, QStringLiteral("E"), on, ionian};
    send({{0x90, 61, 100},
          {0x90, 60, 1},
          {0xB0, 1, 2},
          {0x80, 60, 0},
          {0x80, 61, 0},
          {0x90, 66, 100},
          {0x90, 60, 3},
          {0x80, 60, 0},
          {0xB0, 1, 4}});
    QTRY_COMPARE_WITH_TIMEOUT(port->messages().size(), std::size_t(6), 5000);
    QCOMPARE(port->takeLists(),
             (QList<QList<int>>{
                 {0x90, 62, 1}, {0xB0, 1, 2}, {0x80, 62, 0}, {0x90, 64, 3}, {0x80, 64, 0}, {0xB0, 1, 4}}));
    QCOMPARE(active(), 66);
}

// Each press runs the event loop, and the loop delivers the next press.
void TestHeaderPlaying::floodOfBlackKeysNeitherNestsNorLosesANote()
{
    std::vector<std::vector<unsigned char>> messages{{0x90, powerKey, 1}, {0x80, powerKey, 0}};
    const int whites[] = {60, 62, 64, 65, 67, 21, 108};
    for (int i = 0; i < 20000; ++i) {
        const int preset = PresetModel::keyOf(i * 7 % PresetModel::count);
        const auto black = static_cast<unsigned char>(preset == powerKey ? 51 : preset);
        const auto white = static_cast<unsigned char>(whites[i % 7]);
        messages.insert(messages.end(), {{0x90, black, 1},
                                         {0x90, white, static_cast<unsigned char>(1 + i % 127)},
                                         {0x80, white, 0},
                                         {0x80, black, 0}});
    }
    RoadModel model;
    for (const auto& message : messages)
        model.receive({message.begin(), message.end()});

    const auto depth = [] { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); };
    const std::uintptr_t here = depth();
    std::uintptr_t deepest = here;
    connect(
        window.get(), &MainWnd::signalKey, this, [&] { deepest = std::min(deepest, depth()); },
        Qt::QueuedConnection);
    std::thread midi([&] {
        for (auto& message : messages)
            window->inSigReceived(0.0, &message, nullptr);
    });
    const auto done = [&] { return port->messages().size() >= model.sent.size(); };
    const bool all = QTest::qWaitFor(done, 200000);
    midi.join();
    QVERIFY(all);
    QCoreApplication::processEvents();
    QVERIFY(port->messages() == model.sent);
    QVERIFY(model.sent.size() > 20000);
    QCOMPARE(active(), PresetModel::keyOf(model.presets.active));
    QVERIFY2(here - deepest < 256 * 1024, qPrintable(QString::number(here - deepest)));
}

QTEST_MAIN(TestHeaderPlaying)
#include "test_header_playing.moc"
