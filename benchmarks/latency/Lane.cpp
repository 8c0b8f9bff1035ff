#include "Lane.h"

#include <QElapsedTimer>
#include <QThread>

namespace {

constexpr quint32 leadFrames = 4800; // time to hand all over before the first is due
constexpr qint64 patienceMs = 1000;

QJsonArray record(quint32 frame, int status, int pitch, int velocity)
{
    return {static_cast<qint64>(frame), status, pitch, velocity};
}

} // namespace

Lane::Lane(const Candidate& wanted) : candidate(wanted), program(wanted.program), player("player") {}

bool Lane::open()
{
    if (!candidate.program.isEmpty() && !program.start(candidate.arguments))
        why = QStringLiteral("it does not start");
    else if (!connects())
        why = QStringLiteral("no way through it");
    else if (!playsItsPitches())
        why = QStringLiteral("other notes come back than it promises");
    return why.isEmpty();
}

bool Lane::connects()
{
    if (!player.isOpen() || !player.connectOutputTo(candidate.input))
        return false;
    return (candidate.output.isEmpty() || player.connectInputTo(candidate.output)) && player.waitForEcho();
}

bool Lane::playsItsPitches()
{
    constexpr int middleC = 60, octave = 12;
    QList<JackPlayer::Message> messages, expected;
    for (int key = middleC; key < middleC + octave; ++key) {
        if (!isWhite(key))
            continue;
        messages += {{noteOn, key, 64}, {noteOff, key, 0}};
        expected += {{noteOn, candidate.pitchOf(key), 64}, {noteOff, candidate.pitchOf(key), 0}};
    }
    return player.answerTo(messages) == expected;
}

QJsonArray Lane::sentFrames(const QVector<Note>& notes)
{
    QJsonArray sent;
    quint32 frame = 0;
    for (const Note& note : notes)
        if (player.readSentFrame(frame))
            sent.append(record(frame, note.status, candidate.pitchOf(note.key), note.velocity));
    return sent;
}

Lane::Played Lane::play(const QVector<Note>& notes)
{
    Played played;
    quint32 old = 0;
    while (player.readSentFrame(old)) {
    }
    const quint32 start = player.now() + leadFrames;
    for (const Note& note : notes)
        player.sendOn({note.status, note.key, note.velocity}, start + note.at);
    const auto end = static_cast<qint32>(start + notes.last().at);

    QElapsedTimer quiet;
    quiet.start();
    JackPlayer::Event event{};
    while (played.back.size() < notes.size() && quiet.elapsed() < patienceMs) {
        while (player.readEvent(event)) {
            if (event.bytes[0] == noteOn || event.bytes[0] == noteOff)
                played.back.append(record(event.frame, event.bytes[0], event.bytes[1], event.bytes[2]));
        }
        if (static_cast<qint32>(player.now()) - end < 0)
            quiet.restart();
        QThread::usleep(500);
    }
    played.sent = sentFrames(notes);
    return played;
}
