// What is played and done, and in which order.

#include "SoakRun.h"

#include <algorithm>
#include <array>

namespace {

using Style = Score::Style;
using gestures::Repertoire;

constexpr std::array<SoakRun::Phase, 7> phases{{
    {"power off", Style::pass, Repertoire::powerOff, false, false, false},
    {"mapped", Style::mapped, Repertoire::looking, true, false, false},
    {"recalls", Style::recalls, Repertoire::looking, true, true, false},
    {"power", Style::anywhere, Repertoire::power, true, true, true},
    {"presets", Style::flood, Repertoire::presets, true, true, true},
    {"anchors", Style::anywhere, Repertoire::anchors, true, true, false},
    {"files", Style::otherChannels, Repertoire::looking, true, true, true},
}};

constexpr int mostAtOnce = 24; // a period carries some 160

} // namespace

void SoakRun::play()
{
    std::array<SoakRun::Phase, phases.size()> order = phases;
    handsOff();
    atHome = file("ctrl+s", QStringLiteral("home"));
    if (!atHome)
        fault(QStringLiteral("the state was not saved"));
    while (seconds() < options.seconds && program->isRunning()) {
        std::shuffle(order.begin(), order.end(), numbers);
        for (const Phase& phase : order)
            if (seconds() < options.seconds && program->isRunning())
                playPhase(phase);
    }
    handsOff();
}

void SoakRun::playPhase(const Phase& phase)
{
    where = QString::fromLatin1(phase.name);
    ++phasesPlayed[where];
    if (phase.fromHome && !atHome)
        goHome();
    if (model.presets.powerKey != 0 && model.presets.power != phase.power) {
        score.playByModel({0x90, model.presets.powerKey, 100});
        score.playByModel({0x80, model.presets.powerKey, 0});
        atHome = false;
    }
    if (phase.style == Style::recalls || phase.leavesModel)
        atHome = false;
    music(phase);
    handsOff();
    settle();
    checkNothingSounds();
    if (phase.leavesModel) {
        walkByFile();
        goHome();
    } else {
        walkTheKeys();
    }
    measureLatency();
    sampleWhenDue();
}

// The music keeps its tempo; where it was held up it catches up.
void SoakRun::music(const Phase& phase)
{
    score.begin(phase.style);
    QElapsedTimer time;
    time.start();
    const double lasts = options.phaseSeconds * 1000;
    qint64 played = 0;
    while (double(time.elapsed()) < lasts && program->isRunning()) {
        const qint64 due = time.elapsed() * options.rate / 1000;
        for (int now = 0; now < mostAtOnce && played < due; ++now, ++played)
            score.playNext();
        if (played % 97 == 0)
            sysex->send(8 + static_cast<int>(played % 300));
        if (hand.isIdle())
            hand.add(gestures::any(phase.repertoire, handNumbers, PortChurn::rows));
        churn.step();
        turn();
    }
    score.releaseAll();
}
