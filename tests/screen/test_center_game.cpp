// The small game where it stands: on the panel, turned, and played through the window.

#include "CenterFixture.h"
#include "screen/TicTacToe.h"

#include <QGraphicsProxyWidget>

class TestCenterGame : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    void boardStandsTurnedInItsPlace();
    void boardBeginsEmptyOnNoGround();
    void thereIsOneBoard();
    void everyCellIsPlayedThroughTheWindow();
    void boardIsPlayedInEveryScene_data();
    void boardIsPlayedInEveryScene();
    void boardMovesWithTheWindow();
    void clickTakesNoFocusAndPlaysNoNote();
    void fullBoardIsClearedByAClick();
    void placeBesideTheTurnedBoardPlaysNothing();

private:
    QGraphicsProxyWidget* proxy() const;
    TicTacToe* game() const { return qobject_cast<TicTacToe*>(proxy()->widget()); }
    /// The middle of a cell, in the window.
    QPoint cell(int position) const;
    QPoint inWindow(QPointF onBoard) const;
};

void TestCenterGame::init()
{
    openWindow();
    show();
}

QGraphicsProxyWidget* TestCenterGame::proxy() const
{
    QGraphicsProxyWidget* found = nullptr;
    for (QGraphicsItem* item : centre().items())
        if (auto* each = qgraphicsitem_cast<QGraphicsProxyWidget*>(item))
            found = each;
    return found;
}

QPoint TestCenterGame::inWindow(QPointF onBoard) const
{
    const QGraphicsView* stage = form().centerGraphicsView;
    return stage->viewport()->mapTo(window.get(), stage->mapFromScene(proxy()->mapToScene(onBoard)));
}

QPoint TestCenterGame::cell(int position) const
{
    return inWindow({66 * (position % 3 + 0.5) / 3, 62 * (position / 3 + 0.5) / 3});
}

void TestCenterGame::boardStandsTurnedInItsPlace()
{
    QVERIFY(proxy());
    QCOMPARE(proxy()->geometry(), QRectF(700, 32, 66, 62));
    QCOMPARE(game()->size(), QSize(66, 62));
    QCOMPARE(proxy()->rotation(), 8.0);
    QCOMPARE(proxy()->mapToScene(QPointF(0, 0)), QPointF(700, 32));               // about its own corner
    QVERIFY(proxy()->mapToScene(QPointF(66, 0)).y() > 40);                        // clockwise
    QVERIFY(!QTest::qWaitFor([this] { return proxy()->rotation() != 8.0; }, 30)); // nothing turns it on
    QVERIFY(proxy()->findChildren<QPropertyAnimation*>().isEmpty());
}

void TestCenterGame::boardBeginsEmptyOnNoGround()
{
    QCOMPARE(game()->state(), QStringLiteral("---------"));
    QCOMPARE(game()->turnNumber, 0);
    QCOMPARE(game()->styleSheet(), QStringLiteral("background-color: transparent"));
}

void TestCenterGame::thereIsOneBoard()
{
    int boards = 0;
    for (int setter = to_default; setter <= to_library; ++setter)
        call(setter);
    for (QGraphicsItem* item : centre().items())
        boards += qgraphicsitem_cast<QGraphicsProxyWidget*>(item) ? 1 : 0;
    QCOMPARE(boards, 1);
}

void TestCenterGame::everyCellIsPlayedThroughTheWindow()
{
    QString expected(9, QLatin1Char('-'));
    for (int turn = 0; turn < 9; ++turn) {
        const int position = (turn * 4 + 2) % 9;
        clickAt(cell(position));
        expected[position] = QLatin1Char(turn % 2 == 0 ? 'X' : 'O');
        QCOMPARE(game()->state(), expected);
    }
    QCOMPARE(screen().currentScene, 1);
}

void TestCenterGame::boardIsPlayedInEveryScene_data()
{
    QTest::addColumn<int>("scene");
    for (int scene = to_default; scene <= to_library; ++scene)
        QTest::newRow(nameOf(scene)) << scene;
}

// Some scenes' hit areas reach over its left column.
void TestCenterGame::boardIsPlayedInEveryScene()
{
    QFETCH(int, scene);
    for (const bool powered : {true, false}) {
        window->setPower(powered);
        call(scene);
        const QString shown = look();
        game()->clearBoard();
        for (int position = 0; position < 9; ++position)
            clickAt(cell(position));
        QCOMPARE(game()->state(), QStringLiteral("XOXOXOXOX"));
        QCOMPARE(look(), shown);
    }
}

void TestCenterGame::boardMovesWithTheWindow()
{
    for (const int width : {952, 800, 677}) {
        window->resize(width, 480);
        game()->clearBoard();
        const QPoint place = cell(8);
        if (place.x() >= width)
            continue; // the narrow window ends before it
        clickAt(place);
        QCOMPARE(game()->state(), QStringLiteral("--------X"));
    }
}

void TestCenterGame::clickTakesNoFocusAndPlaysNoNote()
{
    inView()->setFocus();
    for (int position = 0; position < 9; ++position) {
        clickAt(cell(position));
        QVERIFY(inView()->hasFocus());
    }
    QVERIFY(port->messages().empty());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(window->isPowerOn());
}

void TestCenterGame::fullBoardIsClearedByAClick()
{
    game()->setState(QStringLiteral("XOXOXOOXX"));
    clickAt(cell(3));
    QCOMPARE(game()->state(), QStringLiteral("---------"));
    QCOMPARE(game()->turnNumber, 0);
}

void TestCenterGame::placeBesideTheTurnedBoardPlaysNothing()
{
    // Inside the rectangle, were it not turned.
    const QGraphicsView* stage = form().centerGraphicsView;
    const QPointF unturned(764, 34);
    clickAt(stage->viewport()->mapTo(window.get(), stage->mapFromScene(unturned)));
    for (const QPointF& beside : {QPointF(-3, 30), QPointF(69, 30), QPointF(30, -3), QPointF(30, 65)})
        clickAt(inWindow(beside));
    QCOMPARE(game()->state(), QStringLiteral("---------"));
}

QTEST_MAIN(TestCenterGame)

#include "test_center_game.moc"
