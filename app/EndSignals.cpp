#include "app/EndSignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

int ends[2]; // a signal handler may write to one, and nothing else

void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(ends[0], &byte, sizeof byte);
}

void watch(int number)
{
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
}

// Who starts the program with nohup means it.
bool isIgnored(int number)
{
    struct sigaction action = {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

EndSignals::EndSignals(QObject* parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        return;
    notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, QCoreApplication::instance(), [this] {
        notifier->setEnabled(false);
        QCoreApplication::quit();
    });
    watch(SIGINT);
    watch(SIGTERM);
    if (!isIgnored(SIGHUP))
        watch(SIGHUP);
}
