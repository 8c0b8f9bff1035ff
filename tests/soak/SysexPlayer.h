#pragma once

#include <QByteArray>
#include <QString>

#include <jack/types.h>

#include <atomic>

/// A JACK client that sends system exclusive messages of several hundred bytes: nothing may come of them.
class SysexPlayer
{
public:
    SysexPlayer();
    ~SysexPlayer();
    SysexPlayer(const SysexPlayer&) = delete;
    SysexPlayer& operator=(const SysexPlayer&) = delete;

    [[nodiscard]] bool connectTo(const QString& ending);
    /// So many bytes in the next period, status and end included; 4 at least.
    void send(int bytes) { wanted = bytes; }
    [[nodiscard]] int sent() const { return count; }

private:
    static int onProcess(jack_nframes_t frames, void* self);
    void process(jack_nframes_t frames);

    jack_client_t* client = nullptr;
    jack_port_t* output = nullptr;
    std::atomic<int> wanted{0}, count{0};
};
