#include "BrowserHand.h"

#include "ChildProcess.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QtTest>

#include <algorithm>

namespace {

constexpr int patienceMs = 20000;
constexpr int stepsOfAMove = 4;

/// Nothing answers to this key. It comes behind all that a call does and tells that it has arrived.
const QString markKey = QStringLiteral("F12");

// Spare keys get the letters: a key that is given a letter for one press only can have lost it again when
// the program looks.
constexpr char keyMap[] = R"map(xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwerty)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols {
        include "pc+us+inet(evdev)"
        key <FK13> { [ adiaeresis, Adiaeresis ] };
        key <FK14> { [ odiaeresis, Odiaeresis ] };
        key <FK15> { [ udiaeresis, Udiaeresis ] };
        key <FK16> { [ Greek_lamda, Greek_LAMDA ] };
        key <FK17> { [ Greek_alpha, Greek_ALPHA ] };
        key <FK18> { [ U266A, U266B ] };
        key <FK19> { [ ssharp, eacute ] };
    };
};
)map";

QStringList to(QPoint place)
{
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}

QString number(int value)
{
    return QString::number(value);
}

} // namespace

bool BrowserHand::prepareKeyboard()
{
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::ForwardedChannels);
    compiler.start(QStringLiteral("xkbcomp"),
                   {QStringLiteral("-w0"), QStringLiteral("-"), qEnvironmentVariable("DISPLAY")});
    compiler.write(keyMap);
    compiler.closeWriteChannel();
    return compiler.waitForFinished(patienceMs) && compiler.exitStatus() == QProcess::NormalExit &&
           compiler.exitCode() == 0;
}

BrowserHand::BrowserHand()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool BrowserHand::move(QPoint place)
{
    return act(wayTo(place));
}

bool BrowserHand::press(int button)
{
    lastPress = here;
    return act({QStringLiteral("mousedown"), number(button)});
}

bool BrowserHand::release(int button)
{
    return act({QStringLiteral("mouseup"), number(button)});
}

bool BrowserHand::click(QPoint place, int button)
{
    const QPoint aside(0, place.y() > 40 ? -30 : 30);
    // A pointer that has been elsewhere begins a new click.
    if ((place - lastPress).manhattanLength() < aside.manhattanLength() && !move(place + aside))
        return false;
    lastPress = place;
    return act(wayTo(place) + QStringList{QStringLiteral("click"), number(button)});
}

bool BrowserHand::doubleClick(QPoint place)
{
    if (!move(place + QPoint(0, -30)))
        return false;
    lastPress = place;
    return act(wayTo(place) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"), number(2),
                                          QStringLiteral("--delay"), number(20), number(1)});
}

bool BrowserHand::turnWheel(QPoint place, int notches)
{
    constexpr int up = 4, down = 5;
    return act(wayTo(place) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"),
                                          number(qAbs(notches)), number(notches > 0 ? down : up)});
}

bool BrowserHand::key(const QString& name)
{
    return act({QStringLiteral("key"), name});
}

bool BrowserHand::holdKey(const QString& name)
{
    return act({QStringLiteral("keydown"), name});
}

bool BrowserHand::letKeyGo(const QString& name)
{
    return act({QStringLiteral("keyup"), name});
}

bool BrowserHand::type(const QString& text)
{
    return act({QStringLiteral("type"), QStringLiteral("--args"), number(1), text});
}

bool BrowserHand::isIdle() const
{
    const auto isOver = [](const ChildProcess* process) { return process->state() == QProcess::NotRunning; };
    return marks >= marksAwaited && std::all_of(running.begin(), running.end(), isOver);
}

// What comes from the X server comes to a window first, and to widgets from there.
bool BrowserHand::eventFilter(QObject* object, QEvent* event)
{
    if (object->isWindowType() && event->type() == QEvent::KeyRelease &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F12)
        ++marks;
    return QObject::eventFilter(object, event);
}

QStringList BrowserHand::wayTo(QPoint place)
{
    QStringList way;
    for (int step = 1; step <= stepsOfAMove; ++step)
        way += to(here + (place - here) * step / stepsOfAMove);
    here = place;
    return way;
}

// A dialog that opens meanwhile runs a loop of its own within the wait: further acts nest in this one.
bool BrowserHand::act(const QStringList& arguments)
{
    ChildProcess xdotool;
    xdotool.setProcessChannelMode(QProcess::ForwardedChannels);
    running << &xdotool;
    const int awaited = ++marksAwaited;
    xdotool.start(QStringLiteral("xdotool"), arguments + QStringList{QStringLiteral("key"), markKey});
    const auto isOver = [&] { return xdotool.state() == QProcess::NotRunning; };
    const bool done = QTest::qWaitFor(isOver, patienceMs) && xdotool.exitStatus() == QProcess::NormalExit &&
                      xdotool.exitCode() == 0 &&
                      QTest::qWaitFor([&] { return marks >= awaited; }, patienceMs);
    running.removeOne(&xdotool);
    return done;
}
