// What a note and a remap cost, in CPU time, with the window shown and a recording port open.

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "headers/AnchorsGroup.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/TonicKeyController.h"
#include "keys/midi_status.h"
#include "keys/tonic_names.h"
#include "window_bench.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QMouseEvent>

namespace {

/// White keys over the whole keyboard, power on in D Ionian: press and release.
void notePair(benchmark::State& state)
{
    const auto& whites = pitch_mapping::whitePitches();
    std::size_t i = 0;
    for (auto _ : state) {
        mainWnd->pushKeySlot({midi_status::noteOn, whites[i], 100});
        mainWnd->pushKeySlot({midi_status::noteOff, whites[i], 0});
        i = (i + 1) % whites.size();
        if (i == 0)
            recordingPort().clear();
    }
}

/// The same without presets: what a note cost before there were any.
void notePairWithoutPresets(benchmark::State& state)
{
    HeaderController* presets = mainWnd->headerController;
    mainWnd->headerController = nullptr;
    notePair(state);
    mainWnd->headerController = presets;
}

/// A black key recalls one of two presets that differ in tonic and scale; the window is painted between the
/// presses, as it is on stage. The release is not counted.
void recall(benchmark::State& state)
{
    HeaderController* presets = mainWnd->headerController;
    const int keys[] = {58, 75}; // C Lydian, D# Iwato
    std::size_t i = 0;
    for (auto _ : state) {
        i = 1 - i;
        mainWnd->pushKeySlot({midi_status::noteOn, keys[i], 100});
        state.PauseTiming();
        if (presets->activeHeader != presets->findHeader(keys[i]))
            state.SkipWithError("the preset was not recalled");
        mainWnd->pushKeySlot({midi_status::noteOff, keys[i], 0});
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

void remap(benchmark::State& state)
{
    auto* tonic = static_cast<TonicKeyController*>(mainWnd->tonicController);
    std::size_t i = 0;
    for (auto _ : state) {
        state.PauseTiming();
        tonic->setTonicModifier(tonicModifierName[++i % tonicModifierName.size()], false, true);
        state.ResumeTiming();
        mainWnd->powerItem->changeScaleByTonic();
        mainWnd->powerItem->setKeysDeactive();
    }
}

/// One step of an anchor drag, one white key to the left or right, by the pointer's own events: remap,
/// numbers, repaint requested. The painting itself is not counted.
void anchorStep(benchmark::State& state)
{
    QWidget* view = mainWnd->ui.inKeyboardGraphicsView->viewport();
    const QPoint home = mainWnd->ui.inKeyboardGraphicsView->mapFromScene(399, 168);
    const auto send = [view](QEvent::Type type, QPoint pos, Qt::MouseButton button,
                             Qt::MouseButtons buttons) {
        QMouseEvent event(type, pos, view->mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &event);
    };
    send(QEvent::MouseButtonPress, home, Qt::LeftButton, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        step = (step + 1) % 20;
        const int keys = step < 10 ? step : 20 - step; // there and back
        send(QEvent::MouseMove, home + QPoint(pitch_mapping::whiteKeyWidth * keys, 0), Qt::NoButton,
             Qt::LeftButton);
        state.PauseTiming();
        if (qRound(mainWnd->powerItem->anchorsGroup->x()) != pitch_mapping::whiteKeyWidth * keys)
            state.SkipWithError("the anchors did not follow");
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    send(QEvent::MouseMove, home, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, home, Qt::LeftButton, Qt::NoButton);
}

void passThrough(benchmark::State& state)
{
    int value = 0;
    for (auto _ : state) {
        mainWnd->midiThru({0xB0, 1, value});
        value = (value + 1) % 128;
        if (value == 0)
            recordingPort().clear();
    }
}

BENCHMARK(notePair);
BENCHMARK(notePairWithoutPresets);
BENCHMARK(recall)->Iterations(500);
BENCHMARK(remap);
BENCHMARK(anchorStep)->Iterations(500);
BENCHMARK(passThrough);

} // namespace

int main(int argc, char** argv)
{
    return runInWindow(argc, argv, [](MainWnd& window) {
        openRecordingPort(window);
        static_cast<TonicKeyController*>(window.tonicController)
            ->setTonicModifier(QStringLiteral("D"), true, true);
        window.setPower(true);
    });
}
