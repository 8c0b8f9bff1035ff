// The small game on the panel: its rules, the hand that plays it through the turned note, and what is
// painted.

#include "screen/TicTacToe.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QGraphicsView>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace board = tictactoe_board;

namespace {

const QRect note(QPoint(700, 32), QPoint(765, 93)); // 66 by 62
constexpr qreal turnedBy = 8;                       // degrees

/// What lies below the note and must not hear of it.
class Panel : public QGraphicsRectItem
{
public:
    using QGraphicsRectItem::QGraphicsRectItem;
    int presses = 0;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override
    {
        ++presses;
        event->accept();
    }
};

/// Counts how often a widget is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        paintings += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
    int paintings = 0;
};

/// The cells of a board of any size, computed from the fractions: thirds less a thirtieth on each side.
QRectF third(const QSizeF& board, int position)
{
    const QSizeF cell = board / 3, margin = board / 30;
    return QRectF(QPointF(position % 3 * cell.width(), position / 3 * cell.height()), cell)
        .adjusted(margin.width(), margin.height(), -margin.width(), -margin.height());
}

QImage blank(const QSize& size, qreal ratio)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

QImage painted(const QString& state, const QSize& size, qreal ratio = 1)
{
    TicTacToe game;
    game.resize(size);
    game.setState(state);
    QImage image = blank(size, ratio);
    game.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QImage picture(const char* name)
{
    return QImage(QStringLiteral(":/Resources/Games/tictactoe_%1.png").arg(QLatin1String(name)));
}

QImage barePaper(const QSize& size, qreal ratio)
{
    QImage image = blank(size, ratio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(QPointF(), size), QPixmap::fromImage(picture("paper")),
                       picture("paper").rect());
    return image;
}

bool differ(const QImage& a, const QImage& b, int x, int y)
{
    const QColor left = a.pixelColor(x, y), right = b.pixelColor(x, y);
    return qAbs(left.red() - right.red()) + qAbs(left.blue() - right.blue()) > 24;
}

/// The rectangle around all device pixels in which two pictures differ.
QRect changes(const QImage& a, const QImage& b)
{
    QRect all;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (differ(a, b, x, y))
                all |= QRect(x, y, 1, 1);
    return all;
}

/// The rows or columns of three, found by the square whose lines all add up to 15.
std::vector<board::Line> linesOfFifteen(const QString& state)
{
    const int magic[] = {2, 7, 6, 9, 5, 1, 4, 3, 8};
    std::vector<board::Line> lines;
    for (int a = 0; a < 9; ++a)
        for (int b = a + 1; b < 9; ++b)
            for (int c = b + 1; c < 9; ++c)
                if (magic[a] + magic[b] + magic[c] == 15 && state[a] != '-' && state[a] == state[b] &&
                    state[b] == state[c])
                    lines.push_back({a, b, c});
    return lines;
}

QString stateNumber(int number)
{
    QString state;
    for (int position = 0; position < 9; ++position, number /= 3)
        state += QLatin1Char("-XO"[number % 3]);
    return state;
}
constexpr int allStates = 19683;

/// Half way from the middle of a line's first cell to that of its second: on the grid, outside every cell,
/// and on no other line.
QPoint betweenCells(const QSize& size, const board::Line& line)
{
    return ((third(size, line[0]).center() + third(size, line[1]).center()) / 2).toPoint();
}

} // namespace

