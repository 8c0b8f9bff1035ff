#pragma once

#include "Candidate.h"
#include "JackPlayer.h"
#include "ProgramUnderTest.h"

#include <QJsonArray>

/// One candidate, started, with a player before and behind it. It ends with this object.
class Lane
{
public:
    static constexpr int noteOn = 0x90, noteOff = 0x80;
    /// A message and the frame, from the beginning, at which it leaves.
    struct Note
    {
        quint32 at;
        int status, key, velocity;
    };
    struct Played
    {
        QJsonArray sent, back; ///< [frame, status, pitch as it comes back, velocity]
    };

    explicit Lane(const Candidate& wanted);

    /// False, with reason(), if no way is open, or other notes come back than the candidate promises.
    [[nodiscard]] bool open();
    [[nodiscard]] QString reason() const { return why; }
    /// Until all is back, or nothing more comes.
    [[nodiscard]] Played play(const QVector<Note>& notes);

private:
    [[nodiscard]] bool connects();
    [[nodiscard]] bool playsItsPitches();
    [[nodiscard]] QJsonArray sentFrames(const QVector<Note>& notes);

    const Candidate candidate;
    ProgramUnderTest program;
    JackPlayer player;
    QString why;
};
