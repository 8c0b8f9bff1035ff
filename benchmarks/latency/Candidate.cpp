#include "Candidate.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// What D Dorian, played from middle C up, adds to each note of the octave; black keys are none of its
/// business.
constexpr int none = 0;
constexpr int dorianSteps[] = {2, none, 2, none, 1, 2, none, 2, none, 2, none, 1};

const QStringList own{QStringLiteral("--midi-api"), QStringLiteral("jack"), QStringLiteral("--power")};
const QStringList off{QStringLiteral("off")};
const QStringList dorian{QStringLiteral("on"), QStringLiteral("--tonic"), QStringLiteral("D"),
                         QStringLiteral("--scale"), QStringLiteral("xoxxoxoxoxxo")};
const QStringList headless{QStringLiteral("--headless")};

Candidate sorvane(const char* name, const QStringList& arguments, bool maps)
{
    return {QLatin1String(name),
            QStringLiteral(SORVANE_PROGRAM),
            own + arguments,
            QStringLiteral(":Sorvane MIDI In"),
            QStringLiteral(":Sorvane MIDI Out"),
            maps};
}

/// The same scale by the plug-in's twelve settings.
Candidate plugin()
{
    QStringList arguments{QStringLiteral("-n"), QStringLiteral("mapper")};
    for (int note = 0; note < 12; ++note)
        arguments += {QStringLiteral("-c"), QStringLiteral("k%1=%2").arg(note).arg(dorianSteps[note])};
    arguments += QStringLiteral("http://gareus.org/oss/lv2/midifilter#mapkeyscale");
    return {QStringLiteral("plugin"),        QStringLiteral("jalv"),           arguments,
            QStringLiteral("mapper:midiin"), QStringLiteral("mapper:midiout"), true};
}

} // namespace

int Candidate::pitchOf(int key) const
{
    return maps ? key + dorianSteps[key % 12] : key;
}

bool Candidate::isThere() const
{
    return program.isEmpty() || QFileInfo(program).isExecutable() ||
           !QStandardPaths::findExecutable(program).isEmpty();
}

QVector<Candidate> allCandidates(const QString& player)
{
    return {
        {QStringLiteral("loop"), {}, {}, player + QStringLiteral(":in"), {}, false},
        {QStringLiteral("rtmidi"),
         QStringLiteral(PASSTHROUGH_PROGRAM),
         {},
         QStringLiteral(":passthrough input"),
         QStringLiteral(":passthrough output"),
         false},
        sorvane("sorvane-off", off + headless, false),
        sorvane("sorvane-headless", dorian + headless, true),
        sorvane("sorvane-window", dorian, true),
        plugin(),
    };
}

bool isWhite(int key)
{
    constexpr bool white[] = {true, false, true, false, true, true, false, true, false, true, false, true};
    return white[key % 12];
}