class TestTicTacToe : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // Places and lines
    void cellsAreThirdsLessAMargin_data();
    void cellsAreThirdsLessAMargin();
    void everyPixelBelongsToItsCellOrToNone_data();
    void everyPixelBelongsToItsCellOrToNone();
    void tinyBoardsHaveNoCellsOutside();
    void linesOfAllStates();

    // The widget
    void beginsEmpty();
    void hintsAreTwoHundred();
    void saysWhatItIs();
    void stateIsCleaned_data();
    void stateIsCleaned();
    void stateIsAProperty();
    void shortStateWrittenFromOutsideIsHarmless();

    // The hand on the turned note
    void noteStandsTurned();
    void everyCellIsPlayedWhereItIsSeen_data();
    void everyCellIsPlayedWhereItIsSeen();
    void crossesAndNoughtsTakeTurns();
    void turnFollowsTheState();
    void takenCellStaysAndKeepsTheTurn();
    void gridIsNoCell();
    void fullBoardIsClearedByAnyPress_data();
    void fullBoardIsClearedByAnyPress();
    void winDoesNotEndTheGame();
    void otherButtonsDoNotPlay();
    void secondPressOfADoubleClickPlays();
    void panelBelowHearsNothing();
    void everyChangeIsPainted();

    // What is painted
    void paperLiesBelow();
    void gridIsTwoWide();
    void gridStaysOnThePaper();
    void marksStandInTheMiddleOfTheirCells_data();
    void marksStandInTheMiddleOfTheirCells();
    void crossIsNoNought();
    void winsAreUnderlined();
    void winningLineIsTwoAndAHalfWide();
    void winningLineReachesIntoItsOuterCells();

private:
    /// Presses where the board's point is seen in the view.
    void press(QPointF place, Qt::MouseButton button = Qt::LeftButton);
    void pressCell(int position) { press(third(note.size(), position).center()); }
    void play(const QVector<int>& cells);

    std::unique_ptr<QGraphicsScene> scene;
    std::unique_ptr<QGraphicsView> view;
    Panel* panel = nullptr;
    QGraphicsProxyWidget* proxy = nullptr;
    TicTacToe* game = nullptr;
};

void TestTicTacToe::init()
{
    scene = std::make_unique<QGraphicsScene>(0, 0, 900, 128);
    panel = new Panel(scene->sceneRect());
    scene->addItem(panel);
    game = new TicTacToe;
    game->setStyleSheet(QStringLiteral("background-color: transparent"));
    proxy = scene->addWidget(game);
    proxy->setGeometry(note);
    proxy->setRotation(turnedBy);
    view = std::make_unique<QGraphicsView>(scene.get());
    view->setFrameShape(QFrame::NoFrame);
    view->resize(900, 128);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
}

void TestTicTacToe::cleanup()
{
    view.reset();
    scene.reset();
}

void TestTicTacToe::press(QPointF place, Qt::MouseButton button)
{
    const QPoint seen = view->mapFromScene(proxy->mapToScene(place));
    QTest::mouseClick(view->viewport(), button, Qt::NoModifier, seen);
}

void TestTicTacToe::play(const QVector<int>& cells)
{
    for (const int position : cells)
        pressCell(position);
}

void TestTicTacToe::cellsAreThirdsLessAMargin_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("the note") << note.size();
    QTest::newRow("as it likes") << QSize(200, 200);
    QTest::newRow("wide") << QSize(307, 92);
    QTest::newRow("small") << QSize(20, 23);
}

void TestTicTacToe::cellsAreThirdsLessAMargin()
{
    QFETCH(QSize, size);
    for (int position = 0; position < 9; ++position) {
        const QRectF cell = board::cellRect(size, position), expected = third(size, position);
        for (const qreal off : {cell.left() - expected.left(), cell.right() - expected.right(),
                                cell.top() - expected.top(), cell.bottom() - expected.bottom()})
            QVERIFY2(qAbs(off) < 1.5, qPrintable(QString::number(position)));
    }
    // The same margin on both sides of the board, whatever three leaves over.
    const QRect first = board::cellRect(size, 0), last = board::cellRect(size, 8);
    QCOMPARE(QPoint(size.width(), size.height()) - last.bottomRight() - QPoint(1, 1), first.topLeft());
}

void TestTicTacToe::everyPixelBelongsToItsCellOrToNone_data()
{
    cellsAreThirdsLessAMargin_data();
}

