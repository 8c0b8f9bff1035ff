#pragma once

#include <QList>
#include <QtTest>

#include <algorithm>

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

/// Whether the answer is the expected one; tells where they differ.
inline bool isAsTold(const QList<QList<int>>& played, const QList<QList<int>>& answer,
                     const QList<QList<int>>& expected)
{
    if (answer == expected)
        return true;
    const auto differ = std::mismatch(answer.begin(), answer.end(), expected.begin(), expected.end());
    qWarning() << "played" << played << "\nand was answered" << answer << "\nwhich differs from the rule at"
               << differ.first - answer.begin();
    return false;
}
