// The computer's keyboard, where the window looks at it first.

#include "HeaderFixture.h"

#include <QSignalSpy>

class TestWindowKeys : public HeaderFixture
{
    Q_OBJECT

private slots:
    void spaceTogglesThePower();
    void heldSpaceTogglesOnce();
    void spaceWithADialogOpenDoesNothing();
    void enterAndEscapeDoNotCloseTheWindow();
    void returnIsNotSwallowed();
    void specialKeysAreAnnounced();
    void touchIsSwallowed();
};

void TestWindowKeys::spaceTogglesThePower()
{
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(window->powerItem->isSwitchOn());
    QTest::keyClick(window->ui.inKeyboardGraphicsView, Qt::Key_Space);
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestWindowKeys::heldSpaceTogglesOnce()
{
    QTest::keyPress(window.get(), Qt::Key_Space);
    for (int i = 0; i < 5; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(window.get(), &repeat);
    }
    QVERIFY(window->powerItem->isSwitchOn());
}

void TestWindowKeys::spaceWithADialogOpenDoesNothing()
{
    window->dialogOpen = true;
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(!window->powerItem->isSwitchOn());
}

void TestWindowKeys::enterAndEscapeDoNotCloseTheWindow()
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QTest::keyClick(window.get(), Qt::Key_Enter);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QVERIFY(window->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Return);
    QVERIFY(window->isVisible());
}

void TestWindowKeys::returnIsNotSwallowed()
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!window->eventFilter(window.get(), &press));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier);
    QVERIFY(window->eventFilter(window.get(), &enter));
    QVERIFY(!enter.isAccepted());
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QVERIFY(!window->eventFilter(window.get(), &letter));
}

void TestWindowKeys::specialKeysAreAnnounced()
{
    const QSignalSpy spy(window.get(), &MainWnd::specialKeyPressed);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space, Qt::Key_A}) {
        QKeyEvent coming(QEvent::ShortcutOverride, key, Qt::NoModifier);
        window->eventFilter(window.get(), &coming);
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        for (int receiver = 0; receiver < 3; ++receiver) // the window, the widget, its parent
            window->eventFilter(window.get(), &press);
    }
    QCOMPARE(spy.count(), 3);
    QCOMPARE(spy.at(0).at(0).toInt(), 0x1000004);
    QCOMPARE(spy.at(1).at(0).toInt(), 0x1000005);
    QCOMPARE(spy.at(2).at(0).toInt(), 0x1000000);
}

void TestWindowKeys::touchIsSwallowed()
{
    for (const int type : {194, 195, 196, 209}) {
        QEvent event(static_cast<QEvent::Type>(type));
        QVERIFY(window->eventFilter(window.get(), &event));
        QVERIFY(!event.isAccepted());
    }
}

QTEST_MAIN(TestWindowKeys)
#include "test_window_keys.moc"