void TestTicTacToe::everyPixelBelongsToItsCellOrToNone()
{
    QFETCH(QSize, size);
    int inside = 0, outside = 0;
    for (int y = -3; y < size.height() + 3; ++y)
        for (int x = -3; x < size.width() + 3; ++x) {
            const int found = board::cellAt(size, QPoint(x, y));
            int surely = board::nowhere, perhaps = board::nowhere;
            for (int position = 0; position < 9; ++position) {
                const QPointF middle(x + 0.5, y + 0.5);
                if (third(size, position).adjusted(1, 1, -1, -1).contains(middle))
                    surely = position;
                if (third(size, position).adjusted(-1, -1, 1, 1).contains(middle))
                    perhaps = position;
            }
            QVERIFY(surely == board::nowhere || found == surely);
            QVERIFY(perhaps != board::nowhere || found == board::nowhere);
            inside += surely != board::nowhere;
            outside += perhaps == board::nowhere;
        }
    QVERIFY(inside > 9 && outside > 9);
}

void TestTicTacToe::tinyBoardsHaveNoCellsOutside()
{
    for (int width = 0; width < 6; ++width)
        for (int height = 0; height < 6; ++height)
            for (int y = -2; y < 8; ++y)
                for (int x = -2; x < 8; ++x) {
                    const QSize size(width, height);
                    const bool on = QRect(QPoint(), size).contains(x, y);
                    // Below thirty pixels there is no margin, so that each pixel has its cell.
                    const bool found = board::cellAt(size, QPoint(x, y)) != board::nowhere;
                    QCOMPARE(found, on);
                }
}

void TestTicTacToe::linesOfAllStates()
{
    for (int number = 0; number < allStates; ++number) {
        const QString state = stateNumber(number);
        auto lines = board::winningLines(state);
        std::sort(lines.begin(), lines.end());
        QVERIFY2(lines == linesOfFifteen(state), qPrintable(state));
    }
}

void TestTicTacToe::beginsEmpty()
{
    QCOMPARE(game->myState, QStringLiteral("---------"));
    QCOMPARE(game->turnNumber, 0);
}

void TestTicTacToe::hintsAreTwoHundred()
{
    QCOMPARE(game->sizeHint(), QSize(200, 200));
    QCOMPARE(game->minimumSizeHint(), QSize(200, 200));
}

void TestTicTacToe::saysWhatItIs()
{
    QVERIFY(game->accessibleName().contains(QStringLiteral("noughts"), Qt::CaseInsensitive));
    QVERIFY(game->toolTip().contains(QStringLiteral("noughts"), Qt::CaseInsensitive));
    QCOMPARE(game->focusPolicy(), Qt::NoFocus); // the keyboard plays the instrument
}

void TestTicTacToe::stateIsCleaned_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("turn");
    QTest::newRow("nothing") << ""
                             << "---------" << 0;
    QTest::newRow("null") << QString() << "---------" << 0;
    QTest::newRow("empty") << "---------"
                           << "---------" << 0;
    QTest::newRow("a game") << "X-O-X----"
                            << "X-O-X----" << 3;
    QTest::newRow("short") << "-XO"
                           << "-XO------" << 2;
    QTest::newRow("long") << "O-------XXXX"
                          << "O-------X" << 2;
    QTest::newRow("marks beyond the ninth") << "---------XO"
                                            << "---------" << 0;
    QTest::newRow("other letters keep their places") << "aXxo O0-O"
                                                     << "-X---O--O" << 3;
    QTest::newRow("letters beyond ASCII")
        << QStringLiteral(u"ХОX♯éO") << "--X--O---" << 2; // two are Cyrillic
    QTest::newRow("one mark only") << "OOOO"
                                   << "OOOO-----" << 4;
    QTest::newRow("full") << "XOXOXOXOX"
                          << "XOXOXOXOX" << 9;
}

void TestTicTacToe::stateIsCleaned()
{
    QFETCH(QString, given);
    QFETCH(QString, state);
    QFETCH(int, turn);
    game->setState(QStringLiteral("XOXOX----"));
    game->setState(given);
    QCOMPARE(game->myState, state);
    QCOMPARE(game->state(), state);
    QCOMPARE(game->turnNumber, turn);
}

