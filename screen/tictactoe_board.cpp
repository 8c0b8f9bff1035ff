#include "screen/tictactoe_board.h"

#include <QPoint>
#include <QSize>

#include <algorithm>
#include <iterator>

namespace tictactoe_board {
namespace {

constexpr int marginsInASide = 30;

constexpr std::array<Line, 2 * side + 2> lines{{
    {0, 1, 2},
    {3, 4, 5},
    {6, 7, 8},
    {0, 3, 6},
    {1, 4, 7},
    {2, 5, 8},
    {0, 4, 8},
    {2, 4, 6},
}};

/// Where a third begins. A length that three does not divide is shared out, so the last third ends on the
/// edge.
int thirdOf(int length, int third)
{
    return length * third / side;
}

bool isWon(const QString& state, const Line& line)
{
    const QChar mark = markAt(state, line[0]);
    return mark != empty &&
           std::all_of(line.begin(), line.end(), [&](int cell) { return markAt(state, cell) == mark; });
}

} // namespace

QRect cellRect(const QSize& board, int position)
{
    const int row = position / side, column = position % side;
    const QPoint topLeft(thirdOf(board.width(), column), thirdOf(board.height(), row));
    const QPoint next(thirdOf(board.width(), column + 1), thirdOf(board.height(), row + 1));
    const int across = board.width() / marginsInASide, down = board.height() / marginsInASide;
    return QRect(topLeft, next - QPoint(1, 1)).adjusted(across, down, -across, -down);
}

int cellAt(const QSize& board, const QPoint& place)
{
    for (int position = 0; position < cells; ++position)
        if (cellRect(board, position).contains(place))
            return position;
    return nowhere;
}

QString emptyState()
{
    return QString(cells, empty);
}

QString cleaned(const QString& state)
{
    QString result = emptyState();
    for (int position = 0; position < cells; ++position) {
        const QChar mark = markAt(state, position);
        if (mark == cross || mark == nought)
            result[position] = mark;
    }
    return result;
}

QChar markAt(const QString& state, int position)
{
    return position < state.size() ? state.at(position) : empty;
}

int turnsPlayed(const QString& state)
{
    return state.count(cross) + state.count(nought);
}

QChar markOfTurn(int turn)
{
    return turn % 2 == 0 ? cross : nought;
}

std::vector<Line> winningLines(const QString& state)
{
    std::vector<Line> won;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(won),
                 [&](const Line& line) { return isWon(state, line); });
    return won;
}

} // namespace tictactoe_board
