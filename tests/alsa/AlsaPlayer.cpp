#include "AlsaPlayer.h"

#include "answer.h"

#include <QtTest>

namespace {

constexpr int waitMs = 30000; // an emulated machine is slow
constexpr unsigned outputCaps = SND_SEQ_PORT_CAP_READ | SND_SEQ_PORT_CAP_SUBS_READ;
constexpr unsigned inputCaps = SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_SUBS_WRITE;
constexpr unsigned portType = SND_SEQ_PORT_TYPE_MIDI_GENERIC | SND_SEQ_PORT_TYPE_APPLICATION;

} // namespace

AlsaPlayer::AlsaPlayer()
{
    if (snd_seq_open(&sequencer, "default", SND_SEQ_OPEN_DUPLEX, SND_SEQ_NONBLOCK) < 0) {
        sequencer = nullptr;
        return;
    }
    snd_seq_set_client_name(sequencer, "player");
    output = snd_seq_create_simple_port(sequencer, "play", outputCaps, portType);
    input = snd_seq_create_simple_port(sequencer, "listen", inputCaps, portType);
    snd_midi_event_new(16, &coder);
    snd_midi_event_no_status(coder, 1);
}

AlsaPlayer::~AlsaPlayer()
{
    if (!sequencer)
        return;
    snd_midi_event_free(coder);
    snd_seq_close(sequencer);
}

QList<AlsaPlayer::Address> AlsaPlayer::portsNamed(const QString& name) const
{
    QList<Address> found;
    snd_seq_client_info_t* client = nullptr;
    snd_seq_port_info_t* port = nullptr;
    snd_seq_client_info_malloc(&client);
    snd_seq_port_info_malloc(&port);
    snd_seq_client_info_set_client(client, -1);
    while (snd_seq_query_next_client(sequencer, client) >= 0) {
        snd_seq_port_info_set_client(port, snd_seq_client_info_get_client(client));
        snd_seq_port_info_set_port(port, -1);
        while (snd_seq_query_next_port(sequencer, port) >= 0)
            if (name == QString::fromUtf8(snd_seq_port_info_get_name(port)))
                found.append({snd_seq_port_info_get_client(port), snd_seq_port_info_get_port(port)});
    }
    snd_seq_port_info_free(port);
    snd_seq_client_info_free(client);
    return found;
}

bool AlsaPlayer::connectOutputTo(const QString& name, int n)
{
    return QTest::qWaitFor(
        [&] {
            const QList<Address> ports = portsNamed(name);
            return ports.size() > n &&
                   snd_seq_connect_to(sequencer, output, ports[n].client, ports[n].port) == 0;
        },
        waitMs);
}

bool AlsaPlayer::connectInputFrom(const QString& name, int n)
{
    return QTest::qWaitFor(
        [&] {
            const QList<Address> ports = portsNamed(name);
            return ports.size() > n &&
                   snd_seq_connect_from(sequencer, input, ports[n].client, ports[n].port) == 0;
        },
        waitMs);
}

void AlsaPlayer::send(const Message& message)
{
    unsigned char bytes[3];
    for (int i = 0; i < 3; ++i)
        bytes[i] = static_cast<unsigned char>(message.at(i));
    snd_seq_event_t event;
    snd_seq_ev_clear(&event);
    snd_midi_event_reset_encode(coder);
    snd_midi_event_encode(coder, bytes, sizeof bytes, &event);
    snd_seq_ev_set_source(&event, static_cast<unsigned char>(output));
    snd_seq_ev_set_subs(&event);
    snd_seq_ev_set_direct(&event);
    snd_seq_event_output_direct(sequencer, &event);
}

AlsaPlayer::Message AlsaPlayer::read()
{
    snd_seq_event_t* event = nullptr;
    while (snd_seq_event_input(sequencer, &event) >= 0) {
        unsigned char bytes[16];
        snd_midi_event_reset_decode(coder);
        const long size = snd_midi_event_decode(coder, bytes, sizeof bytes, event);
        if (size <= 0)
            continue; // news about connections
        Message message;
        for (long i = 0; i < size; ++i)
            message.append(bytes[i]);
        return message;
    }
    return {};
}

QList<AlsaPlayer::Message> AlsaPlayer::answerTo(const QList<Message>& messages)
{
    const Message echo{0xBF, 119, echoNumber = (echoNumber + 1) % 128};
    return answerBeforeEcho(*this, messages, echo, waitMs);
}
