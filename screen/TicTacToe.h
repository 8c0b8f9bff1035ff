#pragma once

#include "screen/tictactoe_board.h"

#include <QPixmap>
#include <QWidget>

class QPainter;

/// Noughts and crosses for two hands on a note of paper. A win is underlined but does not end the game: turns
/// go on until the board is full, and the next press clears it.
class TicTacToe : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString state READ state WRITE setState)

public:
    explicit TicTacToe(QWidget* parent = nullptr);

    [[nodiscard]] QString state() const { return myState; }
    /// Takes over what tictactoe_board::cleaned() leaves of `state`; the turn is the number of its marks.
    void setState(const QString& state);
    void clearBoard();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    QString myState = tictactoe_board::emptyState(); ///< nine letters
    int turnNumber = 0;                              ///< crosses play the even turns; 9: the board is full

protected:
    /// Takes every press, so that nothing below the board reacts; only the left button plays.
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRect cellRect(int position) const;
    void play(int position);
    void paintPaper(QPainter& painter) const;
    void paintGrid(QPainter& painter) const;
    void paintMarks(QPainter& painter) const;
    void paintWinningLines(QPainter& painter) const;

    const QPixmap paper, crossPicture, noughtPicture;
};
