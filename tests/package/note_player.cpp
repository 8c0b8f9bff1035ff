// note_player INPUT OUTPUT NOTE EXPECTED: plays NOTE into the JACK port INPUT until the port OUTPUT answers,
// and ends with 0 if it answers EXPECTED. Of libraries it needs JACK alone, so that it runs wherever the
// installed program runs.

#include <jack/jack.h>
#include <jack/midiport.h>
#include <jack/ringbuffer.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

using Message = std::array<unsigned char, 3>;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds patience(20000), answerTime(500), pause(10);
constexpr unsigned char velocity = 100;

struct Player
{
    jack_client_t* client = nullptr;
    jack_port_t* output = nullptr;
    jack_port_t* input = nullptr;
    jack_ringbuffer_t* toPlay = jack_ringbuffer_create(1024);
    jack_ringbuffer_t* heard = jack_ringbuffer_create(4096);
};

int process(jack_nframes_t frames, void* data)
{
    Player& player = *static_cast<Player*>(data);
    void* out = jack_port_get_buffer(player.output, frames);
    jack_midi_clear_buffer(out);
    Message message{};
    while (jack_ringbuffer_read_space(player.toPlay) >= message.size()) {
        jack_ringbuffer_read(player.toPlay, reinterpret_cast<char*>(message.data()), message.size());
        jack_midi_event_write(out, 0, message.data(), message.size());
    }
    void* in = jack_port_get_buffer(player.input, frames);
    for (jack_nframes_t i = 0; i < jack_midi_get_event_count(in); ++i) {
        jack_midi_event_t event;
        if (jack_midi_event_get(&event, in, i) == 0 && event.size == message.size())
            jack_ringbuffer_write(player.heard, reinterpret_cast<const char*>(event.buffer), event.size);
    }
    return 0;
}

template <typename Condition>
bool waitFor(Condition holds, Clock::duration time)
{
    for (const auto end = Clock::now() + time; Clock::now() < end; std::this_thread::sleep_for(pause))
        if (holds())
            return true;
    return holds();
}

bool isConnected(const Player& player, const char* from, const char* to)
{
    const int error = jack_connect(player.client, from, to);
    return error == 0 || error == EEXIST;
}

bool open(Player& player, const char* programInput, const char* programOutput)
{
    player.client = jack_client_open("note_player", JackNoStartServer, nullptr);
    if (!player.client)
        return false;
    player.output = jack_port_register(player.client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    player.input = jack_port_register(player.client, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    jack_set_process_callback(player.client, process, &player);
    return jack_activate(player.client) == 0 &&
           waitFor(
               [&] {
                   return isConnected(player, jack_port_name(player.output), programInput) &&
                          isConnected(player, programOutput, jack_port_name(player.input));
               },
               patience);
}

/// The next message that is heard, or zeros.
Message answerTo(Player& player, const Message& message)
{
    jack_ringbuffer_write(player.toPlay, reinterpret_cast<const char*>(message.data()), message.size());
    Message answer{};
    if (waitFor([&] { return jack_ringbuffer_read_space(player.heard) >= answer.size(); }, answerTime))
        jack_ringbuffer_read(player.heard, reinterpret_cast<char*>(answer.data()), answer.size());
    return answer;
}

} // namespace

int main(int count, char** words)
{
    Player player;
    if (count != 5 || !open(player, words[1], words[2])) {
        std::fputs("note_player: no JACK interface, or not the ports\n", stderr);
        return 2;
    }
    const auto note = static_cast<unsigned char>(std::atoi(words[3]));
    const auto expected = static_cast<unsigned char>(std::atoi(words[4]));
    Message answer{};
    // The first notes may be gone before the connection stands.
    for (const auto end = Clock::now() + patience; answer[0] == 0 && Clock::now() < end;) {
        answer = answerTo(player, {0x90, note, velocity});
        if (answer[0] == 0)
            answerTo(player, {0x80, note, 0});
    }
    const Message release = answerTo(player, {0x80, note, 0});
    jack_client_close(player.client);
    std::printf("%d is answered by %02x %d %d and %02x %d\n", note, answer[0], answer[1], answer[2],
                release[0], release[1]);
    return answer == Message{0x90, expected, velocity} && release[0] == 0x80 && release[1] == expected ? 0
                                                                                                       : 1;
}
