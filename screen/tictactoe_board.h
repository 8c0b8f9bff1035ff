#pragma once

#include <QRect>
#include <QString>

#include <array>
#include <vector>

/// The rules of noughts and crosses, and where the cells stand on a board of any size. Cells are numbered 0
/// to 8, row by row; a state holds a letter for each.
namespace tictactoe_board {

inline constexpr int side = 3, cells = side * side, nowhere = -1;
inline constexpr QChar empty(u'-'), cross(u'X'), nought(u'O');

using Line = std::array<int, side>;

// Places

/// A third of the board, less a margin of a thirtieth of the board on each side.
[[nodiscard]] QRect cellRect(const QSize& board, int position);
/// `nowhere` on the margins and off the board.
[[nodiscard]] int cellAt(const QSize& board, const QPoint& place);

// States

[[nodiscard]] QString emptyState();
/// The crosses and noughts among the first nine letters, each at its own place. Any other letter, and one
/// that is missing, is an empty cell.
[[nodiscard]] QString cleaned(const QString& state);
/// `empty` where the state has no such letter.
[[nodiscard]] QChar markAt(const QString& state, int position);
/// How many cells are taken, which is the number of the next turn.
[[nodiscard]] int turnsPlayed(const QString& state);
/// Crosses begin.
[[nodiscard]] QChar markOfTurn(int turn);
/// Rows, columns and diagonals that hold three equal marks: a full board may have several.
[[nodiscard]] std::vector<Line> winningLines(const QString& state);

} // namespace tictactoe_board
