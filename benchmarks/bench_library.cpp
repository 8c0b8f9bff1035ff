// What the library view costs a player, with the window shown and a recording port open. "Time" of a recall
// contains the rest that the browser takes before it follows; "CPU" is what it works.

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "keys/midi_status.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/ScaleListWidget.h"
#include "window_bench.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

namespace {

constexpr int manyScales = 1000;

CenterScreen& screen()
{
    return *mainWnd->centerScreen;
}

void settle()
{
    QCoreApplication::processEvents();
    recordingPort().clear();
}

/// A white key's press and release, with all that is due behind them: queued events, timers, painting.
void notePair(benchmark::State& state)
{
    static const int whites[] = {48, 50, 52, 53, 55, 57, 59, 60, 62, 64, 65, 67, 69, 71};
    std::size_t i = 0;
    settle();
    for (auto _ : state) {
        mainWnd->receiveMessage({midi_status::noteOn, whites[i], 100});
        mainWnd->receiveMessage({midi_status::noteOff, whites[i], 0});
        QCoreApplication::processEvents();
        i = (i + 1) % std::size(whites);
        if (i == 0)
            recordingPort().clear();
    }
}

void notePairLibraryClosed(benchmark::State& state)
{
    mainWnd->showLibraryScreen(false);
    notePair(state);
}

void notePairLibraryOpen(benchmark::State& state)
{
    mainWnd->showLibraryScreen(true);
    notePair(state);
    mainWnd->showLibraryScreen(false);
}

/// A black key's preset, until the page of its scale stands.
void recallLibraryOpen(benchmark::State& state)
{
    const int keys[] = {58, 75}; // C Lydian, D# Iwato
    mainWnd->showLibraryScreen(true);
    settle();
    const QTextBrowser* page = screen().libraryView()->description;
    std::size_t i = 0;
    for (auto _ : state) {
        i = 1 - i;
        const QString before = page->toPlainText();
        mainWnd->receiveMessage({midi_status::noteOn, keys[i], 100});
        mainWnd->receiveMessage({midi_status::noteOff, keys[i], 0});
        while (page->toPlainText() == before)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    }
    mainWnd->showLibraryScreen(false);
}

void openLibrary(benchmark::State& state)
{
    settle();
    for (auto _ : state) {
        mainWnd->showLibraryScreen(true);
        QCoreApplication::processEvents();
        state.PauseTiming();
        mainWnd->showLibraryScreen(false);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

/// The word of a number of up to eleven bits.
QString wordOf(int number)
{
    QString word = QStringLiteral("x");
    for (int bit = 0; bit < 11; ++bit)
        word += QLatin1Char(number >> bit & 1 ? 'x' : 'o');
    return word;
}

/// The lists and the page after a change of a category of a thousand scales.
void updateOfManyScales(benchmark::State& state)
{
    DatabaseLibrary& library = mainWnd->library;
    const QString category = QStringLiteral("Many"), first = wordOf(1);
    library.insertCategory(category);
    for (int i = 1; i <= manyScales; ++i) {
        const QString word = wordOf(i), number = QString::number(i);
        library.setScaleData(word, {word, number, number, QStringLiteral("Scale ") + number, {}},
                             DatabaseLibrary::LibraryRole);
        library.appendScaleToCategory(category, word);
    }
    library.setCurrentCategory(category);
    library.setCurrentScaleIndex(category, 0);
    mainWnd->showLibraryScreen(true);
    settle();
    int change = 0;
    for (auto _ : state) {
        const QString title = QString::number(++change);
        library.setScaleData(first, {first, title, title, title, {}}, DatabaseLibrary::LibraryRole);
        screen().refreshBrowser();
        QCoreApplication::processEvents();
    }
    const auto* scales = screen().libraryView()->scales;
    if (scales->count() != manyScales || scales->item(0)->text() != QString::number(change))
        state.SkipWithError("the list did not follow");
    mainWnd->showLibraryScreen(false);
}

BENCHMARK(notePairLibraryClosed);
BENCHMARK(notePairLibraryOpen);
BENCHMARK(recallLibraryOpen)->Iterations(50)->UseRealTime();
BENCHMARK(openLibrary);
BENCHMARK(updateOfManyScales);

} // namespace

int main(int argc, char** argv)
{
    return runInWindow(argc, argv, [](MainWnd& window) {
        openRecordingPort(window);
        window.setPower(true);
    });
}
