#include "ChildProcess.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>

// Runs in the child, between its birth and the program: only calls that are safe in a signal handler.
void ChildProcess::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != owner) // which died before the line above
        _exit(1);
}
