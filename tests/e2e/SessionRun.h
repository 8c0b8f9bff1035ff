#pragma once

#include "ChildProcess.h"
#include "JackPlayer.h"
#include "PipeWireDaemon.h"

#include <QImage>
#include <QTemporaryDir>

#include <sys/types.h>

#include <memory>

/// The program with a session file, started and ended over and over, its window at the screen's origin, on a
/// private JACK interface with a client that plays it and hears it.
class SessionRun
{
public:
    using Messages = QList<JackPlayer::Message>;

    explicit SessionRun(const QString& path) : programPath(path) {}

    /// Once for all runs. False where such tests cannot run, for the reason given.
    [[nodiscard]] bool startService() { return daemon.startForJack(); }
    [[nodiscard]] QString reason() const { return daemon.reason(); }
    /// Forgets the session: a fresh folder for its file.
    [[nodiscard]] bool forget();

    /// Starts with the session and more, and waits until window and ports answer.
    [[nodiscard]] bool start(const QStringList& more = {});
    /// The same by way of a program that hands over by exec, its own arguments first.
    [[nodiscard]] bool startBy(const QStringList& wrapper, const QStringList& more = {});
    /// Starts with these arguments alone and waits for the end; the exit status, or -1.
    [[nodiscard]] int run(const QStringList& arguments, const QStringList& wrapper = {});
    /// Sends a signal, or 0 for none, and waits for the end; the exit status, or -1 for any other end.
    [[nodiscard]] int end(int signal);
    /// As a crash would; ends what a test left running.
    void kill();

    [[nodiscard]] bool isRunning() const { return process && process->state() != QProcess::NotRunning; }
    [[nodiscard]] pid_t pid() const { return static_cast<pid_t>(process->processId()); }
    [[nodiscard]] QString errors();
    [[nodiscard]] QString folder() const { return place->path(); }
    [[nodiscard]] QString file() const { return place->filePath(QStringLiteral("last night.svdb")); }
    /// The session's file, which is empty if it is not there.
    [[nodiscard]] QByteArray text() const;
    /// One value at the root of the session's file.
    [[nodiscard]] QVariant value(const QString& key) const;

    [[nodiscard]] JackPlayer& player() { return *client; }
    [[nodiscard]] Messages answerTo(const Messages& played) { return client->answerTo(played); }
    [[nodiscard]] Messages heard(int expected) { return client->heardFromHand(expected); }
    /// The top windows of the program, by a regular expression for their titles.
    [[nodiscard]] static bool hasWindow(const QString& title);
    /// Brings the keyboard's focus there, as a window manager does, once the window has come.
    [[nodiscard]] static bool giveKeyboardTo(const QString& title);
    [[nodiscard]] static bool type(const QString& text);
    /// What the screen shows, once it stands still.
    [[nodiscard]] static QImage picture();

private:
    void launch(const QStringList& wrapper, const QStringList& arguments);

    const QString programPath;
    QString errorText;
    PipeWireDaemon daemon{1024};
    std::unique_ptr<QTemporaryDir> place;
    std::unique_ptr<ChildProcess> process;
    std::unique_ptr<JackPlayer> client;
};
