// latency_bench [ROUNDS]: the round trip of a note through Sorvane beside that through a bare RtMidi
// pass-through, in one run and note by note in turn, and a stream of 100,000 messages through each. Ends with
// 1 if the aim is missed: median and 99th percentile at most one period above the pass-through, and nothing
// lost that it does not lose.

#include "JackPlayer.h"
#include "PipeWireDaemon.h"
#include "ProgramUnderTest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QThread>
#include <QVector>
#include <QtTest>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int period = 256, rate = 48000;
constexpr int streamLength = 100000, streamPerSecond = 5000;

constexpr int whiteKeys[] = {60, 62, 64, 65, 67, 69, 71}; // one message in, one message out, on both ways

struct Lane
{
    const char* name;
    JackPlayer player;
    QVector<double> frames;
    int lost = 0;

    bool open(const QString& input, const QString& output)
    {
        return player.connectOutputTo(input) && player.connectInputTo(output) && player.waitForEcho();
    }
};

/// One note-on; the frames from its departure to its return, or -1.
double roundTrip(JackPlayer& player, const JackPlayer::Message& message, quint32 offset)
{
    quint32 sent = 0;
    while (player.readSentFrame(sent)) {
    }
    player.sendAt(message, offset);
    QElapsedTimer timer;
    timer.start();
    JackPlayer::Event event{};
    while (!player.readEvent(event)) {
        if (timer.elapsed() > 1000)
            return -1;
        QThread::usleep(200);
    }
    return player.readSentFrame(sent) ? static_cast<double>(event.frame - sent) : -1;
}

void measureRound(Lane& lane, int round)
{
    const int note = whiteKeys[round % 7];
    for (const int status : {0x90, 0x80}) {
        const auto offset = static_cast<quint32>(QRandomGenerator::global()->bounded(period));
        const double frames = roundTrip(lane.player, {status, note, 64}, offset);
        if (frames < 0)
            ++lane.lost;
        else
            lane.frames.append(frames);
    }
}

double percentile(QVector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? -1 : values.at(static_cast<int>(share * (values.size() - 1)));
}

/// How many of the stream's messages do not come back.
int streamLoss(Lane& lane)
{
    QElapsedTimer timer;
    timer.start();
    int sent = 0, back = 0;
    JackPlayer::Event event{};
    while (sent < streamLength || timer.elapsed() < 1000LL * streamLength / streamPerSecond + 2000) {
        const qint64 due = std::min<qint64>(streamLength, timer.elapsed() * streamPerSecond / 1000);
        for (; sent < due; ++sent)
            lane.player.send({sent % 2 ? 0x80 : 0x90, whiteKeys[sent / 2 % 7], 64});
        while (lane.player.readEvent(event))
            ++back;
        QThread::usleep(500);
    }
    return sent - back;
}

void report(const Lane& lane)
{
    std::printf("%-14s %8d %10.0f %10.0f %8d\n", lane.name, lane.frames.size(), percentile(lane.frames, 0.5),
                percentile(lane.frames, 0.99), lane.lost);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 4000;
    PipeWireDaemon daemon;
    if (!daemon.start()) {
        std::fprintf(stderr, "no daemon: %s\n", qUtf8Printable(daemon.reason()));
        return 2;
    }
    ProgramUnderTest sorvane(QStringLiteral(SORVANE_PROGRAM)),
        passThrough(QStringLiteral(PASSTHROUGH_PROGRAM));
    sorvane.start({"--headless", "--midi-api", "jack", "--power", "on"});
    passThrough.start({});
    Lane lanes[] = {{"sorvane", JackPlayer("one"), {}, 0}, {"pass-through", JackPlayer("two"), {}, 0}};
    if (!lanes[0].open(":Sorvane MIDI In", ":Sorvane MIDI Out") ||
        !lanes[1].open(":passthrough input", ":passthrough output")) {
        std::fprintf(stderr, "no way through the programs\n");
        return 2;
    }
    for (int round = 0; round < rounds; ++round)
        for (Lane& lane : lanes)
            measureRound(lane, round);
    std::printf("round trip in frames (one period is %d, at %d Hz)\n%-14s %8s %10s %10s %8s\n", period, rate,
                "", "notes", "median", "99 %", "lost");
    for (const Lane& lane : lanes)
        report(lane);
    const double median = percentile(lanes[0].frames, 0.5) - percentile(lanes[1].frames, 0.5);
    const double high = percentile(lanes[0].frames, 0.99) - percentile(lanes[1].frames, 0.99);
    std::printf("%-14s %8s %10.2f %10.2f  periods\n", "difference", "", median / period, high / period);
    for (Lane& lane : lanes) {
        lane.lost += streamLoss(lane);
        std::printf("%-14s %d messages at %d a second: %d lost with those above\n", lane.name, streamLength,
                    streamPerSecond, lane.lost);
    }
    return median <= period && high <= period && lanes[0].lost <= lanes[1].lost ? 0 : 1;
}
