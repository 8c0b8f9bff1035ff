#include "XServer.h"

#include <QStringList>

namespace {

// The program compresses moves that pile up in its queue: a hand is slower than that.
constexpr char handPause[] = "0.04";

bool xdotool(const QStringList& arguments)
{
    ChildProcess hand;
    hand.setProcessChannelMode(QProcess::ForwardedChannels);
    hand.start(QStringLiteral("xdotool"), arguments);
    return hand.waitForFinished(-1) && hand.exitStatus() == QProcess::NormalExit && hand.exitCode() == 0;
}

QStringList moveTo(QPoint pos)
{
    return {QStringLiteral("mousemove"), QString::number(pos.x()), QString::number(pos.y()),
            QStringLiteral("sleep"), QString::fromLatin1(handPause)};
}

} // namespace

XServer::~XServer()
{
    process.terminate();
    process.waitForFinished();
}

bool XServer::start()
{
    process.setProgram(QStringLiteral("Xvfb"));
    process.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                          QStringLiteral("0"), QStringLiteral("952x480x24"), QStringLiteral("-dpi"),
                          QStringLiteral("96"), QStringLiteral("-br")});
    process.start();
    if (!process.waitForStarted() || !process.waitForReadyRead(20000))
        return false;
    qputenv("DISPLAY", ":" + process.readAllStandardOutput().trimmed());
    return true;
}

bool XServer::click(QPoint pos, int button)
{
    return xdotool(moveTo(pos) + QStringList{QStringLiteral("click"), QString::number(button)});
}

bool XServer::drag(const QList<QPoint>& points)
{
    QStringList arguments = moveTo(points.first());
    arguments += {QStringLiteral("mousedown"), QStringLiteral("1")};
    for (const QPoint& point : points)
        arguments += moveTo(point);
    arguments += {QStringLiteral("mouseup"), QStringLiteral("1")};
    return xdotool(arguments);
}

bool XServer::key(const QString& name)
{
    return xdotool({QStringLiteral("key"), name});
}
