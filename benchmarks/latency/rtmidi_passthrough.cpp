// The least that a program on RtMidi can do: what comes in goes out, on the library's own thread.

#include <RtMidi.h>

#include <csignal>

namespace {

void pass(double, std::vector<unsigned char>* message, void* output)
{
    static_cast<RtMidiOut*>(output)->sendMessage(message);
}

} // namespace

int main()
{
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGTERM);
    sigaddset(&ends, SIGINT);
    sigprocmask(SIG_BLOCK, &ends, nullptr);

    RtMidiOut output(RtMidi::UNIX_JACK, "passthrough out");
    RtMidiIn input(RtMidi::UNIX_JACK, "passthrough in", 100);
    output.openVirtualPort("passthrough output");
    input.setCallback(&pass, &output);
    input.ignoreTypes(false, false, false);
    input.openVirtualPort("passthrough input");
    int signal = 0;
    sigwait(&ends, &signal);
    return 0;
}
