// Thousands of random presses, moves and releases on both keyboards, with music, switches and interruptions
// between them. Whatever happens, a gesture must leave nothing behind.

#include "StageFixture.h"

#include "PresetModel.h"

#include <QtTest>

#include <array>
#include <functional>
#include <random>

namespace {

/// Which notes may sound on, told by the rules from what the keys held before and after an event. A note
/// hangs by the rules if its key turned grey before the release, if it is a black key that the power
/// overtook, or if its key was pressed a second time after a change of the map.
class HangingNotes
{
public:
    struct Key
    {
        bool black = false, pushed = false, grey = false;
        int remembered = 0;
    };
    using Keys = std::array<Key, 128>;

    void follow(const Keys& before, const Keys& after, bool powerBefore, const QSet<int>& sounding)
    {
        for (std::size_t i = 0; i < before.size(); ++i) {
            const Key &old = before[i], &now = after[i];
            const bool released = old.pushed && !now.pushed;
            const bool silently = old.grey || (old.black && powerBefore);
            const bool overwritten = old.pushed && now.remembered != old.remembered;
            if ((released && silently) || overwritten)
                notes.insert(old.remembered);
        }
        notes.intersect(sounding);
    }

    QSet<int> notes;
};

} // namespace

class TestRandomGestures : public StageFixture
{
    Q_OBJECT

private slots:
    void nothingIsLeftBehind_data();
    void nothingIsLeftBehind();

private:
    static constexpr int eventsEachSeed = 2000;

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    // What happens
    void gesture();
    void anotherButton(Hand& pointer);
    void somethingElse();
    void message();
    void deactivate() const;
    void changeTheMap();
    QPointF placeFor(const Hand& pointer);
    QPointF placeOnInput();
    Qt::MouseButton anyButton();
    /// Lets something happen and compares the stage with the rules.
    void happen(const std::function<void()>& what);

    // What must hold
    HangingNotes::Keys keysNow() const;
    void expectLegalStatuses() const;
    void expectRest();
    bool powerLooksRight() const;

    std::mt19937 random;
    bool calm = false; // nothing that may change the map
    int events = 0;
    QSet<int> midiHeld; // in keys, by the messages alone
    HangingNotes hanging;
};

Qt::MouseButton TestRandomGestures::anyButton()
{
    if (chance(75))
        return Qt::LeftButton;
    return chance(60) ? Qt::RightButton : Qt::MiddleButton;
}

QPointF TestRandomGestures::placeOnInput()
{
    const int key = PresetModel::keyOf(number(0, PresetModel::count - 1));
    switch (number(0, 9)) {
    case 0:
    case 1:
        return stemOf(key);
    case 2:
        return boxOf(key);
    case 3:
        return powerSleeve();
    case 4:
        return calm ? powerSleeve() : powerSquare();
    case 5:
        return {anchors()->x() + 399 + 119 * number(-3, 3), qreal(number(140, 177))};
    case 6:
        return {qreal(number(-100, 1000)), qreal(number(-100, 250))};
    default:
        return in(21)->pos() + QPointF(number(0, 883), number(0, 98));
    }
}

QPointF TestRandomGestures::placeFor(const Hand& pointer)
{
    if (&pointer == hand.get()) {
        QPointF place = placeOnInput();
        while (calm && power()->sceneBoundingRect().adjusted(-2, -2, 2, -50).contains(place))
            place = placeOnInput(); // no switch is touched
        return place;
    }
    return out(21)->pos() + QPointF(number(-30, 910), number(-30, 130));
}

void TestRandomGestures::message()
{
    const int note = chance(90) ? number(15, 112) : key_roles::pitch(power());
    const int status = chance(80) ? (chance(50) ? 0x90 : 0x80) : number(0x80, 0xEF);
    const int velocity = chance(85) ? number(1, 127) : 0;
    if (calm && note == key_roles::pitch(power()))
        return;
    const bool isNote = status < 0xA0;
    if (isNote && (velocity == 0 || status < 0x90))
        midiHeld.remove(note);
    else if (status == 0x90 && note >= 21 && note <= 108)
        midiHeld.insert(note);
    happen([&] { window->receiveMessage({status, note, velocity}); });
}

