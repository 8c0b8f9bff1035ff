// Selectors, switches, flags, the power button, anchors, library buttons and the game by the keyboard alone.

#include "AccessFixture.h"
#include "screen/TicTacToe.h"

#include <QGraphicsProxyWidget>
#include <QMenu>

class TestKeyboardStage : public AccessFixture
{
    Q_OBJECT

private slots:
    void init();
    void returnChoosesTheTonic();
    void returnTogglesAStepOfTheScale();
    void switchesBelowTheRows();
    void returnRecallsAFlag();
    void menuKeysOpenTheMenuOfAFlag_data();
    void menuKeysOpenTheMenuOfAFlag();
    void flagsSwapByKeyboard();
    void powerButtonMovesByKeyboard();
    void escapePutsBackWhatWasTaken();
    void anchorsSlideByWhiteKeys();
    void anchorStopsAtTheEndOfTheBar();
    void libraryOpensAndCloses();
    void focusStaysInTheRowOfWhatGoes();
    void buttonsOfTheLibraryAct();
    void gameIsPlayed();

private:
    /// From the keys of the input to a flag.
    void goToFlag(const QString& name) const;
    static QString flag(const char* note) { return QStringLiteral("Preset on ") + QLatin1String(note); }
};

void TestKeyboardStage::init()
{
    openAlone();
    window->setPower(true);
}

void TestKeyboardStage::goToFlag(const QString& name) const
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    type(Qt::Key_Up);
    type(Qt::Key_Home);
    for (int i = 0; i < 36 && here() != name; ++i)
        type(Qt::Key_Right);
    QCOMPARE(here(), name);
}

void TestKeyboardStage::returnChoosesTheTonic()
{
    QVERIFY(tabTo(QStringLiteral("Tonic C")));
    type(Qt::Key_Right, Qt::NoModifier, 3);
    type(Qt::Key_Return);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D#"));
    QCOMPARE(target(60), 63);
    type(Qt::Key_End);
    type(Qt::Key_Return);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("B"));
}

void TestKeyboardStage::returnTogglesAStepOfTheScale()
{
    QVERIFY(tabTo(QStringLiteral("Semitone 2 above the tonic, M2")));
    type(Qt::Key_Return);
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
    type(Qt::Key_Left);
    type(Qt::Key_Left); // the first key is the tonic, which is always on
    QCOMPARE(here(), QStringLiteral("Semitone 1 above the tonic, m2"));
    type(Qt::Key_Return);
    QCOMPARE(scale().scaleModifier(), QStringLiteral("xxooxxoxoxox"));
}

void TestKeyboardStage::switchesBelowTheRows()
{
    QVERIFY(tabTo(QStringLiteral("Tonic C")));
    type(Qt::Key_Down);
    QCOMPARE(here(), QStringLiteral("Preset sets the tonic"));
    type(Qt::Key_Return);
    QVERIFY(!tonic().switchOn);
    type(Qt::Key_Return);
    QVERIFY(tonic().switchOn);
    QVERIFY(tabTo(QStringLiteral("Semitone 2 above the tonic, M2")));
    type(Qt::Key_Down);
    type(Qt::Key_End);
    QCOMPARE(here(), QStringLiteral("Preset sets the scale"));
    type(Qt::Key_Return);
    QVERIFY(!scale().switchOn);
}

void TestKeyboardStage::returnRecallsAFlag()
{
    goToFlag(flag("F#4"));
    type(Qt::Key_Return);
    QCOMPARE(active(), 66);
    type(Qt::Key_Down);
    QVERIFY(here().contains(QStringLiteral("key")));
    window->setPower(false); // the flags go
    type(Qt::Key_Up);
    QCOMPARE(here(), QStringLiteral("Power"));
    type(Qt::Key_Return);
    QVERIFY(window->isPowerOn());
}

void TestKeyboardStage::menuKeysOpenTheMenuOfAFlag_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::newRow("menu key") << int(Qt::Key_Menu) << int(Qt::NoModifier);
    QTest::newRow("Shift+F10") << int(Qt::Key_F10) << int(Qt::ShiftModifier);
}

void TestKeyboardStage::menuKeysOpenTheMenuOfAFlag()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    goToFlag(flag("F#4"));
    seen = 0;
    whenMenuIsUp([](QMenu&) {});
    type(key, static_cast<Qt::KeyboardModifiers>(modifiers));
    QCOMPARE(seen, 1);
    QCOMPARE(presets().contextHeader, header(66));
    QVERIFY(active() != 66);
}

