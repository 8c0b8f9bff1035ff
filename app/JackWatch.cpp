#include "app/JackWatch.h"

#include "logging/categories.h"

#include <QTimer>

#include <jack/jack.h>

namespace {

// A ring holds 2,340 messages of three bytes.
constexpr int safeBacklog = 2000;

// Three of the longest periods.
constexpr int doubtMs = 600;

void logJackText(const char* text)
{
    qCDebug(lcApp) << "jack:" << text;
}

} // namespace

JackWatch::JackWatch()
{
    jack_set_error_function(logJackText);
    jack_set_info_function(logJackText);
    client = jack_client_open("Sorvane watch", JackNoStartServer, nullptr);
    if (!client)
        return;
    jack_set_process_callback(client, &JackWatch::onCycle, this);
    jack_on_shutdown(client, &JackWatch::onShutdown, this);
    alive = true;
    if (jack_activate(client) != 0)
        alive = false;
}

JackWatch::~JackWatch()
{
    if (client)
        jack_client_close(client);
}

int JackWatch::onCycle(jack_nframes_t, void* self)
{
    static_cast<JackWatch*>(self)->cycles.fetch_add(1, std::memory_order_relaxed);
    return 0;
}

void JackWatch::onShutdown(void* self)
{
    static_cast<JackWatch*>(self)->doubt();
}

// PipeWire's library cries for any error that the server tells, such as a port of another program that was
// gone before the library had looked at it. Each cry is looked into: the true one may follow a false one.
void JackWatch::doubt()
{
    QMetaObject::invokeMethod(
        this,
        [this] { QTimer::singleShot(doubtMs, this, [this, before = cycles.load()] { conclude(before); }); },
        Qt::QueuedConnection);
}

void JackWatch::conclude(unsigned cyclesBefore)
{
    const bool runs = cycles - cyclesBefore > 1; // one may have been under way
    if (!runs && alive.exchange(false))
        emit stopped();
}

bool JackWatch::mayWrite()
{
    const unsigned now = cycles.load(std::memory_order_relaxed);
    if (now != cyclesSeen) {
        cyclesSeen = now;
        pending = 0;
    }
    return alive && ++pending <= safeBacklog;
}
