// The display and the power: what sleeps, and what comes back by each way of switching.

#include "CenterFixture.h"
#include "Hand.h"

namespace {

enum Way { by_call, by_switch, by_space, by_button, by_midi, by_key };
constexpr int ways = 6;

} // namespace

class TestCenterPower : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    // What follows the power
    void openControlFollowsThePower_data() { addWays(); }
    void openControlFollowsThePower();
    void scaleLabelIsDisabledByThePower_data() { addWays(); }
    void scaleLabelIsDisabledByThePower();
    void openControlDoesNothingWithThePowerOff();
    void powerSetTwiceIsThePowerSetOnce();

    // The library's memory
    void freshStartHasNoLibraryToComeBack_data() { addWays(); }
    void freshStartHasNoLibraryToComeBack();
    void libraryComesBackWithThePower_data() { addWays(); }
    void libraryComesBackWithThePower();
    void libraryThatWasClosedStaysClosed_data() { addWays(); }
    void libraryThatWasClosedStaysClosed();
    void oneWayRemembersForTheOthers();
    void sceneBelowTheLibraryStays_data();
    void sceneBelowTheLibraryStays();
    void powerOffTwiceDoesNotForget();
    void powerOnTwiceKeepsTheLibrary();
    void sleeveThatIsDraggedKeepsTheLibrary_data();
    void sleeveThatIsDraggedKeepsTheLibrary();
    void sceneStaysWithThePower_data();
    void sceneStaysWithThePower();

private:
    static void addWays();
    void toggle(int way) const;
};

void TestCenterPower::init()
{
    openWindow();
    show();
}

void TestCenterPower::addWays()
{
    static const char* const names[ways] = {"setPower", "switchPower", "Space",
                                            "button",   "MIDI",        "key under the button"};
    QTest::addColumn<int>("way");
    for (int way = 0; way < ways; ++way)
        QTest::newRow(names[way]) << way;
}

void TestCenterPower::toggle(int way) const
{
    const QPointF square = power()->pos() + QPointF(9, 15);
    Hand hand(form().inKeyboardGraphicsView);
    switch (way) {
    case by_call:
        return window->setPower(!window->isPowerOn());
    case by_switch:
        return window->switchPower();
    case by_space:
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window.get(),
                        Qt::Key_Space);
        return;
    case by_button:
        return hand.click(square);
    case by_midi:
        emit window->signalKey({0x90, powerKey, 90});
        emit window->signalKey({0x80, powerKey, 0});
        return;
    default:
        window->findInNote(powerKey)->pushKey(); // the button hides it from the pointer
        window->findInNote(powerKey)->releaseKey();
    }
}

void TestCenterPower::openControlFollowsThePower()
{
    QFETCH(int, way);
    const LibraryButton& open = button(LibraryButton::open_library);
    QVERIFY(!open.isEnabled());
    const auto ghost = open.pixmap().cacheKey();
    for (const bool wanted : {true, false, true}) {
        toggle(way);
        QCOMPARE(window->isPowerOn(), wanted);
        QCOMPARE(open.isEnabled(), wanted);
        QCOMPARE(open.pixmap().cacheKey() == ghost, !wanted);
    }
}

void TestCenterPower::scaleLabelIsDisabledByThePower()
{
    QFETCH(int, way);
    for (int round = 0; round < 3; ++round) {
        button(LibraryButton::scale_label).setEnabled(true);
        toggle(way);
        QVERIFY(!button(LibraryButton::scale_label).isEnabled());
    }
}

void TestCenterPower::openControlDoesNothingWithThePowerOff()
{
    click(LibraryButton::open_library);
    QTest::keyClick(inView(), Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!screen().libraryOpen);
    window->setPower(true);
    click(LibraryButton::open_library);
    QVERIFY(screen().libraryOpen);
    click(LibraryButton::close_library);
    QVERIFY(!screen().libraryOpen);
}

void TestCenterPower::powerSetTwiceIsThePowerSetOnce()
{
    for (const bool wanted : {true, false}) {
        window->setPower(wanted);
        const QString shown = look();
        const QStringList before = state();
        window->setPower(wanted);
        QCOMPARE(look(), shown);
        QCOMPARE(state(), before);
        QCOMPARE(button(LibraryButton::open_library).isEnabled(), wanted);
    }
}

void TestCenterPower::freshStartHasNoLibraryToComeBack()
{
    QFETCH(int, way);
    QVERIFY(!window->isPowerOn());
    for (int round = 0; round < 3; ++round) {
        toggle(way);
        QVERIFY(!screen().libraryOpen);
    }
}

