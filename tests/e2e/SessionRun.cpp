#include "SessionRun.h"

#include "XServer.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QScreen>
#include <QtTest>

#include <csignal>

namespace {

const QString virtualIn = QStringLiteral(":Sorvane MIDI In");
const QString virtualOut = QStringLiteral(":Sorvane MIDI Out");
constexpr int endMs = 8000; // a desktop that shuts down waits no longer
constexpr QPoint emptyPlace(940, 150);

bool xdotool(const QStringList& words)
{
    ChildProcess hand;
    hand.start(QStringLiteral("xdotool"), words);
    return hand.waitForFinished() && hand.exitStatus() == QProcess::NormalExit && hand.exitCode() == 0;
}

QStringList searchFor(const QString& title)
{
    return {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"), title};
}

} // namespace

bool SessionRun::forget()
{
    place = std::make_unique<QTemporaryDir>();
    return place->isValid();
}

void SessionRun::launch(const QStringList& wrapper, const QStringList& arguments)
{
    errorText.clear();
    process = std::make_unique<ChildProcess>();
    const QStringList words = wrapper + QStringList(programPath) + arguments;
    process->start(words.first(), words.mid(1));
}

bool SessionRun::start(const QStringList& more)
{
    return startBy({}, more);
}

bool SessionRun::startBy(const QStringList& wrapper, const QStringList& more)
{
    const QStringList arguments{QStringLiteral("--midi-api"), QStringLiteral("jack"),
                                QStringLiteral("--session"), file()};
    launch(wrapper, arguments + more);
    // The click gives it the keyboard, as a window manager would.
    if (!XServer::bringToOrigin(QStringLiteral("^Sorvane$")) || !XServer::click(emptyPlace))
        return false;
    client = std::make_unique<JackPlayer>("player");
    return client->connectOutputTo(virtualIn) && client->connectInputTo(virtualOut) && client->waitForEcho();
}

int SessionRun::run(const QStringList& arguments, const QStringList& wrapper)
{
    launch(wrapper, arguments);
    return end(0);
}

int SessionRun::end(int signal)
{
    if (signal != 0)
        ::kill(pid(), signal);
    const bool ended = QTest::qWaitFor([this] { return !isRunning(); }, endMs);
    errorText = errors();
    const bool tidy = ended && process->exitStatus() == QProcess::NormalExit;
    const int status = tidy ? process->exitCode() : -1;
    kill();
    return status;
}

void SessionRun::kill()
{
    client.reset();
    if (process) {
        process->kill();
        process->waitForFinished();
    }
    process.reset();
}

QString SessionRun::errors()
{
    return process ? errorText += QString::fromLocal8Bit(process->readAllStandardError()) : errorText;
}

QByteArray SessionRun::text() const
{
    QFile in(file());
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

QVariant SessionRun::value(const QString& key) const
{
    return QJsonDocument::fromJson(text()).object().value(key).toVariant();
}

bool SessionRun::hasWindow(const QString& title)
{
    return xdotool(searchFor(title));
}

bool SessionRun::giveKeyboardTo(const QString& title)
{
    return QTest::qWaitFor([&] { return xdotool(searchFor(title) + QStringList("windowfocus")); }, 10000);
}

bool SessionRun::type(const QString& text)
{
    return xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("20"), text});
}

QImage SessionRun::picture()
{
    static_cast<void>(XServer::move(emptyPlace));
    const auto grab = [] { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); };
    QImage last = grab();
    const auto isStill = [&] {
        QTest::qWait(150);
        const QImage before = std::exchange(last, grab());
        return before == last;
    };
    static_cast<void>(QTest::qWaitFor(isStill, 5000));
    return last;
}
