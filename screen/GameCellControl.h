#pragma once

#include "keys/StageControl.h"

#include <QCoreApplication>

class QGraphicsProxyWidget;
class TicTacToe;

/// A cell of the small game, 0 to 8.
class GameCellControl : public StageControl
{
    Q_DECLARE_TR_FUNCTIONS(GameCellControl)

public:
    /// The proxy must hold the game.
    GameCellControl(QGraphicsProxyWidget& proxy, int number);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString description() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PushButton; }
    [[nodiscard]] QRectF place() const override;
    void press() override;

private:
    [[nodiscard]] QRect rect() const;

    TicTacToe& game;
    const int cell;
};