void TestTicTacToe::stateIsAProperty()
{
    QVERIFY(game->setProperty("state", "X--O----?"));
    QCOMPARE(game->property("state").toString(), QStringLiteral("X--O-----"));
    QCOMPARE(TicTacToe::staticMetaObject.property(TicTacToe::staticMetaObject.propertyOffset()).name(),
             "state");
}

void TestTicTacToe::shortStateWrittenFromOutsideIsHarmless()
{
    game->myState = QStringLiteral("X");
    pressCell(8);
    view->grab();
    QVERIFY(game->myState.startsWith('X'));
}

void TestTicTacToe::noteStandsTurned()
{
    QCOMPARE(game->size(), QSize(66, 62));
    const QPointF corner = proxy->mapToScene(QPointF(66, 0));
    QVERIFY(corner.y() > 41 && corner.y() < 42); // 66 times the sine of eight degrees below the other corner
}

void TestTicTacToe::everyCellIsPlayedWhereItIsSeen_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPointF>("place");
    for (int position = 0; position < 9; ++position) {
        const QRectF cell = third(note.size(), position).adjusted(2, 2, -2, -2);
        const QPointF places[] = {cell.center(), cell.topLeft(), cell.topRight(), cell.bottomLeft(),
                                  cell.bottomRight()};
        const char* names[] = {"middle", "top left", "top right", "bottom left", "bottom right"};
        for (int i = 0; i < 5; ++i)
            QTest::addRow("%d, %s", position, names[i]) << position << places[i];
    }
}

void TestTicTacToe::everyCellIsPlayedWhereItIsSeen()
{
    QFETCH(int, position);
    QFETCH(QPointF, place);
    press(place);
    QString expected(9, '-');
    expected[position] = 'X';
    QCOMPARE(game->myState, expected);
    QCOMPARE(game->turnNumber, 1);
}

void TestTicTacToe::crossesAndNoughtsTakeTurns()
{
    const QStringList expected{"----X----", "O---X----", "O---X---X", "O-O-X---X", "OXO-X---X",
                               "OXO-X--OX", "OXO-XX-OX", "OXOOXX-OX", "OXOOXXXOX"};
    const QVector<int> cells{4, 0, 8, 2, 1, 7, 5, 3, 6};
    for (int turn = 0; turn < 9; ++turn) {
        QCOMPARE(game->turnNumber, turn);
        pressCell(cells[turn]);
        QCOMPARE(game->myState, expected[turn]);
    }
    QCOMPARE(game->turnNumber, 9);
}

void TestTicTacToe::turnFollowsTheState()
{
    game->setState(QStringLiteral("XOX"));
    pressCell(8);
    QCOMPARE(game->myState, QStringLiteral("XOX-----O"));
    game->setState(QStringLiteral("OO"));
    pressCell(8);
    QCOMPARE(game->myState, QStringLiteral("OO------X"));
}

void TestTicTacToe::takenCellStaysAndKeepsTheTurn()
{
    play({4, 4, 4});
    QCOMPARE(game->myState, QStringLiteral("----X----"));
    QCOMPARE(game->turnNumber, 1);
    play({0, 4, 0});
    QCOMPARE(game->myState, QStringLiteral("O---X----"));
    QCOMPARE(game->turnNumber, 2);
}

void TestTicTacToe::gridIsNoCell()
{
    const qreal across = 66 / 3.0, down = 62 / 3.0;
    for (const QPointF place :
         {QPointF(across, down / 2), QPointF(2 * across, down / 2), QPointF(across / 2, down),
          QPointF(across / 2, 2 * down), QPointF(across, down), QPointF(2 * across, 2 * down),
          QPointF(33, 0.8), QPointF(33, 61.2), QPointF(0.8, 31)})
        press(place);
    QCOMPARE(game->myState, QStringLiteral("---------"));
    QCOMPARE(game->turnNumber, 0);
}

void TestTicTacToe::fullBoardIsClearedByAnyPress_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::newRow("a cell") << third(note.size(), 2).center();
    QTest::newRow("the grid") << QPointF(22, 31);
}

