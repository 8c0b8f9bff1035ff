// What a note and a remap cost, in CPU time, with the window shown and a recording port open.

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/tonic_names.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLoggingCategory>

namespace {

void drain(RecordingPort& port)
{
    port.clear();
}

/// Notes over the whole keyboard, white keys and silent black ones alike, power on in D Ionian.
void notePair(benchmark::State& state)
{
    RecordingPort& port = *static_cast<RecordingPort*>(mainWnd->outPorts.first());
    int note = 21;
    for (auto _ : state) {
        mainWnd->pushKeySlot({0x90, note, 100});
        mainWnd->pushKeySlot({0x80, note, 0});
        note = note == 108 ? 21 : note + 1;
        if (note == 49) // toggles the power
            ++note;
        if (note == 21)
            drain(port);
    }
}

void remap(benchmark::State& state)
{
    auto* tonic = static_cast<TonicKeyController*>(mainWnd->tonicController);
    std::size_t i = 0;
    for (auto _ : state) {
        state.PauseTiming();
        tonic->setTonicModifier(tonicModifierName[++i % 12], false, true);
        state.ResumeTiming();
        mainWnd->powerItem->changeScaleByTonic();
        mainWnd->powerItem->setKeysDeactive();
    }
}

void passThrough(benchmark::State& state)
{
    RecordingPort& port = *static_cast<RecordingPort*>(mainWnd->outPorts.first());
    int value = 0;
    for (auto _ : state) {
        mainWnd->midiThru({0xB0, 1, value});
        value = (value + 1) % 128;
        if (value == 0)
            drain(port);
    }
}

BENCHMARK(notePair);
BENCHMARK(remap);
BENCHMARK(passThrough);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("sorvane.*.debug=false"));
    midiService().choose(MidiService::Wanted::none);
    MainWnd window;
    window.show();
    window.outPorts[0] = new RecordingPort;
    window.midiOutOpen = true;
    static_cast<TonicKeyController*>(window.tonicController)
        ->setTonicModifier(QStringLiteral("D"), true, true);
    window.setPower(true);
    QCoreApplication::processEvents();

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
