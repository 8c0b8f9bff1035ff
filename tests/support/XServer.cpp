#include "XServer.h"

#include <QStringList>
#include <QtTest>

namespace {

// The program compresses moves that pile up in its queue: a hand is slower than that.
constexpr char handPause[] = "0.04";

bool xdotool(const QStringList& arguments,
             QProcess::ProcessChannelMode channels = QProcess::ForwardedChannels)
{
    ChildProcess hand;
    hand.setProcessChannelMode(channels);
    hand.start(QStringLiteral("xdotool"), arguments);
    return hand.waitForFinished(-1) && hand.exitStatus() == QProcess::NormalExit && hand.exitCode() == 0;
}

QStringList jumpTo(QPoint pos)
{
    return {QStringLiteral("mousemove"), QString::number(pos.x()), QString::number(pos.y())};
}

QStringList moveTo(QPoint pos)
{
    return jumpTo(pos) + QStringList{QStringLiteral("sleep"), QString::fromLatin1(handPause)};
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
                          QStringLiteral("0"),
                          QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
                          QStringLiteral("-dpi"), QStringLiteral("96"), QStringLiteral("-br")});
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

bool XServer::clickAll(const QList<QPoint>& points)
{
    QStringList arguments;
    for (const QPoint& point : points)
        arguments += jumpTo(point) + QStringList{QStringLiteral("mousedown"), QStringLiteral("1"),
                                                 QStringLiteral("mouseup"), QStringLiteral("1")};
    return xdotool(arguments);
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

bool XServer::holdKey(const QString& name)
{
    return xdotool({QStringLiteral("keydown"), name});
}

bool XServer::letKeyUp(const QString& name)
{
    return xdotool({QStringLiteral("keyup"), name});
}

bool XServer::move(QPoint pos)
{
    return xdotool(jumpTo(pos));
}

bool XServer::press(int button)
{
    return xdotool({QStringLiteral("mousedown"), QString::number(button)});
}

bool XServer::release(int button)
{
    return xdotool({QStringLiteral("mouseup"), QString::number(button)});
}

bool XServer::bringToOrigin(const QString& title)
{
    const QStringList arguments{QStringLiteral("search"),     QStringLiteral("--onlyvisible"),
                                QStringLiteral("--name"),     title,
                                QStringLiteral("windowmove"), QStringLiteral("0"),
                                QStringLiteral("0")};
    return QTest::qWaitFor([&] { return xdotool(arguments, QProcess::MergedChannels); }, 10000);
}

bool XServer::giveKeyboard(const QString& title)
{
    return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                    title, QStringLiteral("windowfocus"), QStringLiteral("--sync")});
}
