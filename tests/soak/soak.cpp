// soak [--seconds N] [--seed N] ...: the program under everything at once, for a while. Ends with 1 if a note
// was lost, added or left hanging, if the mapping was wrong, or if memory grew; with 2 where it cannot run. A
// run is repeated by its seed: the music, the gestures and the other programs are the same, their meeting is
// up to the machine.

#include "SoakRun.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <random>

namespace {

/// One value of the command line, by name; its default is in the text.
struct Number
{
    const char* name;
    const char* text;
    double otherwise;
};

constexpr Number options[] = {
    {"seconds", "How long to go on", 600},
    {"seed", "Where the made-up plan begins; 0: anywhere", 0},
    {"phase", "Seconds of a phase", 5},
    {"sample", "Seconds between two looks at the memory, at least", 10},
    {"rate", "Messages a second", 600},
    {"period", "Frames of the MIDI service's period: a busy machine loses whole ones where they are short",
     1024},
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    for (const Number& each : options)
        parser.addOption({QLatin1String(each.name), QLatin1String(each.text), QStringLiteral("number"),
                          QString::number(each.otherwise)});
    parser.addOption({QStringLiteral("program"), QStringLiteral("What is soaked"), QStringLiteral("file"),
                      QStringLiteral(SORVANE_PROGRAM)});
    parser.addOption({QStringLiteral("csv"), QStringLiteral("Where the samples go"), QStringLiteral("file")});
    parser.addOption({QStringLiteral("only"), QStringLiteral("One kind of phase alone, to find what grows"),
                      QStringLiteral("name")});
    parser.addOption({QStringLiteral("no-hand"), QStringLiteral("No gestures but those for files")});
    parser.addOption({QStringLiteral("no-ports"), QStringLiteral("Other programs stay as they are")});
    parser.addOption({QStringLiteral("any-memory"), QStringLiteral("Do not judge the memory")});
    parser.process(application);
    const auto number = [&](const char* name) { return parser.value(QLatin1String(name)).toDouble(); };

    SoakRun::Options wanted;
    wanted.program = parser.value(QStringLiteral("program"));
    wanted.seed = static_cast<unsigned>(number("seed"));
    if (wanted.seed == 0)
        wanted.seed = std::random_device()() % 1000000;
    wanted.seconds = number("seconds");
    wanted.phaseSeconds = number("phase");
    wanted.sampleSeconds = number("sample");
    wanted.rate = static_cast<int>(number("rate"));
    wanted.period = static_cast<int>(number("period"));
    wanted.judgeMemory = !parser.isSet(QStringLiteral("any-memory"));
    wanted.hand = !parser.isSet(QStringLiteral("no-hand"));
    wanted.ports = !parser.isSet(QStringLiteral("no-ports"));
    wanted.only = parser.value(QStringLiteral("only"));
    wanted.csv = parser.value(QStringLiteral("csv"));
    std::printf("soak: %.0f seconds, %d messages a second, seed %u\n", wanted.seconds, wanted.rate,
                wanted.seed);
    std::fflush(stdout);

    SoakRun run(wanted);
    if (!run.start()) {
        std::fprintf(stderr, "soak: %s\n", qUtf8Printable(run.reason()));
        return 2;
    }
    run.play();
    return run.finish() ? 0 : 1;
}