void TestRandomGestures::deactivate() const
{
    for (const QGraphicsView* view :
         {window->ui.inKeyboardGraphicsView, window->ui.outKeyboardGraphicsView}) {
        QEvent event(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
}

void TestRandomGestures::changeTheMap()
{
    static const char* names[] = {"C", "D#", "E", "F#", "A", "B"};
    if (chance(40))
        window->switchPower();
    else if (chance(50))
        setTonic(names[number(0, 5)]);
    else
        setScale(chance(50) ? ionian : chance(50) ? octaves : QStringLiteral("xoxoxooxoxoo"));
}

void TestRandomGestures::somethingElse()
{
    for (int messages = number(0, 2); messages > 0; --messages)
        message();
    if (!calm && chance(8))
        happen([this] { changeTheMap(); });
    if (chance(3))
        happen([this] { deactivate(); });
    if (chance(2))
        happen([this] { window->endGestures(); });
}

void TestRandomGestures::anotherButton(Hand& pointer)
{
    const Qt::MouseButton button = anyButton();
    happen([&] {
        if (pointer.held() & button)
            pointer.release(button);
        else
            pointer.press(pointer.place(), button);
    });
}

void TestRandomGestures::gesture()
{
    Hand& pointer = chance(80) ? *hand : *outHand;
    const QPointF start = placeFor(pointer);
    const Qt::MouseButton button = anyButton();
    happen([&] {
        if (button == Qt::LeftButton && chance(10))
            pointer.pressAgain(start);
        else
            pointer.press(start, button);
    });
    for (int moves = number(0, 10); moves > 0; --moves) {
        const QPointF near = pointer.place() + QPointF(number(-20, 20), number(-8, 8));
        const QPointF next = chance(70) ? near : placeFor(pointer);
        happen([&] { pointer.move(next); });
        if (chance(30))
            somethingElse();
        if (chance(8))
            anotherButton(pointer);
        if (QTest::currentTestFailed())
            return;
    }
    for (const Qt::MouseButton held : {Qt::RightButton, Qt::LeftButton, Qt::MiddleButton})
        if (pointer.held() & held)
            happen([&] { pointer.release(held); });
}

HangingNotes::Keys TestRandomGestures::keysNow() const
{
    HangingNotes::Keys keys;
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* key = in(note);
        keys[std::size_t(note)] = {!isWhite(note), key->isPushed, key_roles::isDeactive(key),
                                   key_roles::soundedOut(key)};
    }
    return keys;
}

void TestRandomGestures::happen(const std::function<void()>& what)
{
    if (QTest::currentTestFailed())
        return;
    ++events;
    sent();
    const auto before = keysNow();
    const bool powerBefore = power()->isSwitchOn();
    what();
    hanging.follow(before, keysNow(), powerBefore, sounding());
    expectLegalStatuses();
}

void TestRandomGestures::expectLegalStatuses() const
{
    int activeOnes = 0, lit = 0;
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        activeOnes += item->isActive() ? 1 : 0;
        lit += item->status() >= header_switch ? 1 : 0;
        QVERIFY(item->status() != header_active_shadow);
    }
    QCOMPARE(activeOnes, 1);
    QVERIFY(lit <= (scene()->dropTarget ? 1 : 0));
    const int lowestHome = 16; // over the lowest black key, one pixel beyond where a drag may go
    QVERIFY(power()->x() >= lowestHome && power()->x() <= 850);
}

bool TestRandomGestures::powerLooksRight() const
{
    const char* state = power()->isSwitchOn() ? "On" : "Off";
    return powerShows({state}) || powerShows({state, "Hover"});
}

void TestRandomGestures::expectRest()
{
    QCOMPARE(unrest(midiHeld), QString());
    QVERIFY(powerLooksRight());
    QSet<int> may = hanging.notes;
    for (const int note : qAsConst(midiHeld))
        if (in(note)->isPushed)
            may.insert(key_roles::soundedOut(in(note)));
    for (const int pitch : sounding())
        QVERIFY2(may.contains(pitch), qPrintable(QStringLiteral("%1 sounds on").arg(pitch)));
    QVERIFY(!calm || hanging.notes.isEmpty());
}

void TestRandomGestures::nothingIsLeftBehind_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<bool>("withoutChanges");
    for (int seed = 1; seed <= 5; ++seed)
        QTest::addRow("seed %d", seed) << seed << false;
    QTest::addRow("seed %d, the map stays", 6) << 6 << true;
}

void TestRandomGestures::nothingIsLeftBehind()
{
    QFETCH(int, seed);
    QFETCH(bool, withoutChanges);
    qInfo("seed %d", seed);
    sendDialogsAway();
    random.seed(static_cast<unsigned>(seed));
    calm = withoutChanges;
    events = 0;
    midiHeld.clear();
    hanging = {};
    window->setPower(!calm);
    int gestures = 0;
    for (; events < eventsEachSeed; ++gestures) {
        gesture();
        expectRest();
        somethingElse();
        if (QTest::currentTestFailed()) {
            qWarning("seed %d, gesture %d, event %d", seed, gestures, events);
            return;
        }
        if (chance(10))
            QCoreApplication::processEvents();
    }
    for (int note = 21; note <= 108; ++note)
        happen([&] { window->receiveMessage({0x80, note, 0}); });
    midiHeld.clear();
    expectRest();
    QVERIFY(gestures > 50);
}

QTEST_MAIN(TestRandomGestures)
#include "test_random_gestures.moc"
