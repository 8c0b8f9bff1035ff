// What is played and done, and in which order.

#include "SoakRun.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

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
    std::vector<Phase> order;
    std::copy_if(phases.begin(), phases.end(), std::back_inserter(order), [this](const Phase& phase) {
        return options.only.isEmpty() || options.only == QLatin1String(phase.name);
    });
    handsOff();
    atHome = file("ctrl+s", QStringLiteral("home"));
    if (!atHome)
        fault(QStringLiteral("the state was not saved"));
    while (!order.empty() && seconds() < options.seconds && program->isRunning()) {
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
    ++phasesBegun;
    if (phase.fromHome && !atHome)
        goHome();
    if (model.presets.power != phase.power)
        for (const int status : {0x90, 0x80})
            score.playByModel({status, model.presets.powerKey, 100});
    atHome = atHome && phase.style == Style::mapped;
    if (!spoilt)
        music(phase);
    handsOff();
    settle();
    if (!spoilt)
        checkPhase(phase);
    if (spoilt) {
        ++phasesSpoilt;
        recover();
    } else {
        ++phasesPlayed[where];
    }
    sampleWhenDue();
}

void SoakRun::checkPhase(const Phase& phase)
{
    checkNothingSounds();
    if (phase.leavesModel)
        walkByFile();
    else
        walkTheKeys();
    if (phase.leavesModel)
        goHome();
    measureLatency();
}

double SoakRun::warmUp() const
{
    constexpr double least = 20, share = 0.2;
    return std::max(least, options.seconds * share);
}

// The JACK library of PipeWire 0.3 loses 260 KiB with every port that a program opens and closes, a bare
// pass-through's too: no port row is touched any more once the memory is judged.
int SoakRun::rowsForHand() const
{
    return options.judgeMemory && seconds() > warmUp() ? 0 : PortChurn::rows;
}

// The music keeps its tempo; where it was held up it catches up.
void SoakRun::music(const Phase& phase)
{
    score.begin(phase.style);
    QElapsedTimer time;
    time.start();
    const double lasts = options.phaseSeconds * 1000;
    qint64 played = 0;
    while (double(time.elapsed()) < lasts && program->isRunning() && !spoilt) {
        const qint64 due = time.elapsed() * options.rate / 1000;
        for (int now = 0; now < mostAtOnce && played < due; ++now, ++played)
            score.playNext();
        if (played % 97 == 0)
            sysex->send(8 + static_cast<int>(played % 300));
        if (options.hand && hand.isIdle())
            hand.add(gestures::any(phase.repertoire, handNumbers, rowsForHand()));
        if (options.ports)
            churn.step();
        turn();
    }
    score.releaseAll();
}
