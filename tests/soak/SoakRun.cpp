// Starting, the turn that everything happens in, and the report.

#include "SoakRun.h"

#include <QCoreApplication>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <cstdio>

namespace {

const QString virtualIn = QStringLiteral(":Sorvane MIDI In"),
              virtualOut = QStringLiteral(":Sorvane MIDI Out");

constexpr int tracerMs = 5; // one in every period

double percentile(QVector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? -1 : values.at(static_cast<int>(share * (values.size() - 1)));
}

void reportLatency(const char* name, const QVector<double>& frames)
{
    constexpr double framesOfMs = 48;
    std::printf("%-22s %8d %8.1f %8.1f %8.1f %8.1f\n", name, frames.size(),
                percentile(frames, 0.5) / framesOfMs, percentile(frames, 0.9) / framesOfMs,
                percentile(frames, 0.99) / framesOfMs, percentile(frames, 1) / framesOfMs);
}

} // namespace

SoakRun::SoakRun(const Options& given)
    : options(given), numbers(given.seed), handNumbers(given.seed + 1), portNumbers(given.seed + 2),
      daemon(given.period),
      score(numbers, model, ledger, [this](const auto& message) { return send(message); })
{
    model.setPower(true);
    model.setTonic(3);
    model.setScale("xoxxoxoxxoxo");
    home = model;
}

bool SoakRun::start()
{
    qputenv("QT_FONT_DPI", "96");
    if (!daemon.start() || !screen.start()) {
        why = QStringLiteral("NO PIPEWIRE DAEMON OR X SERVER: ") + daemon.reason();
        return false;
    }
    for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qputenv(place, folder.path().toLocal8Bit());
    clock.start();
    churn.begin();
    program = std::make_unique<ProgramUnderTest>(options.program);
    if (!waitForRows()) {
        why = QStringLiteral("NO JACK INTERFACE on the private PipeWire daemon (is pw-jack there?)");
        return false;
    }
    if (!program->start(
            {"--midi-api", "jack", "--power", "on", "--tonic", "D#", "--scale", "xoxxoxoxxoxo"}) ||
        !XServer::bringToOrigin(QStringLiteral("^Sorvane$"))) {
        why = QStringLiteral("the program does not start: ") + program->errors();
        return false;
    }
    player = std::make_unique<JackPlayer>("player");
    sysex = std::make_unique<SysexPlayer>();
    if (!player->connectOutputTo(virtualIn) || !player->connectInputTo(virtualOut) ||
        !sysex->connectTo(virtualIn) || !player->waitForEcho()) {
        why = QStringLiteral("no way through the program");
        return false;
    }
    static_cast<void>(player->collect(1 << 20, 600)); // echoes that came late
    quint32 frame = 0;
    while (player->readSentFrame(frame)) {
    }
    if (options.ports && options.judgeMemory)
        churn.wearIn();
    resources = std::make_unique<ResourceLog>(program->pid(), screen.pid());
    return true;
}

// The listed clients are in the program's own list.
bool SoakRun::waitForRows()
{
    const auto isComplete = [this] {
        ProgramUnderTest lister(options.program);
        return lister.run({"--headless", "--list-ports", "--midi-api", "jack"}) == 0 &&
               lister.output().count(QStringLiteral("piano:")) == 2 &&
               lister.output().count(QStringLiteral("pads:")) == 2;
    };
    return QTest::qWaitFor(isComplete, 20000);
}

qint64 SoakRun::send(const NoteLedger::Message& message)
{
    if (!sinceTracer.isValid() || sinceTracer.elapsed() >= tracerMs) {
        sinceTracer.start();
        const NoteLedger::Message tracer{0xBF, 118, marker = (marker + 1) % 128};
        ledger.expect(tracer, sentCount++);
        player->send(tracer);
    }
    player->send(message);
    return sentCount++;
}

// Everything there is to do now; a millisecond if that is nothing.
void SoakRun::turn()
{
    listen();
    hand.step();
    QCoreApplication::processEvents();
    QThread::usleep(1000);
}

