#pragma once

#include <QObject>

#include <jack/types.h>

#include <atomic>

/// A silent client that knows whether the JACK server lives. RtMidi cannot tell: its output waits for ever in
/// a ring buffer that a dead server no longer drains.
class JackWatch : public QObject
{
    Q_OBJECT

public:
    /// Connects without starting a server; see isAlive().
    JackWatch();
    ~JackWatch() override;

    [[nodiscard]] bool isAlive() const { return alive; }
    /// Counts one message a port. False if the server is gone, or if it has not run for so many messages that
    /// a ring buffer might be full.
    [[nodiscard]] bool mayWrite();
    /// The library says that the server is gone: believed if no cycles come for a while. On any thread.
    void doubt();

signals:
    void stopped();

private:
    static int onCycle(jack_nframes_t frames, void* self);
    static void onShutdown(void* self);
    void conclude(unsigned cyclesBefore);

    jack_client_t* client = nullptr;
    std::atomic<bool> alive{false};
    std::atomic<unsigned> cycles{0};
    unsigned cyclesSeen = 0;
    int pending = 0; ///< messages since the last cycle seen
};
