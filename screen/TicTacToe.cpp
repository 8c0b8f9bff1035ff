#include "screen/TicTacToe.h"

#include "keys/pictures.h"

#include <QMouseEvent>
#include <QPainter>

namespace board = tictactoe_board;

namespace {

constexpr int preferredSide = 200;
constexpr qreal gridWidth = 2.0, lineWidth = 2.5;
const QColor softPencil(0x94, 0x91, 0x8b), pencil(0x57, 0x54, 0x50);
constexpr int edgesInASide = 15; // the grid ends this part of a side before the edge, on the paper

QPixmap picture(const char* name)
{
    return pictures::load(QStringLiteral(":/Resources/Games/tictactoe_%1.png").arg(QLatin1String(name)));
}

/// The largest place in the middle of a cell that has the picture's proportion.
QRectF fitted(const QSize& picture, const QRectF& cell)
{
    QRectF place(QPointF(), QSizeF(picture).scaled(cell.size(), Qt::KeepAspectRatio));
    place.moveCenter(cell.center());
    return place;
}

} // namespace

TicTacToe::TicTacToe(QWidget* parent)
    : QWidget(parent), paper(picture("paper")), crossPicture(picture("x")), noughtPicture(picture("o"))
{
    setMinimumSize(1, 1); // a proxy would hold the board to its hint, which is larger than the note
    setAccessibleName(tr("Noughts and crosses"));
    setToolTip(tr("A small game of noughts and crosses for two"));
}

void TicTacToe::setState(const QString& state)
{
    myState = board::cleaned(state);
    turnNumber = board::turnsPlayed(myState);
    update();
}

void TicTacToe::clearBoard()
{
    setState(board::emptyState());
}

QSize TicTacToe::sizeHint() const
{
    return {preferredSide, preferredSide};
}

QSize TicTacToe::minimumSizeHint() const
{
    return sizeHint();
}

void TicTacToe::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (event->button() != Qt::LeftButton)
        return;
    if (turnNumber >= board::cells)
        clearBoard();
    else
        play(board::cellAt(size(), event->pos()));
}

QRect TicTacToe::cellRect(int position) const
{
    return board::cellRect(size(), position);
}

void TicTacToe::play(int position)
{
    if (position == board::nowhere || board::markAt(myState, position) != board::empty)
        return;
    myState.replace(position, 1, board::markOfTurn(turnNumber));
    ++turnNumber;
    update();
}

void TicTacToe::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintPaper(painter);
    paintGrid(painter);
    paintMarks(painter);
    paintWinningLines(painter);
}

void TicTacToe::paintPaper(QPainter& painter) const
{
    painter.drawPixmap(QRectF(rect()), paper, QRectF(paper.rect()));
}

void TicTacToe::paintGrid(QPainter& painter) const
{
    painter.setPen(QPen(softPencil, gridWidth, Qt::SolidLine, Qt::RoundCap));
    const int across = width() / edgesInASide, down = height() / edgesInASide;
    for (int third = 1; third < board::side; ++third) {
        const int x = width() * third / board::side, y = height() * third / board::side;
        painter.drawLine(x, down, x, height() - down);
        painter.drawLine(across, y, width() - across, y);
    }
}

void TicTacToe::paintMarks(QPainter& painter) const
{
    for (int position = 0; position < board::cells; ++position) {
        const QChar mark = board::markAt(myState, position);
        if (mark == board::empty)
            continue;
        const QPixmap& drawn = mark == board::cross ? crossPicture : noughtPicture;
        painter.drawPixmap(fitted(drawn.size(), cellRect(position)), drawn, QRectF(drawn.rect()));
    }
}

void TicTacToe::paintWinningLines(QPainter& painter) const
{
    painter.setPen(QPen(pencil, lineWidth, Qt::SolidLine, Qt::RoundCap));
    for (const board::Line& line : board::winningLines(myState)) {
        const QPointF first = QRectF(cellRect(line.front())).center(),
                      last = QRectF(cellRect(line.back())).center();
        const QPointF beyond = (last - first) / 8; // half way to the far edges
        painter.drawLine(first - beyond, last + beyond);
    }
}