void TestKeyboardStage::flagsSwapByKeyboard()
{
    const header_data first = record(66), second = record(68);
    goToFlag(flag("F#4"));
    type(Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(active(), 66); // as a press of the pointer
    type(Qt::Key_Right);
    QCOMPARE(here(), flag("G#4"));
    type(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(active(), 68); // the one that was moved stays active
    QCOMPARE(record(68).scaleData, first.scaleData);
    QCOMPARE(record(66).scaleData, second.scaleData);
    QVERIFY(!walk().carried());
}

void TestKeyboardStage::powerButtonMovesByKeyboard()
{
    goToFlag(QStringLiteral("Power"));
    const QString moved = record(49).scaleData;
    type(Qt::Key_X, Qt::ControlModifier);
    type(Qt::Key_Right);
    QCOMPARE(here(), flag("D#3"));
    type(Qt::Key_Return); // drops too
    QCOMPARE(key_roles::pitch(power()), 51);
    QCOMPARE(power()->pos(), window->findInNote(51)->pos() + QPointF(-4, -18));
    QCOMPARE(record(51).scaleData, moved);
    QVERIFY(window->isPowerOn());
    QVERIFY(header(49)->isVisible() && !header(51)->isVisible());
}

void TestKeyboardStage::escapePutsBackWhatWasTaken()
{
    goToFlag(QStringLiteral("Power"));
    const QStringList before = state();
    const QImage face = power()->pixmap().toImage();
    type(Qt::Key_X, Qt::ControlModifier);
    QVERIFY(walk().carried());
    QVERIFY(power()->pixmap().toImage() != face);
    type(Qt::Key_Right);
    type(Qt::Key_Escape);
    QVERIFY(!walk().carried());
    QCOMPARE(state(), before);
    QCOMPARE(power()->pixmap().toImage(), face);
}

void TestKeyboardStage::anchorsSlideByWhiteKeys()
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    type(Qt::Key_Down);
    QCOMPARE(here(), QStringLiteral("Anchor 0"));
    type(Qt::Key_Right, Qt::NoModifier, 2);
    QCOMPARE(anchors()->x(), 34.0);
    QCOMPARE(target(64), 60);
    QCOMPARE(presets().activeHeader->record.anchorPos, 34);
    type(Qt::Key_Left, Qt::NoModifier, 3);
    QCOMPARE(anchors()->x(), -17.0);
    QCOMPARE(target(59), 60);
}

void TestKeyboardStage::anchorStopsAtTheEndOfTheBar()
{
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    type(Qt::Key_Down);
    type(Qt::Key_Right, Qt::NoModifier, 40);
    QCOMPARE(anchors()->findAnchorByName(QStringLiteral("main"))->scenePos().x(), 476.0);
    QCOMPARE(here(), QStringLiteral("Anchor 0"));
    type(Qt::Key_Left);
    QVERIFY(anchors()->x() < 476.0);
    QCOMPARE(static_cast<int>(anchors()->x()) % 17, 0); // on the grid again
}

void TestKeyboardStage::libraryOpensAndCloses()
{
    QVERIFY(tabTo(QStringLiteral("Semitone 2 above the tonic, M2")));
    type(Qt::Key_Down);
    type(Qt::Key_Home);
    QCOMPARE(here(), QStringLiteral("Open the scale library (Ctrl+L)"));
    type(Qt::Key_Return);
    QVERIFY(screen().libraryOpen);
    QVERIFY(tabTo(QStringLiteral("Close the scale library (Ctrl+L)"))); // in the place of the other
    type(Qt::Key_Return);
    QVERIFY(!screen().libraryOpen);
}

// What goes away under the focus gives it to its neighbour.
void TestKeyboardStage::focusStaysInTheRowOfWhatGoes()
{
    window->resize(677, window->height());
    QCoreApplication::processEvents();
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    type(Qt::Key_Down);
    QVERIFY(here().startsWith(QLatin1String("Anchor")));
    const QString first = here();
    for (int i = 0; i < 40 && here() == first; ++i)
        type(Qt::Key_Left);
    QVERIFY(here() != first);
    QVERIFY2(here().startsWith(QLatin1String("Anchor")), qPrintable(here()));
    type(Qt::Key_Up, Qt::NoModifier, 2);
    QVERIFY(here().startsWith(QLatin1String("Preset on")));
    window->setPower(false);
    QCOMPARE(here(), QStringLiteral("Power"));
}

void TestKeyboardStage::buttonsOfTheLibraryAct()
{
    showScene(5, true);
    QVERIFY(tabTo(QStringLiteral("New category (Insert)")));
    QCOMPARE(whatOpens([] { type(Qt::Key_Return); }), QStringLiteral("ChangeDialog name"));
    QVERIFY(tabTo(QStringLiteral("New category (Insert)")));
    type(Qt::Key_End);
    QCOMPARE(here(), QStringLiteral("Edit the description"));
    QCOMPARE(whatOpens([] { type(Qt::Key_Return); }), QStringLiteral("EditWindow description"));
}

void TestKeyboardStage::gameIsPlayed()
{
    QVERIFY(tabTo(QStringLiteral("Game: row 1, column 1")));
    type(Qt::Key_Return);
    type(Qt::Key_Right);
    type(Qt::Key_Return);
    type(Qt::Key_Down, Qt::NoModifier, 2);
    QCOMPARE(here(), QStringLiteral("Game: row 3, column 2"));
    type(Qt::Key_Return);
    QString state;
    const auto items = window->ui.centerGraphicsView->scene()->items();
    for (QGraphicsItem* item : items)
        if (auto* proxy = qgraphicsitem_cast<QGraphicsProxyWidget*>(item))
            state = static_cast<TicTacToe*>(proxy->widget())->state();
    QCOMPARE(state, QStringLiteral("XO-----X-"));
}

QTEST_MAIN(TestKeyboardStage)
#include "test_keyboard_stage.moc"
