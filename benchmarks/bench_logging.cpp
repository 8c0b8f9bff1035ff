// What an entry of the log costs who logs it.

#include "logging/LoggerFile.h"
#include "logging/LoggerStream.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

void log(benchmark::State& state)
{
    LoggerModel& model = *LoggerModel::getInstance();
    const QString text = QStringLiteral("Push key: 60 \"C4\"");
    for (auto _ : state)
        model.log(LoggerModel::error, text, 0);
}

void noObserver(benchmark::State& state)
{
    log(state);
}
BENCHMARK(noObserver);

void noObserverByStream(benchmark::State& state)
{
    LoggerModel& model = *LoggerModel::getInstance();
    for (auto _ : state)
        model.log(LoggerModel::error, 0) << "Push key: " << 60 << " \"C4\"";
}
BENCHMARK(noObserverByStream);

void toAFile(benchmark::State& state, LoggerModel::LoggerModelLogLevel threshold, unsigned fileSizeKb)
{
    constexpr unsigned backups = 5;
    const QTemporaryDir folder;
    LoggerFile file(folder.filePath(QStringLiteral("bench.log")), threshold, fileSizeKb, backups, false);
    if (!file.mfIsValid())
        return state.SkipWithError("no file can be written");
    LoggerModel::getInstance()->registerObserver(&file);
    log(state);
    LoggerModel::getInstance()->removeObserver(&file, false);
}

void fileBelowItsLevel(benchmark::State& state)
{
    toAFile(state, LoggerModel::fatal, 0);
}
BENCHMARK(fileBelowItsLevel);

void file(benchmark::State& state)
{
    toAFile(state, LoggerModel::error, 0);
}
BENCHMARK(file);

void fileThatIsRotated(benchmark::State& state)
{
    toAFile(state, LoggerModel::error, 512);
}
BENCHMARK(fileThatIsRotated);

} // namespace

BENCHMARK_MAIN();
