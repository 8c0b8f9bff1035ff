#include "SysexPlayer.h"

#include <QtTest>

#include <jack/jack.h>
#include <jack/midiport.h>

SysexPlayer::SysexPlayer() : client(jack_client_open("sysex", JackNoStartServer, nullptr))
{
    if (!client)
        return;
    output = jack_port_register(client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    jack_set_process_callback(client, &SysexPlayer::onProcess, this);
    jack_activate(client);
}

SysexPlayer::~SysexPlayer()
{
    if (client)
        jack_client_close(client);
}

bool SysexPlayer::connectTo(const QString& ending)
{
    const auto connects = [&] {
        const char** names = jack_get_ports(client, nullptr, JACK_DEFAULT_MIDI_TYPE, JackPortIsInput);
        bool done = false;
        for (int i = 0; names && names[i] && !done; ++i)
            done = QString::fromUtf8(names[i]).endsWith(ending) &&
                   jack_connect(client, jack_port_name(output), names[i]) == 0;
        jack_free(names);
        return done;
    };
    return client && QTest::qWaitFor(connects, 10000);
}

int SysexPlayer::onProcess(jack_nframes_t frames, void* self)
{
    static_cast<SysexPlayer*>(self)->process(frames);
    return 0;
}

void SysexPlayer::process(jack_nframes_t frames)
{
    void* buffer = jack_port_get_buffer(output, frames);
    jack_midi_clear_buffer(buffer);
    const int bytes = wanted.exchange(0);
    if (bytes < 4)
        return;
    jack_midi_data_t* event = jack_midi_event_reserve(buffer, 0, static_cast<std::size_t>(bytes));
    if (!event)
        return;
    for (int i = 0; i < bytes; ++i)
        event[i] = static_cast<jack_midi_data_t>(i % 128);
    event[0] = 0xF0;
    event[bytes - 1] = 0xF7;
    ++count;
}
