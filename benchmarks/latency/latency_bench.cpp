// latency_bench PERIOD FILE ROUNDS BUSY: plays the same notes through each candidate, one candidate at a time
// and all of them in turn, round after round, so that a drift of the machine favours none. Writes when each
// message left and when it came back; the report beside these programs makes figures of that. Run it by
// latency_bench.sh.

#include "Burden.h"
#include "Lane.h"
#include "PipeWireDaemon.h"
#include "XServer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <sched.h>

#include <algorithm>
#include <cstdio>

namespace {

constexpr quint32 rate = 48000;

const QVector<int>& keysOfFourOctaves()
{
    static const QVector<int> keys = [] {
        QVector<int> white;
        for (int key = 36; key < 84; ++key)
            if (isWhite(key))
                white.append(key);
        return white;
    }();
    return keys;
}

Lane::Note press(quint32 at, int key, int number)
{
    return {at, Lane::noteOn, key, 1 + number % 127};
}

Lane::Note release(quint32 at, int key)
{
    return {at, Lane::noteOff, key, 0};
}

/// Press and release in turn, so many messages a second. Keys and velocities tell the messages apart.
QVector<Lane::Note> stream(int messages, quint32 perSecond)
{
    const QVector<int>& keys = keysOfFourOctaves();
    QVector<Lane::Note> notes;
    for (int i = 0; i < messages / 2; ++i) {
        const int key = keys.at(i % keys.size());
        notes.append(press(static_cast<quint32>(2 * i) * rate / perSecond, key, i));
        notes.append(release(static_cast<quint32>(2 * i + 1) * rate / perSecond, key));
    }
    return notes;
}

/// Ten keys down at one frame, and up at one, ten times a second.
QVector<Lane::Note> chords(int count)
{
    const QVector<int> keys = keysOfFourOctaves().mid(7, 10);
    QVector<Lane::Note> notes;
    for (int chord = 0; chord < count; ++chord) {
        const auto at = static_cast<quint32>(chord) * rate / 10;
        for (int i = 0; i < keys.size(); ++i)
            notes.append(press(at, keys.at(i), 10 * chord + i));
        for (const int key : keys)
            notes.append(release(at + rate / 20, key));
    }
    return notes;
}

struct Piece
{
    const char* name;
    QVector<Lane::Note> notes;
};

const QVector<Piece>& pieces()
{
    static const QVector<Piece> all{
        {"stream", stream(600, 480)}, {"chords", chords(12)}, {"flood", stream(2000, 5000)}};
    return all;
}

/// Whether the service gives the threads that carry messages real-time priority here.
bool isRealTime()
{
    const QStringList threads =
        QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(threads.begin(), threads.end(), [](const QString& id) {
        return (sched_getscheduler(id.toInt()) & 0x7) == SCHED_FIFO;
    });
}

/// Appends what came of each piece; false if there is no way through a candidate that is installed.
bool measure(const Candidate& candidate, int round, QJsonObject& result)
{
    if (!candidate.isThere()) {
        result.insert(QStringLiteral("missing"), QJsonArray{candidate.name});
        return true;
    }
    Lane lane(candidate);
    if (!lane.open()) {
        std::fprintf(stderr, "latency_bench: %s: %s\n", qUtf8Printable(candidate.name),
                     qUtf8Printable(lane.reason()));
        return false;
    }
    QJsonArray played = result.value(QLatin1String("played")).toArray();
    for (const Piece& piece : pieces()) {
        const Lane::Played all = lane.play(piece.notes);
        played.append(QJsonObject{{"lane", candidate.name},
                                  {"piece", QLatin1String(piece.name)},
                                  {"round", round},
                                  {"due", piece.notes.size()},
                                  {"sent", all.sent},
                                  {"back", all.back}});
    }
    result.insert(QStringLiteral("played"), played);
    result.insert(QStringLiteral("realTime"), isRealTime());
    return true;
}

bool measureAll(int rounds, QJsonObject& result)
{
    const QVector<Candidate> candidates = allCandidates(QStringLiteral("player"));
    for (int round = 0; round < rounds; ++round)
        for (int i = 0; i < candidates.size(); ++i)
            if (!measure(candidates.at((round + i) % candidates.size()), round, result))
                return false;
    return true;
}

bool write(const QString& path, const QJsonObject& result)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(result).toJson(QJsonDocument::Compact)) > 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto number = [&](int i) { return argc > i ? QByteArray(argv[i]).toInt() : 0; };
    const int period = number(1), rounds = number(3), busy = number(4);
    if (argc != 5 || period <= 0 || rounds <= 0 || busy < 0) {
        std::fprintf(stderr, "usage: latency_bench PERIOD FILE ROUNDS BUSY\n");
        return 2;
    }
    PipeWireDaemon daemon(period);
    XServer screen;
    if (!daemon.start() || !screen.start()) {
        std::fprintf(stderr, "latency_bench: no daemon or no screen: %s\n", qUtf8Printable(daemon.reason()));
        return 2;
    }
    QJsonObject result{{"period", period}, {"rate", static_cast<int>(rate)}, {"busy", busy}};
    const Burden burden(busy);
    return measureAll(rounds, result) && write(QString::fromLocal8Bit(argv[2]), result) ? 0 : 2;
}
