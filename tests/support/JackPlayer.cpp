#include "JackPlayer.h"

#include "answer.h"

#include <QElapsedTimer>
#include <QtTest>

#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t ringBytes = 1U << 22U;
constexpr int echoStatus = 0xBF, echoController = 119;
constexpr int portWaitMs = 10000;

template <typename Record>
bool look(jack_ringbuffer_t* ring, Record& record)
{
    return jack_ringbuffer_peek(ring, reinterpret_cast<char*>(&record), sizeof record) == sizeof record;
}

template <typename Record>
bool take(jack_ringbuffer_t* ring, Record& record)
{
    const bool isThere = look(ring, record);
    if (isThere)
        jack_ringbuffer_read_advance(ring, sizeof record);
    return isThere;
}

template <typename Record>
void give(jack_ringbuffer_t* ring, const Record& record)
{
    if (jack_ringbuffer_write_space(ring) >= sizeof record)
        jack_ringbuffer_write(ring, reinterpret_cast<const char*>(&record), sizeof record);
}

} // namespace

JackPlayer::JackPlayer(const QByteArray& name)
    : outgoing(jack_ringbuffer_create(ringBytes)), incoming(jack_ringbuffer_create(ringBytes)),
      sentFrames(jack_ringbuffer_create(ringBytes))
{
    client = jack_client_open(name.constData(), JackNoStartServer, nullptr);
    if (!client)
        return;
    output = jack_port_register(client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    input = jack_port_register(client, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    jack_set_process_callback(client, &JackPlayer::onProcess, this);
    jack_activate(client);
}

JackPlayer::~JackPlayer()
{
    if (client)
        jack_client_close(client);
}

int JackPlayer::onProcess(jack_nframes_t frames, void* self)
{
    static_cast<JackPlayer*>(self)->process(frames);
    return 0;
}

void JackPlayer::process(jack_nframes_t frames)
{
    const jack_nframes_t start = jack_last_frame_time(client);
    if (nextStart != 0 && start != nextStart)
        ++missed;
    nextStart = start + frames;
    void* out = jack_port_get_buffer(output, frames);
    jack_midi_clear_buffer(out);
    jack_nframes_t offset = 0;
    Outgoing next{};
    while (look(outgoing.get(), next)) {
        const int ahead = next.onClock ? static_cast<qint32>(next.event.frame - start) : 0;
        if (ahead >= static_cast<int>(frames))
            break;
        jack_ringbuffer_read_advance(outgoing.get(), sizeof next);
        offset = std::max(offset, static_cast<jack_nframes_t>(std::max(0, ahead)));
        if (jack_midi_event_write(out, offset, next.event.bytes, static_cast<std::size_t>(next.event.size)) ==
            0)
            give(sentFrames.get(), quint32(start + offset));
    }
    void* in = jack_port_get_buffer(input, frames);
    const jack_nframes_t count = jack_midi_get_event_count(in);
    for (jack_nframes_t i = 0; i < count; ++i) {
        jack_midi_event_t event;
        if (jack_midi_event_get(&event, in, i) != 0)
            continue;
        Event record{};
        record.size = static_cast<int>(std::min<std::size_t>(event.size, sizeof record.bytes));
        std::memcpy(record.bytes, event.buffer, static_cast<std::size_t>(record.size));
        record.frame = start + event.time;
        give(incoming.get(), record);
    }
}

QByteArray JackPlayer::findPort(const QString& ending, unsigned long flags) const
{
    const char** names = jack_get_ports(client, nullptr, JACK_DEFAULT_MIDI_TYPE, flags);
    QByteArray found;
    for (int i = 0; names && names[i] && found.isEmpty(); ++i)
        if (QString::fromUtf8(names[i]).endsWith(ending))
            found = names[i];
    jack_free(names);
    return found;
}

bool JackPlayer::connectOutputTo(const QString& ending)
{
    return QTest::qWaitFor(
        [&] {
            const QByteArray port = findPort(ending, JackPortIsInput);
            return !port.isEmpty() && jack_connect(client, jack_port_name(output), port.constData()) == 0;
        },
        portWaitMs);
}

bool JackPlayer::connectInputTo(const QString& ending)
{
    return QTest::qWaitFor(
        [&] {
            const QByteArray port = findPort(ending, JackPortIsOutput);
            return !port.isEmpty() && jack_connect(client, port.constData(), jack_port_name(input)) == 0;
        },
        portWaitMs);
}

void JackPlayer::send(const Message& message)
{
    put(message, 0, false);
}

void JackPlayer::sendOn(const Message& message, quint32 frame)
{
    put(message, frame, true);
}

void JackPlayer::put(const Message& message, quint32 frame, bool onClock)
{
    Outgoing next{};
    next.event.size = message.size();
    next.event.frame = frame;
    next.onClock = onClock;
    for (int i = 0; i < message.size(); ++i)
        next.event.bytes[i] = static_cast<unsigned char>(message.at(i));
    give(outgoing.get(), next);
}

bool JackPlayer::readEvent(Event& event)
{
    return take(incoming.get(), event);
}

bool JackPlayer::readSentFrame(quint32& frame)
{
    return take(sentFrames.get(), frame);
}

JackPlayer::Message JackPlayer::read()
{
    Event event{};
    Message message;
    if (readEvent(event))
        for (int i = 0; i < event.size; ++i)
            message.append(event.bytes[i]);
    return message;
}

bool JackPlayer::waitForEcho(int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < timeoutMs) {
        const Message echo{echoStatus, echoController, echoNumber = (echoNumber + 1) % 128};
        send(echo);
        const bool back = QTest::qWaitFor(
            [&] {
                for (Message message = read(); !message.isEmpty(); message = read())
                    if (message == echo)
                        return true;
                return false;
            },
            250);
        if (back)
            return true;
    }
    return false;
}

QList<JackPlayer::Message> JackPlayer::collect(int count, int timeoutMs)
{
    QList<Message> messages;
    static_cast<void>(QTest::qWaitFor(
        [&] {
            for (Message message = read(); !message.isEmpty(); message = read())
                messages.append(message);
            return messages.size() >= count;
        },
        timeoutMs));
    return messages;
}

QList<JackPlayer::Message> JackPlayer::answerTo(const QList<Message>& messages)
{
    const Message echo{echoStatus, echoController, echoNumber = (echoNumber + 1) % 128};
    return answerBeforeEcho(*this, messages, echo, 5000);
}

// The X server has passed the event on before the echo sets out, but the program's loop may look at its MIDI
// events first: the second echo comes a turn of that loop later.
QList<JackPlayer::Message> JackPlayer::heardFromHand(int expected)
{
    QList<Message> messages = collect(expected);
    messages += answerTo({});
    if (expected == 0)
        messages += answerTo({});
    return messages;
}

quint32 JackPlayer::now() const
{
    return jack_frame_time(client);
}
