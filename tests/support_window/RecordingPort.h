#pragma once

#include <RtMidi.h>

#include <vector>

/// An output port that keeps what is sent to it. It needs no MIDI service.
class RecordingPort : public RtMidiOut
{
public:
    using Message = std::vector<unsigned char>;

    RecordingPort();

    [[nodiscard]] const std::vector<Message>& messages() const;
    /// The messages since the last call.
    [[nodiscard]] std::vector<Message> take();
    void clear();
};
