#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A PipeWire daemon of the test's own: no session manager, no hardware, 48 kHz, periods of 256 frames.
/// start() points XDG_RUNTIME_DIR of this process, and so of its children, to it.
class PipeWireDaemon
{
public:
    ~PipeWireDaemon();

    /// False, with reason(), where no daemon can be started.
    bool start();
    /// Ends it as a crash would.
    void kill();
    [[nodiscard]] QString reason() const { return why; }

private:
    [[nodiscard]] bool writeConfiguration() const;

    QTemporaryDir folder;
    QProcess process;
    QString why;
};