void SoakRun::listen()
{
    quint32 frame = 0;
    while (player->readSentFrame(frame))
        sentFrames.append(frame);
    JackPlayer::Event event{};
    while (player->readEvent(event)) {
        NoteLedger::Message message;
        for (int i = 0; i < event.size; ++i)
            message.append(event.bytes[i]);
        const qint64 sent = ledger.hear(message);
        if (sent >= 0 && sent < sentFrames.size())
            loaded.append(double(event.frame - sentFrames.at(static_cast<int>(sent))));
    }
    for (const QString& text : ledger.takeSurplus())
        spoil(text);
    for (const NoteLedger::Loss& loss : ledger.takeLosses())
        judge(loss);
}

// A busy machine's service leaves a client out of a period, and all that the period carried is gone, a tracer
// always among it: the program never saw it. What the program itself loses does not begin and end where
// periods do. Only what was mapped meanwhile may sound otherwise, if a recall was lost.
void SoakRun::judge(const NoteLedger::Loss& loss)
{
    const auto frame = [this](qint64 sent) {
        return sent >= 0 && sent < sentFrames.size() ? qint64(sentFrames.at(static_cast<int>(sent))) : -1;
    };
    const bool isWhole = frame(loss.before) != frame(loss.first) &&
                         (frame(loss.last) != frame(loss.after) || !loss.surplus.isEmpty());
    const bool leftOut = player->missedPeriods() != missedSeen;
    missedSeen = player->missedPeriods();
    if (!leftOut && !(loss.tracers && isWhole)) {
        spoil(loss.text + QLatin1Char(' ') + loss.surplus.join(QStringLiteral(", ")));
        return;
    }
    if (!spoilt)
        std::printf("the service lost a period at %.1f s in %s: %s\n", seconds(), qPrintable(where),
                    qPrintable(loss.text));
    ++serviceLosses;
    spoilt = true;
}

// What follows out of the first loss is not counted again.
void SoakRun::spoil(const QString& what)
{
    if (!spoilt)
        fault(what);
    spoilt = true;
}

void SoakRun::fault(const QString& what)
{
    ++faultCount;
    std::printf("FAULT at %.1f s in %s (phase's seed %u): %s\n", seconds(), qPrintable(where), options.seed,
                qPrintable(what));
    std::fflush(stdout);
}

bool SoakRun::finish()
{
    const bool ran = program->isRunning();
    const QString errors = program->errors();
    const int status = program->stop();
    if (!ran || status != 0)
        fault(QStringLiteral("the program ended with %1: %2").arg(status).arg(errors.right(2000)));
    const QStringList grown = resources->growth(warmUp());
    if (options.judgeMemory)
        for (const QString& text : grown)
            fault(text);
    if (phasesSpoilt * 2 > phasesBegun)
        fault(QStringLiteral("the machine is too busy to tell anything"));
    if (!options.csv.isEmpty() && !resources->writeCsv(options.csv))
        fault(QStringLiteral("cannot write ") + options.csv);

    std::printf("\n%s\nlatency in ms              count   median     90 %%     99 %%  longest\n",
                qPrintable(resources->table()));
    reportLatency("while all goes on", loaded);
    reportLatency("a note alone", quiet);
    for (auto phase = phasesPlayed.begin(); phase != phasesPlayed.end(); ++phase)
        std::printf("%s %d times, ", qPrintable(phase.key()), phase.value());
    const NoteLedger::Counts& count = ledger.counts();
    std::printf(
        "\n%lld messages sent, %lld awaited and %lld heard, %lld notes by hand, %d gestures (%d failed), %d "
        "system exclusive messages, %d comings and goings of ports\n",
        sentCount, count.expected, count.heard, count.handOns, hand.done(), hand.failed(), sysex->sent(),
        churn.changes());
    std::printf("%d gaps by the service, which spoilt %d of %d phases\n", serviceLosses, phasesSpoilt,
                phasesBegun);
    std::printf("memory %s; %d faults in %.0f s, seed %u: %s\n",
                !options.judgeMemory ? "not judged"
                : grown.isEmpty()    ? "flat"
                                     : "NOT flat",
                faultCount, seconds(), options.seed, faultCount == 0 ? "passed" : "FAILED");
    return faultCount == 0;
}
