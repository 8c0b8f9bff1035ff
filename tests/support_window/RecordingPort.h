#pragma once

#include <QList>

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
    /// The same as lists of bytes, the program's own form of a message.
    [[nodiscard]] QList<QList<int>> takeLists();
    void clear();
    /// From now on sending throws.
    void fail();
};
