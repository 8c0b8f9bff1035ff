#include "RoamingHand.h"

RoamingHand::~RoamingHand()
{
    giveUp();
}

void RoamingHand::step()
{
    if (process && process->state() == QProcess::NotRunning) {
        lastSucceeded = process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
        ++(lastSucceeded ? doneCount : failedCount);
        process.reset();
    }
    if (process || ahead.isEmpty())
        return;
    process = std::make_unique<ChildProcess>();
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(QStringLiteral("xdotool"), ahead.takeFirst());
}

void RoamingHand::giveUp()
{
    ahead.clear();
    if (!process)
        return;
    process->kill();
    process->waitForFinished();
    process.reset();
}