void TestCenterPower::libraryComesBackWithThePower()
{
    QFETCH(int, way);
    openLibrary();
    for (int round = 0; round < 3; ++round) {
        toggle(way);
        QVERIFY(!window->isPowerOn());
        QCOMPARE(look(), QStringLiteral("texts left right"));
        toggle(way);
        QVERIFY(window->isPowerOn());
        QCOMPARE(look(), QStringLiteral("library"));
        QVERIFY(button(LibraryButton::close_library).isVisible());
        QVERIFY(view().scales->currentItem());
    }
}

void TestCenterPower::libraryThatWasClosedStaysClosed()
{
    QFETCH(int, way);
    openLibrary();
    toggle(way);
    toggle(way);
    click(LibraryButton::close_library);
    for (int round = 0; round < 4; ++round) {
        toggle(way);
        QCOMPARE(look(), QStringLiteral("texts left right"));
    }
}

void TestCenterPower::oneWayRemembersForTheOthers()
{
    openLibrary();
    for (int off1 = 0; off1 < ways; ++off1)
        for (int on1 = 0; on1 < ways; ++on1) {
            toggle(off1);
            QVERIFY(!screen().libraryOpen && !window->isPowerOn());
            toggle(on1);
            QVERIFY(screen().libraryOpen && window->isPowerOn());
        }
}

void TestCenterPower::sceneBelowTheLibraryStays_data()
{
    QTest::addColumn<int>("scene");
    for (int scene = to_default; scene <= to_credits; ++scene)
        QTest::newRow(nameOf(scene)) << scene;
}

void TestCenterPower::sceneBelowTheLibraryStays()
{
    QFETCH(int, scene);
    call(scene);
    const QString shown = look();
    openLibrary();
    for (int way = 0; way < ways; ++way) {
        toggle(way);
        QCOMPARE(screen().currentScene, scene);
        QCOMPARE(look(), shown);
        toggle(way);
        QCOMPARE(look(), QStringLiteral("library"));
    }
    window->showLibraryScreen(false);
    QCOMPARE(look(), shown);
}

void TestCenterPower::powerOffTwiceDoesNotForget()
{
    openLibrary();
    window->setPower(false);
    window->setPower(false);
    window->setPower(true);
    QVERIFY(screen().libraryOpen);
    window->showLibraryScreen(false);
    window->setPower(false);
    window->setPower(false);
    window->setPower(true);
    QVERIFY(!screen().libraryOpen);
}

void TestCenterPower::powerOnTwiceKeepsTheLibrary()
{
    openLibrary();
    window->setPower(true);
    QCOMPARE(look(), QStringLiteral("library"));
    QVERIFY(button(LibraryButton::scale_label).isVisible());
    window->showLibraryScreen(false);
    window->setPower(true);
    QCOMPARE(look(), QStringLiteral("texts left right"));
}

void TestCenterPower::sleeveThatIsDraggedKeepsTheLibrary_data()
{
    QTest::addColumn<int>("flag"); // 0: let go on nothing
    QTest::newRow("on nothing") << 0;
    QTest::newRow("on a flag") << 54;
}

// The end of such a drag sets the library by the power again.
void TestCenterPower::sleeveThatIsDraggedKeepsTheLibrary()
{
    QFETCH(int, flag);
    for (const bool open : {true, false}) {
        window->setPower(true);
        window->showLibraryScreen(open);
        const QString shown = look();
        Hand hand(form().inKeyboardGraphicsView);
        const QPointF sleeve = power()->pos() + QPointF(9, 60);
        hand.drag(sleeve, flag ? window->findInNote(flag)->pos() + QPointF(5, 40) : QPointF(500, 130), 25);
        hand.release();
        QVERIFY(window->isPowerOn());
        QCOMPARE(look(), shown);
        QCOMPARE(screen().libraryRemembered, open);
    }
}

void TestCenterPower::sceneStaysWithThePower_data()
{
    sceneBelowTheLibraryStays_data();
}

void TestCenterPower::sceneStaysWithThePower()
{
    QFETCH(int, scene);
    call(scene);
    const QString shown = look(), checked = checks();
    for (int way = 0; way < ways; ++way)
        for (int round = 0; round < 2; ++round) {
            toggle(way);
            QCOMPARE(screen().currentScene, scene);
            QCOMPARE(look(), shown);
            QCOMPARE(checks(), checked);
        }
}

QTEST_MAIN(TestCenterPower)

#include "test_center_power.moc"
