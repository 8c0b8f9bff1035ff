#include "window_bench.h"

#include "RecordingPort.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLoggingCategory>

int runInWindow(int argc, char** argv, void (*prepare)(MainWnd& window))
{
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("sorvane.*.debug=false"));
    midiService().choose(MidiService::Wanted::none);
    MainWnd window;
    window.show();
    prepare(window);
    QCoreApplication::processEvents();

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

void openRecordingPort(MainWnd& window)
{
    window.outPorts[0] = new RecordingPort; // the window's, as any other
    window.midiOutOpen = true;
}

RecordingPort& recordingPort()
{
    return *static_cast<RecordingPort*>(mainWnd->outPorts.first());
}
