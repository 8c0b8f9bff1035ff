#pragma once

#include <QList>
#include <QtTest>

/// Plays messages and an echo behind them; returns what comes back before the echo, or all of it if the echo
/// does not come in time. `Player` has send() and a read() that gives an empty message when there is none.
template <typename Player>
QList<QList<int>> answerBeforeEcho(Player& player, const QList<QList<int>>& messages, const QList<int>& echo,
                                   int timeoutMs)
{
    for (const QList<int>& message : messages)
        player.send(message);
    player.send(echo);
    QList<QList<int>> answer;
    static_cast<void>(QTest::qWaitFor(
        [&] {
            for (QList<int> message = player.read(); !message.isEmpty(); message = player.read()) {
                if (message == echo)
                    return true;
                answer.append(message);
            }
            return false;
        },
        timeoutMs));
    return answer;
}
