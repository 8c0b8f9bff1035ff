#pragma once

#include <QCoreApplication>
#include <QProcess>

/// A process that dies with this one, even when this one is killed and no destructor runs. A wrapper must
/// hand over by exec. Start it from the main thread: it dies with the thread that started it.
class ChildProcess : public QProcess
{
protected:
    void setupChildProcess() override;

private:
    const qint64 owner = QCoreApplication::applicationPid();
};