void TestTicTacToe::fullBoardIsClearedByAnyPress()
{
    QFETCH(QPointF, place);
    play({0, 1, 2, 3, 4, 5, 6, 7, 8});
    QCOMPARE(game->myState, QStringLiteral("XOXOXOXOX"));
    press(place);
    QCOMPARE(game->myState, QStringLiteral("---------"));
    QCOMPARE(game->turnNumber, 0);
    pressCell(3);
    QCOMPARE(game->myState, QStringLiteral("---X-----"));
}

void TestTicTacToe::winDoesNotEndTheGame()
{
    play({0, 3, 1, 4, 2});
    QCOMPARE(game->myState, QStringLiteral("XXXOO----"));
    QCOMPARE(board::winningLines(game->myState).size(), 1U);
    play({5, 6});
    QCOMPARE(game->myState, QStringLiteral("XXXOOOX--"));
    QCOMPARE(board::winningLines(game->myState).size(), 2U);
}

void TestTicTacToe::otherButtonsDoNotPlay()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
        press(third(note.size(), 4).center(), button);
    QCOMPARE(game->turnNumber, 0);
    game->setState(QStringLiteral("XOXOXOXOX"));
    press(third(note.size(), 4).center(), Qt::RightButton);
    QCOMPARE(game->turnNumber, 9);
}

// Two quick presses in two cells reach the window as a double click.
void TestTicTacToe::secondPressOfADoubleClickPlays()
{
    pressCell(0);
    const QPoint seen = view->mapFromScene(proxy->mapToScene(third(note.size(), 1).center()));
    QMouseEvent again(QEvent::MouseButtonDblClick, seen, view->viewport()->mapToGlobal(seen), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view->viewport(), &again);
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, Qt::NoModifier, seen);
    QCOMPARE(game->myState, QStringLiteral("XO-------"));
}

void TestTicTacToe::panelBelowHearsNothing()
{
    play({4, 4});
    press(QPointF(22, 31));
    press(third(note.size(), 0).center(), Qt::RightButton);
    game->setState(QStringLiteral("XOXOXOXOX"));
    pressCell(0);
    QCOMPARE(panel->presses, 0);
    press(QPointF(-10, 31));
    QCOMPARE(panel->presses, 1);
}

void TestTicTacToe::everyChangeIsPainted()
{
    PaintWatch watch(game);
    const auto isPaintedAfter = [&watch](const auto& change) {
        QCoreApplication::processEvents();
        watch.paintings = 0;
        change();
        return QTest::qWaitFor([&watch] { return watch.paintings > 0; }, 2000);
    };
    QVERIFY(isPaintedAfter([this] { pressCell(0); }));
    QVERIFY(isPaintedAfter([this] { game->setState(QStringLiteral("O")); }));
    QVERIFY(isPaintedAfter([this] { game->clearBoard(); }));
}

void TestTicTacToe::paperLiesBelow()
{
    for (const QSize& size : {note.size(), QSize(200, 200)}) {
        const QImage paper = barePaper(size, 1), empty = painted(QString(), size);
        QVERIFY(!changes(blank(size, 1), paper).isEmpty());
        for (int position = 0; position < 9; ++position) {
            const QRect cell = board::cellRect(size, position);
            QVERIFY(changes(paper.copy(cell), empty.copy(cell)).isEmpty());
        }
    }
}

void TestTicTacToe::gridIsTwoWide()
{
    const QSize size(200, 200);
    const QImage paper = barePaper(size, 4), empty = painted(QString(), size, 4);
    int across = 0, down = 0; // of both lines, through the middle of the first cells
    for (int i = 0; i < 800; ++i) {
        across += differ(paper, empty, i, 133) ? 1 : 0;
        down += differ(paper, empty, 133, i) ? 1 : 0;
    }
    QCOMPARE(across, 16);
    QCOMPARE(down, 16);
}

