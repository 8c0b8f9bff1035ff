#pragma once

#include "ChildProcess.h"

#include <QPoint>

/// A private X server with a screen of the window's size, so that screen and stage coordinates are the same.
/// start() points DISPLAY of this process, and so of its children, to it.
class XServer
{
public:
    ~XServer();

    bool start();

    /// Real events through the server's test extension.
    static bool click(QPoint pos, int button = 1);
    /// Press at the first point, move over the others, release at the last.
    static bool drag(const QList<QPoint>& points);
    static bool key(const QString& name);

private:
    ChildProcess process;
};
