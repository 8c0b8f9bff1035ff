#pragma once

#include "JackPlayer.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"

#include <memory>

/// The program in its window, at the screen's origin, on a private JACK interface with a client that plays it
/// and hears it.
class StageRun
{
public:
    using Messages = QList<JackPlayer::Message>;

    explicit StageRun(const QString& path) : programPath(path) {}

    /// Once for all runs. False where such tests cannot run, for the reason given.
    [[nodiscard]] bool startService() { return daemon.startForJack(); }
    [[nodiscard]] QString reason() const { return daemon.reason(); }

    [[nodiscard]] bool start(const QStringList& arguments);
    /// The program's exit status, or -1.
    [[nodiscard]] int stop();

    /// Waits until the program has taken so many moves of a hand that holds a key, all in all.
    [[nodiscard]] bool waitForMoves(int count);
    [[nodiscard]] Messages heard(int expected) { return player->heardFromHand(expected); }
    /// What the MIDI input makes it send.
    [[nodiscard]] Messages answerTo(const Messages& played) { return player->answerTo(played); }

private:
    const QString programPath;
    PipeWireDaemon daemon{2048}; // a note that a busy machine loses cannot be played again
    std::unique_ptr<ProgramUnderTest> program;
    std::unique_ptr<JackPlayer> player;
};
