#pragma once

#include "ChildProcess.h"

#include <QTemporaryDir>

/// A PipeWire daemon of the test's own: no session manager, no hardware, 48 kHz, periods of 256 frames unless
/// told otherwise. start() points XDG_RUNTIME_DIR of this process, and so of its children, to it.
class PipeWireDaemon
{
public:
    /// A busy machine loses whole periods, with all they carry: the longer they are, the fewer.
    explicit PipeWireDaemon(int periodFrames = 256) : frames(periodFrames) {}
    ~PipeWireDaemon();

    /// False, with reason(), where no daemon can be started.
    bool start();
    /// Starts it and looks for a JACK interface on it. False, with reason(), which CTest takes for a skipped
    /// test, where there is none.
    bool startForJack();
    /// Ends it as a crash would.
    void kill();
    [[nodiscard]] QString reason() const { return why; }

private:
    [[nodiscard]] bool writeConfiguration() const;

    const int frames;
    QTemporaryDir folder;
    ChildProcess process;
    QString why;
};
