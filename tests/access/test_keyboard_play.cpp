// Keys of both keyboards held down by Return: a note sounds for as long, and never longer.

#include "AccessFixture.h"

class TestKeyboardPlay : public AccessFixture
{
    Q_OBJECT

private slots:
    void init();
    void returnHeldSoundsTheKey_data();
    void returnHeldSoundsTheKey();
    void arrowsGoAlongTheKeys();
    void whatTakesTheHandAwayEndsTheNote_data();
    void whatTakesTheHandAwayEndsTheNote();
    void nothingIsPressedUnseen();
    void modifiedReturnPressesNothing();
    void spaceAndControlArrowsKeepTheirMeaning();
    void outputKeysPlayThemselves();
    void returnOnAButtonPlaysNothing();

private:
    using Messages = QList<QList<int>>;
    static Messages on(int note) { return {{0x90, note, 75}}; }
    static Messages off(int note) { return {{0x80, note, 0}}; }
};

void TestKeyboardPlay::init()
{
    openAlone();
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    heard();
}

void TestKeyboardPlay::returnHeldSoundsTheKey_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void TestKeyboardPlay::returnHeldSoundsTheKey()
{
    QFETCH(int, key);
    window->setPower(true);
    setTonic("D");
    QCOMPARE(here(), QStringLiteral("C4, white key, plays D4"));
    heard();
    hold(key);
    QCOMPARE(heard(), on(62));
    QVERIFY(window->findInNote(60)->isPushed);
    for (int i = 0; i < 3; ++i) { // the keyboard repeats what is held
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, QString(), true);
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(QApplication::focusWidget(), &up);
        QApplication::sendEvent(QApplication::focusWidget(), &down);
    }
    QCOMPARE(heard(), Messages());
    letUp(key);
    QCOMPARE(heard(), off(62));
    QVERIFY(!window->findInNote(60)->isPushed);
    letUp(key);
    QCOMPARE(heard(), Messages());
}

void TestKeyboardPlay::arrowsGoAlongTheKeys()
{
    type(Qt::Key_Right);
    QCOMPARE(here(), QStringLiteral("C#4, black key, plays C#4"));
    type(Qt::Key_Right, Qt::NoModifier, 3);
    type(Qt::Key_Left);
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(63) + off(63));
    type(Qt::Key_Home);
    type(Qt::Key_Left);
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(21) + off(21));
    type(Qt::Key_End);
    type(Qt::Key_Right);
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(108) + off(108));
}

void TestKeyboardPlay::whatTakesTheHandAwayEndsTheNote_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("Tab") << 0;
    QTest::newRow("an arrow") << 1;
    QTest::newRow("Space") << 2;
    QTest::newRow("the mouse") << 3;
    QTest::newRow("the focus") << 4;
    QTest::newRow("a question") << 5;
    QTest::newRow("the window's end") << 6;
}

void TestKeyboardPlay::whatTakesTheHandAwayEndsTheNote()
{
    QFETCH(int, way);
    type(Qt::Key_Right); // a black key, which ends no note once the power is on
    hold(Qt::Key_Return);
    QCOMPARE(heard(), on(61));
    QList<QList<int>> after;
    if (way == 0)
        type(Qt::Key_Tab);
    else if (way == 1)
        type(Qt::Key_Left);
    else if (way == 2)
        type(Qt::Key_Space);
    else if (way == 3)
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(940, 150));
    else if (way == 4)
        window->ui.buttonCredits->setFocus();
    else if (way == 5) {
        answer(false);
        type(Qt::Key_R, Qt::ControlModifier);
    } else {
        window->endGestures();
    }
    QCOMPARE(heard(), off(61));
}

void TestKeyboardPlay::nothingIsPressedUnseen()
{
    type(Qt::Key_Left);
    type(Qt::Key_Right);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(940, 150));
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
    QVERIFY(!ring().isVisible());
    type(Qt::Key_Return);
    QCOMPARE(heard(), Messages());
    type(Qt::Key_Right); // shows where it is
    QCOMPARE(here(), QStringLiteral("C4, white key, plays C4"));
    QVERIFY(ring().isVisible());
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(60) + off(60));
}

void TestKeyboardPlay::modifiedReturnPressesNothing()
{
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        type(Qt::Key_Return, modifier);
    QCOMPARE(heard(), Messages());
}

void TestKeyboardPlay::spaceAndControlArrowsKeepTheirMeaning()
{
    type(Qt::Key_Space);
    QVERIFY(window->isPowerOn());
    const int before = active();
    type(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(active(), before + 3); // D# to F#
    type(Qt::Key_Left, Qt::ControlModifier);
    QCOMPARE(active(), before);
}

void TestKeyboardPlay::outputKeysPlayThemselves()
{
    window->setPower(true);
    setTonic("D");
    QVERIFY(tabTo(QStringLiteral("C4 of the output")));
    heard();
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(60) + off(60));
}

// The button gives the keyboard to the keys of the input while Return is still on its way.
void TestKeyboardPlay::returnOnAButtonPlaysNothing()
{
    QVERIFY(tabTo(QStringLiteral("buttonCredits")));
    heard();
    type(Qt::Key_Return);
    QCOMPARE(screen().currentScene, int(CenterScreen::scene_credits));
    QVERIFY(window->ui.inKeyboardGraphicsView->hasFocus());
    QCOMPARE(heard(), Messages());
    type(Qt::Key_Return);
    QCOMPARE(heard(), on(60) + off(60));
}

QTEST_MAIN(TestKeyboardPlay)
#include "test_keyboard_play.moc"
