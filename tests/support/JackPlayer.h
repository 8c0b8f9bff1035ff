#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <jack/ringbuffer.h>
#include <jack/types.h>

#include <memory>

/// A native JACK client with one MIDI output, which it plays, and one MIDI input, which it records.
class JackPlayer
{
public:
    using Message = QList<int>;
    struct Event
    {
        unsigned char bytes[4];
        int size;
        quint32 frame; ///< on the server's clock
    };

    explicit JackPlayer(const QByteArray& name);
    ~JackPlayer();
    JackPlayer(const JackPlayer&) = delete;
    JackPlayer& operator=(const JackPlayer&) = delete;

    [[nodiscard]] bool isOpen() const { return client != nullptr; }
    /// Connects this player's output to the first port whose name ends so, and the other way round. An empty
    /// name is left out. Waits for the ports to appear; false if they do not.
    bool connectOutputTo(const QString& ending);
    bool connectInputTo(const QString& ending);

    void send(const Message& message);
    /// At the given frame of the server's clock, behind all that was given before; at once if it has passed.
    void sendOn(const Message& message, quint32 frame);
    [[nodiscard]] Message read();
    [[nodiscard]] bool readEvent(Event& event);
    /// The frame at which the oldest message not asked for yet was sent.
    [[nodiscard]] bool readSentFrame(quint32& frame);

    /// Sends a control change of the last channel until it comes back: then the way is open. Drops all else.
    [[nodiscard]] bool waitForEcho(int timeoutMs = 15000);
    /// Waits for so many messages and returns them; fewer if they do not come.
    [[nodiscard]] QList<Message> collect(int count, int timeoutMs = 5000);
    /// Plays and returns what comes back before the echo of a control change sent behind it.
    [[nodiscard]] QList<Message> answerTo(const QList<Message>& messages);
    /// What the hand at the screen has made the program send since the last call, read until the program has
    /// surely taken all of its events. Waits for so many messages; surplus ones are returned too.
    [[nodiscard]] QList<Message> heardFromHand(int expected);
    [[nodiscard]] quint32 now() const;
    /// The periods that the service left this client out of, with all that they carried to it.
    [[nodiscard]] int missedPeriods() const { return missed; }

private:
    struct Outgoing
    {
        Event event;
        bool onClock; ///< at the event's frame; else as soon as can be
    };
    void put(const Message& message, quint32 frame, bool onClock);
    static int onProcess(jack_nframes_t frames, void* self);
    void process(jack_nframes_t frames);
    [[nodiscard]] QByteArray findPort(const QString& ending, unsigned long flags) const;

    struct RingFree
    {
        void operator()(jack_ringbuffer_t* ring) const { jack_ringbuffer_free(ring); }
    };
    using Ring = std::unique_ptr<jack_ringbuffer_t, RingFree>;

    jack_client_t* client = nullptr;
    jack_port_t* output = nullptr;
    jack_port_t* input = nullptr;
    Ring outgoing, incoming, sentFrames;
    int echoNumber = 0;
    std::atomic<int> missed{0};
    quint32 nextStart = 0; ///< of the period that must come next; 0: not known
};
