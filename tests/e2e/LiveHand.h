#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

/// A real hand for a window of the test's own process: its events come through the X server while the event
/// loop runs. Each call returns once the program has taken the last of them, false if it does not. Make it
/// after the window, whose event filter swallows keys.
class LiveHand : public QObject
{
    Q_OBJECT

public:
    LiveHand();

    /// Presses and releases the left button at a place of the stage, which stands at the screen's origin.
    bool click(QPoint stage);
    /// Presses the left button at a pixel of the screen and holds it.
    bool press(QPoint pixel);
    /// Lets it go where it is.
    bool letGo();
    /// Presses a key, or several joined by "+".
    bool key(const QString& name);
    /// Moves the pointer away from all that answers to it.
    bool rest();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool act(const QStringList& arguments, int expectedReleases);
    bool run(const QStringList& arguments, const std::function<bool()>& isTaken);

    int presses = 0, releases = 0;
};
