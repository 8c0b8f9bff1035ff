// What the database file costs: reading it with all that follows in the window, and writing it to a disk.

#include "app/MainWnd.h"
#include "window_bench.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int manyScales = 10000, inOneCategory = 500;

QString pathOf(const char* name)
{
    static const QTemporaryDir folder;
    return folder.filePath(QLatin1String(name));
}

/// Each has a word of its own, longer than a scale's: there are not so many scales of twelve notes.
scale_data manyOf(int number)
{
    scale_data scale;
    for (int bit = 0; bit < 16; ++bit)
        scale.scale += QLatin1Char(number >> bit & 1 ? 'x' : 'o');
    scale.title = QStringLiteral("Scale of the mountain %1").arg(number);
    scale.abbr1 = QStringLiteral("MTN");
    scale.abbr2 = QString::number(number);
    scale.libBody = QStringLiteral("A description as long as those of the factory often are. ").repeated(6);
    return scale;
}

void fillLibrary()
{
    DatabaseLibrary& library = mainWnd->library;
    for (int i = 0; i < manyScales; ++i) {
        const QString category = QStringLiteral("%1 - Mountains").arg(20 + i / inOneCategory);
        const scale_data scale = manyOf(i);
        library.insertCategory(category);
        library.setScaleData(scale.scale, scale, DatabaseLibrary::LibraryRole);
        library.appendScaleToCategory(category, scale.scale);
    }
}

void mustSucceed(const QString& error)
{
    if (!error.isEmpty())
        qFatal("%s", qPrintable(error));
}

void exportState(benchmark::State& state)
{
    const QString file = pathOf("written.svdb");
    for (auto _ : state)
        mustSucceed(mainWnd->exportDatabase(file));
    state.counters["bytes"] = static_cast<double>(QFile(file).size());
}

/// Up to the window that shows it: queued events are part of it.
void importState(benchmark::State& state)
{
    const QString file = pathOf("read.svdb");
    mustSucceed(mainWnd->exportDatabase(file));
    for (auto _ : state) {
        mustSucceed(mainWnd->importDatabase(file));
        QCoreApplication::processEvents();
    }
}

void withManyScales(benchmark::State& state, void (*measured)(benchmark::State&))
{
    fillLibrary();
    measured(state);
    mainWnd->library.loadDefault();
}

void exportFactory(benchmark::State& state)
{
    exportState(state);
}

void importFactory(benchmark::State& state)
{
    importState(state);
}

void exportTenThousandScales(benchmark::State& state)
{
    withManyScales(state, &exportState);
}

void importTenThousandScales(benchmark::State& state)
{
    withManyScales(state, &importState);
}

BENCHMARK(exportFactory)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(importFactory)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exportTenThousandScales)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(importTenThousandScales)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return runInWindow(argc, argv, [](MainWnd&) {});
}