void TestTicTacToe::gridStaysOnThePaper()
{
    const QImage own = picture("paper"), paper = barePaper(own.size(), 1),
                 grid = painted(QString(), own.size());
    QVERIFY(changes(paper, grid).width() > own.width() / 2);
    for (int y = 0; y < own.height(); ++y)
        for (int x = 0; x < own.width(); ++x)
            QVERIFY(!differ(paper, grid, x, y) || own.pixelColor(x, y).alpha() == 255);
}

void TestTicTacToe::marksStandInTheMiddleOfTheirCells_data()
{
    cellsAreThirdsLessAMargin_data();
}

void TestTicTacToe::marksStandInTheMiddleOfTheirCells()
{
    QFETCH(QSize, size);
    const qreal ratio = 4;
    const QImage empty = painted(QString(), size, ratio);
    for (const char mark : {'X', 'O'})
        for (int position = 0; position < 9; ++position) {
            QString state(9, '-');
            state[position] = QLatin1Char(mark);
            const QRectF drawn = changes(empty, painted(state, size, ratio));
            const QRectF cell(board::cellRect(size, position).topLeft() * ratio,
                              board::cellRect(size, position).size() * ratio);
            QVERIFY(cell.contains(drawn));
            // As large as the picture's own proportion lets it be; its edge may halve pixels.
            const QSizeF own = picture(mark == 'X' ? "x" : "o").size();
            const QSizeF room = own.scaled(cell.size(), Qt::KeepAspectRatio);
            QVERIFY(drawn.width() > room.width() * 0.7 && drawn.width() < room.width() + 2);
            QVERIFY(drawn.height() > room.height() * 0.7 && drawn.height() < room.height() + 2);
            const QPointF off = drawn.center() - cell.center();
            QVERIFY(qAbs(off.x()) < room.width() * 0.1 && qAbs(off.y()) < room.height() * 0.1);
        }
}

void TestTicTacToe::crossIsNoNought()
{
    const QSize size(200, 200);
    const QImage empty = painted(QString(), size);
    QVERIFY(differ(empty, painted(QStringLiteral("----X----"), size), 100, 100));
    QVERIFY(!differ(empty, painted(QStringLiteral("----O----"), size), 100, 100));
}

// Marks are painted in their cells only, so what changes between the cells is the line.
void TestTicTacToe::winsAreUnderlined()
{
    const QSize size = note.size();
    const QImage empty = painted(QString(), size);
    const auto lines = linesOfFifteen(QString(9, 'X'));
    QCOMPARE(lines.size(), 8U);
    for (int number = 0; number < allStates; number += 7) {
        const QString state = stateNumber(number);
        const auto expected = linesOfFifteen(state);
        const QImage image = painted(state, size);
        for (const board::Line& line : lines) {
            const QPoint place = betweenCells(size, line);
            const bool seen = differ(empty, image, place.x(), place.y());
            const bool isWon = std::find(expected.begin(), expected.end(), line) != expected.end();
            QVERIFY2(seen == isWon, qPrintable(state));
        }
    }
}

void TestTicTacToe::winningLineIsTwoAndAHalfWide()
{
    const QSize size(200, 200);
    const QImage empty = painted(QString(), size, 4), row = painted(QString(3, 'X'), size, 4);
    int down = 0;
    for (int y = 0; y < 800; ++y)
        down += differ(empty, row, 62 * 4, y) ? 1 : 0; // between the first cell and the grid
    QCOMPARE(down, 10);
}

void TestTicTacToe::winningLineReachesIntoItsOuterCells()
{
    const QSize size(200, 200);
    const QImage first = painted(QStringLiteral("X"), size), last = painted(QStringLiteral("--X"), size);
    const QImage row = painted(QString(3, 'X'), size);
    // A cross is bare on its left and on its right.
    QVERIFY(differ(first, row, 22, 33));
    QVERIFY(differ(last, row, 178, 33));
    QVERIFY(!differ(first, row, 9, 33));
    QVERIFY(!differ(last, row, 191, 33));
}

QTEST_MAIN(TestTicTacToe)

#include "test_tictactoe.moc"
