#pragma once

#include "ChildProcess.h"

#include <QPoint>
#include <QSize>

/// A private X server without a window manager. On its screen, which is of the window's size unless told
/// otherwise, the window stands at the origin, so that screen and stage coordinates are the same.
/// start() points DISPLAY of this process, and so of its children, to it.
class XServer
{
public:
    explicit XServer(QSize screen = {952, 480}) : size(screen) {}
    ~XServer();

    bool start();
    [[nodiscard]] qint64 pid() const { return process.processId(); }

    /// Real events through the server's test extension.
    static bool click(QPoint pos, int button = 1);
    /// One click after the other, as fast as they come.
    static bool clickAll(const QList<QPoint>& points);
    /// Press at the first point, move over the others, release at the last.
    static bool drag(const QList<QPoint>& points);
    static bool key(const QString& name);
    /// A key that stays down, until it is let up.
    static bool holdKey(const QString& name);
    static bool letKeyUp(const QString& name);
    /// The parts of a gesture. Once they return, the server has passed the event on.
    static bool move(QPoint pos);
    static bool press(int button = 1);
    static bool release(int button = 1);

    /// Brings the window of that title to the origin, which a larger screen calls for. Waits for the window.
    static bool bringToOrigin(const QString& title);
    /// Gives the keyboard to the window of that title, as a window manager does.
    static bool giveKeyboard(const QString& title);

private:
    const QSize size;
    ChildProcess process;
};
