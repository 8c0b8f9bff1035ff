#include "screen/GameCellControl.h"

#include "screen/TicTacToe.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QMouseEvent>

namespace board = tictactoe_board;

GameCellControl::GameCellControl(QGraphicsProxyWidget& proxy, int number)
    : StageControl(proxy), game(*static_cast<TicTacToe*>(proxy.widget())), cell(number)
{
}

QRect GameCellControl::rect() const
{
    return board::cellRect(game.size(), cell);
}

QString GameCellControl::name() const
{
    return tr("Game: row %1, column %2").arg(cell / board::side + 1).arg(cell % board::side + 1);
}

QString GameCellControl::description() const
{
    const QChar mark = board::markAt(game.state(), cell);
    return mark == board::cross ? tr("cross") : mark == board::nought ? tr("nought") : tr("empty");
}

QRectF GameCellControl::place() const
{
    return item.mapToScene(QRectF(rect())).boundingRect();
}

void GameCellControl::press()
{
    QMouseEvent event(QEvent::MouseButtonPress, rect().center(), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&game, &event);
}
