#include "LiveHand.h"

#include "ChildProcess.h"

#include <QGuiApplication>
#include <QtTest>

namespace {

constexpr int patienceMs = 10000;
constexpr QPoint emptyPlace(940, 150);

QStringList moveTo(QPoint stage)
{
    const QPointF pixel = QPointF(stage) * qGuiApp->devicePixelRatio();
    return {QStringLiteral("mousemove"), QString::number(qRound(pixel.x())),
            QString::number(qRound(pixel.y()))};
}

} // namespace

LiveHand::LiveHand()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool LiveHand::click(QPoint stage)
{
    return act(moveTo(stage) + QStringList{QStringLiteral("click"), QStringLiteral("1")}, 1);
}

bool LiveHand::press(QPoint pixel)
{
    const int awaited = presses + 1;
    return run({QStringLiteral("mousemove"), QString::number(pixel.x()), QString::number(pixel.y()),
                QStringLiteral("mousedown"), QStringLiteral("1")},
               [&] { return presses >= awaited; });
}

bool LiveHand::letGo()
{
    return act({QStringLiteral("mouseup"), QStringLiteral("1")}, 1);
}

bool LiveHand::key(const QString& name)
{
    return act({QStringLiteral("key"), name}, name.count(QLatin1Char('+')) + 1);
}

bool LiveHand::rest()
{
    return act(moveTo(emptyPlace), 0);
}

bool LiveHand::act(const QStringList& arguments, int expectedReleases)
{
    const int awaited = releases + expectedReleases;
    return run(arguments, [&] { return releases >= awaited; });
}

bool LiveHand::run(const QStringList& arguments, const std::function<bool()>& isTaken)
{
    ChildProcess xdotool;
    xdotool.setProcessChannelMode(QProcess::ForwardedChannels);
    xdotool.start(QStringLiteral("xdotool"), arguments);
    const auto isOver = [&] { return xdotool.state() == QProcess::NotRunning && isTaken(); };
    return QTest::qWaitFor(isOver, patienceMs) && xdotool.exitStatus() == QProcess::NormalExit &&
           xdotool.exitCode() == 0;
}

// What comes from the X server comes to a window first, and to widgets from there.
bool LiveHand::eventFilter(QObject* object, QEvent* event)
{
    if (object->isWindowType() &&
        (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyRelease))
        ++releases;
    else if (object->isWindowType() && event->type() == QEvent::MouseButtonPress)
        ++presses;
    return QObject::eventFilter(object, event);
}
